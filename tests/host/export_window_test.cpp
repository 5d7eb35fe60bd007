#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTabWidget>
#include <QTreeView>
#include <optional>

#include "Export/ClassExport.h"
#include "Host/Preview/ExportWindow.h"
#include "Systems/CurrentFile.h"
#include "Systems/LearningSystem.h"
#include "tests/host/FullDisk.h"
#include "tests/host/HostFixture.h"

namespace host {

namespace {

// Students by first name and alias, each with a result in both assignments.
std::shared_ptr<OpenClass> _Class(const std::vector<std::pair<std::string, std::string>>& students) {
  auto made = std::make_shared<OpenClass>();
  made->record.assignments.resize(2);
  for (const auto& [name, alias] : students) {
    qz::StudentRecord student;
    student.id = static_cast<int32_t>(made->record.students.size()) + 1;
    student.firstName = name;
    student.lastName = "Vega";
    student.alias = alias;
    student.studentID = alias;
    made->record.students.push_back(student);
  }
  int32_t id = 0;
  for (qz::AssignmentRecord& assignment : made->record.assignments) {
    assignment.id = ++id;
    assignment.name = "Quiz " + std::to_string(id);
    assignment.pointsPossible = 10;
    for (const qz::StudentRecord& student : made->record.students) {
      assignment.results.push_back({.studentID = student.id, .responses = {{1, 0, "", 5}}});
    }
  }
  return made;
}

std::shared_ptr<OpenClass> _WithAccent() {
  return _Class({{"Ana", "ana"}, {"Jos\x8E", "jose"}});
}

class ExportWindowTest : public HostTest {
 protected:
  void Show(std::shared_ptr<const OpenClass> openClass, const ExportStart& start = {}) {
    m_window = std::make_unique<ExportWindow>(
        nullptr, std::move(openClass), start,
        ExportWindow::Handlers{
            .placesChosen = [this](const std::vector<FindingPlace>& places) { m_chosen = places; },
            .saved = [this](const ExportedFile& file) { m_saved.push_back(file); }});
    m_window->setAttribute(Qt::WA_DeleteOnClose, false);
    m_window->show();
    m_tree = Find<QTreeView>("findings");
    Settle();
  }

  bool Activate() {
    m_window->activateWindow();
    return QTest::qWaitForWindowActive(m_window.get());
  }

  // The findings come in the event after a choice, the preview in the next.
  static void Settle() {
    for (int i = 0; i < 4; ++i) QCoreApplication::processEvents();
  }

  template <typename Widget>
  Widget* Find(const char* name) {
    return m_window->findChild<Widget*>(QLatin1String(name));
  }

  void Choose(const char* combo, const char* text) {
    auto* const box = Find<QComboBox>(combo);
    box->setCurrentIndex(box->findText(QString::fromUtf8(text)));
    ASSERT_GE(box->currentIndex(), 0) << text;
    Settle();
  }

  std::string Obstacle() {
    auto* const text = Find<QLabel>("obstacle");
    return text->isVisible() ? text->text().toStdString() : "";
  }
  QString Text() { return Find<QPlainTextEdit>("fileText")->toPlainText(); }
  QString FirstTab() { return Find<QTabWidget>("filePages")->tabText(0); }

  QModelIndex Row(int finding) { return m_tree->model()->index(finding, 0); }
  std::string TextOf(const QModelIndex& index) { return index.data().toString().toStdString(); }
  std::string Summary() { return Find<QLabel>("findingsSummary")->text().toStdString(); }

  std::unique_ptr<ExportWindow> m_window;
  QTreeView* m_tree = nullptr;
  std::vector<FindingPlace> m_chosen;
  std::vector<ExportedFile> m_saved;
};

TEST_F(ExportWindowTest, SaysWhatWillHappenInBothLanguages) {
  const struct {
    HostLanguage language;
    const char *refused, *advice, *summary, *nothing;
  } rows[] = {
      {HostLanguage::kEnglish, "The file will be refused\nCanvas refuses",
       "What to do: Make the current file instead", "Problems: 1", "will arrive in Canvas"},
      {HostLanguage::kSpanish, "El archivo será rechazado\nCanvas rechaza",
       "Qué hacer: Cree el archivo actual", "Problemas: 1", "llegarán a Canvas"},
  };
  Show(_WithAccent());
  for (const auto& row : rows) {
    SetCurrentLanguage(row.language);
    Choose("format", "Canvas");
    Find<QComboBox>("dialect")->setCurrentIndex(0);
    Settle();
    EXPECT_EQ(TextOf(Row(0)).rfind(row.refused, 0), 0U) << TextOf(Row(0));
    EXPECT_NE(TextOf(Row(0)).find(row.advice), std::string::npos) << TextOf(Row(0));
    EXPECT_FALSE(Row(0).data(Qt::DecorationRole).value<QIcon>().isNull());
    EXPECT_TRUE(m_tree->isExpanded(Row(0)));
    EXPECT_EQ(TextOf(m_tree->model()->index(0, 0, Row(0))), "José Vega (jose)");
    EXPECT_EQ(Summary().rfind(row.summary, 0), 0U) << Summary();

    Find<QComboBox>("dialect")->setCurrentIndex(1);
    Settle();
    EXPECT_EQ(m_tree->model()->rowCount(), 0) << TextOf(Row(0));
    const auto* const nothing = Find<QLabel>("nothingFound");
    EXPECT_TRUE(nothing->isVisible());
    EXPECT_NE(nothing->text().toStdString().find(row.nothing), std::string::npos);
  }
}

TEST_F(ExportWindowTest, FollowsEveryChoice) {
  Show(_WithAccent());
  Choose("format", "Sakai");  // which takes the letters of a name
  EXPECT_EQ(Summary().rfind("No problems", 0), 0U) << Summary();
  Choose("format", "Blackboard 6.0 - 7.0");
  EXPECT_FALSE(Find<QComboBox>("dialect")->isVisible());
  Choose("field", "Custom 1");  // which nobody has
  EXPECT_NE(TextOf(Row(0)).find("Custom 1"), std::string::npos) << TextOf(Row(0));
  Choose("format", "Canvas");  // with the field that its dialog proposes
  EXPECT_NE(Find<QComboBox>("field")->currentText(), QStringLiteral("Custom 1"));

  EXPECT_EQ(Obstacle(), "");
  auto* const all = Find<QCheckBox>("allAssignments");
  QListWidgetItem* const first = Find<QListWidget>("assignments")->item(0);
  first->setCheckState(Qt::Unchecked);
  EXPECT_EQ(all->checkState(), Qt::PartiallyChecked);
  for (const Qt::CheckState state : {Qt::Checked, Qt::Unchecked}) {
    gestures::Click(all);
    EXPECT_EQ(first->checkState(), state);
  }
  Settle();
  EXPECT_NE(TextOf(Row(0)).find("No assignment is selected"), std::string::npos) << TextOf(Row(0));
  EXPECT_EQ(FirstTab(), QStringLiteral("What will &happen (1)"));
  EXPECT_EQ(Obstacle(), "Choose at least one assignment.");
  EXPECT_FALSE(Find<QPushButton>("save")->isEnabled());
  EXPECT_EQ(Find<QLabel>("fileFacts")->text(), QStringLiteral("There is no file to show."));
  gestures::Click(all);

  // The filter's dialog cannot export a title of this length.
  const auto openClass = _Class({{"Ana", "ana"}});
  openClass->record.assignments[1].name.assign(30, 'x');
  m_window->SetClass(openClass);
  for (const char* dialect : {"Classic file", "Current file"}) {
    Choose("dialect", dialect);
    EXPECT_EQ(Obstacle(), "");
    EXPECT_EQ(FirstTab(), QStringLiteral("What will &happen"));
    EXPECT_TRUE(Text().contains(QString(30, u'x'))) << dialect;
  }
}

// Every format and kind of file that can be chosen.
std::vector<ExportChoices> _EveryFile() {
  std::vector<ExportChoices> files;
  for (const FormatRow& format : FormatTable()) {
    ExportChoices choices;
    choices.format = &format;
    choices.identifier = format.defaultUserIDField;
    files.push_back(choices);
    const CurrentFile* const current = FindCurrentFile(format);
    if (current == nullptr) continue;
    choices.dialect = Dialect::kCurrent;
    files.push_back(choices);
    choices.delimiter = ';';
    if (current->takesSemicolons) files.push_back(choices);
  }
  return files;
}

// They are what gxexport writes.
TEST_F(ExportWindowTest, PreviewsAndSavesTheBytesOfTheFile) {
  const QString classPath = QStringLiteral(SAMPLES "/secondary-school.xml");
  const auto openClass = ReadClass(classPath).openClass;
  ASSERT_NE(openClass, nullptr);
  Show(openClass);
  for (ExportChoices choices : _EveryFile()) {
    const FormatRow& format = *choices.format;
    const bool isCurrent = choices.dialect == Dialect::kCurrent;
    SCOPED_TRACE(std::string(format.key) + (isCurrent ? " current " : " classic ") + choices.delimiter);
    auto* const formats = Find<QComboBox>("format");
    formats->setCurrentIndex(formats->findData(format.index));
    Find<QComboBox>("dialect")->setCurrentIndex(isCurrent ? 1 : 0);
    Find<QComboBox>("delimiter")->setCurrentIndex(choices.delimiter == ';' ? 1 : 0);
    Settle();

    if (format.IsReport()) choices.assignmentIDs = {openClass->record.assignments.front().id};
    ClassExport expected(ReadClassFile(classPath.toStdString()), choices, {.force = true});
    ASSERT_EQ(expected.Write(PathOf("expected.csv").toStdString()).error, 0);
    const QByteArray bytes = ReadFile(PathOf("expected.csv"));
    const TextEncoding encoding = isCurrent ? FindCurrentFile(format)->encoding : TextEncoding::kMacRoman;
    const auto text = DecodeText({bytes.constData(), static_cast<size_t>(bytes.size())}, encoding);
    EXPECT_EQ(Text().toStdString(), text.value());
    EXPECT_EQ(Find<QLabel>("reportHint")->isVisible(), format.IsReport());
    EXPECT_EQ(Find<QComboBox>("field")->isVisible(), !format.IsReport());

    QFile::remove(PathOf("out.csv"));
    if (expected.HasRefusedIdentifiers())
      WhenVisible("identifierQuestion", [](QWidget* box) { ClickButton(box, "Save All the Same…"); });
    SaveAs(PathOf("out.csv"));
    gestures::Click(Find<QPushButton>("save"));
    EXPECT_EQ(ReadFile(PathOf("out.csv")), bytes);
    ASSERT_FALSE(m_saved.empty());
    const ExportedFile& saved = m_saved.back();
    EXPECT_EQ(saved.format, &format);
    EXPECT_EQ(saved.dialect, choices.dialect);
    EXPECT_EQ(saved.delimiter, choices.delimiter);
    EXPECT_EQ(saved.assignments.size(), format.IsReport() ? 1U : openClass->record.assignments.size());
  }
}

// Only with the keyboard: the second assignment, in the class's place, under the name that is proposed.
TEST_F(ExportWindowTest, SavesByKeys) {
  const auto openClass = _Class({{"Ana", "ana"}, {"Bo", ""}, {"Jos\x8E", "jose"}});
  openClass->path = PathOf("class.xml");
  openClass->replacedCharacters = 3;
  Show(openClass, {.format = FindFormat("canvas"), .dialect = Dialect::kClassic});
  ASSERT_TRUE(Activate());
  QTest::keyClick(m_window.get(), Qt::Key_A, Qt::AltModifier);
  const auto* const all = Find<QCheckBox>("allAssignments");
  ASSERT_TRUE(QTest::qWaitFor([all] { return all->checkState() == Qt::Unchecked; }));
  Find<QListWidget>("assignments")->setFocus();
  for (const int key : {Qt::Key_Down, Qt::Key_Down, Qt::Key_Space}) gestures::Type(m_window.get(), key);
  QString name;
  WhenVisible("saveChooser", [&name](QWidget* chooser) {
    name = chooser->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->text();
    QTest::keyClick(chooser->findChild<QLineEdit*>(QStringLiteral("fileNameEdit")), Qt::Key_Return);
  });
  QTest::keyClick(m_window.get(), Qt::Key_S, Qt::ControlModifier);
  EXPECT_EQ(name, QStringLiteral("Quiz 2 – Canvas – ") + QDate::currentDate().toString(Qt::ISODate) +
                      QStringLiteral(".csv"));
  ASSERT_EQ(m_saved.size(), 1U);
  EXPECT_EQ(m_saved[0].path, m_folder.filePath(name));
  EXPECT_EQ(m_saved[0].assignments, std::vector<size_t>{1});
  EXPECT_EQ(m_saved[0].openClass, openClass);
  EXPECT_EQ(m_saved[0].replacedCharacters, 3U);
  EXPECT_EQ(m_saved[0].studentsWithoutIdentifier, 1U);
  EXPECT_EQ(m_saved[0].studentCount, 3U);
  EXPECT_TRUE(ReadFile(m_saved[0].path).contains("Quiz 2"));
  EXPECT_FALSE(ReadFile(m_saved[0].path).contains("Quiz 1"));
  ASSERT_TRUE(Activate());
  QTest::keyClick(m_window.get(), Qt::Key_Escape);
  EXPECT_FALSE(m_window->isVisible());
}

TEST_F(ExportWindowTest, AsksBeforeSavingRefusedIdentifiers) {
  const struct {
    const char *first, *second, *obstacle, *sentence;
  } rows[] = {{"ana", "ana", "Students share an identifier in the chosen field.", "ana"},
              {"", "", "No student has an identifier in the chosen field.", ""}};
  for (const auto& row : rows) {
    Show(_Class({{"Ana", row.first}, {"Bo", row.second}}), {.format = FindFormat("moodle")});
    EXPECT_EQ(Obstacle(), std::string(row.obstacle) + " Save asks whether you want that file.");
    for (const char* answer : {"Cancel", "Save All the Same…"}) {
      const bool isSaved = answer[0] == 'S';
      WhenVisible("identifierQuestion", [&](QWidget* question) {
        EXPECT_EQ(static_cast<QMessageBox*>(question)->text().toStdString(), row.obstacle);
        EXPECT_FALSE(static_cast<QMessageBox*>(question)->informativeText().isEmpty());
        ClickButton(question, answer);
      });
      if (isSaved) SaveAs(PathOf("out.csv"));
      gestures::Click(Find<QPushButton>("save"));
      EXPECT_EQ(QFile::remove(PathOf("out.csv")), isSaved);
      EXPECT_EQ(m_saved.size(), isSaved ? 1U : 0U);
    }
    m_saved.clear();
  }
}

TEST_F(ExportWindowTest, AFullDiskLeavesTheOldFile) {
  Show(_WithAccent());
  WriteFile(PathOf("out.csv"), "old");
  SaveAs(PathOf("out.csv"));
  std::optional<FullDisk> disk;
  WhenVisible("replaceQuestion", [&](QWidget* question) {
    disk.emplace();
    ClickButton(question, "Replace");
  });
  gestures::Click(Find<QPushButton>("save"));
  disk.reset();
  const auto* const message = static_cast<QMessageBox*>(FindWindow("message"));
  ASSERT_NE(message, nullptr);
  EXPECT_EQ(message->text(), QStringLiteral("The file “%1” could not be written.").arg(PathOf("out.csv")));
  EXPECT_TRUE(
      message->informativeText().startsWith(QStringLiteral("The earlier file of this name is still there")));
  EXPECT_TRUE(m_saved.empty());
  EXPECT_EQ(ReadFile(PathOf("out.csv")), "old");
}

TEST_F(ExportWindowTest, ListsTheFirstTwentyAndLeadsToThem) {
  Show(_Class(std::vector<std::pair<std::string, std::string>>(25, {"Ana", ""})));
  Choose("format", "Moodle 3.1.2");
  ASSERT_EQ(m_tree->model()->rowCount(Row(0)), 21);
  EXPECT_EQ(TextOf(m_tree->model()->index(20, 0, Row(0))), "and 5 more");
  gestures::ClickRow(m_tree, 0);
  ASSERT_EQ(m_chosen.size(), 25U);
  EXPECT_EQ(m_chosen[24].student, 24U);
  m_tree->setFocus();
  for (int i = 0; i < 3; ++i) QTest::keyClick(m_tree, Qt::Key_Down);
  QTest::keyClick(m_tree, Qt::Key_Return);
  ASSERT_EQ(m_chosen.size(), 1U);
  EXPECT_EQ(m_chosen[0].student, 2U);
}

// No sentence is cut off, however narrow the window.
TEST_F(ExportWindowTest, GrowsWithItsSentences) {
  Show(_WithAccent(), {.format = FindFormat("canvas"), .dialect = Dialect::kClassic});
  const auto height = [this](int width) {
    m_window->resize(width, 600);
    QCoreApplication::processEvents();
    return m_tree->visualRect(Row(0)).height();
  };
  EXPECT_GT(height(600), height(1400) + m_tree->fontMetrics().height());
  EXPECT_GE(height(1400), 3 * m_tree->fontMetrics().height());
}

}  // namespace

}  // namespace host

#include <QClipboard>
#include <QDir>
#include <QDrag>
#include <QLabel>
#include <QMimeData>
#include <QTabWidget>
#include <QTreeView>
#include <map>
#include <set>

#include "Host/App/HelpBook.h"
#include "Host/Result/ExportFacts.h"
#include "Host/Result/FileHandle.h"
#include "Host/Result/ResultWindow.h"
#include "Host/Result/UploadSteps.h"
#include "Systems/LearningSystem.h"
#include "tests/host/HostFixture.h"

namespace host {

namespace {

class HelpBookTest : public HostTest {
 protected:
  void SetUp() override {
    HostTest::SetUp();
    qputenv("GRADIX_BUNDLE", QFile::encodeName(PathOf("share/Gradix.bundle")));
    m_window.show();
  }
  void TearDown() override { qunsetenv("GRADIX_BUNDLE"); }

  QString InstallPage(const char* name) {
    const QString path = PathOf("share/Quizonne Help/") + QString::fromUtf8(name);
    EXPECT_TRUE(QDir().mkpath(QFileInfo(path).path()));
    WriteFile(path, "page");
    return path;
  }

  // The desktop's opener: keeps what it is given and ends with that status.
  void InstallOpener(int status) {
    const QString path = PathOf("xdg-open");
    const QString script = QStringLiteral("#!/bin/sh\nprintf %s \"$1\" > '%1'\nexit %2\n");
    WriteFile(path, script.arg(PathOf("opened")).arg(status).toUtf8());
    QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
  }

  QWidget m_window;
};

TEST_F(HelpBookTest, FindsThePage) {
  const struct {
    const char* name;
    int32_t topic;
    HostLanguage language;
  } rows[] = {
      {"en/Quizonne Gradix/qzmanage.htm", 0, HostLanguage::kEnglish},
      {"en/Quizonne Gradix/qzmanage/qzm_226.htm", 226, HostLanguage::kEnglish},
      {"es/Quizonne Gradix/qzmanage/qzm_226.htm", 226, HostLanguage::kSpanish},
  };
  for (const auto& row : rows) {
    SetCurrentLanguage(row.language);
    EXPECT_EQ(HelpPage(row.topic), QString()) << row.name;
    const QString path = InstallPage(row.name);
    EXPECT_EQ(HelpPage(row.topic), path);
  }
}

// With no opener at all, with one that finds no browser, with one that works; without the book.
TEST_F(HelpBookTest, OpensThePageOrTellsWhereItIs) {
  constexpr const char* kNoBrowser = "No browser could be opened for the help page.";
  const struct {
    const char* name;
    int opener;  // its status; -1: there is none
    bool installed;
    const char* what;
  } rows[] = {
      {"no book", 0, false, "The help book is not installed."},
      {"no opener", -1, true, kNoBrowser},
      {"no browser", 3, true, kNoBrowser},
      {"a browser", 0, true, nullptr},
  };
  OfferHelp(&m_window, [] { return 226; });
  for (const auto& row : rows) {
    SCOPED_TRACE(row.name);
    QFile::remove(PathOf("xdg-open"));
    QFile::remove(PathOf("opened"));
    if (row.opener >= 0) InstallOpener(row.opener);
    const QString page = PathOf("share/Quizonne Help/en/Quizonne Gradix/qzmanage/qzm_226.htm");
    if (row.installed) InstallPage("en/Quizonne Gradix/qzmanage/qzm_226.htm");
    m_window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&m_window));
    QTest::keyClick(&m_window, Qt::Key_F1);
    if (row.what == nullptr) {
      EXPECT_TRUE(QTest::qWaitFor([&] { return ReadFile(PathOf("opened")) == page.toUtf8(); }));
      QTest::qWait(100);
      EXPECT_EQ(FindWindow("message"), nullptr);
      continue;
    }
    ASSERT_TRUE(QTest::qWaitFor([] { return FindWindow("message") != nullptr; }));
    auto* const message = static_cast<QMessageBox*>(FindWindow("message"));
    EXPECT_EQ(message->text(), QString::fromUtf8(row.what));
    EXPECT_TRUE(message->informativeText().contains(page)) << message->informativeText().toStdString();
    EXPECT_EQ(message->parentWidget(), &m_window);
    delete message;
  }
}

// Ten students, of whom the last two have no alias and the last one no results.
std::shared_ptr<const OpenClass> ClassOfTen() {
  auto openClass = std::make_shared<OpenClass>();
  openClass->path = QStringLiteral("/classes/small.xml");
  openClass->name = QStringLiteral("Small");
  qz::ClassRecord& record = openClass->record;
  for (int32_t i = 0; i < 10; ++i) {
    qz::StudentRecord student;
    student.id = i + 1;
    student.lastName = std::string(1, static_cast<char>('A' + i));
    student.studentID = std::to_string(100 + i);
    if (i < 8) student.alias = "user" + std::to_string(i);
    record.students.push_back(student);
  }
  for (int32_t i = 0; i < 3; ++i) {
    qz::AssignmentRecord assignment;
    assignment.id = i + 1;
    assignment.name = "Quiz " + std::to_string(i + 1);
    assignment.pointsPossible = 10;
    for (int32_t student = 1; student <= (i == 1 ? 2 : 9); ++student) {
      qz::ResultsRecord results;
      results.studentID = student;
      assignment.results.push_back(results);
    }
    record.assignments.push_back(assignment);
  }
  return openClass;
}

ExportedFile CanvasFile() {
  ExportedFile file;
  file.path = QStringLiteral("/exports/out.csv");
  file.openClass = ClassOfTen();
  file.format = FindFormat("canvas");
  file.identifier = qz::kUserIDAlias;
  file.assignments = {0, 1};
  file.studentsWithoutIdentifier = 2;
  return file;
}

using Facts = std::map<std::string, std::string>;

Facts FactsOf(const ExportedFile& file) {
  Facts facts;
  for (const ExportFact& fact : ExportFactsOf(file)) facts[fact.key] = fact.text.toStdString();
  return facts;
}

TEST(ExportFacts, TellWhatIsKnown) {
  SetCurrentLanguage(HostLanguage::kEnglish);
  const Facts canvas = {
      {"kind", "Canvas, classic file"}, {"assignments", "2 (Quiz 1, Quiz 2)"}, {"students", "10"},
      {"identifier", "Student alias"},  {"withoutIdentifier", "2 (I, J)"},     {"results", "11 of 20"},
      {"withoutResults", "1 (J)"}};
  const struct {
    const char* name;
    void (*change)(ExportedFile* file);
    Facts changed;  // "-": not told
  } rows[] = {
      {"as it is", [](ExportedFile*) {}, {}},
      {"current",
       [](ExportedFile* file) {
         file->dialect = Dialect::kCurrent;
         file->delimiter = ';';
       },
       {{"kind", "Canvas, current file"},
        {"students", "8 of 10"},
        {"withoutIdentifier", "2 (I, J), left out"},
        {"results", "10 of 16"},
        {"withoutResults", "-"},
        {"separator", "semicolon"},
        {"problems", "1 (Something will not arrive)"}}},
      {"many without results",
       [](ExportedFile* file) { file->assignments = {1}; },
       {{"assignments", "1 (Quiz 2)"},
        {"results", "2 of 10"},
        {"withoutResults", "8 (C, D, E, F, G and 3 more)"}}},
      {"a count that is not the class's",
       [](ExportedFile* file) { file->studentsWithoutIdentifier = 5; },
       {{"withoutIdentifier", "5"}}},
      {"replaced letters",
       [](ExportedFile* file) { file->replacedCharacters = 1234; },
       {{"replaced", "1,234 of the class became “?”, because the file cannot hold them"}}},
      {"another version, without quotes",
       [](ExportedFile* file) {
         file->format = FindFormat("blackboard91");
         file->useQuotes = false;
       },
       {{"kind", "Blackboard Learn 9.1, classic file"},
        {"quotes", "none"},
        {"problems", "1 (Something will not arrive)"}}},
      {"the report",
       [](ExportedFile* file) { file->format = FindFormat("detailed"); },
       {{"kind", "Detailed results, classic file"}, {"identifier", "-"}}},
      {"assignments not known",
       [](ExportedFile* file) {
         file->assignments.clear();
         file->assignmentCount = 2;
       },
       {{"assignments", "2"},
        {"students", "-"},
        {"identifier", "-"},
        {"withoutIdentifier", "2"},
        {"results", "-"},
        {"withoutResults", "-"}}},
      {"another class by now",
       [](ExportedFile* file) {
         file->openClass = nullptr;
         file->assignmentCount = 2;
         file->studentCount = 31;
       },
       {{"assignments", "2"},
        {"students", "31"},
        {"identifier", "-"},
        {"withoutIdentifier", "2"},
        {"results", "-"},
        {"withoutResults", "-"}}},
      {"an unknown format",
       [](ExportedFile* file) { file->format = nullptr; },
       {{"kind", "-"},
        {"assignments", "-"},
        {"students", "-"},
        {"identifier", "-"},
        {"withoutIdentifier", "2"},
        {"results", "-"},
        {"withoutResults", "-"}}},
      {"filled in",
       [](ExportedFile* file) {
         file->dialect = Dialect::kFilled;
         file->gradebookPath = QStringLiteral("/downloads/grades.csv");
         file->filledCells = 11;
         file->studentsWithoutIdentifier = 0;
       },
       {{"kind", "Canvas, its own gradebook with your results filled in"},
        {"download", "grades.csv"},
        {"cells", "11"},
        {"students", "-"},
        {"identifier", "-"},
        {"withoutIdentifier", "-"},
        {"results", "-"}}},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.name);
    ExportedFile file = CanvasFile();
    row.change(&file);
    Facts expected = canvas;
    for (const auto& [key, text] : row.changed) expected[key] = text;
    std::erase_if(expected, [](const auto& fact) { return fact.second == "-"; });
    EXPECT_EQ(FactsOf(file), expected);
  }
}

// For every file that can be written, none of them in a foreign language.
TEST(UploadSteps, StandForEveryFile) {
  for (const FormatRow& row : FormatTable()) {
    for (const Dialect dialect : {Dialect::kClassic, Dialect::kCurrent, Dialect::kFilled}) {
      if (dialect == Dialect::kCurrent && FindCurrentFile(row) == nullptr) continue;
      if (dialect == Dialect::kFilled && SystemOf(row).download == nullptr) continue;
      SCOPED_TRACE(std::string(row.key) + " " + std::to_string(int{static_cast<uint8_t>(dialect)}));
      ExportedFile file = CanvasFile();
      file.format = &row;
      file.dialect = dialect;
      SetCurrentLanguage(HostLanguage::kSpanish);
      const QStringList spanish = UploadStepsOf(file);
      SetCurrentLanguage(HostLanguage::kEnglish);
      const QStringList english = UploadStepsOf(file);
      EXPECT_GE(english.size(), 2);
      ASSERT_EQ(spanish.size(), english.size());
      for (qsizetype i = 0; i < english.size(); ++i) {
        EXPECT_NE(spanish[i], english[i]);
        EXPECT_FALSE(english[i].contains(u'{') || spanish[i].contains(u'{')) << english[i].toStdString();
      }
    }
  }
}

class ResultWindowTest : public HostTest {
 protected:
  void SetUp() override {
    HostTest::SetUp();
    m_file = CanvasFile();
    m_file.path = PathOf("out.csv");
    WriteFile(m_file.path, "Name,Points\nJos\x8E,5\n");
  }

  QWidget* Show() {
    ShowResult(&m_parent, m_file,
               {[this](const std::vector<FindingPlace>& places) { m_places = places; },
                [this](const ExportedFile& file) { m_saved.push_back(file.path); }});
    return FindWindow("resultWindow");
  }

  static void PressKey(QWidget* window, Qt::Key key) {
    window->activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(window));
    QTest::keyClick(window, key, Qt::AltModifier);
  }

  QWidget m_parent;
  ExportedFile m_file;
  std::vector<FindingPlace> m_places;
  QStringList m_saved;
};

TEST_F(ResultWindowTest, ActsByMouseAndByKeys) {
  for (const Input input : {Input::mouse, Input::keys}) {
    QGuiApplication::clipboard()->clear();
    m_saved.clear();
    QWidget* const window = Show();
    ASSERT_NE(window, nullptr);
    EXPECT_EQ(window->windowTitle(), QStringLiteral("Exported file: out.csv"));
    EXPECT_EQ(window->findChild<QLabel*>(QStringLiteral("assignments"))->text(),
              QStringLiteral("2 (Quiz 1, Quiz 2)"));
    const auto act = [&](const char* title, Qt::Key key) {
      if (input == Input::mouse) return ClickButton(window, title);
      PressKey(window, key);
    };
    act("Copy &Path", Qt::Key_P);
    EXPECT_TRUE(QTest::qWaitFor([this] { return QGuiApplication::clipboard()->text() == m_file.path; }));
    act("Save the Current File as &Well…", Qt::Key_W);
    EXPECT_TRUE(QTest::qWaitFor([this] { return m_saved == QStringList(m_file.path); }));
    act("Open &Folder", Qt::Key_F);
    ASSERT_TRUE(QTest::qWaitFor([] { return FindWindow("message") != nullptr; }));
    QWidget* const message = FindWindow("message");
    EXPECT_EQ(static_cast<QMessageBox*>(message)->informativeText(), m_folder.path());
    delete message;
    act("&Close", Qt::Key_C);
    EXPECT_TRUE(QTest::qWaitFor([] { return FindWindow("resultWindow") == nullptr; }));
  }
}

TEST_F(ResultWindowTest, ShowsWhatWillHappen) {
  QWidget* const window = Show();
  ASSERT_NE(window, nullptr);
  auto* const pages = window->findChild<QTabWidget*>();
  EXPECT_EQ(pages->currentIndex(), 0);
  PressKey(window, Qt::Key_H);
  auto* const findings = window->findChild<QTreeView*>(QStringLiteral("findings"));
  ASSERT_NE(findings, nullptr);
  EXPECT_TRUE(findings->isVisible());
  const Findings expected = CheckExport(*SubjectOf(m_file));
  EXPECT_EQ(findings->model()->rowCount(), static_cast<int>(expected.size()));
  EXPECT_FALSE(HasTrouble(expected));
  EXPECT_EQ(pages->tabText(1), QStringLiteral("What will &happen"));
  gestures::ClickRow(findings, 0);
  ASSERT_EQ(m_places.size(), expected[0].places.size());
  EXPECT_EQ(m_places[0].student, expected[0].places[0].student);
}

// Only where there is one, and to whom it is something else than what was written.
TEST_F(ResultWindowTest, OffersTheCurrentFile) {
  const struct {
    const char* format;
    Dialect dialect;
    bool isOffered;
  } rows[] = {{"canvas", Dialect::kClassic, true},
              {"canvas", Dialect::kCurrent, false},
              {"canvas", Dialect::kFilled, false},
              {"webct", Dialect::kClassic, false}};
  for (const auto& row : rows) {
    m_file.format = FindFormat(row.format);
    m_file.dialect = row.dialect;
    const std::unique_ptr<QWidget> window(Show());
    std::set<QString> titles;
    for (const QAbstractButton* button : window->findChildren<QAbstractButton*>()) {
      if (button->isVisible()) titles.insert(button->text());
    }
    EXPECT_EQ(titles.contains(QStringLiteral("Save the Current File as &Well…")), row.isOffered)
        << row.format;
  }
}

TEST_F(ResultWindowTest, FileCanBeDragged) {
  FileHandle handle(nullptr, m_file.path);
  handle.show();
  QTest::mousePress(&handle, Qt::LeftButton, {}, QPoint(10, 10));
  const auto moveTo = [&handle](QPoint where) {
    QMouseEvent move(QEvent::MouseMove, where, handle.mapToGlobal(where), Qt::NoButton, Qt::LeftButton, {});
    QApplication::sendEvent(&handle, &move);
  };
  moveTo({11, 10});
  EXPECT_EQ(handle.findChild<QDrag*>(), nullptr);
  moveTo({10 + QApplication::startDragDistance(), 10});
  const auto* const drag = handle.findChild<QDrag*>();
  ASSERT_NE(drag, nullptr);
  EXPECT_EQ(drag->mimeData()->urls(), QList<QUrl>{QUrl::fromLocalFile(m_file.path)});
}

}  // namespace

}  // namespace host

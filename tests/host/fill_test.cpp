// The window that fills a downloaded gradebook.
#include <QCheckBox>
#include <QComboBox>
#include <QDropEvent>
#include <QLabel>
#include <QListWidget>
#include <QMimeData>
#include <QProcess>
#include <QPushButton>
#include <QRadioButton>
#include <QTabWidget>
#include <QTableView>
#include <QTreeView>
#include <map>
#include <optional>

#include "Host/Fill/FillWindow.h"
#include "tests/host/FullDisk.h"
#include "tests/host/HostFixture.h"

namespace host {

namespace {

const QString kClass = QStringLiteral(SAMPLES "/village-school.xml");
const QString kDownload = QStringLiteral(SAMPLES "/village-school-canvas.csv");

class FillTest : public HostTest {
 protected:
  void Show(std::shared_ptr<const OpenClass> openClass, const char* system = nullptr,
            qz::UserIDField field = qz::kUserIDAlias) {
    const LearningSystem* wanted = nullptr;
    for (const LearningSystem* each : LearningSystems()) {
      if (system != nullptr && each->key == std::string(system)) wanted = each;
    }
    m_window = std::make_unique<FillWindow>(
        nullptr, std::move(openClass), wanted, field,
        FillWindow::Handlers{[this](const std::vector<FindingPlace>& places) { m_places = places; },
                             [this](const ExportedFile& file) { m_saved = file; }});
    m_window->setAttribute(Qt::WA_DeleteOnClose, false);
    m_window->show();
    Activate();
  }

  void Activate() {
    m_window->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(m_window.get()));
  }

  // With the sample, or with a download made of these lines.
  void ShowFilled(const QString& download = kDownload) {
    Show(ReadClass(kClass).openClass);
    Open(download);
    ASSERT_TRUE(Table()->isVisible());
  }

  QString Download(const QByteArray& lines) {
    WriteFile(PathOf("download.csv"),
              "Student,ID,SIS User ID,SIS Login ID,Section,Spelling (1),Maths (2)\n" + lines);
    return PathOf("download.csv");
  }

  void Open(const QString& path) {
    m_window->OpenGradebook(path);
    ASSERT_TRUE(QTest::qWaitFor([this] { return !Find<QLabel>("readingText")->isVisible(); }, 30000));
  }

  template <typename Widget = QWidget>
  Widget* Find(const char* name) {
    return m_window->findChild<Widget*>(QLatin1String(name));
  }
  QTableView* Table() { return Find<QTableView>("fillTable"); }
  std::string Text(const char* label) { return Find<QLabel>(label)->text().toStdString(); }
  std::string Tab(int page) {
    return Find<QTabWidget>("fillPages")->tabText(page).remove(u'&').toStdString();
  }
  void GoTo(int page) { Find<QTabWidget>("fillPages")->setCurrentIndex(page); }

  std::string Row(int row) {
    QStringList cells;
    for (int i = 0; i < Table()->model()->columnCount(); ++i)
      cells.append(Table()->model()->index(row, i).data().toString());
    return cells.join(u'|').toStdString();
  }
  int Rows() { return Table()->model()->rowCount(); }

  std::vector<std::string> List(const char* name) {
    std::vector<std::string> texts;
    for (int i = 0; i < Find<QListWidget>(name)->count(); ++i)
      texts.push_back(Find<QListWidget>(name)->item(i)->text().toStdString());
    return texts;
  }

  // Chooses a row of the list.
  void Choose(const char* list, int row, Input input) {
    QCoreApplication::processEvents();
    auto* const widget = Find<QListWidget>(list);
    if (input == Input::mouse) return gestures::ClickRow(widget, row);
    widget->setFocus();
    QTest::keyClick(widget, Qt::Key_Home);
    for (int i = 0; i < row; ++i) QTest::keyClick(widget, Qt::Key_Down);
  }

  std::unique_ptr<FillWindow> m_window;
  std::vector<FindingPlace> m_places;
  std::optional<ExportedFile> m_saved;
};

TEST_F(FillTest, SaysWhatIsWrongWithAFile) {
  const struct {
    const char* name;
    QByteArray bytes;
    const char* system;
    HostLanguage language;
    const char *what, *advice;
  } rows[] = {
      {"other.csv", "Name,Age\nAnn,7\n", "canvas", HostLanguage::kEnglish,
       "“other.csv” is no gradebook of Canvas.", "that you downloaded from Canvas"},
      {"other.csv", "Name,Age\nAnn,7\n", nullptr, HostLanguage::kSpanish,
       "«other.csv» no es un libro de calificaciones de ninguna plataforma", "Canvas, Moodle"},
      {"moodle.csv", "First name,Last name,ID number,Email address,Quiz (Real)\nAnn,Lee,1,a@b.c,-\n",
       "canvas", HostLanguage::kEnglish, "“moodle.csv” is no gradebook of Canvas, but one of Moodle.",
       "from Canvas"},
      {"class.xml", ReadFile(kClass), nullptr, HostLanguage::kEnglish,
       "“class.xml” is a class file, no gradebook.", "Choose the gradebook"},
      {"x.png", "\x89PNG\r\n\x1A\n....", nullptr, HostLanguage::kEnglish, "“x.png” is no gradebook.",
       "a picture"},
      {"cut.csv", "Student,ID,SIS Login ID,Section,Q (1)\nAnn,1,ann,A,\"7\n", nullptr, HostLanguage::kEnglish,
       "“cut.csv” is damaged: line 2, column 13.", "a quote begins here and does not end"},
      {"none.csv", "Student,ID,SIS Login ID,Section,Q (1)\n", nullptr, HostLanguage::kSpanish,
       "no se puede usar", "no estudiantes"},
      {"gone.csv", {}, nullptr, HostLanguage::kEnglish, "“gone.csv” could not be opened.", "No such file"},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.name);
    SetCurrentLanguage(row.language);
    Show(ReadClass(kClass).openClass, row.system);
    if (!row.bytes.isEmpty()) WriteFile(PathOf(row.name), row.bytes);
    Open(PathOf(row.name));
    EXPECT_NE(Text("faultWhat").find(row.what), std::string::npos) << Text("faultWhat");
    EXPECT_NE(Text("faultAdvice").find(row.advice), std::string::npos) << Text("faultAdvice");
    EXPECT_TRUE(Find("chooseDownload")->isVisible());
    EXPECT_FALSE(Find("backToDownload")->isVisible());
    EXPECT_FALSE(Find("saveFill")->isEnabled());
  }
  // What was read before is still there.
  Open(kDownload);
  EXPECT_TRUE(Find("saveFill")->isEnabled());
  Open(PathOf("other.csv"));
  EXPECT_FALSE(Find("saveFill")->isEnabled());
  gestures::Click(Find("backToDownload"));
  EXPECT_TRUE(Table()->isVisible());
  EXPECT_TRUE(Find("saveFill")->isEnabled());
}

TEST_F(FillTest, TakesADownloadFromTheChooserAndFromADrop) {
  Show(ReadClass(kClass).openClass, "canvas");
  EXPECT_EQ(Text("downloadHint").rfind("In Canvas, open the course’s grades", 0), 0U);
  QTest::keyClick(Find("chooseDownload"), Qt::Key_Space);
  WhenVisible("downloadChooser", [](QWidget* chooser) {
    chooser->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->setText(kDownload);
    ClickButton(chooser, "Open");
  });
  ASSERT_TRUE(QTest::qWaitFor([this] { return Table()->isVisible(); }, 30000));
  EXPECT_EQ(Rows(), 16);

  QMimeData data;
  data.setUrls({QUrl::fromLocalFile(Download("\"Becker, Mia\",1,11,mia,A,,\n"))});
  QDragEnterEvent enter({10, 10}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(m_window.get(), &enter);
  ASSERT_TRUE(enter.isAccepted());
  QDropEvent drop({10, 10}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(m_window.get(), &drop);
  ASSERT_TRUE(QTest::qWaitFor([this] { return Table()->isVisible(); }, 30000));
  EXPECT_NE(Text("recognised").find("Canvas gradebook “download.csv”. Students: 1, columns to fill: 2."),
            std::string::npos)
      << Text("recognised");
}

TEST_F(FillTest, ShowsWhatWillHappen) {
  ShowFilled();
  EXPECT_NE(Text("recognised")
                .find("Found of the class: 8 of 8 students, 2 of 3 assignments. The identifier is in “SIS "
                      "Login ID”."),
            std::string::npos)
      << Text("recognised");
  EXPECT_EQ(Tab(0), "Results (16)");
  EXPECT_EQ(Tab(1), "Not matched (2)");
  EXPECT_EQ(Row(0), "Mia Becker|Spelling Week 1|4.50|4.50|same");
  EXPECT_EQ(Row(1), "Mia Becker|Adding to 20||4|new");
  EXPECT_EQ(Row(2), "Noah Carter|Spelling Week 1|4.00|5|changed");
  EXPECT_EQ(Row(5), "Lena Dahl|Adding to 20|3.00|3.00|kept");
  const QModelIndex empty = Table()->model()->index(1, 2);
  EXPECT_EQ(empty.data(Qt::AccessibleTextRole).toString(), QStringLiteral("empty"));
  EXPECT_FALSE(Table()->model()->index(1, 4).data(Qt::DecorationRole).value<QIcon>().isNull());

  gestures::Click(Find("changesOnly"));
  EXPECT_EQ(Find<QRadioButton>("changesOnly")->text(), QStringLiteral("C&hanges only (14)"));
  EXPECT_EQ(Rows(), 14);
  Find("changesOnly")->setFocus();
  QTest::keyClick(Find("changesOnly"), Qt::Key_Right);
  EXPECT_TRUE(Find<QRadioButton>("problemsOnly")->isChecked());
  EXPECT_EQ(Rows(), 0);
  QTest::keyClick(Find("problemsOnly"), Qt::Key_Left);
  QTest::keyClick(Find("changesOnly"), Qt::Key_Left);
  EXPECT_EQ(Rows(), 16);

  QTest::keyClicks(Find("searchCells"), QStringLiteral("zo"));
  EXPECT_EQ(Rows(), 2);
  Find<QLineEdit>("searchCells")->clear();
  Table()->sortByColumn(3, Qt::DescendingOrder);  // by number, not by letter
  EXPECT_EQ(Row(0).find("|5|"), Row(0).rfind("|5|")) << Row(0);
  EXPECT_EQ(Row(15), "Sam Ellis|Adding to 20||1|new");
  Table()->setCurrentIndex(Table()->model()->index(15, 0));
  QTest::keyClick(Table(), Qt::Key_Return);
  ASSERT_EQ(m_places.size(), 1U);
  EXPECT_EQ(m_places[0].student, 3U);
  EXPECT_EQ(m_places[0].assignment, 1U);

  SetCurrentLanguage(HostLanguage::kSpanish);
  QCoreApplication::processEvents();
  EXPECT_EQ(Row(15), "Sam Ellis|Adding to 20||1|nuevo");
  EXPECT_EQ(Tab(1), "Sin pareja (2)");
}

// Infinite results are left out; other problems are those of findings.
TEST_F(FillTest, TellsProblems) {
  const ReadResult read = ReadClass(kClass);
  auto made = std::make_shared<OpenClass>(*read.openClass);
  qz::AssignmentRecord& spelling = made->record.assignments[0];
  for (qz::ResultsRecord& results : spelling.results) {
    if (results.studentID == 1) results.responses = {{1, 0, "", INFINITY}};
  }
  Show(made);
  Open(kDownload);
  EXPECT_EQ(Tab(2).rfind("Findings (1 ", 0), 0U) << Tab(2);
  EXPECT_FALSE(Find<QTabWidget>("fillPages")->tabIcon(2).isNull());
  gestures::Click(Find("problemsOnly"));
  ASSERT_EQ(Rows(), 1) << Row(0) << Row(1);
  EXPECT_EQ(Row(0), "Mia Becker|Spelling Week 1|4.50|4.50|left out (no number), with a problem");
  EXPECT_GT(Find<QTreeView>("findings")->model()->rowCount(), 0);
}

TEST_F(FillTest, ProposesTheFieldThatFindsTheMost) {
  Show(ReadClass(kClass).openClass, nullptr, qz::kUserIDFirstName);
  Open(Download("\"Becker, Mia\",1,11,m,A,,\n\"Carter, Noah\",2,12,n,A,,\n\"Dahl, Lena\",3,99,lena,A,,\n"));
  auto* const field = Find<QComboBox>("field");
  EXPECT_EQ(field->currentText(), QStringLiteral("Student ID: 2 found"));
  EXPECT_NE(Text("fieldHint").find("First name finds nobody"), std::string::npos) << Text("fieldHint");
  gestures::Click(Find("matchNames"));
  EXPECT_NE(Text("recognised").find("3 of 8 students"), std::string::npos) << Text("recognised");
  QTest::keyClick(Find("matchNames"), Qt::Key_Space);
  field->setFocus();
  QTest::keyClick(field, Qt::Key_Down);
  EXPECT_EQ(field->currentText(), QStringLiteral("Student alias: 1 found"));
  EXPECT_NE(Text("recognised").find("1 of 8 students"), std::string::npos) << Text("recognised");
  Open(kDownload);  // the user's choice is of use there
  EXPECT_EQ(field->currentText(), QStringLiteral("Student alias: 8 found"));
}

TEST_F(FillTest, JoinsByHand) {
  for (const Input input : {Input::mouse, Input::keys}) {
    SCOPED_TRACE(input == Input::keys);
    ShowFilled(Download("\"Becker, M.\",1,,m,A,,\n\"Carter, Noah\",2,,noah,A,,\n"));
    GoTo(1);
    EXPECT_EQ(List("studentsOurs")[0], "Mia Becker (mia): the identifier is not in the gradebook");
    ASSERT_EQ(List("studentsTheirs"), std::vector<std::string>{"M. Becker (line 2)"});
    EXPECT_EQ(List("assignmentsOurs")[1], "Adding to 20: no column has this title");
    EXPECT_FALSE(Find("studentsJoin")->isEnabled());
    EXPECT_FALSE(Find("saveFill")->isEnabled());

    Choose("studentsOurs", 0, input);
    Choose("studentsTheirs", 0, input);
    if (input == Input::mouse) {
      gestures::Click(Find("studentsJoin"));
    } else {
      QTest::keyClick(Find("studentsTheirs"), Qt::Key_Return);
    }
    EXPECT_EQ(List("studentsOurs")[0], "Mia Becker (mia) ↔ M. Becker (line 2), joined by hand");
    EXPECT_TRUE(List("studentsTheirs").empty());
    Choose("assignmentsOurs", 1, input);
    Choose("assignmentsTheirs", 1, input);
    if (input == Input::mouse) {
      gestures::Click(Find("assignmentsJoin"));
    } else {
      QTest::keyClick(m_window.get(), Qt::Key_O, Qt::AltModifier);  // the button looks pressed for a moment
      EXPECT_TRUE(QTest::qWaitFor([this] { return Find("saveFill")->isEnabled(); }));
    }
    EXPECT_EQ(List("assignmentsOurs")[0], "Adding to 20 ↔ Maths (2), joined by hand");
    EXPECT_TRUE(Find("saveFill")->isEnabled());
    GoTo(0);
    EXPECT_EQ(Row(0), "Mia Becker|Adding to 20||4|new");

    // The class read again, with its students in another order and an assignment gone.
    auto again = std::make_shared<OpenClass>(*ReadClass(kClass).openClass);
    std::swap(again->record.students[0], again->record.students[4]);
    again->record.assignments.erase(again->record.assignments.begin());
    m_window->SetClass(again);
    EXPECT_EQ(Rows(), 2);
    EXPECT_EQ(Row(0), "Mia Becker|Adding to 20||4|new");

    GoTo(1);
    Choose("studentsOurs", 0, input);
    if (input == Input::mouse) {
      gestures::Click(Find("studentsUndo"));
    } else {
      QTest::keyClick(Find("studentsOurs"), Qt::Key_Delete);
    }
    EXPECT_EQ(List("studentsTheirs"), std::vector<std::string>{"M. Becker (line 2)"});
    Choose("assignmentsOurs", 0, input);
    gestures::Click(Find("assignmentsUndo"));
    EXPECT_EQ(List("assignmentsTheirs").size(), 2U);
    EXPECT_EQ(Rows(), 0);
  }
}

TEST_F(FillTest, SaysWhyAJoinIsNotPossible) {
  WriteFile(PathOf("twice.csv"), "Student,ID,SIS Login ID,Section,Maths (1),Maths (1)\nMia,1,mia,A,,\n");
  ShowFilled(PathOf("twice.csv"));
  GoTo(1);
  Choose("assignmentsOurs", 0, Input::keys);
  Choose("assignmentsTheirs", 0, Input::keys);
  gestures::Click(Find("assignmentsJoin"));
  QMessageBox* const message = gestures::MessageBox();
  ASSERT_NE(message, nullptr);
  EXPECT_NE(message->informativeText().indexOf(QStringLiteral("Several columns")), -1);
  ClickButton(message, "OK");
  EXPECT_EQ(List("assignmentsOurs")[0], "Spelling Week 1: no column has this title");
}

// Whatever is chosen, the file is the command line's.
TEST_F(FillTest, SavesWhatTheCommandLineWrites) {
  const struct {
    const char* name;
    Input input;
    std::vector<const char*> boxes;
    QStringList options;
    size_t filled;
  } rows[] = {
      {"everything", Input::keys, {}, {}, 14},
      {"only empty cells", Input::mouse, {"onlyEmpty"}, {QStringLiteral("--only-empty")}, 13},
      {"new columns", Input::keys, {"newColumns"}, {QStringLiteral("--new-columns")}, 22},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.name);
    ShowFilled();
    for (const char* box : row.boxes) {
      if (row.input == Input::mouse) {
        gestures::Click(Find(box));
      } else {
        QTest::keyClick(Find(box), Qt::Key_Space);
      }
    }
    const QString path = PathOf(row.name) + QStringLiteral(".csv");
    m_saved.reset();
    QString proposed;
    WhenVisible("saveChooser", [&proposed](QWidget* chooser) {
      proposed = chooser->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->text();
    });
    SaveAs(path);
    if (row.input == Input::mouse) {
      gestures::Click(Find("saveFill"));
    } else {
      QTest::keyClick(m_window.get(), Qt::Key_S, Qt::ControlModifier);
    }
    EXPECT_EQ(proposed, QStringLiteral("village-school-canvas filled.csv"));
    const QString expected = PathOf("expected.csv");
    QProcess program;
    program.start(QStringLiteral(GXEXPORT),
                  QStringList{QStringLiteral("fill"), QStringLiteral("-u"), QStringLiteral("alias"),
                              QStringLiteral("--gradebook"), kDownload, QStringLiteral("-o"), expected} +
                      row.options + QStringList{kClass});
    ASSERT_TRUE(program.waitForFinished());
    EXPECT_FALSE(ReadFile(path).isEmpty());
    EXPECT_EQ(ReadFile(path), ReadFile(expected)) << program.readAllStandardError().toStdString();
    ASSERT_TRUE(m_saved);
    EXPECT_EQ(m_saved->path, path);
    EXPECT_EQ(m_saved->gradebookPath, kDownload);
    EXPECT_EQ(m_saved->dialect, Dialect::kFilled);
    EXPECT_EQ(m_saved->identifier, qz::kUserIDAlias);
    EXPECT_STREQ(m_saved->format->key, "canvas");
    EXPECT_EQ(m_saved->filledCells, row.filled);
    EXPECT_EQ(m_saved->assignments.size(), row.boxes.empty() || *row.boxes[0] == 'o' ? 2U : 3U);
  }
}

TEST_F(FillTest, RefusesTheDownloadAndKeepsTheOldFileOnAFullDisk) {
  WriteFile(PathOf("mine.csv"), ReadFile(kDownload));
  ShowFilled(PathOf("mine.csv"));
  SaveAsRefused(PathOf("mine.csv"), "mine.csv");
  gestures::Click(Find("saveFill"));
  EXPECT_EQ(ReadFile(PathOf("mine.csv")), ReadFile(kDownload));

  WriteFile(PathOf("out.csv"), "old");
  std::optional<FullDisk> disk;
  WhenVisible("replaceQuestion", [&disk](QWidget* question) {
    disk.emplace();
    ClickButton(question, "Replace");
  });
  SaveAs(PathOf("out.csv"));
  gestures::Click(Find("saveFill"));
  disk.reset();
  QMessageBox* const message = gestures::MessageBox();
  ASSERT_NE(message, nullptr);
  EXPECT_NE(message->text().indexOf(QStringLiteral("could not be written")), -1);
  EXPECT_NE(message->informativeText().indexOf(QStringLiteral("earlier file of this name is still there")),
            -1);
  EXPECT_EQ(ReadFile(PathOf("out.csv")), "old");
  EXPECT_FALSE(m_saved);
  ClickButton(message, "OK");
  Activate();
  QTest::keyClick(m_window.get(), Qt::Key_Escape);
  EXPECT_FALSE(m_window->isVisible());
}

}  // namespace

}  // namespace host

#include "Host/Window/MainWindow.h"

#include <QDir>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QStatusBar>
#include <QTableView>
#include <QTreeView>
#include <QXmlStreamReader>
#include <cerrno>
#include <cstring>
#include <optional>
#include <utility>
#include <vector>

#include "Host/App/RecentFiles.h"
#include "tests/host/FullDisk.h"
#include "tests/host/HostFixture.h"

namespace host {

namespace {

class MainWindowTest : public HostTest {
 protected:
  explicit MainWindowTest(const char* module = FILTERS "/fake_filter.so") : m_module(module) {}

  void SetUp() override {
    HostTest::SetUp();
    qputenv("GRADIX_FILTER", m_module);
    m_window.show();
    m_window.LoadFilter();
    m_menu = m_window.findChild<QMenu*>(QStringLiteral("exportMenu"));
    ASSERT_NE(m_menu, nullptr);
  }
  void TearDown() override { qunsetenv("GRADIX_FILTER"); }

  bool Open(const QString& path) {
    m_window.OpenFile(path);
    const auto* const open = m_window.findChild<QAction*>(QStringLiteral("open"));
    EXPECT_FALSE(open->isEnabled());
    return QTest::qWaitFor([open] { return open->isEnabled(); }, 30000);
  }
  bool OpenSample() { return Open(QStringLiteral(SAMPLES "/village-school.xml")); }

  // A way of the export menu, of a system by its key or the name of the filter's format.
  QAction* Way(const char* system, const char* way) {
    const auto* const menu = m_menu->findChild<QMenu*>(QString::fromUtf8(system));
    return menu != nullptr ? menu->findChild<QAction*>(QLatin1String(way)) : nullptr;
  }
  QAction* Format(int index) { return Way(index == 0 ? "Café 0" : "Café 1", "throughDialog"); }

  // Chooses the format, and waits for the filter to be asked.
  void Export(int index) {
    const int before = m_fake->begins;
    Format(index)->trigger();
    EXPECT_TRUE(QTest::qWaitFor([&] { return m_fake->begins > before; }));
  }

  QMessageBox* WaitForMessage() {
    EXPECT_TRUE(QTest::qWaitFor([] { return FindWindow("message") != nullptr; }));
    return static_cast<QMessageBox*>(FindWindow("message"));
  }

  const char* m_module;
  MainWindow m_window;
  QMenu* m_menu = nullptr;
};

// The host's texts with their Spanish.
std::vector<std::pair<QString, QString>> Translations() {
  QFile file(QStringLiteral(TRANSLATIONS "/gxhost_es.ts"));
  EXPECT_TRUE(file.open(QIODevice::ReadOnly));
  QXmlStreamReader reader(&file);
  std::vector<std::pair<QString, QString>> texts;
  while (!reader.atEnd()) {
    if (reader.readNext() != QXmlStreamReader::StartElement) continue;
    if (reader.name() == QLatin1String("source")) texts.emplace_back(reader.readElementText(), QString());
    if (reader.name() == QLatin1String("translation"))
      texts.back().second = reader.readElementText(QXmlStreamReader::IncludeChildElements);
  }
  EXPECT_GT(texts.size(), 100U);
  return texts;
}

TEST_F(MainWindowTest, OpensAClass) {
  EXPECT_EQ(m_window.windowTitle(), QStringLiteral("Gradix"));
  EXPECT_FALSE(Format(0)->isEnabled());
  ASSERT_TRUE(OpenSample());
  EXPECT_EQ(m_window.windowTitle(), QStringLiteral("Class 2 – Gradix"));
  EXPECT_TRUE(Format(1)->isEnabled());
  EXPECT_EQ(RecentFiles(), QStringList(QStringLiteral(SAMPLES "/village-school.xml")));

  WriteFile(PathOf("broken.xml"), "<class>");
  ASSERT_TRUE(Open(PathOf("broken.xml")));
  const QMessageBox* const message = WaitForMessage();
  ASSERT_NE(message, nullptr);
  EXPECT_TRUE(message->text().contains(QStringLiteral("broken.xml")));
  EXPECT_EQ(m_window.windowTitle(), QStringLiteral("Class 2 – Gradix"));  // the open class stays
  EXPECT_EQ(RecentFiles().size(), 1);
}

TEST_F(MainWindowTest, ExportsTheSelectedAssignmentOnceAtATime) {
  ASSERT_TRUE(OpenSample());
  auto* const table = m_window.findChild<QTableView*>(QStringLiteral("classTable"));
  table->setCurrentIndex(table->model()->index(3, 4));
  Export(1);
  EXPECT_EQ(m_fake->begin.formatIndex, 1U);
  const ReadResult read = ReadClass(QStringLiteral(SAMPLES "/village-school.xml"));
  EXPECT_EQ(m_fake->file.assignmentID, read.openClass->record.assignments[2].id);
  EXPECT_FALSE(Format(0)->isEnabled());
  EXPECT_TRUE(Way("canvas", "ownExport")->isEnabled());  // needs no filter

  SaveAs(PathOf("out.csv"));
  WhenVisible("saveChooser", [](QWidget* window) { EXPECT_EQ(window->parentWidget(), gDialog); });
  WriteFile(QFile::decodeName(AskForFile().c_str()), "Name,Points\nJos\x8E,5\n");
  m_fake->outcome.state = QZFILTER_WRITTEN;
  m_fake->outcome.replacedCharacters = 3;
  gDialog->close();
  ASSERT_TRUE(QTest::qWaitFor([] { return FindWindow("resultWindow") != nullptr; }));
  QWidget* const result = FindWindow("resultWindow");
  EXPECT_EQ(result->findChild<QTableView*>()->model()->index(0, 0).data().toString(), QStringLiteral("José"));
  EXPECT_EQ(result->findChild<QPlainTextEdit*>()->toPlainText(), QStringLiteral("Name,Points\nJosé,5\n"));
  EXPECT_EQ(result->findChild<QLabel*>(QStringLiteral("replaced"))->text(),
            QStringLiteral("3 of the class became “?”, because the file cannot hold them"));
  EXPECT_TRUE(Format(0)->isEnabled());
}

// What the readiness panel finds leads into the table, and its choices follow the class and the menu.
TEST_F(MainWindowTest, SaysHowReadyTheClassIs) {
  const auto* const reload = m_window.findChild<QAction*>(QStringLiteral("reload"));
  EXPECT_FALSE(reload->isEnabled());
  ASSERT_TRUE(Open(QStringLiteral(SAMPLES "/secondary-school.xml")));
  EXPECT_TRUE(reload->isEnabled());
  m_window.findChild<QAction*>(QStringLiteral("readiness"))->trigger();
  auto* const findings = m_window.findChild<QTreeView*>(QStringLiteral("findings"));
  ASSERT_TRUE(QTest::qWaitFor([findings] { return findings->model()->rowCount() > 0; }));
  auto* const table = m_window.findChild<QTableView*>(QStringLiteral("classTable"));
  table->setCurrentIndex(table->model()->index(9, 3));
  gestures::ClickRow(findings, 0);
  EXPECT_EQ(table->currentIndex().row(), 0);  // Inés Álvarez

  ASSERT_NE(Way("moodle", "ownExport"), nullptr);
  EXPECT_EQ(Way("moodle", "throughDialog"), nullptr);  // this filter does not know it
  EXPECT_EQ(Way("schoology", "fill"), nullptr);        // nobody knows its downloads
  Way("moodle", "ownExport")->trigger();
  EXPECT_TRUE(QTest::qWaitFor([] { return FindWindow("exportWindow") != nullptr; }));
  EXPECT_TRUE(QTest::qWaitFor([this] { return m_menu->actions().front()->text().contains("oodle"); }));
  EXPECT_EQ(Way("moodle", "ownExport")->shortcut(), QKeySequence(QStringLiteral("Ctrl+Shift+E")));
  EXPECT_TRUE(Way("canvas", "ownExport")->shortcut().isEmpty());
}

// Nothing is exported of a class that is not the one on the disk.
TEST_F(MainWindowTest, NoticesThatTheClassHasChanged) {
  ASSERT_TRUE(QFile::copy(QStringLiteral(SAMPLES "/village-school.xml"), PathOf("class.xml")));
  ASSERT_TRUE(Open(PathOf("class.xml")));
  const QByteArray text = ReadFile(PathOf("class.xml"));
  QFile::remove(PathOf("class.xml"));
  WriteFile(PathOf("class.xml"), QByteArray(text).replace("Class 2", "Class 3"));
  Format(0)->trigger();
  QWidget* const question = FindWindow("changedQuestion");
  ASSERT_NE(question, nullptr);
  EXPECT_EQ(m_fake->begins, 0);
  ClickButton(question, "&Reload and Go On");
  EXPECT_TRUE(QTest::qWaitFor([this] { return m_fake->begins == 1; }));
  EXPECT_EQ(m_window.windowTitle(), QStringLiteral("Class 3 – Gradix"));
  delete gDialog;

  // Nor is anything saved of it in a window that has been open since before.
  Way("canvas", "ownExport")->trigger();
  QWidget* const own = FindWindow("exportWindow");
  ASSERT_NE(own, nullptr);
  WriteFile(PathOf("class.xml"), QByteArray(text).replace("Class 2", "Class 44"));
  gestures::Click(own->findChild<QPushButton*>(QStringLiteral("save")));
  QWidget* const again = FindWindow("changedQuestion");
  ASSERT_NE(again, nullptr);
  bool isAsked = false;
  WhenVisible("saveChooser", [&isAsked](QWidget* chooser) {
    isAsked = true;
    ClickButton(chooser, "Cancel");
  });
  ClickButton(again, "&Reload and Go On");
  EXPECT_TRUE(QTest::qWaitFor([&isAsked] { return isAsked; }));
  EXPECT_EQ(own->windowTitle(), QStringLiteral("Export – Class 44"));
  own->close();

  QFile::remove(PathOf("class.xml"));
  const auto* const notice = m_window.findChild<QWidget*>(QStringLiteral("notice"));
  EXPECT_TRUE(QTest::qWaitFor([notice] { return notice->isVisible(); }));
  EXPECT_FALSE(notice->findChild<QWidget*>(QStringLiteral("noticeButton"))->isVisible());
  WriteFile(PathOf("class.xml"), text);
  auto* const button = notice->findChild<QPushButton*>(QStringLiteral("noticeButton"));
  ASSERT_TRUE(QTest::qWaitFor([button] { return button->isVisible(); }));
  gestures::Click(button);
  EXPECT_TRUE(
      QTest::qWaitFor([this] { return m_window.windowTitle() == QStringLiteral("Class 2 – Gradix"); }));
  EXPECT_FALSE(notice->isVisible());
}

TEST_F(MainWindowTest, OffersToFillADroppedDownload) {
  ASSERT_TRUE(OpenSample());
  ASSERT_TRUE(Open(QStringLiteral(SAMPLES "/village-school-canvas.csv")));
  EXPECT_TRUE(QTest::qWaitFor([] { return FindWindow("fillWindow") != nullptr; }));
  EXPECT_EQ(m_window.windowTitle(), QStringLiteral("Class 2 – Gradix"));
}

TEST_F(MainWindowTest, RemembersItsSize) {
  m_window.resize(700, 500);
  m_window.close();
  MainWindow again;
  EXPECT_EQ(again.size(), QSize(700, 500));
}

TEST_F(MainWindowTest, SaysWhatBecameOfAnExport) {
  const struct {
    uint32_t state;
    int32_t error;
    uint32_t incomplete;
    const char *status, *what, *advice;
  } rows[] = {
      {QZFILTER_NOT_WRITTEN, ENOSPC, 0, "The export failed", "The file “%1” could not be written.",
       "The disk is full (%1).\n\nMake room on it, or choose a folder on another disk, and export again."},
      {QZFILTER_NOT_WRITTEN, EACCES, 0, "The export failed", "The file “%1” could not be written.",
       "%1\n\nCheck that the folder exists, that you may write to it and that the disk is not full. Then "
       "export again, perhaps to another folder."},
      {QZFILTER_NOT_WRITTEN, EIO, 1, "The export failed",
       "Only a part of the file “%1” could be written. It took the place of the earlier one; do not use it.",
       "%1\n\nCheck that the folder exists, that you may write to it and that the disk is not full. Then "
       "export again, perhaps to another folder."},
      {QZFILTER_PENDING, 0, 0, "The export has ended",
       "The export filter does not tell whether “%1” was written.",
       "It is older than this program. Open the file and check that it is complete before you use it."},
  };
  ASSERT_TRUE(OpenSample());
  for (const auto& row : rows) {
    Export(0);
    SaveAs(PathOf("out.csv"));
    const QString path = QFile::decodeName(AskForFile().c_str());
    m_fake->outcome.state = row.state;
    m_fake->outcome.error = row.error;
    m_fake->outcome.incomplete = row.incomplete;
    gDialog->close();
    QMessageBox* const message = WaitForMessage();
    ASSERT_NE(message, nullptr);
    EXPECT_EQ(message->text(), QString::fromUtf8(row.what).arg(path));
    QString advice = QString::fromUtf8(row.advice);
    if (row.error != 0) advice = advice.arg(QString::fromLocal8Bit(std::strerror(row.error)));
    EXPECT_EQ(message->informativeText(), advice);
    EXPECT_EQ(m_window.statusBar()->currentMessage(), QString::fromUtf8(row.status));
    delete message;
  }
}

// The class that is exported, and the one that was opened since.
TEST_F(MainWindowTest, ProtectsTheOpenClasses) {
  for (const char* name : {"first.xml", "second.xml"}) {
    ASSERT_TRUE(QFile::copy(QStringLiteral(SAMPLES "/village-school.xml"), PathOf(name)));
    ASSERT_TRUE(Open(PathOf(name)));
    if (gDialog == nullptr) Export(0);
  }
  for (const char* name : {"first.xml", "second.xml"}) {
    SaveAsRefused(PathOf(name), name);
    EXPECT_EQ(AskForFile(), "status 1");
  }
}

TEST_F(MainWindowTest, TellsThatAnExportCouldNotBegin) {
  ASSERT_TRUE(OpenSample());
  m_fake->showDialog = nullptr;
  m_fake->fileStatus = 0;
  Export(0);
  const QMessageBox* const message = WaitForMessage();
  ASSERT_NE(message, nullptr);
  EXPECT_EQ(message->text(),
            QStringLiteral("The filter could not read the class file or its own resource file."));
  EXPECT_TRUE(Format(0)->isEnabled());
}

TEST_F(MainWindowTest, QuittingClosesTheDialogFirst) {
  ASSERT_TRUE(OpenSample());
  Export(0);
  ASSERT_NE(gDialog, nullptr);
  m_window.close();
  EXPECT_TRUE(m_window.isVisible());
  EXPECT_TRUE(QTest::qWaitFor([this] { return !m_window.isVisible(); }));
  EXPECT_EQ(gDialog, nullptr);
}

// The status is painted before the filter, which blocks, is asked.
TEST_F(MainWindowTest, PreparesAnExportAndCanQuitMeanwhile) {
  ASSERT_TRUE(OpenSample());
  Format(0)->trigger();
  EXPECT_EQ(m_window.statusBar()->currentMessage(), QStringLiteral("Preparing the export…"));
  EXPECT_FALSE(Format(0)->isEnabled());
  ASSERT_NE(QGuiApplication::overrideCursor(), nullptr);
  EXPECT_EQ(QGuiApplication::overrideCursor()->shape(), Qt::WaitCursor);
  EXPECT_EQ(m_fake->begins, 0);
  m_window.close();
  EXPECT_TRUE(QTest::qWaitFor([this] { return !m_window.isVisible(); }));
  EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
  QTest::qWait(100);
  EXPECT_EQ(m_fake->begins, 0);
}

TEST_F(MainWindowTest, SpeaksSpanish) {
  ASSERT_TRUE(OpenSample());
  for (QAction* action : m_window.findChildren<QAction*>()) {
    if (action->text() == QStringLiteral("E&spañol")) action->trigger();
  }
  QCoreApplication::processEvents();
  EXPECT_EQ(m_menu->title(), QStringLiteral("&Exportar"));
  EXPECT_EQ(QSettings().value(QStringLiteral("language")).toString(), QStringLiteral("es"));
  Export(0);
  EXPECT_EQ(m_fake->languageOfFile, 6);
  // Nothing of the host is left in English.
  for (const auto& [english, spanish] : Translations()) {
    if (english == spanish) continue;
    for (const QLabel* label : m_window.findChildren<QLabel*>()) EXPECT_NE(label->text(), english);
    for (const QAction* action : m_window.findChildren<QAction*>()) EXPECT_NE(action->text(), english);
    for (const QWidget* widget : m_window.findChildren<QWidget*>())
      EXPECT_NE(widget->accessibleName(), english);
  }
}

TEST_F(MainWindowTest, TakesADroppedFile) {
  QMimeData data;
  data.setUrls({QUrl::fromLocalFile(QStringLiteral(SAMPLES "/village-school.xml"))});
  QDragEnterEvent enter({10, 10}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(&m_window, &enter);
  EXPECT_TRUE(enter.isAccepted());
  QDropEvent drop({10, 10}, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(&m_window, &drop);
  EXPECT_TRUE(QTest::qWaitFor([this] { return m_window.windowTitle() == QStringLiteral("Class 2 – Gradix"); },
                              30000));
}

class RealFilterTest : public MainWindowTest {
 protected:
  RealFilterTest() : MainWindowTest(FILTER_MODULE) { qputenv("GRADIX_BUNDLE", BUNDLE); }
};

// From the menu to what the user reads in the end.
TEST_F(RealFilterTest, AFullDiskLeavesTheOldFile) {
  ASSERT_TRUE(OpenSample());
  WriteFile(PathOf("out.csv"), "old");
  QWidget* dialog = nullptr;
  Way("canvas", "throughDialog")->trigger();
  ASSERT_TRUE(QTest::qWaitFor([&dialog] {
    dialog = gestures::WindowTitled("Export Assignment Results for Canvas");
    return dialog != nullptr;
  }));
  SaveAs(PathOf("out.csv"));
  std::optional<FullDisk> disk;
  QString alert;
  WhenVisible("replaceQuestion", [&](QWidget* question) {
    disk.emplace();
    ClickButton(question, "Replace");
  });
  QTimer answer;
  QObject::connect(&answer, &QTimer::timeout, [&] {
    QMessageBox* const box = gestures::MessageBox();
    if (!disk || box == nullptr || box->objectName() == QStringLiteral("replaceQuestion")) return;
    disk.reset();
    answer.stop();
    alert = box->text();
    box->defaultButton()->click();
  });
  answer.start(10);
  constexpr int kOK = 11;
  gestures::Click(gestures::Item(dialog, kOK));
  QMessageBox* const message = WaitForMessage();
  ASSERT_NE(message, nullptr);
  EXPECT_EQ(alert, QStringLiteral("Assignment results have been saved in %1.").arg(PathOf("out.csv")));
  EXPECT_EQ(message->text(), QStringLiteral("The file “%1” could not be written.").arg(PathOf("out.csv")));
  EXPECT_TRUE(message->informativeText().contains(QString::fromLocal8Bit(std::strerror(EFBIG))));
  EXPECT_TRUE(message->informativeText().startsWith(
      QStringLiteral("The earlier file of this name is still there, unchanged.")));
  EXPECT_EQ(ReadFile(PathOf("out.csv")), "old");
  EXPECT_EQ(QDir(m_folder.path()).entryList(QDir::Files | QDir::Hidden), QStringList("out.csv"));
}

}  // namespace

}  // namespace host

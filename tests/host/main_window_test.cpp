#include "Host/Window/MainWindow.h"

#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QTableView>
#include <QToolButton>

#include "Host/App/RecentFiles.h"
#include "tests/host/HostFixture.h"

namespace host {

namespace {

QPointer<QDialog> gOptions;

void ShowOptions() {
  gOptions = new QDialog;
  gOptions->setAttribute(Qt::WA_DeleteOnClose);
  gOptions->show();
}

class MainWindowTest : public HostTest {
 protected:
  void SetUp() override {
    HostTest::SetUp();
    qputenv("GRADIX_FILTER", kFakeFilter.toLocal8Bit());
    m_fake->showDialog = ShowOptions;
    m_window.show();
    m_window.LoadFilter();
    m_menu = m_window.findChild<QMenu*>(QStringLiteral("exportMenu"));
    ASSERT_NE(m_menu, nullptr);
  }
  void TearDown() override { qunsetenv("GRADIX_FILTER"); }

  bool Open(const QString& path) {
    m_window.OpenClassFile(path);
    const auto* const open = m_window.findChild<QAction*>(QStringLiteral("open"));
    EXPECT_FALSE(open->isEnabled());
    return QTest::qWaitFor([open] { return open->isEnabled(); }, 30000);
  }
  bool OpenSample() { return Open(QStringLiteral(SAMPLES "/village-school.xml")); }

  QAction* Format(int index) { return m_menu->actions().at(index + 1); }  // after what an empty list says

  QMessageBox* WaitForMessage() {
    EXPECT_TRUE(QTest::qWaitFor([] { return FindWindow("message") != nullptr; }));
    return static_cast<QMessageBox*>(FindWindow("message"));
  }

  MainWindow m_window;
  QMenu* m_menu = nullptr;
};

TEST_F(MainWindowTest, OpensAClass) {
  EXPECT_EQ(m_window.windowTitle(), QStringLiteral("Gradix"));
  EXPECT_FALSE(Format(0)->isEnabled());
  ASSERT_TRUE(OpenSample());
  EXPECT_EQ(m_window.windowTitle(), QStringLiteral("Class 2 – Gradix"));
  EXPECT_EQ(Format(1)->text(), QStringLiteral("Assignment Results for Café 1"));
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
  Format(1)->trigger();
  EXPECT_EQ(m_fake->begin.formatIndex, 1U);
  const ReadResult read = ReadClassFile(QStringLiteral(SAMPLES "/village-school.xml"));
  EXPECT_EQ(m_fake->file.assignmentID, read.openClass->record.assignments[2].id);
  EXPECT_FALSE(Format(0)->isEnabled());
  EXPECT_FALSE(m_window.findChild<QToolButton*>(QStringLiteral("exportButton"))->isEnabled());

  WhenVisible("saveChooser", [this](QWidget* window) {
    EXPECT_EQ(window->parentWidget(), gOptions);
    window->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->setText(PathOf("out.csv"));
    ClickButton(window, TextID::kSave);
  });
  char path[256] = "";
  EXPECT_EQ(m_fake->begin.chooseFile(reinterpret_cast<void*>(gOptions->winId()), 0, path, sizeof path,
                                     m_fake->begin.chooseFileValue),
            0);
  WriteFile(QFile::decodeName(path), "Name,Points\nJos\x8E,5\n");
  gOptions->close();
  ASSERT_TRUE(QTest::qWaitFor([] { return FindWindow("resultWindow") != nullptr; }));
  QWidget* const result = FindWindow("resultWindow");
  EXPECT_EQ(result->findChild<QTableView*>()->model()->index(0, 0).data().toString(), QStringLiteral("José"));
  EXPECT_EQ(result->findChild<QPlainTextEdit*>()->toPlainText(), QStringLiteral("Name,Points\nJosé,5\n"));
  EXPECT_TRUE(Format(0)->isEnabled());
}

TEST_F(MainWindowTest, TellsThatAnExportFailed) {
  ASSERT_TRUE(OpenSample());
  m_fake->showDialog = nullptr;
  m_fake->fileStatus = 0;
  Format(0)->trigger();
  const QMessageBox* const message = WaitForMessage();
  ASSERT_NE(message, nullptr);
  EXPECT_EQ(message->text(), Text(TextID::kExportFileFailed));
  EXPECT_TRUE(Format(0)->isEnabled());
}

TEST_F(MainWindowTest, QuittingClosesTheDialogFirst) {
  ASSERT_TRUE(OpenSample());
  Format(0)->trigger();
  ASSERT_NE(gOptions, nullptr);
  m_window.close();
  EXPECT_TRUE(m_window.isVisible());
  EXPECT_TRUE(QTest::qWaitFor([this] { return !m_window.isVisible(); }));
  EXPECT_EQ(gOptions, nullptr);
}

TEST_F(MainWindowTest, SpeaksSpanish) {
  ASSERT_TRUE(OpenSample());
  for (QAction* action : m_window.findChildren<QAction*>()) {
    if (action->text() == QStringLiteral("Español")) action->trigger();
  }
  EXPECT_EQ(m_menu->title(), QStringLiteral("&Exportar"));
  EXPECT_EQ(QSettings().value(QStringLiteral("language")).toString(), QStringLiteral("es"));
  Format(0)->trigger();
  EXPECT_EQ(m_fake->languageOfFile, 6);
  // Nothing of the host is left in English.
  for (int i = 0; i < static_cast<int>(TextID::kCount); ++i) {
    const QString english = TextIn(Language::kEnglish, static_cast<TextID>(i));
    if (english == Text(static_cast<TextID>(i))) continue;
    for (const QLabel* label : m_window.findChildren<QLabel*>()) EXPECT_NE(label->text(), english);
    for (const QAction* action : m_window.findChildren<QAction*>()) EXPECT_NE(action->text(), english);
    for (const QWidget* widget : m_window.findChildren<QWidget*>())
      EXPECT_NE(widget->accessibleName(), english);
  }
  delete gOptions;
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

}  // namespace

}  // namespace host

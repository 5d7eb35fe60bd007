#include <QDir>

#include "Host/App/HelpBook.h"
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

}  // namespace

}  // namespace host

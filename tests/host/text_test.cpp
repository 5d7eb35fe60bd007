#include "Host/App/RecentFiles.h"
#include "Host/ClassView/RomanText.h"
#include "Host/Export/FileNames.h"
#include "tests/host/HostFixture.h"

namespace host {

namespace {

TEST(RomanText, DecodesEveryCode) {
  EXPECT_EQ(FromRoman("Jos\x8E \xDB"
                      "5\n\t"),
            QStringLiteral("José €5\n\t"));
  EXPECT_EQ(FromRoman("\xF0"), QString(QChar(QChar::ReplacementCharacter)));
  EXPECT_EQ(LineFromRoman("a\r\nb\x7F"), QStringLiteral("a  b "));
}

TEST(FileNames, Proposal) {
  struct Case {
    QString what, format, name;
  };
  const Case cases[] = {
      {"Biology 9", "Assignment Results for Canvas", "Biology 9 – Canvas"},
      {"Quiz 1: Cells", "Detailed Results as Text", "Quiz 1 Cells – Detailed Results as Text"},
      {"a/b\\c:d*e?f\"g<h>i|j\tk", "Assignment Results for X/Y", "a-b-c d e f g h i-j k – X-Y"},
      {". .hidden_ ", "Assignment Results for Sakai", "hidden_ – Sakai"},
      {" .. ", "Assignment Results for Sakai", "Sakai"},
      {"Prueba ñ", "Assignment Results for Blackboard 6.0 - 7.0", "Prueba ñ – Blackboard 6.0 - 7.0"},
      {QString(200, u'x'), "Assignment Results for Canvas", QString(120, u'x') + " – Canvas"},
      {QString(100, u'é'), "Assignment Results for Canvas", QString(60, u'é') + " – Canvas"},
  };
  for (const Case& test : cases) {
    EXPECT_EQ(ProposedFileName(test.what, test.format, QStringLiteral("csv"), QDate(2026, 11, 21)),
              test.name + QStringLiteral(" – 2026-11-21.csv"))
        << test.what.toStdString();
  }
}

TEST_F(HostTest, RecentFilesKeepTheLastEight) {
  for (int i = 0; i < 10; ++i) AddRecentFile(QString::number(i));
  AddRecentFile(QStringLiteral("5"));
  EXPECT_EQ(RecentFiles().join(u' '), QStringLiteral("5 9 8 7 6 4 3 2"));
  RemoveRecentFile(QStringLiteral("9"));
  EXPECT_EQ(RecentFiles().join(u' '), QStringLiteral("5 8 7 6 4 3 2"));
}

}  // namespace

}  // namespace host

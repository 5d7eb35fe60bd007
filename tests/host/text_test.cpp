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
    QString assignment, format, name;
  };
  const Case cases[] = {
      {"Quiz 1", "Assignment Results for Canvas", "Quiz 1 - Canvas.csv"},
      {"Quiz 1: Cells", "Detailed Results as Text", "Quiz 1_ Cells - Detailed Results as Text.csv"},
      {"a/b\\c:d*e?f\"g<h>i|j\tk", "Assignment Results for X/Y", "a_b_c_d_e_f_g_h_i_j_k - X_Y.csv"},
      {"..", "Assignment Results for Sakai", "_. - Sakai.csv"},
      {"  ", "Assignment Results for Sakai", "Sakai.csv"},
      {"Prueba ñ", "Assignment Results for Blackboard 6.0 - 7.0", "Prueba ñ - Blackboard 6.0 - 7.0.csv"},
      {QString(200, u'x'), "Assignment Results for Canvas", QString(120, u'x') + " - Canvas.csv"},
      {QString(100, u'é'), "Assignment Results for Canvas", QString(60, u'é') + " - Canvas.csv"},
  };
  for (const Case& test : cases) {
    EXPECT_EQ(ProposedFileName(test.assignment, test.format, QStringLiteral("csv")), test.name)
        << test.assignment.toStdString();
  }
}

TEST(FileNames, PathLimitCountsBytes) {
  EXPECT_TRUE(FitsIntoPath(u'/' + QString(254, u'a')));
  EXPECT_FALSE(FitsIntoPath(u'/' + QString(255, u'a')));
  EXPECT_TRUE(FitsIntoPath(u'/' + QString(127, u'é')));
  EXPECT_FALSE(FitsIntoPath(u'/' + QString(128, u'é')));
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

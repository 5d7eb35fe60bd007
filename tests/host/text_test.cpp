#include "Host/App/RecentFiles.h"
#include "Host/ClassView/RomanText.h"
#include "Host/Export/FileNames.h"
#include "Host/Result/CsvTableModel.h"
#include "tests/host/HostFixture.h"

namespace host {

namespace {

TEST(CsvReader, Rows) {
  struct Case {
    const char* text;
    std::vector<CsvRow> rows;
  };
  const Case cases[] = {
      {"", {}},
      {"a", {{"a"}}},
      {"a,b\nc,d\n", {{"a", "b"}, {"c", "d"}}},
      {"a\r\nb\rc\n", {{"a"}, {"b"}, {"c"}}},
      {",\n\n,", {{"", ""}, {""}, {"", ""}}},
      {"\"a,b\",\"c\nd\",\"say \"\"hi\"\"\"\n", {{"a,b", "c\nd", "say \"hi\""}}},
      {"a\"b,\"c\"d,\"\"", {{"a\"b", "cd", ""}}},
      {"\"never closed, \"\"", {{"never closed, \""}}},
      {"\"\"\"\",x", {{"\"", "x"}}},
      {"\xFF\x80,\"\x8E\"", {{"\xFF\x80", "\x8E"}}},
  };
  for (const Case& test : cases) EXPECT_EQ(ReadCsv(test.text), test.rows) << test.text;
}

TEST(CsvTable, RowsOfDifferentLengths) {
  const CsvTableModel model(nullptr, ReadCsv("Name,P\x8Es\nAnn\nBob,1,\"x\ny\"\n"));
  EXPECT_EQ(model.rowCount(), 2);
  EXPECT_EQ(model.columnCount(), 3);
  EXPECT_EQ(model.headerData(1, Qt::Horizontal, Qt::DisplayRole).toString(), QStringLiteral("Pés"));
  EXPECT_FALSE(model.headerData(2, Qt::Horizontal, Qt::DisplayRole).isValid());
  EXPECT_EQ(model.index(0, 0).data().toString(), QStringLiteral("Ann"));
  EXPECT_FALSE(model.index(0, 1).data().isValid());
  EXPECT_EQ(model.index(1, 2).data().toString(), QStringLiteral("x y"));
  const CsvTableModel empty(nullptr, {});
  EXPECT_EQ(empty.rowCount(), 0);
  EXPECT_EQ(empty.columnCount(), 0);
}

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

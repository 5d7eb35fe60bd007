#include <QCheckBox>
#include <QLabel>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QTabWidget>

#include "Host/Preview/AssignmentPicker.h"
#include "Host/Preview/CsvTableModel.h"
#include "Host/Preview/FilePreview.h"
#include "tests/host/HostFixture.h"

namespace host {

namespace {

TEST(CsvReader, Rows) {
  struct Case {
    const char* text;
    std::vector<CsvRow> rows;
    char delimiter = ',';
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
      {"a,b;\"c;d\";2,5\n", {{"a,b", "c;d", "2,5"}}, ';'},
  };
  for (const Case& test : cases) EXPECT_EQ(ReadCsv(test.text, test.delimiter), test.rows) << test.text;
}

TEST(CsvTable, RowsOfDifferentLengths) {
  CsvTableModel model(nullptr);
  EXPECT_EQ(model.rowCount(), 0);
  EXPECT_EQ(model.columnCount(), 0);
  EXPECT_FALSE(model.SetRows(ReadCsv("Name,Pés\nAnn\nBob,1,\"x\ny\"\n")));
  EXPECT_EQ(model.rowCount(), 2);
  EXPECT_EQ(model.columnCount(), 3);
  EXPECT_EQ(model.headerData(1, Qt::Horizontal, Qt::DisplayRole).toString(), QStringLiteral("Pés"));
  EXPECT_FALSE(model.headerData(2, Qt::Horizontal, Qt::DisplayRole).isValid());
  EXPECT_EQ(model.index(0, 0).data().toString(), QStringLiteral("Ann"));
  EXPECT_FALSE(model.index(0, 1).data().isValid());
  EXPECT_EQ(model.index(1, 2).data().toString(), QStringLiteral("x y"));
  EXPECT_TRUE(model.SetRows(ReadCsv("Name,Pés\nAnn,2\n")));
  EXPECT_EQ(model.columnCount(), 2);
}

std::shared_ptr<OpenClass> _ClassWith(const std::vector<int32_t>& ids) {
  auto made = std::make_shared<OpenClass>();
  made->path = QStringLiteral("class.xml");
  for (const int32_t id : ids) made->record.assignments.emplace_back().id = id;
  return made;
}

TEST_F(HostTest, AssignmentsStayChosenWhenTheClassIsReadAgain) {
  int changes = 0;
  AssignmentPicker picker(nullptr, [&changes] { ++changes; });
  picker.SetClass(_ClassWith({1, 2, 3}));
  picker.show();
  using Positions = std::vector<size_t>;
  EXPECT_EQ(picker.Chosen(), (Positions{0, 1, 2}));
  auto* const list = picker.findChild<QListWidget*>(QStringLiteral("assignments"));
  list->setFocus();
  list->setCurrentRow(1);
  QTest::keyClick(list, Qt::Key_Space);
  EXPECT_EQ(picker.Chosen(), (Positions{0, 2}));
  picker.SetClass(_ClassWith({2, 3, 4}));
  EXPECT_EQ(picker.Chosen(), (Positions{1, 2}));
  EXPECT_EQ(changes, 1);

  auto* const all = picker.findChild<QCheckBox*>(QStringLiteral("allAssignments"));
  EXPECT_EQ(all->checkState(), Qt::PartiallyChecked);
  const std::pair<Qt::CheckState, Positions> clicks[] = {{Qt::Checked, {0, 1, 2}}, {Qt::Unchecked, {}}};
  for (const auto& [state, chosen] : clicks) {
    gestures::Click(all);
    EXPECT_EQ(all->checkState(), state);
    EXPECT_EQ(picker.Chosen(), chosen);
  }
  picker.SetOnlyOne(true);
  EXPECT_EQ(picker.Chosen(), (Positions{0}));
  gestures::ClickRow(picker.findChild<QListWidget*>(QStringLiteral("oneAssignment")), 2);
  EXPECT_EQ(picker.Chosen(), (Positions{2}));
  EXPECT_EQ(changes, 4);
  picker.SetOnlyOne(false);
  EXPECT_EQ(picker.Chosen(), (Positions{}));
  picker.Choose({0, 2});
  EXPECT_EQ(picker.Chosen(), (Positions{0, 2}));
}

TEST_F(HostTest, PreviewReadsAFileByItsEncoding) {
  const struct {
    const char* bytes;
    FileReading reading;
    const char *cell, *text, *facts;
  } rows[] = {
      {"Name,P\nJos\x8E,5\n", {}, "José", "Name,P\nJosé,5\n", "Mac Roman · line ends LF · 14 bytes · 1 row "},
      {"Name;P\r\n\"Jos\xE9; X\";2,5\r\n\r\n",
       {TextEncoding::kLatin1, ';'},
       "José; X",
       "Name;P\n\"José; X\";2,5\n\n",
       "ISO-8859-1 · line ends CR LF · 25 bytes · 2 rows "},
      {"\xEF\xBB\xBFName\rJosé\r",
       {TextEncoding::kUtf8WithBom},
       "José",
       "Name\nJosé\n",
       "UTF-8 with a byte-order mark · line ends CR · 14 bytes · 1 row "},
      {"Name\r\nJos\xE9\n",
       {TextEncoding::kUtf8},
       "Jos\uFFFD",
       "Name\nJos\uFFFD\n",
       "UTF-8 · different line ends · 11 bytes · 1 row "},
  };
  FilePreview preview(nullptr);
  preview.show();
  const auto* const facts = preview.findChild<QLabel*>(QStringLiteral("fileFacts"));
  const auto* const cut = preview.findChild<QLabel*>(QStringLiteral("fileCut"));
  const auto* const table = preview.findChild<QAbstractItemView*>(QStringLiteral("fileTable"));
  const auto* const text = preview.findChild<QPlainTextEdit*>(QStringLiteral("fileText"));
  for (const auto& row : rows) {
    preview.Show(row.bytes, row.reading);
    EXPECT_EQ(table->model()->index(0, 0).data().toString(), QString::fromUtf8(row.cell));
    EXPECT_EQ(text->toPlainText(), QString::fromUtf8(row.text));
    EXPECT_EQ(facts->text().toStdString(), std::string(row.facts) + "below the headings");
    EXPECT_FALSE(cut->isVisible());
  }
  preview.Show("Name\nAna\n", {}, FilePreview::kMaxShownBytes + 1);
  EXPECT_TRUE(cut->isVisible());
  EXPECT_EQ(facts->text(), QStringLiteral("Mac Roman · line ends LF · 8.00 MiB"));
  preview.Show((QByteArray(1023, 'x') + '\n').repeated(FilePreview::kMaxShownBytes / 1024 + 1), {});
  EXPECT_TRUE(cut->isVisible());
  preview.ShowNothing(QStringLiteral("Nothing to see."));
  EXPECT_EQ(facts->text(), QStringLiteral("Nothing to see."));
  EXPECT_EQ(table->model()->columnCount(), 0);
}

}  // namespace

}  // namespace host

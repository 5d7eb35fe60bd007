// What stops an export or comments on it: empty and repeated identifiers, names, paths, the file chooser.
#include "bench/ClassGenerator.h"
#include "tests/filter/FilterFixture.h"

namespace {

constexpr char kOneEmpty[] =
    "The selected Canvas User ID field is empty for 1 of 3 students. Student records missing a valid Canvas "
    "User ID will not be imported into Canvas.";
constexpr char kTwoEmpty[] =
    "The selected Canvas User ID field is empty for 2 of 3 students. Student records missing a valid Canvas "
    "User ID will not be imported into Canvas.";
constexpr char kAllEmpty[] =
    "The selected Canvas User ID field is empty for all students. No student results can be exported.";

using ChecksTest = FilterTest;

TEST_F(ChecksTest, AsksForAnAssignmentWhenNoneIsChecked) {
  const QPointer<QWidget> dialog = Open(kCanvas, kSampleClass);
  EXPECT_EQ(CheckedRows(dialog, kAssignments), std::vector<int>{});
  Click(dialog, kOK);
  const std::vector<ShownAlert> shown = alerts.Take();
  ASSERT_EQ(shown.size(), 1U);
  EXPECT_EQ(shown[0].text,
            "No assignment is checked. Check at least one assignment in the list, then export again.");
  EXPECT_EQ(shown[0].icon, QMessageBox::Information);
  EXPECT_EQ(shown[0].button, "OK");
  EXPECT_TRUE(chooser.calls.empty());
  ASSERT_FALSE(IsGone(dialog));
  Click(dialog, kSelectAll);
  Finish(dialog, kCanvas);
}

TEST_F(ChecksTest, ChecksTheIdentifiersOfTheClass) {
  const struct {
    std::vector<std::string> studentIDs, messages;
    bool goesOn;
  } rows[] = {
      {{"1", "2", "3"}, {}, true},
      {{"1", "", "3"}, {kOneEmpty}, true},
      {{"", "2", ""}, {kTwoEmpty}, false},
      {{"1", "1", ""}, {kOneEmpty}, false},
      {{"1", "2", "1"}, {}, false},
      {{"", "", ""}, {kAllEmpty}, false},
      {{}, {kAllEmpty}, false},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(testing::PrintToString(row.studentIDs));
    const QPointer<QWidget> dialog = Open(kCanvas, WriteClass(ClassXml(row.studentIDs)), kQuiz);
    chooser.calls.clear();
    Click(dialog, kOK);
    std::vector<std::string> messages = row.messages;
    if (row.goesOn) messages.push_back(SavedText(chooser.path));
    EXPECT_EQ(alerts.TakeTexts(), messages);
    EXPECT_EQ(chooser.calls.size(), row.goesOn ? 1U : 0U);
    EXPECT_EQ(IsGone(dialog), row.goesOn);
    if (!IsGone(dialog)) Click(dialog, kCancel);
  }
}

TEST_F(ChecksTest, AnotherFieldCanStillBeChosenAfterTheCheck) {
  const QPointer<QWidget> dialog = Open(kCanvas, WriteClass(ClassXml({"5", "5"})), kQuiz);
  Click(dialog, kOK);
  ASSERT_FALSE(IsGone(dialog));
  ChooseRow(dialog, kFieldPopup, 3, Input::keys);
  const std::string bytes = Finish(dialog, kCanvas);
  EXPECT_NE(bytes.find(",user1,"), std::string::npos) << bytes;

  const QPointer<QWidget> other = Open(kCanvas, WriteClass(ClassXml({"5"})), kQuiz);
  ChooseRow(other, kFieldPopup, 6, Input::mouse);  // the last one
  EXPECT_NE(Finish(other, kCanvas).find(",Room 1"), std::string::npos);
}

TEST_F(ChecksTest, StaysOpenWhenNoFileWasChosen) {
  for (const uint32_t format : {kCanvas, kDetailed}) {
    chooser.answer = 1;
    const QPointer<QWidget> dialog = Open(format, kSampleClass, 301);
    Click(dialog, OKItem(format));
    EXPECT_FALSE(std::filesystem::exists(chooser.path));
    ASSERT_FALSE(IsGone(dialog));
    chooser.answer = 0;
    Finish(dialog, format);
    std::filesystem::remove(chooser.path);

    EXPECT_EQ(ExportFile(Begin(format, false), kSampleClass, 301), 1U);
    ASSERT_EQ(Dialogs().size(), 1U);
    Click(Dialogs().front(), OKItem(format));
    EXPECT_EQ(alerts.TakeTexts(), std::vector<std::string>{});
    ASSERT_EQ(Dialogs().size(), 1U);
    Key(Dialogs().front(), Qt::Key_Escape);
  }
}

TEST_F(ChecksTest, ShowsEveryPathAsItIs) {
  const std::string paths[] = {
      PathOf("100%s%n%d%%.csv"),
      PathOf("\"quoted\" 'twice' & <b>bold<b>.csv"),
      PathOf("se\u00F1or \u20AC \u6F22.csv"),
  };
  for (const std::string& path : paths) {
    chooser.path = path;
    for (const uint32_t format : {kCanvas, kDetailed}) {
      const QPointer<QWidget> dialog = Open(format, kSampleClass, 301);
      EXPECT_FALSE(Finish(dialog, format).empty());
      std::filesystem::remove(path);
    }
  }
  chooser.path = PathOf("caf\xE9.csv");
  Click(Open(kCanvas, kSampleClass, 301), kOK);
  EXPECT_EQ(alerts.TakeTexts(), std::vector<std::string>{SavedText(PathOf("caf\uFFFD.csv"))});
  EXPECT_TRUE(std::filesystem::exists(chooser.path));
}

TEST_F(ChecksTest, CutsLongAssignmentNames) {
  const struct { size_t length, kept; } rows[] = {{29, 29}, {31, 31}, {32, 31}, {45, 31}};
  for (const auto& row : rows) {
    std::string name(row.length, 'n');
    name.front() = 'A';
    const QPointer<QWidget> dialog = Open(kCanvas, WriteClass(ClassXml({"1"}, {{kQuiz, name}})), kQuiz);
    const std::string bytes = Finish(dialog, kCanvas);
    EXPECT_EQ(bytes.substr(0, bytes.find('\n')), "Student,ID,Section," + name.substr(0, row.kept));
  }
}

TEST_F(ChecksTest, FailsOnANameOfExactlyThirtyCharacters) {
  const std::string accented = std::string(28, 'n') + "\u00E9\u00E9";  // 30 characters of the class record
  for (const std::string& name : {std::string(30, 'n'), accented}) {
    const std::string path = WriteClass(ClassXml({"1"}, {{5, "Quiz"}, {kQuiz, name}}));
    const unsigned long session = Begin(kCanvas);
    EXPECT_EQ(ExportFile(session, path, kQuiz), QZFILTER_FAILED);
    EXPECT_TRUE(Dialogs().empty());
    EXPECT_EQ(ExportFile(session, kSampleClass), QZFILTER_FAILED) << "the session is gone";
    EXPECT_TRUE(Dialogs().empty());
    EXPECT_EQ(alerts.TakeTexts(), std::vector<std::string>{});
    const QPointer<QWidget> next = Open(kCanvas, kSampleClass, 301);
    Finish(next, kCanvas);
    const QPointer<QWidget> report = Open(kDetailed, path, kQuiz);  // which takes names as they are
    Finish(report, kDetailed);
  }
}

}  // namespace

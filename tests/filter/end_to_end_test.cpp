// Every format from the class file to the gradebook file, through its dialog, by mouse and by keys.
#include <QProcess>
#include <ostream>

#include "bench/ClassGenerator.h"
#include "tests/filter/FilterFixture.h"
#include "tests/support/UrlTaker.h"

namespace {

struct FormatCase {
  uint32_t index;
  const char *key, *title;
  int fieldRow;  // of the popup, selected at first
  const char* idName;
  int helpTopic;
};

void PrintTo(const FormatCase& format, std::ostream* stream) {
  *stream << format.key;
}

constexpr FormatCase kFormats[] = {
    {0, "webct", "Export Assignment Results for WebCT Vista", 3, "WebCT User ID", 224},
    {1, "blackboard6", "Export Assignment Results for Blackboard 6.0 - 7.0", 3, "Blackboard User Name", 223},
    {2, "angel", "Export Assignment Results for ANGEL", 3, "ANGEL User ID", 222},
    {3, "detailed", "Export Detailed Results as Text", -1, nullptr, 225},
    {4, "blackboard8", "Export Assignment Results for Blackboard 8.0 - 9.0", 3, "Blackboard User Name", 223},
    {5, "blackboard91", "Export Assignment Results for Blackboard Learn 9.1", 2,
     "Blackboard Learn 9.1 Username", 223},
    {6, "canvas", "Export Assignment Results for Canvas", 2, "Canvas User ID", 226},
    {7, "d2l", "Export Assignment Results for Brightspace by D2L", 4, "Brightspace by D2L Username", 227},
    {8, "moodle", "Export Assignment Results for Moodle 3.1.2", 4, "Moodle Student ID", 228},
    {9, "schoology", "Export Assignment Results for Schoology", 2, "Schoology User ID", 229},
    {10, "sakai", "Export Assignment Results for Sakai", 2, "Sakai Student ID", 230},
};

constexpr int32_t kQuiz5 = 306;
constexpr int kQuiz5Row = 5;

class EndToEnd : public FilterTest {
 protected:
  static std::string Golden(const std::string& name) {
    return Bytes(std::string(GOLDEN "/secondary-school.").append(name).append(".csv"));
  }

  std::string CommandLine(const char* format, QStringList options) const {
    const std::string path = PathOf("command-line.csv");
    options = QStringList{"export", "-f", format, "-o", QString::fromStdString(path)} + options;
    options << QString::fromStdString(kSampleClass);
    QProcess process;
    process.start(GXEXPORT, options);
    process.waitForFinished();
    EXPECT_EQ(process.exitCode(), 0) << process.readAllStandardError().toStdString();
    return Bytes(path);
  }
};

class EveryFormat : public EndToEnd, public testing::WithParamInterface<std::tuple<FormatCase, Input>> {
 protected:
  const FormatCase& Format() const { return std::get<0>(GetParam()); }
  Input By() const { return std::get<1>(GetParam()); }
};

TEST_P(EveryFormat, WritesTheWholeClassWithItsDefaults) {
  const QPointer<QWidget> dialog = Open(Format().index, kSampleClass, kQuiz5);
  EXPECT_EQ(dialog->windowTitle().toStdString(), Format().title);
  if (Format().index == kDetailed) {
    EXPECT_EQ(SelectedRow(dialog, kReportAssignment), kQuiz5Row);
  } else {
    EXPECT_EQ(CheckedRows(dialog, kAssignments), std::vector<int>{kQuiz5Row});
    EXPECT_EQ(TextOf(dialog, kIDName), Format().idName);
    EXPECT_EQ(SelectedRow(dialog, kFieldPopup), Format().fieldRow);
    const bool isBlackboard = Format().index == 1 || Format().index == 4 || Format().index == 5;
    for (int item = kFileKindGroup; item <= kWithoutQuotes; ++item) {
      EXPECT_EQ(IsShown(dialog, item), isBlackboard) << item;
    }
    for (const int item : {kStandardFile, kWithQuotes, kWithoutQuotes}) {
      EXPECT_EQ(IsEnabled(dialog, item), isBlackboard && Format().index != 1) << item;
    }
    Press(dialog, kSelectAll, By());
  }
  void* const window = reinterpret_cast<void*>(dialog->winId());
  EXPECT_EQ(Finish(dialog, Format().index, By()), Golden(Format().key));
  EXPECT_EQ(chooser.calls.front().dialog, window);
  EXPECT_EQ(chooser.calls.front().reserved, 0);
  EXPECT_EQ(chooser.calls.front().size, 256);
}

TEST_P(EveryFormat, WritesWhatTheCommandLineWritesForTheSameChoices) {
  const QPointer<QWidget> dialog = Open(Format().index, kSampleClass, kQuiz5);
  if (Format().index == kDetailed) {
    ChooseRow(dialog, kReportAssignment, 1, By());
    ChooseRow(dialog, kReportColumns, 2, By());
    Press(dialog, kAsterisks, By());
    Press(dialog, kPointsPossible, By());
    for (const int row : {1, 3, 11}) ToggleRow(dialog, kReportFields, row, By());
    EXPECT_EQ(
        Finish(dialog, kDetailed, By()),
        CommandLine("detailed", {"-a", "302", "--columns", "both", "--no-asterisks", "--points-possible",
                                 "--fields", "first-name,last-name,student-id,alias,gender,custom-3"}));
    return;
  }
  const char* const fields[] = {"custom-2", "custom-1", "alias", "student-id", "last-name", "first-name"};
  const uint32_t field = Format().index % uint32_t{std::size(fields)};
  ChooseRow(dialog, kFieldPopup, 5 - static_cast<int>(field), By());
  Press(dialog, kSelectAll, By());
  Press(dialog, kClearAll, By());
  for (const int row : {11, 1, 4, 1}) ToggleRow(dialog, kAssignments, row, By());
  EXPECT_EQ(CheckedRows(dialog, kAssignments), (std::vector<int>{4, 11}));
  EXPECT_EQ(Finish(dialog, Format().index, By()),
            CommandLine(Format().key, {"-a", "305", "-a", "312", "-u", fields[field]}));
  const QPointer<QWidget> next = Open(Format().index, kSampleClass, kQuiz5);
  EXPECT_EQ(SelectedRow(next, kFieldPopup), Format().fieldRow) << "whatever was chosen before";
  Key(next, Qt::Key_Escape);
}

INSTANTIATE_TEST_SUITE_P(Filter, EveryFormat,
                         testing::Combine(testing::ValuesIn(kFormats),
                                          testing::Values(Input::mouse, Input::keys)),
                         [](const auto& row) {
                           return std::string(std::get<0>(row.param).key) +
                                  (std::get<1>(row.param) == Input::mouse ? "_mouse" : "_keys");
                         });

// The page of the book that the topic stands for is the one with this format's sample.
TEST_F(EndToEnd, HelpOpensTheFormatsTopic) {
  ASSERT_EQ(Module().formatCount(), std::size(kFormats));
  UrlTaker browser({QStringLiteral("file"), QStringLiteral("https")});
  for (const FormatCase& format : kFormats) {
    for (const char* language : {"en", "es"}) {
      const QPointer<QWidget> dialog =
          Open(format.index, kSampleClass, kQuiz5, language == std::string("es"));
      const bool isReport = format.index == kDetailed;
      Click(dialog, isReport ? static_cast<int>(kReportHelp) : static_cast<int>(kHelp));
      const std::string group = "qzmanage/qzm_" + std::to_string(format.helpTopic) + ".htm";
      const std::string folder = std::filesystem::path(BUNDLE).parent_path().string() + "/Quizonne Help/" +
                                 language + "/Quizonne Gradix/";
      const QByteArray start =
          QUrl::fromLocalFile(QString::fromStdString(folder + "qzmanage.htm")).toEncoded();
      const std::string url = isReport ? "https://help.gradix.example/" : start.toStdString() + "#" + group;
      EXPECT_EQ(browser.Take(), std::vector<std::string>{url}) << format.key;
      EXPECT_NE(Bytes(folder + group).find("data-sample=\"" + std::string(format.key) + "\""),
                std::string::npos)
          << format.key;
      Key(dialog, Qt::Key_Escape);
    }
  }
}

TEST_F(EndToEnd, WritesBlackboardFilesWithAndWithoutQuotes) {
  const struct {
    std::vector<int> pressed;  // one after the other
    const char* golden;
    bool withQuotesStays;
  } rows[] = {
      {{kWithoutQuotes}, "-unquoted", true},
      {{kWithQuotes}, "", true},
      {{kWithoutQuotes, kWithQuotes}, "", true},
      {{kWithoutQuotes, kStandardFile}, "", false},
      {{kStandardFile, kWithoutQuotes}, "-unquoted", false},
  };
  for (const uint32_t format : {4U, 5U}) {
    for (const Input input : {Input::mouse, Input::keys}) {
      for (const auto& row : rows) {
        const QPointer<QWidget> dialog = Open(format, kSampleClass);
        for (const int item : row.pressed) Press(dialog, item, input);
        for (const int item : {kStandardFile, kWithQuotes, kWithoutQuotes}) {
          EXPECT_EQ(IsChecked(dialog, item), item == row.pressed.back()) << item;
        }
        EXPECT_EQ(IsEnabled(dialog, kWithQuotes), row.withQuotesStays);
        Press(dialog, kSelectAll, input);
        EXPECT_EQ(Finish(dialog, format, input), Golden(std::string(kFormats[format].key) + row.golden));
      }
    }
  }
}

class DetailedReport : public EndToEnd {
 protected:
  struct Box {
    bool enabled, checked;
    bool operator==(const Box&) const = default;
  };
  static std::vector<Box> Boxes(QWidget* dialog) {
    std::vector<Box> boxes;
    for (const int item : {kAsterisks, kAnswerKey, kPointsPossible}) {
      boxes.push_back({IsEnabled(dialog, item), IsChecked(dialog, item)});
    }
    return boxes;
  }
  static void ExpectDefaults(QWidget* dialog) {
    EXPECT_EQ(SelectedRow(dialog, kReportColumns), 0);
    EXPECT_EQ(Boxes(dialog), (std::vector<Box>{{true, true}, {true, false}, {false, false}}));
    EXPECT_EQ(CheckedRows(dialog, kReportFields), std::vector<int>{});
  }
};

TEST_F(DetailedReport, EnablesWhatTheQuestionColumnsHaveAUseFor) {
  const QPointer<QWidget> dialog = Open(kDetailed, kSampleClass, kQuiz5);
  ExpectDefaults(dialog);
  Click(dialog, kAsterisks);
  Click(dialog, kAnswerKey);
  const std::vector<Box> chosen = {{true, false}, {true, true}, {false, false}};
  EXPECT_EQ(Boxes(dialog), chosen);
  ChooseRow(dialog, kReportColumns, 1, Input::mouse);
  EXPECT_EQ(Boxes(dialog), (std::vector<Box>{{false, false}, {false, false}, {true, false}}));
  Click(dialog, kPointsPossible);
  ChooseRow(dialog, kReportColumns, 0, Input::keys);
  EXPECT_EQ(Boxes(dialog), chosen);
  ChooseRow(dialog, kReportColumns, 1, Input::keys);
  EXPECT_EQ(Boxes(dialog), (std::vector<Box>{{false, false}, {false, false}, {true, true}}));
  ChooseRow(dialog, kReportColumns, 2, Input::keys);
  for (const Box& box : Boxes(dialog)) EXPECT_TRUE(box.enabled);
}

TEST_F(DetailedReport, WritesItsColumnsAndForgetsTheChoices) {
  const struct {
    const char* golden;
    int columns;
    std::vector<int> pressed;
  } rows[] = {
      {"detailed-everything", 2, {kAnswerKey, kPointsPossible, kReportSelectAll}},
      {"detailed", 0, {kReportSelectAll, kReportClearAll}},
      {"detailed-points", 1, {kPointsPossible}},
  };
  for (const Input input : {Input::mouse, Input::keys}) {
    for (const auto& row : rows) {
      const QPointer<QWidget> dialog = Open(kDetailed, kSampleClass, kQuiz5);
      ExpectDefaults(dialog);
      if (row.columns != 0) ChooseRow(dialog, kReportColumns, row.columns, input);
      for (const int item : row.pressed) Press(dialog, item, input);
      EXPECT_EQ(Finish(dialog, kDetailed, input), Golden(row.golden)) << row.golden;
    }
  }
}

TEST_F(DetailedReport, PreselectsTheLastSelectedAssignment) {
  const std::string path = WriteClass(ClassXml({"1"}, {{5, "A"}, {7, "B"}, {7, "C"}, {9, "D"}}));
  const struct {
    int32_t assignment;
    int row;
  } rows[] = {{5, 0}, {7, 2}, {9, 3}, {12, 0}};
  for (const auto& row : rows) {
    const QPointer<QWidget> dialog = Open(kDetailed, path, row.assignment);
    EXPECT_EQ(SelectedRow(dialog, kReportAssignment), row.row) << row.assignment;
    Key(dialog, Qt::Key_Escape);
    EXPECT_TRUE(IsGone(dialog));
  }
}

}  // namespace

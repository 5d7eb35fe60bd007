#include <unistd.h>

#include <QDir>
#include <QFileDialog>
#include <cstring>
#include <filesystem>
#include <vector>

#include "Host/Export/ExportController.h"
#include "Host/Export/ExportRun.h"
#include "Host/Export/SaveChooser.h"
#include "tests/host/HostFixture.h"

namespace host {

namespace {

class FilterModuleTest : public HostTest {};

TEST_F(FilterModuleTest, TellsWhyAModuleCannotBeUsed) {
  WriteFile(PathOf("text.so"), "no module");
  struct Case {
    QString path;
    FilterFault fault;
    QString detail;
  };
  const Case cases[] = {
      {PathOf("none.so"), FilterFault::kNotFound, QStringLiteral("none.so")},
      {m_folder.path(), FilterFault::kNotFound, m_folder.path()},
      {PathOf("text.so"), FilterFault::kNotLoadable, QStringLiteral("text.so")},
      {QStringLiteral(FILTERS "/incomplete_filter.so"), FilterFault::kMissingSymbol,
       QStringLiteral("QZFilter_ExportFileA")},
  };
  for (const Case& test : cases) {
    FilterLoadError error;
    EXPECT_EQ(FilterModule::Load(test.path, &error), nullptr);
    EXPECT_EQ(error.fault, test.fault) << test.path.toStdString();
    EXPECT_TRUE(error.detail.contains(test.detail)) << error.detail.toStdString();
  }
}

TEST_F(FilterModuleTest, PathComesFromTheEnvironmentFirst) {
  EXPECT_TRUE(FilterModule::DefaultPath().endsWith(QStringLiteral("/lib/gradix/GX_StdCsv.so")));
  EXPECT_FALSE(FilterModule::DefaultPath().contains(QStringLiteral("..")));
  qputenv("GRADIX_FILTER", "/elsewhere/filter.so");
  EXPECT_EQ(FilterModule::DefaultPath(), QStringLiteral("/elsewhere/filter.so"));
  qunsetenv("GRADIX_FILTER");
}

TEST_F(FilterModuleTest, ListsFormats) {
  ASSERT_NE(FilterModule::Load(kFakeFilter, nullptr), nullptr);
  EXPECT_EQ(m_fake->attached, 1);
  m_fake->formatCount = 3;
  const std::vector<ExportFormat> formats = m_filter->Formats();
  ASSERT_EQ(formats.size(), 3U);
  EXPECT_EQ(formats[2].index, 2U);
  EXPECT_EQ(formats[2].name, QStringLiteral("Assignment Results for Café 2"));
  EXPECT_EQ(formats[2].extension, QStringLiteral("csv"));
  EXPECT_EQ(RowOf(formats[2]), nullptr);
  m_fake->failingFormat = 0;
  EXPECT_TRUE(m_filter->Formats().empty());
}

// By index and name, since a filter of another version may have others.
TEST(FilterFormats, AreKnownByTheirNames) {
  const std::unique_ptr<FilterModule> filter = FilterModule::Load(QStringLiteral(FILTER_MODULE), nullptr);
  ASSERT_NE(filter, nullptr);
  qputenv("GRADIX_BUNDLE", BUNDLE);
  std::vector<ExportFormat> formats = filter->Formats();
  qunsetenv("GRADIX_BUNDLE");
  ASSERT_EQ(formats.size(), FormatTable().size());
  for (const FormatRow& row : FormatTable()) EXPECT_EQ(RowOf(formats[row.index]), &row) << row.key;
  std::swap(formats[6].index, formats[7].index);
  EXPECT_EQ(RowOf(formats[6]), nullptr);
  formats[7].index = 99;
  EXPECT_EQ(RowOf(formats[7]), nullptr);
}

class ExportRunTest : public HostTest {
 protected:
  explicit ExportRunTest(const char* module = FILTERS "/fake_filter.so")
      : HostTest(module),
        m_run(
            nullptr,
            [this](QWidget* dialog) {
              m_askedBy = dialog;
              return m_choice;
            },
            [this](const RunResult& result) {
              ++m_finished;
              m_result = result;
            }) {
    m_request.formatIndex = 1;
    m_request.assignmentID = -7;
    m_request.classPath = QStringLiteral("/classes/Año.xml");
  }

  StartResult Start() { return m_run.Start(*m_filter, m_request, &m_window); }

  bool WaitForEnd() {
    return QTest::qWaitFor([this] { return m_finished > 0; });
  }

  QWidget m_window;
  ExportRequest m_request;
  std::optional<QString> m_choice;
  QWidget* m_askedBy = nullptr;
  int m_finished = 0;
  RunResult m_result;
  ExportRun m_run;
};

TEST_F(ExportRunTest, TellsTheFilterWhatToExport) {
  m_request.spanish = true;
  ASSERT_EQ(Start(), StartResult::kStarted);
  EXPECT_EQ(m_fake->begin.formatIndex, 1U);
  EXPECT_EQ(m_fake->file.assignmentID, -7);
  EXPECT_EQ(m_fake->languageOfFile, 6);
  EXPECT_EQ(m_fake->hostWindow, reinterpret_cast<void*>(m_window.winId()));
  EXPECT_NE(m_fake->module, nullptr);
  EXPECT_EQ(m_fake->ends, 1);
  EXPECT_EQ(m_fake->endedID, 0xFAA00007UL);

  // The reference, read as the filter reads it after the call.
  const uint8_t* const bytes = m_fake->file.classFile.hidden;
  EXPECT_EQ(std::string(reinterpret_cast<const char*>(bytes), 8), std::string("FSrf\0\0\0\0", 8));
  const char* path = nullptr;
  std::memcpy(&path, bytes + 8, sizeof path);
  EXPECT_STREQ(path, "/classes/Año.xml");
  for (size_t i = 8 + sizeof path; i < sizeof(FSRef); ++i) EXPECT_EQ(bytes[i], 0) << i;

  gDialog->close();
  ASSERT_TRUE(WaitForEnd());
  m_request.spanish = false;
  ASSERT_EQ(Start(), StartResult::kStarted);
  EXPECT_EQ(m_fake->languageOfFile, 0);
}

TEST_F(ExportRunTest, OneAtATime) {
  ASSERT_EQ(Start(), StartResult::kStarted);
  EXPECT_EQ(m_run.Dialog(), gDialog);
  EXPECT_EQ(Start(), StartResult::kBusy);
  EXPECT_EQ(m_fake->begins, 1);
  QTest::qWait(50);
  EXPECT_TRUE(m_run.IsRunning());
  delete gDialog;
  ASSERT_TRUE(WaitForEnd());
  EXPECT_FALSE(m_run.IsRunning());
  EXPECT_EQ(m_result.outcome, RunOutcome::kCanceled);
  EXPECT_EQ(Start(), StartResult::kStarted);
}

TEST_F(ExportRunTest, FilterRefuses) {
  m_fake->showDialog = nullptr;
  const std::pair<uint32_t, StartResult> statuses[] = {{0, StartResult::kFileFailed},
                                                       {QZFILTER_FAILED, StartResult::kSessionUnknown}};
  for (const auto& [status, result] : statuses) {
    m_fake->fileStatus = status;
    EXPECT_EQ(Start(), result);
    EXPECT_FALSE(m_run.IsRunning());
  }
  m_fake->beginStatus = QZFILTER_FAILED;
  EXPECT_EQ(Start(), StartResult::kBeginFailed);
  EXPECT_EQ(m_fake->files, 2);
  EXPECT_FALSE(m_run.IsRunning());
}

TEST_F(ExportRunTest, DialogMayComeLater) {
  m_fake->showDialog = nullptr;
  ASSERT_EQ(Start(), StartResult::kStarted);
  QTimer::singleShot(60, &m_window, ShowDialog);
  ASSERT_TRUE(QTest::qWaitFor([this] { return m_run.Dialog() != nullptr; }));
  EXPECT_EQ(m_finished, 0);
  gDialog->close();
  EXPECT_TRUE(WaitForEnd());
}

TEST_F(ExportRunTest, WithoutADialogTheRunEnds) {
  m_fake->showDialog = nullptr;
  ASSERT_EQ(Start(), StartResult::kStarted);
  EXPECT_TRUE(WaitForEnd());
  EXPECT_FALSE(m_run.IsRunning());
}

TEST_F(ExportRunTest, TellsTheChoices) {
  const uint32_t chosen[] = {1, 4};
  m_choice = PathOf("out.csv");
  for (const bool isOlder : {true, false}) {
    m_fake->outcome.state = QZFILTER_WRITTEN;
    m_fake->outcome.userIDField = 3;
    m_fake->outcome.assignments = 2;
    if (!isOlder) {
      m_fake->outcome.chosenAssignments = chosen;
      m_fake->outcome.students = 30;
    }
    m_finished = 0;
    ASSERT_EQ(Start(), StartResult::kStarted);
    AskForFile();
    gDialog->close();
    ASSERT_TRUE(WaitForEnd());
    EXPECT_EQ(m_result.assignments, isOlder ? std::vector<size_t>() : (std::vector<size_t>{1, 4}));
    EXPECT_EQ(m_result.useQuotes, isOlder);
    EXPECT_EQ(m_result.studentCount, isOlder ? 0U : 30U);
    EXPECT_EQ(m_result.assignmentCount, 2U);
    EXPECT_EQ(m_result.userIDField, 3);
  }
}

// Whatever is at the path.
TEST_F(ExportRunTest, OutcomeIsTheFilters) {
  const struct {
    uint32_t state;
    RunOutcome outcome;
  } rows[] = {{QZFILTER_PENDING, RunOutcome::kUnknown},
              {QZFILTER_CANCELLED, RunOutcome::kCanceled},
              {QZFILTER_WRITTEN, RunOutcome::kWritten},
              {QZFILTER_NOT_WRITTEN, RunOutcome::kNotWritten},
              {4, RunOutcome::kUnknown}};
  for (const auto& row : rows) {
    for (const bool exists : {false, true}) {
      m_choice = PathOf(exists ? "old.csv" : "none.csv");
      if (exists) WriteFile(*m_choice, "old");
      m_fake->outcome.state = row.state;
      m_fake->outcome.error = 28;
      m_fake->outcome.replacedCharacters = 3;
      m_fake->outcome.studentsWithoutIdentifier = 4;
      m_finished = 0;
      ASSERT_EQ(Start(), StartResult::kStarted);
      EXPECT_EQ(AskForFile(), m_choice->toStdString());
      EXPECT_EQ(m_askedBy, gDialog);
      gDialog->close();
      ASSERT_TRUE(WaitForEnd());
      EXPECT_EQ(m_fake->askedID, 0xFAA00007UL);
      EXPECT_EQ(m_result.outcome, row.outcome) << row.state;
      EXPECT_EQ(m_result.path, *m_choice);
      EXPECT_EQ(m_result.error, 28);
      EXPECT_EQ(m_result.replacedCharacters, 3U);
      EXPECT_EQ(m_result.studentsWithoutIdentifier, 4U);
    }
  }
}

class OlderFilterTest : public ExportRunTest {
 protected:
  OlderFilterTest() : ExportRunTest(FILTERS "/older_filter.so") {}
};

TEST_F(OlderFilterTest, LeavesTheOutcomeUnknown) {
  for (const bool chosen : {false, true}) {
    if (chosen) m_choice = PathOf("out.csv");
    m_finished = 0;
    ASSERT_EQ(Start(), StartResult::kStarted);
    AskForFile();
    gDialog->close();
    ASSERT_TRUE(WaitForEnd());
    EXPECT_EQ(m_result.outcome, chosen ? RunOutcome::kUnknown : RunOutcome::kCanceled);
  }
}

TEST_F(ExportRunTest, ChoosesNothing) {
  ASSERT_EQ(Start(), StartResult::kStarted);
  EXPECT_EQ(AskForFile(), "status 1");
  m_choice = QStringLiteral("/12345678");
  EXPECT_EQ(AskForFile(9), "status 1");
  EXPECT_EQ(AskForFile(10), "/12345678");
}

// What the filter tells is joined to the class only where it is about that class.
TEST_F(HostTest, ExportedFileIsOfTheClassThatTheFilterRead) {
  const ReadResult read = ReadClass(QStringLiteral(SAMPLES "/village-school.xml"));
  const auto count = static_cast<uint32_t>(read.openClass->record.assignments.size());
  const auto students = static_cast<uint32_t>(read.openClass->record.students.size());
  const struct {
    const char* name;
    uint32_t students, position;
    bool isKnown;
  } rows[] = {{"the same", students, count - 1, true},
              {"another student", students + 1, 0, false},
              {"fewer assignments", students, count, false}};
  QWidget window;
  std::vector<ExportedFile> files;
  ExportController controller(
      &window, {[](const QString&) {}, [&](const ExportedFile& file) { files.push_back(file); }});
  qputenv("GRADIX_FILTER", FILTERS "/fake_filter.so");
  controller.LoadFilter();
  qunsetenv("GRADIX_FILTER");
  for (const auto& row : rows) {
    SCOPED_TRACE(row.name);
    const uint32_t chosen[] = {0, row.position};
    m_fake->outcome.state = QZFILTER_WRITTEN;
    m_fake->outcome.assignments = 2;
    m_fake->outcome.chosenAssignments = chosen;
    m_fake->outcome.students = row.students;
    m_fake->outcome.userIDField = 3;
    files.clear();
    controller.Export(controller.Formats()[1], read.openClass, 0);
    ASSERT_TRUE(QTest::qWaitFor([] { return gDialog != nullptr; }));
    SaveAs(PathOf(row.name));
    AskForFile();
    gDialog->close();
    ASSERT_TRUE(QTest::qWaitFor([&files] { return !files.empty(); }));
    EXPECT_EQ(files[0].openClass, row.isKnown ? read.openClass : nullptr);
    EXPECT_EQ(files[0].assignments,
              row.isKnown ? (std::vector<size_t>{0, row.position}) : std::vector<size_t>());
    EXPECT_EQ(files[0].assignmentCount, 2U);
    EXPECT_EQ(files[0].studentCount, row.students);
    EXPECT_EQ(files[0].identifier, qz::kUserIDStudentID);
    EXPECT_TRUE(files[0].throughDialog);
  }
}

class SaveChooserTest : public HostTest {
 protected:
  std::optional<QString> Choose() { return ChooseSaveFile(nullptr, m_request); }

  SaveRequest m_request{QStringLiteral("Quiz 1 – Canvas.csv"), QStringLiteral("csv")};
};

// In the class's folder, then in the one that was chosen last.
TEST_F(SaveChooserTest, ProposesNameAndFolder) {
  ASSERT_TRUE(QDir(m_folder.path()).mkdir(QStringLiteral("other")));
  m_request.classPaths = {QString(), PathOf("class.xml")};
  for (const QString& folder : {m_folder.path(), PathOf("other")}) {
    WhenVisible("saveChooser", [this, folder](QWidget* window) {
      EXPECT_EQ(window->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->text(),
                m_request.proposedName);
      EXPECT_EQ(static_cast<QFileDialog*>(window)->directory().absolutePath(), folder);
      ClickButton(window, "Cancel");
    });
    EXPECT_EQ(Choose(), std::nullopt);
    SaveAs(PathOf("other/results"));
    EXPECT_EQ(Choose(), PathOf("other/results.csv"));
  }
}

TEST_F(SaveChooserTest, AsksBeforeReplacing) {
  WriteFile(PathOf("old.csv"), "old");
  SaveAs(PathOf("old.csv"));
  WhenVisible("replaceQuestion", [this](QWidget* question) {
    WhenVisible("saveChooser", [this](QWidget*) {
      SaveAs(PathOf("old.csv"));
      WhenVisible("replaceQuestion", [](QWidget* again) { ClickButton(again, "Replace"); });
    });
    ClickButton(question, "Cancel");
  });
  EXPECT_EQ(Choose(), PathOf("old.csv"));
  EXPECT_EQ(ReadFile(PathOf("old.csv")), "old");
}

// While the chooser is open. The class and the download under every name.
TEST_F(SaveChooserTest, RefusesWhatCannotBeWritten) {
  WriteFile(PathOf("class.xml"), "<class/>");
  WriteFile(PathOf("download.csv"), "Student,ID");
  WriteFile(PathOf("protected.csv"), "old");
  ASSERT_TRUE(QFile::link(PathOf("class.xml"), PathOf("symbolic.csv")));
  std::filesystem::create_hard_link(PathOf("class.xml").toStdString(), PathOf("hard.csv").toStdString());
  m_request.classPaths = {PathOf("gone.xml"), PathOf("class.xml")};
  m_request.downloadPath = PathOf("download.csv");
  struct Row {
    QString path;
    const char* part;
  };
  std::vector<Row> rows = {
      {PathOf("class.xml"), "“class.xml” is the open class."},
      {PathOf("symbolic.csv"), "“symbolic.csv” is the open class."},
      {PathOf("hard.csv"), "“hard.csv” is the open class."},
      {PathOf("download.csv"), "“download.csv” is the gradebook that you downloaded."},
      {PathOf("gone/out.csv"), "/gone” is not there."},
      {PathOf("class.xml/out.csv"), "/class.xml” is a file, not a folder."},
      {PathOf("f") + QString(240, u'x'), "The name of the file with all its folders is too long."},
  };
  if (::geteuid() != 0) {
    ASSERT_TRUE(QFile::setPermissions(PathOf("protected.csv"), QFile::ReadOwner));
    rows.push_back({PathOf("protected.csv"), "You may not change the file “protected.csv”"});
    rows.push_back({QStringLiteral("/out.csv"), "You may not save in the folder “/”."});
  }
  for (const Row& row : rows) {
    SCOPED_TRACE(row.path.toStdString());
    SaveAsRefused(row.path, row.part);
    EXPECT_EQ(Choose(), std::nullopt);
  }
  m_request.maxPathBytes = 4095;
  SaveAs(PathOf("f") + QString(240, u'x'));
  EXPECT_EQ(Choose(), PathOf("f") + QString(240, u'x') + QStringLiteral(".csv"));
}

}  // namespace

}  // namespace host

// What a host is told, and whatever it may do while a dialog is open.
#include <malloc.h>

#include <QPixmapCache>
#include <QWindow>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <functional>
#include <sstream>

#include "bench/ClassGenerator.h"
#include "tests/filter/FilterFixture.h"

namespace {

constexpr int32_t kQuiz1 = 301;

class HostsTest : public FilterTest {
 protected:
  // A bundle with nothing but the program's own alerts.
  std::string BundleWithoutFilter() const {
    std::string bundle = PathOf("Alerts.bundle");
    std::filesystem::create_directories(bundle + "/Resources");
    std::filesystem::copy_file(BUNDLE "/Resources/Gradix.rsrc", bundle + "/Resources/Gradix.rsrc");
    return bundle;
  }

  static QZEXPORTOUTCOME Outcome(unsigned long session) {
    QZEXPORTOUTCOME outcome{};
    outcome.size = sizeof outcome;
    EXPECT_EQ(Module().outcome(session, &outcome), QZFILTER_SUCCESS);
    return outcome;
  }
};

TEST_F(HostsTest, DescribesItsFormats) {
  QZEXPORTFORMAT format;
  for (uint32_t index = 0; index < Module().formatCount(); ++index) {
    std::memset(&format, 0x5A, sizeof format);
    *Module().language = 6;
    EXPECT_EQ(Module().formatInfo(&format, index), 1U);
    EXPECT_EQ(*Module().language, 0);
    EXPECT_EQ(format.host0, 0x5A5A5A5AU);
    EXPECT_EQ(format.flags, 14U);
    EXPECT_STREQ(format.extension, "csv");
    EXPECT_EQ(std::string(format.name).find("Result"), index == 3 ? 9U : 11U) << format.name;
  }
}

TEST_F(HostsTest, RefusesWhatDoesNotExist) {
  QZEXPORTFORMAT format;
  std::memset(&format, 0x5A, sizeof format);
  const QZEXPORTFORMAT before = format;
  QZEXPORTBEGIN begin{};
  for (const uint32_t index : {Module().formatCount(), Module().formatCount() + 1, UINT32_MAX}) {
    EXPECT_EQ(Module().formatInfo(&format, index), 0U);
    begin.formatIndex = index;
    unsigned long session = 77;
    EXPECT_EQ(Module().begin(nullptr, &begin, &session), QZFILTER_FAILED);
    EXPECT_EQ(session, 77U);
  }
  for (const unsigned long index : {1UL << 32, ~0UL}) EXPECT_EQ(Module().formatInfo(&format, index), 0U);
  EXPECT_EQ(std::memcmp(&format, &before, sizeof format), 0);
  EXPECT_EQ(Module().begin(nullptr, nullptr, nullptr), QZFILTER_FAILED);
  EXPECT_EQ(ExportFile(12345, kSampleClass), QZFILTER_FAILED);
  EXPECT_EQ(Module().end(12345), QZFILTER_SUCCESS);
  char message[] = "before";
  EXPECT_EQ(Module().customMessage(nullptr, 12345, message, sizeof message), 0U);
  EXPECT_STREQ(message, "before");
  EXPECT_TRUE(Dialogs().empty());
}

TEST_F(HostsTest, ShowsNoDialogForAClassFileThatCannotBeRead) {
  const unsigned long session = Begin(kCanvas);
  EXPECT_EQ(Module().exportFile(nullptr, session, nullptr, Module().handle), 0U);
  const QZEXPORTFILE zeros{};
  EXPECT_EQ(Module().exportFile(nullptr, session, &zeros, Module().handle), 0U);
  QZEXPORTFILE noPath{};
  noPath.classFile = QZFilter_MakeFSRef(nullptr);
  EXPECT_EQ(Module().exportFile(nullptr, session, &noPath, Module().handle), 0U);
  EXPECT_EQ(ExportFile(session, PathOf("missing.xml")), 0U);
  EXPECT_EQ(ExportFile(session, PathOf("")), 0U) << "a folder";
  EXPECT_EQ(ExportFile(session, PathOf("") + std::string(1024, 'x')), 0U);
  for (const char* xml : {"", "<class>", "<class></klass>", "<school/>", "no markup"}) {
    EXPECT_EQ(ExportFile(session, WriteClass(xml)), 0U) << xml;
  }
  EXPECT_TRUE(Dialogs().empty());
  EXPECT_EQ(alerts.TakeTexts(), std::vector<std::string>{});
  EXPECT_EQ(Outcome(session).state, QZFILTER_PENDING);
  EXPECT_EQ(ExportFile(session, kSampleClass), 1U) << "the session is still there";
}

TEST_F(HostsTest, FollowsALongPathUpToItsLimit) {
  std::string folder = PathOf("");
  while (folder.size() + 210 < 1024) {
    folder += std::string(200, 'd') + "/";
    std::filesystem::create_directory(folder);
  }
  for (const size_t length : {size_t{1023}, size_t{1024}}) {  // the second has no room for its zero
    const std::string path = folder + std::string(length - folder.size(), 'f');
    std::filesystem::copy_file(kSampleClass, path);
    EXPECT_EQ(ExportFile(Begin(kCanvas), path), length == 1023 ? 1U : 0U);
  }
}

TEST_F(HostsTest, NeedsItsResources) {
  QZEXPORTFORMAT format{};
  const unsigned long session = Begin(kCanvas);
  setenv("GRADIX_BUNDLE", PathOf("None.bundle").c_str(), 1);
  EXPECT_EQ(Module().formatInfo(&format, 0), 0U);
  EXPECT_EQ(ExportFile(session, kSampleClass), 0U);
  EXPECT_EQ(alerts.TakeTexts(), std::vector<std::string>{});

  setenv("GRADIX_BUNDLE", BundleWithoutFilter().c_str(), 1);
  EXPECT_EQ(Module().formatInfo(&format, 0), 0U);
  const std::vector<ShownAlert> shown = alerts.Take();
  ASSERT_EQ(shown.size(), 1U);
  EXPECT_EQ(shown[0].text, "The English resource file of the export filter could not be opened.");
  EXPECT_EQ(shown[0].icon, QMessageBox::Critical);
  EXPECT_EQ(ExportFile(session, kSampleClass), 0U);
  EXPECT_EQ(format.name[0], '\0');
  EXPECT_TRUE(Dialogs().empty());

  setenv("GRADIX_BUNDLE", BUNDLE, 1);
  EXPECT_EQ(Module().formatInfo(&format, 0), 1U);
  EXPECT_EQ(ExportFile(session, kSampleClass), 1U);
}

TEST_F(HostsTest, SpeaksSpanishWhereTheHostAsksForIt) {
  for (const bool spanish : {true, false}) {
    const QPointer<QWidget> dialog = Open(0, kSampleClass, 0, spanish);
    EXPECT_EQ(*Module().language, 0);
    EXPECT_EQ(dialog->windowTitle(), "Export Assignment Results for WebCT Vista");
    EXPECT_EQ(TextOf(dialog, kOK), spanish ? "Aceptar" : "OK");
    EXPECT_EQ(TextOf(dialog, kCancel), spanish ? "Cancelar" : "Cancel");
    EXPECT_EQ(TextOf(dialog, kAssignmentsLabel),
              spanish ? "Tareas para exportar:" : "Assignments to export:");
    EXPECT_EQ(TextOf(dialog, kPopupLabel), "Extract User ID from:");
    Click(dialog, kOK);
    EXPECT_EQ(alerts.TakeTexts(),
              std::vector<std::string>{
                  "No assignment is checked. Check at least one assignment in the list, then export again."});
    Click(dialog, kCancel);
  }
}

TEST_F(HostsTest, EndsTheSessionHoweverTheDialogCloses) {
  const struct {
    const char* name;
    std::function<void(QWidget*)> close;
    uint32_t outcome = QZFILTER_CANCELLED;
  } rows[] = {
      {"window manager", [](QWidget* dialog) { dialog->close(); }},
      {"Escape", [](QWidget* dialog) { Key(dialog, Qt::Key_Escape); }},
      {"Cancel", [](QWidget* dialog) { Click(dialog, kCancel); }},
      {"OK", [](QWidget* dialog) { Click(dialog, kOK); }, QZFILTER_WRITTEN},
      {"unloading", [](QWidget*) { Module().dllMain(Module().handle, 0, nullptr); }},
      {"quitting", [](QWidget*) { EXPECT_EQ(Module().quit(), 1); }},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.name);
    const unsigned long session = Begin(kCanvas);
    EXPECT_EQ(ExportFile(session, kSampleClass, kQuiz1), 1U);
    ASSERT_EQ(Dialogs().size(), 1U);
    const QPointer<QWidget> dialog = Dialogs().front();
    EXPECT_EQ(ExportFile(session, kSampleClass, kQuiz1), QZFILTER_FAILED) << "its dialog is open";
    EXPECT_EQ(Dialogs().size(), 1U);
    EXPECT_EQ(Outcome(session).state, QZFILTER_PENDING);
    row.close(dialog);
    RunEvents();
    EXPECT_TRUE(dialog.isNull());
    EXPECT_EQ(Outcome(session).state, row.outcome);
    EXPECT_EQ(ExportFile(session, kSampleClass, kQuiz1), QZFILTER_FAILED) << "the session has ended";
  }
}

// Whatever the dialog says.
TEST_F(HostsTest, TellsWhatBecameOfAnExport) {
  const std::string classFile =
      WriteClass(ClassXml({"1", "", "3"}, {{6, "A"}, {7, "\u6F22\u5B57"}, {8, "B"}}));
  const std::string tooLong = PathOf(std::string(256 - PathOf("").size(), 'f'));  // leaves no room for a zero
  const struct {
    uint32_t format;
    std::string path;
    uint32_t state;
    int32_t error, field;
    std::vector<uint32_t> assignments;
    uint32_t withoutIdentifier;
    uint32_t useQuotes = 1;
  } rows[] = {
      {kCanvas, tooLong, QZFILTER_WRITTEN, 0, 3, {0, 2}, 1},
      {kDetailed, tooLong, QZFILTER_WRITTEN, 0, 0, {1}, 0},
      {kCanvas, PathOf("no-such-folder/a.csv"), QZFILTER_NOT_WRITTEN, ENOENT, 3, {0, 2}, 1},
      {kDetailed, PathOf("no-such-folder/a.csv"), QZFILTER_NOT_WRITTEN, ENOENT, 0, {1}, 0},
      {kBlackboard91, "/dev/full", QZFILTER_NOT_WRITTEN, ENOSPC, 3, {0, 2}, 1, 0},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.path);
    chooser.path = row.path;
    const unsigned long session = Begin(row.format);
    EXPECT_EQ(ExportFile(session, classFile, 7), 1U);
    ASSERT_EQ(Dialogs().size(), 1U);
    QWidget* const dialog = Dialogs().front();
    if (row.format != kDetailed) {
      Click(dialog, kSelectAll);
      ToggleRow(dialog, kAssignments, 1, Input::mouse);
    }
    if (row.useQuotes == 0) Click(dialog, kWithoutQuotes);
    EXPECT_EQ(Outcome(session).chosenAssignments, nullptr) << "nothing is decided";
    Click(dialog, OKItem(row.format));
    EXPECT_EQ(alerts.TakeTexts().back(), SavedText(row.path));
    const QZEXPORTOUTCOME outcome = Outcome(session);
    EXPECT_EQ(outcome.state, row.state);
    EXPECT_EQ(outcome.error, row.error);
    EXPECT_EQ(outcome.formatIndex, row.format);
    EXPECT_EQ(outcome.userIDField, row.field);
    EXPECT_EQ(
        std::vector<uint32_t>(outcome.chosenAssignments, outcome.chosenAssignments + outcome.assignments),
        row.assignments);
    EXPECT_EQ(outcome.useQuotes, row.useQuotes);
    EXPECT_EQ(outcome.students, 3U);
    EXPECT_EQ(outcome.replacedCharacters, 2U);
    EXPECT_EQ(outcome.studentsWithoutIdentifier, row.withoutIdentifier);
    EXPECT_EQ(outcome.path, row.path);
  }
}

TEST_F(HostsTest, TwoExportsAtATime) {
  constexpr uint32_t kSchoology = 9;
  const std::string small = WriteClass(ClassXml({"1", "2"}));
  for (const int order : {0, 1, 2, 3}) {
    const bool lowerFirst = order % 2 == 0;
    const QPointer<QWidget> lower = Open(kCanvas, kSampleClass, kQuiz1);
    const QPointer<QWidget> upper = Open(kSchoology, small, 7);
    if (order >= 2) Key(lowerFirst ? lower : upper, Qt::Key_Escape);
    for (const bool isLower : {lowerFirst, !lowerFirst}) {
      const bool isCancelled = order >= 2 && isLower == lowerFirst;
      EXPECT_EQ(IsGone(isLower ? lower : upper), isCancelled);
      if (isCancelled) continue;
      const std::string bytes = Finish(isLower ? lower : upper, isLower ? kCanvas : kSchoology, Input::keys);
      EXPECT_EQ(bytes.find("Section") != std::string::npos, isLower) << "the format: " << bytes;
      EXPECT_EQ(bytes.find("204100") != std::string::npos, isLower) << "the class: " << bytes;
    }
  }
}

TEST_F(HostsTest, TheDialogKeepsItsSessionWhenTheHostEndsTheRun) {
  const unsigned long session = Begin(kCanvas);
  EXPECT_EQ(ExportFile(session, kSampleClass, kQuiz1), 1U);
  EXPECT_EQ(Module().end(session), QZFILTER_SUCCESS);
  ASSERT_EQ(Dialogs().size(), 1U);
  EXPECT_FALSE(Finish(Dialogs().front(), kCanvas).empty());
}

TEST_F(HostsTest, UnloadsWhileTheUserIsAsked) {
  const auto unload = [] { Module().dllMain(Module().handle, 0, nullptr); };
  for (const uint32_t format : {kCanvas, kDetailed}) {
    QPointer<QWidget> dialog = Open(format, kSampleClass, kQuiz1);
    chooser.meanwhile = unload;
    Click(dialog, OKItem(format));
    EXPECT_TRUE(dialog.isNull());
    EXPECT_FALSE(std::filesystem::exists(chooser.path));
    EXPECT_EQ(alerts.TakeTexts(), std::vector<std::string>{});
    chooser.meanwhile = nullptr;

    dialog = Open(format, kSampleClass, kQuiz1);
    alerts.meanwhile = unload;
    Click(dialog, OKItem(format));
    EXPECT_TRUE(dialog.isNull());
    EXPECT_TRUE(std::filesystem::exists(chooser.path)) << "written before the message";
    std::filesystem::remove(chooser.path);
    alerts.Take();
  }
}

TEST_F(HostsTest, SurvivesUnloadingWithAnOpenDialog) {
  const QPointer<QWidget> dialog = Open(kCanvas, kSampleClass, kQuiz1);
  EXPECT_EQ(dlclose(Module().handle), 0);
  RunEvents();
  dialog->repaint();
  ToggleRow(dialog, kAssignments, 1, Input::mouse);
  EXPECT_EQ(CheckedRows(dialog, kAssignments), (std::vector<int>{0, 1}));
  Key(dialog, Qt::Key_Escape);
  EXPECT_TRUE(dialog.isNull());
  Module().Load();
}

TEST_F(HostsTest, HasTheHostsWindowForAParent) {
  QWidget window;
  window.show();
  EXPECT_EQ(ExportFile(Begin(kCanvas), kSampleClass, kQuiz1, reinterpret_cast<void*>(window.winId())), 1U);
  ASSERT_EQ(Dialogs().size(), 1U);
  EXPECT_EQ(Dialogs().front()->windowHandle()->transientParent(), window.windowHandle());
}

// Twice every format; soak_exports of the benchmarks makes as many as are wanted.
TEST_F(HostsTest, LeavesNothingBehind) {
  std::ostringstream xml;
  WriteClassFile(xml, {.students = 500, .assignments = 1, .questions = 1, .studentIDs = {}, .named = {}});
  const std::string path = WriteClass(xml.str());
  const auto exportToEach = [&] {
    for (uint32_t format = 0; format < Module().formatCount() && !HasFailure(); ++format) {
      Finish(Open(format, path, 1), format);
    }
    QPixmapCache::clear();  // which keeps the pictures of message boxes, up to a limit of its own
  };
  exportToEach();
  [[maybe_unused]] const size_t inUse = mallinfo2().uordblks;
  exportToEach();
  EXPECT_LE(QApplication::topLevelWidgets().size(), 5);
#ifndef __SANITIZE_ADDRESS__  // whose allocator tells nothing
  constexpr size_t kMostGrowth = 40'000;
  EXPECT_LT(mallinfo2().uordblks, inUse + kMostGrowth);
  RecordProperty("growth", static_cast<int>(mallinfo2().uordblks - inUse));
#endif
}

}  // namespace

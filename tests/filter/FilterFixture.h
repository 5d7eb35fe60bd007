// A host of the filter: begins exports, finds the options dialogs and works them as a user does.
#ifndef GRADIX_TESTS_FILTERFIXTURE_H
#define GRADIX_TESTS_FILTERFIXTURE_H

#include <gtest/gtest.h>

#include <QApplication>
#include <QPointer>
#include <QWidget>
#include <filesystem>
#include <functional>
#include <ostream>
#include <string>
#include <vector>

#include "tests/filter/AlertAnswerer.h"
#include "tests/filter/LoadedFilter.h"
#include "tests/platform/temp_folder.h"
#include "tests/support/Gestures.h"

// Items of the gradebook options.
enum OptionsItem : int {
  kPopupLabel = 4,
  kFieldPopup = 5,
  kAssignments = 7,
  kSelectAll = 8,
  kClearAll = 9,
  kHelp = 10,
  kOK = 11,
  kCancel = 12,
  kAssignmentsLabel = 14,
  kIDName = 15,
  kFileKindGroup = 16,
  kStandardFile = 18,
  kWithQuotes = 19,
  kWithoutQuotes = 20,
  kFieldLine = 21,
};

// Items of the detailed report's options.
enum ReportItem : int {
  kReportAssignment = 5,
  kReportColumns = 6,
  kAsterisks = 7,
  kAnswerKey = 8,
  kPointsPossible = 9,
  kReportFields = 12,
  kReportSelectAll = 13,
  kReportClearAll = 14,
  kReportHelp = 15,
  kReportOK = 16,
};

inline constexpr int32_t kQuiz = 7;       // an assignment
inline constexpr uint32_t kDetailed = 3;  // the format with options of its own
inline constexpr uint32_t kBlackboard91 = 5;
inline constexpr uint32_t kCanvas = 6;

inline int OKItem(uint32_t format) {
  return format == kDetailed ? static_cast<int>(kReportOK) : static_cast<int>(kOK);
}

// The host's file chooser: what it answers, and what it was asked.
struct FileChooser {
  struct Call {
    void* dialog;
    int32_t reserved;
    int32_t size;
  };

  std::string path;    // copied as it is, with its closing zero where that still fits
  int32_t answer = 0;  // 0: a file was chosen
  std::function<void()> meanwhile;
  std::vector<Call> calls;
};

inline void PrintTo(Input input, std::ostream* stream) {
  *stream << (input == Input::mouse ? "mouse" : "keys");
}

class FilterTest : public testing::Test {
 protected:
  void SetUp() override;
  void TearDown() override;

  // The process's only copy of the module.
  static LoadedFilter& Module();

  // A new session that uses the fixture's file chooser, if any.
  unsigned long Begin(uint32_t format, bool withChooser = true);
  // Has the session read the class file, which shows the dialog.
  uint32_t ExportFile(unsigned long session, const std::string& classFile, int32_t assignment = 0,
                      void* hostWindow = nullptr);
  // Both; the dialog that appeared.
  QPointer<QWidget> Open(uint32_t format, const std::string& classFile, int32_t assignment = 0,
                         bool spanish = false);

  static std::vector<QWidget*> Dialogs();  // all that are shown
  static void RunEvents();

  static QWidget* Item(QWidget* dialog, int item);
  static void Click(QWidget* dialog, int item);
  static void Key(QWidget* dialog, int key, Qt::KeyboardModifiers modifiers = {});  // at the dialog's focus
  static void FocusByTab(QWidget* dialog, int item);

  // Presses a button or box.
  static void Press(QWidget* dialog, int item, Input input);
  static void ChooseRow(QWidget* dialog, int popup, int row, Input input);
  static void ToggleRow(QWidget* dialog, int list, int row, Input input);

  static int SelectedRow(QWidget* dialog, int popup);
  static std::vector<int> CheckedRows(QWidget* dialog, int list);
  static bool IsChecked(QWidget* dialog, int box);
  static bool IsEnabled(QWidget* dialog, int item) { return Item(dialog, item)->isEnabled(); }
  static bool IsShown(QWidget* dialog, int item) { return Item(dialog, item)->isVisible(); }
  static std::string TextOf(QWidget* dialog, int item);  // of a label or button

  // Presses OK, expects the file, the message and the end of the dialog, and gives the file's bytes.
  std::string Finish(const QPointer<QWidget>& dialog, uint32_t format, Input input = Input::mouse);

  // A file in a folder of this test's own.
  std::string PathOf(const std::string& name) const { return m_folder.Path(name); }
  std::string WriteClass(const std::string& xml) const { return m_folder.Write("class.xml", xml); }
  static std::string Bytes(const std::filesystem::path& path);
  static bool IsGone(const QPointer<QWidget>& dialog) { return dialog.isNull() || !dialog->isVisible(); }

  FileChooser chooser;
  AlertAnswerer alerts;

 private:
  TempFolder m_folder;
};

inline const std::string kSampleClass = SAMPLES "/secondary-school.xml";

inline std::string SavedText(const std::string& path) {
  return std::string("Assignment results have been saved in ").append(path).append(".");
}

#endif  // GRADIX_TESTS_FILTERFIXTURE_H

// Resource files into dialogs: opens every dialog of the file, with all its items, works with them, and
// closes.
#include <sys/mman.h>
#include <unistd.h>

#include <QApplication>
#include <cstdlib>
#include <string>

#include "Platform/Core/Files.h"
#include "Platform/Core/ResourceFork.h"
#include "Platform/Core/Resources.h"
#include "Toolkit/Buttons.h"
#include "Toolkit/CBCombo.h"
#include "Toolkit/DLGEvents.h"
#include "Toolkit/DLGItems.h"
#include "Toolkit/DLGManager.h"
#include "Toolkit/LBList.h"
#include "Toolkit/StartUp.h"

namespace {

// One process-wide application without a display, and the toolkit's item types.
void _StartOnce() {
  static const bool started = [] {
    setenv("QT_QPA_PLATFORM", "offscreen", 1);
    static int argc = 1;
    static char name[] = "fuzz_dialog";
    static char* argv[] = {name, nullptr};
    static const auto* application = new QApplication(argc, argv);  // outlives everything
    static_cast<void>(application);
    return _InitLumoLibrary(nullptr) == 1;
  }();
  if (!started) std::abort();
}

// Makes the bytes the current resource file; gives its number, or -1.
ResFileRefNum _OpenBytes(const uint8_t* data, size_t size) {
  const int descriptor = memfd_create("dialog", 0);
  if (descriptor < 0 || write(descriptor, data, size) != static_cast<ssize_t>(size)) std::abort();
  const std::string path = "/proc/self/fd/" + std::to_string(descriptor);
  FSRef file;
  ResFileRefNum refNum = -1;
  if (FSPathMakeRef(path.c_str(), &file, nullptr) != noErr ||
      FSOpenResourceFile(&file, 0, nullptr, fsRdPerm, &refNum) != noErr) {
    refNum = -1;
  }
  close(descriptor);
  return refNum;
}

void _UseItem(DLGRecord* dialog, int32_t item) {
  const int32_t stops[] = {40, 80};
  GetText(dialog, item);
  SetText(dialog, item, "Text", true);
  TruncDLGItem(dialog, item, "A text that is shortened", kTruncMiddle, true);
  LBSetTabs(dialog, item, 2, stops);
  for (const char* text : {"b\t1", "a\t2", "c"}) {
    LBSetCheck(dialog, item, LBInsertItem(dialog, item, text, kRowSorted), true);
    CBInsertItem(dialog, item, text, kRowTop);
  }
  LBGetCheck(dialog, item, 60000);
  LBSetCheck(dialog, item, 60000, true);
  CBSetSelect(dialog, item, 1);
  EnableDLGItem(dialog, item, !IsItemEnabled(dialog, item));
}

void _OpenDialog(int16_t id, int32_t kind) {
  DLGRecord* dialog = GetDialogResource(nullptr, kind, nullptr, id, 0, nullptr, nullptr, nullptr);
  if (dialog == nullptr) return;
  for (int32_t item = 1; item <= dialog->itemCount; ++item) _UseItem(dialog, item);
  ShowDLG(dialog);
  for (const uint16_t key :
       {kTabChar, kReturnChar, KeyCharacter(32), kDownArrowChar, kUpArrowChar, kEscapeChar})
    DLGHandleKey(dialog->window, key, 0);
  MouseEvent press;
  press.where = {40, 40};
  DLGHandleMouseDown(dialog->window, press);
  DisposeDLG(dialog);
  DisposeDLG(dialog);  // a pane's window goes with the second
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  constexpr size_t kMaxDialogs = 4;
  _StartOnce();
  const ResFileRefNum refNum = _OpenBytes(data, size);
  if (refNum < 0) return 0;
  const auto entries = ReadResourceFork({reinterpret_cast<const char*>(data), size});
  size_t opened = 0;
  for (const ResourceEntry& entry : *entries) {
    if (entry.type != FourCharCode("DLOG") || opened++ == kMaxDialogs) continue;
    _OpenDialog(entry.id, kDLGModal);
    _OpenDialog(entry.id, kDLGPane);
  }
  CloseResFile(refNum);
  RunEventPass(0);
  return 0;
}

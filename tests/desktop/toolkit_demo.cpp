// Shows the demo dialog in a window of the desktop and tells on standard output what became of it.
//
//   toolkit_demo RESOURCE_FILE [--screenshot PNG]
//
// Every notified item is a line "hit N". The command "state" on standard input is answered by one line of
// JSON, "close" closes the dialog. With --screenshot the window is stored once it is drawn, and the program
// ends.
#include <unistd.h>

#include <QApplication>
#include <QPixmap>
#include <QScreen>
#include <QSocketNotifier>
#include <QStyleFactory>
#include <QTimer>
#include <QWidget>
#include <cstdio>
#include <iostream>
#include <nlohmann/json.hpp>
#include <string>

#include "Platform/Core/CFString.h"
#include "Platform/Core/Files.h"
#include "Platform/Core/Resources.h"
#include "Platform/Ui/Lists.h"
#include "Toolkit/Buttons.h"
#include "Toolkit/CBCombo.h"
#include "Toolkit/DLGFocus.h"
#include "Toolkit/DLGItems.h"
#include "Toolkit/DLGManager.h"
#include "Toolkit/LBList.h"
#include "Toolkit/StartUp.h"

namespace {

constexpr int32_t kDialog = 500;
enum Item : int32_t {
  kOK = 1,
  kCancel,
  kEdit = 4,
  kCombo = 6,
  kChecks = 8,
  kSelectAll,
  kClearAll,
  kSingle = 12,
  kMultiple = 14,
  kCheckBox,
  kAll,
  kSelected
};
constexpr int32_t kAssignments = 40;
constexpr int32_t kCheckLists[] = {kChecks, kSingle, kMultiple};

void _CheckAll(DLGRecord* dialog, bool on) {
  for (int32_t row = 0; row < LBGetCount(dialog, kChecks); ++row) LBSetCheck(dialog, kChecks, row, on);
}

intptr_t _ItemHit(DLGRecord* dialog, int32_t item) {
  std::cout << "hit " << item << std::endl;
  if (item == kSelectAll || item == kClearAll) _CheckAll(dialog, item == kSelectAll);
  if (item == kAll || item == kSelected) {
    CKSetCheck(dialog, kAll, item == kAll, 0, true);
    CKSetCheck(dialog, kSelected, item == kSelected, 0, true);
  }
  if ((item == kOK || item == kCancel) && MyCloseDialog(dialog)) QApplication::quit();
  return 0;
}

void _Fill(DLGRecord* dialog) {
  const int32_t stop = 140;
  LBSetTabs(dialog, kChecks, 1, &stop);
  for (int32_t i = 1; i <= kAssignments; ++i) {
    const std::string row = "Quiz " + std::to_string(i) + "\t2026-" + (i % 12 < 9 ? "0" : "") +
                            std::to_string(i % 12 + 1) + "-15";
    LBInsertItem(dialog, kChecks, row.c_str(), kRowLast);
  }
  LBSetCheck(dialog, kChecks, 1, true);
  for (const char* text : {"History", "algebra", "Biology", "Chemistry", "Art"}) {
    LBInsertItem(dialog, kSingle, text, kRowSorted);
  }
  for (const char* text : {"Name", "Points", "Responses", "Comments"})
    LBInsertItem(dialog, kMultiple, text, kRowLast);
  for (const char* text : {"First name", "Last name", "Student ID", "Student alias"}) {
    CBInsertItem(dialog, kCombo, text, kRowLast);
  }
  CBSetSelect(dialog, kCombo, 2);
  LBSelectItem(dialog, kChecks, 0, true);
  CKSetCheck(dialog, kCheckBox, 1, 0, false);
  CKSetCheck(dialog, kAll, 1, 0, false);
  SetText(dialog, kEdit, "Period 3", true);
}

nlohmann::json _ListState(DLGRecord* dialog, int32_t item) {
  const ListRef list = GetControlList(DLGGetChildControl(dialog, item));
  nlohmann::json checked = nlohmann::json::array();
  nlohmann::json selected = nlohmann::json::array();
  for (int32_t row = 0; row < LBGetCount(dialog, item); ++row) {
    if (LBGetCheck(dialog, item, row) != 0) checked.push_back(row);
    if (LIsSelected(list, row)) selected.push_back(row);
  }
  return {{"top", LGetTopRow(list)}, {"checked", checked}, {"selected", selected}};
}

nlohmann::json _RectState(const Rect& r) {
  return {r.left, r.top, RectWidth(r), RectHeight(r)};
}

void _TellState() {
  DLGRecord* dialog = DLGFromHwnd(FrontWindow());
  nlohmann::json state{{"open", DLGIsOpen(kDialog)}};
  if (dialog != nullptr) {
    state["window"] = _RectState(GetWindowScreenBounds(dialog->window));
    state["focus"] = dialog->focusItem;
    state["text"] = MacRomanToUTF8(GetText(dialog, kEdit));
    state["combo"] = CBGetSelect(dialog, kCombo);
    state["checkBox"] = CKGetCheck(dialog, kCheckBox);
    for (const int32_t item : kCheckLists) state["lists"][std::to_string(item)] = _ListState(dialog, item);
    for (int32_t item = 1; item <= dialog->itemCount; ++item) {
      Rect bounds;
      if (GetDialogItemBounds(dialog->dialog, static_cast<int16_t>(item), &bounds)) {
        state["items"][std::to_string(item)] = _RectState(bounds);
      }
    }
  }
  std::cout << state.dump() << std::endl;
}

void _ReadCommand() {
  std::string line;
  if (!std::getline(std::cin, line)) {
    QApplication::quit();
  } else if (line == "state") {
    _TellState();
  } else if (line == "close") {
    QApplication::quit();
  }
}

void _StoreScreenshot(const QString& file) {
  QWidget* window = QApplication::activeWindow();
  if (window == nullptr && !QApplication::topLevelWidgets().isEmpty()) {
    for (QWidget* widget : QApplication::topLevelWidgets()) window = widget->isVisible() ? widget : window;
  }
  if (window != nullptr) window->screen()->grabWindow(window->winId()).save(file);
  QApplication::quit();
}

bool _OpenResources(const char* path) {
  FSRef file;
  ResFileRefNum refNum = 0;
  return FSPathMakeRef(path, &file, nullptr) == noErr &&
         FSOpenResourceFile(&file, 0, nullptr, fsRdPerm, &refNum) == noErr;
}

}  // namespace

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  const QStringList arguments = QApplication::arguments();
  if (arguments.size() < 2 || !_OpenResources(arguments[1].toLocal8Bit().constData()) ||
      _InitLumoLibrary(nullptr) != 1) {
    std::cerr << "toolkit_demo: cannot open the resources" << std::endl;
    return 2;
  }
  DLGRecord* dialog = GetDialogResource(nullptr, kDLGModal, nullptr, kDialog, 0, _ItemHit, nullptr, nullptr);
  if (dialog == nullptr) {
    std::cerr << "toolkit_demo: cannot open the dialog" << std::endl;
    return 1;
  }
  dialog->flags |= kDLGInvalidateAtOnce;
  _Fill(dialog);
  SetFocusDLG(dialog, kChecks);
  CenterDLG(dialog);
  ShowDLG(dialog);

  QSocketNotifier commands(STDIN_FILENO, QSocketNotifier::Read);
  QObject::connect(&commands, &QSocketNotifier::activated, _ReadCommand);
  const qsizetype option = arguments.indexOf("--screenshot");
  if (option > 0 && option + 1 < arguments.size()) {
    commands.setEnabled(false);
    QTimer::singleShot(700, [file = arguments[option + 1]] { _StoreScreenshot(file); });
  }
  std::cout << "ready" << std::endl;
  const int status = QApplication::exec();
  CloseAllDialogs();
  return status;
}

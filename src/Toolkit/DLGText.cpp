// The texts of a dialog's items.
#include <algorithm>
#include <cstring>
#include <string>

#include "Platform/Ui/Drawing.h"
#include "Toolkit/DLGItems.h"
#include "Toolkit/DLGManager.h"

namespace {

constexpr int32_t kMaxText = 1000;
constexpr size_t kMaxTruncText = 250;
constexpr char kEllipsis = '\xC9';

// The item's text into a buffer of kMaxText + 1 bytes.
void _FetchText(DLGRecord* dialog, int32_t item, char* buffer) {
  buffer[0] = '\0';
  SendDLGItemMessage(dialog, item, kDLGGetText, reinterpret_cast<intptr_t>(buffer), kMaxText);
}

}  // namespace

const char* GetText(DLGRecord* dialog, int32_t item) {
  static char text[kMaxText + 1];
  std::memset(text, 0, sizeof text);
  _FetchText(dialog, item, text);
  return text;
}

void SetText(DLGRecord* dialog, int32_t item, const char* text, bool redraw) {
  if (DLGFindItem(dialog, item) == nullptr) return;
  if (text == nullptr) text = "";
  const DLGWatch watch(dialog);
  char current[kMaxText + 1] = "";
  _FetchText(dialog, item, current);
  if (!watch.IsLive()) return;
  if (std::strcmp(current, text) != 0) {
    SendDLGItemMessage(dialog, item, kDLGSetText, reinterpret_cast<intptr_t>(text), redraw ? 1 : 0);
  }
  if (watch.IsLive() && item == dialog->focusItem) {
    std::memset(dialog->focusText, 0, sizeof dialog->focusText);
    std::strncpy(dialog->focusText, text, DLGRecord::kFocusTextSize);
  }
}

int32_t DLGMeasureItem(DLGRecord* dialog, int32_t item, const char* text) {
  if (DLGFindItem(dialog, item) == nullptr) return 0;
  char own[kMaxText + 1];
  if (text == nullptr) {
    const DLGWatch watch(dialog);
    _FetchText(dialog, item, own);
    if (!watch.IsLive()) return 0;
    text = own;
  }
  const ControlRef control = DLGGetChildControl(dialog, item);
  const ControlFontStyle style = GetControlFontStyle(control);
  const Point size = style.size < 1 ? GetThemeTextDimensions(text, static_cast<int16_t>(-style.size),
                                                             IsControlActive(control))
                                    : MeasurePortText(dialog->window, text, style.font, style.size);
  return static_cast<int32_t>(DLGPackPoint(size));
}

void TruncDLGItem(DLGRecord* dialog, int32_t item, const char* text, int32_t where, bool redraw) {
  Rect bounds;
  if (DLGFindItem(dialog, item) == nullptr ||
      !GetDialogItemBounds(dialog->dialog, static_cast<int16_t>(item), &bounds)) {
    return;
  }
  const std::string whole(text == nullptr ? "" : text, text == nullptr ? 0 : strnlen(text, kMaxTruncText));
  size_t head = where == kTruncMiddle ? whole.size() / 2 : where == kTruncEnd ? whole.size() : 0;
  size_t tail = where == kTruncEnd ? 0 : whole.size() - head;
  std::string shown = whole;
  while (DLGUnpackPoint(DLGMeasureItem(dialog, item, shown.c_str())).h >= RectWidth(bounds) &&
         (head > 0 || tail > 0)) {
    head -= head > 0;
    tail -= tail > 0;
    shown.assign(whole, 0, head).push_back(kEllipsis);
    shown.append(whole, whole.size() - tail);
  }
  SetText(dialog, item, shown.c_str(), redraw);
}

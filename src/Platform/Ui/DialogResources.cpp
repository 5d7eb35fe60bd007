#include "Platform/Ui/DialogResources.h"

#include <algorithm>
#include <span>

#include "Platform/Core/BigEndian.h"
#include "Platform/Core/Memory.h"
#include "Platform/Core/Resources.h"

namespace ui {

namespace {

enum ItemType : uint8_t {
  kButtonItem = 4,
  kCheckBoxItem = 5,
  kRadioButtonItem = 6,
  kResourceControlItem = 7,
  kStaticTextItem = 8,
  kEditTextItem = 16,
  kUserItem = 0,
};

constexpr uint8_t kItemTypeMask = 0x7F;  // the high bit: presses are of no interest

struct ControlTemplate {
  int16_t procID = 0;
  int16_t value = 0;
  int16_t maximum = 0;
  bool visible = true;
  uint32_t refCon = 0;
  std::string title;
};

// Empty when there is no such resource; a record is never empty.
std::span<const char> _Resource(ResType type, int16_t id) {
  const Handle handle = GetResource(type, id);
  if (handle == nullptr || *handle == nullptr) return {};
  return {*handle, GetHandleSize(handle)};
}

Rect _ReadRect(BigEndianReader& reader) {
  Rect rect;
  reader.ReadI16(&rect.top);
  reader.ReadI16(&rect.left);
  reader.ReadI16(&rect.bottom);
  reader.ReadI16(&rect.right);
  return rect;
}

constexpr int16_t kCentredOnMainScreen = 0x280A;

// The automatic position, which may be left out.
int16_t _ReadPosition(BigEndianReader& reader) {
  int16_t position = 0;
  reader.AlignToWord();
  return reader.ReadI16(&position) ? position : int16_t{0};
}

void _ClampEdges(int16_t* first, int16_t* last) {
  constexpr int16_t kFarthest = 4000;
  *first = std::clamp<int16_t>(*first, -kFarthest, kFarthest);
  *last = std::clamp<int16_t>(*last, *first, static_cast<int16_t>(*first + kFarthest));
}

// Of a window or an item: no larger than a screen, however damaged the resource is.
Rect _ReadBounds(BigEndianReader& reader) {
  Rect rect = _ReadRect(reader);
  _ClampEdges(&rect.top, &rect.bottom);
  _ClampEdges(&rect.left, &rect.right);
  return rect;
}

}  // namespace

std::optional<DialogTemplate> ReadDialogTemplate(int16_t id) {
  BigEndianReader reader(_Resource(FourCharCode("DLOG"), id));
  DialogTemplate dialog;
  uint8_t goAway = 0;
  uint32_t refCon = 0;
  dialog.bounds = _ReadBounds(reader);
  reader.ReadI16(&dialog.procID);
  reader.Skip(2);  // visible at once, filler
  reader.Read8(&goAway);
  reader.Skip(1);
  reader.Read32(&refCon);
  reader.ReadI16(&dialog.itemList);
  dialog.title = reader.TakePascalString();
  if (reader.failed()) return std::nullopt;
  dialog.goAway = goAway != 0;
  dialog.refCon = static_cast<int32_t>(refCon);
  dialog.isCentred = _ReadPosition(reader) == kCentredOnMainScreen;
  return dialog;
}

std::optional<AlertTemplate> ReadAlertTemplate(int16_t id) {
  BigEndianReader reader(_Resource(FourCharCode("ALRT"), id));
  AlertTemplate alert;
  alert.bounds = _ReadRect(reader);
  reader.ReadI16(&alert.itemList);
  reader.Skip(2);  // stages
  if (reader.failed()) return std::nullopt;
  return alert;
}

namespace {

std::optional<ControlTemplate> _ReadControlTemplate(int16_t id) {
  BigEndianReader reader(_Resource(FourCharCode("CNTL"), id));
  ControlTemplate control;
  uint8_t visible = 0;
  _ReadRect(reader);  // the item's counts
  reader.ReadI16(&control.value);
  reader.Read8(&visible);
  reader.Skip(1);
  reader.ReadI16(&control.maximum);
  reader.Skip(2);  // minimum
  reader.ReadI16(&control.procID);
  reader.Read32(&control.refCon);
  control.title = reader.TakePascalString();
  if (reader.failed()) return std::nullopt;
  control.visible = visible != 0;
  return control;
}

// Every other id is a pane, which the program draws and works.
ControlKind _KindOfProcID(int16_t procID) {
  constexpr int16_t kFirstPopup = 400;
  constexpr int16_t kLastPopup = 409;
  switch (procID) {
    case 0: return kControlKindPushButton;
    case 1: return kControlKindCheckBox;
    case 2: return kControlKindRadioButton;
    case 144: return kControlKindSeparator;
    case 160: return kControlKindGroupBox;
    case 272: return kControlKindEditText;
    case 288: return kControlKindStaticText;
    case 352: return kControlKindListBox;
    default: break;
  }
  return procID >= kFirstPopup && procID <= kLastPopup ? kControlKindPopupButton : kControlKindUserPane;
}

bool _ReadListDescription(int16_t id, ItemTemplate* item) {
  BigEndianReader reader(_Resource(FourCharCode("ldes"), id));
  constexpr size_t kVersionAndSizes = 10;
  uint8_t hasVertical = 0;
  reader.Skip(kVersionAndSizes);
  reader.Read8(&hasVertical);
  reader.Skip(3);  // filler, horizontal scroll bar, filler
  reader.ReadI16(&item->listDefinition);
  reader.Skip(2);  // grow box, filler
  item->hasScrollBar = hasVertical != 0;
  return !reader.failed();
}

bool _ReadResourceControl(std::span<const char> data, ItemTemplate* item) {
  BigEndianReader reader(data);
  int16_t id = 0;
  if (!reader.ReadI16(&id)) return false;
  const std::optional<ControlTemplate> control = _ReadControlTemplate(id);
  if (!control) return false;
  item->kind = _KindOfProcID(control->procID);
  item->text = control->title;
  item->maximum = control->maximum;
  item->visible = control->visible;
  item->refCon = static_cast<int32_t>(control->refCon);
  if (item->kind == kControlKindListBox) return _ReadListDescription(control->value, item);
  item->value = control->value;
  return true;
}

bool _ReadItem(BigEndianReader& reader, ItemTemplate* item) {
  uint8_t type = 0;
  reader.Skip(4);  // placeholder
  item->bounds = _ReadBounds(reader);
  reader.Read8(&type);
  const std::string_view data = reader.TakePascalString();
  reader.AlignToWord();
  if (reader.failed()) return false;
  type &= kItemTypeMask;
  if (type == kResourceControlItem) return _ReadResourceControl({data.data(), data.size()}, item);
  item->text = data;
  switch (type) {
    case kButtonItem: item->kind = kControlKindPushButton; break;
    case kCheckBoxItem: item->kind = kControlKindCheckBox; break;
    case kRadioButtonItem: item->kind = kControlKindRadioButton; break;
    case kStaticTextItem: item->kind = kControlKindStaticText; break;
    case kEditTextItem: item->kind = kControlKindEditText; break;
    case kUserItem: item->kind = kControlKindUserPane; break;
    default: item->kind = kControlKindNone; break;
  }
  return true;
}

}  // namespace

std::optional<std::vector<ItemTemplate>> ReadItemList(int16_t id) {
  // A copy: reading an item gets other resources.
  const std::span<const char> resource = _Resource(FourCharCode("DITL"), id);
  const std::vector<char> bytes(resource.begin(), resource.end());
  BigEndianReader reader(bytes);
  int16_t last = 0;
  if (!reader.ReadI16(&last)) return std::nullopt;
  if (last < -1 || last >= static_cast<int>(kMostDialogItems)) return std::nullopt;
  std::vector<ItemTemplate> items(static_cast<size_t>(last + 1));
  for (ItemTemplate& item : items) {
    if (!_ReadItem(reader, &item)) return std::nullopt;
  }
  return items;
}

}  // namespace ui

#include "rescomp/DialogCompiler.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <sstream>
#include <string>
#include <vector>

#include "rescomp/ByteWriter.h"
#include "rescomp/DialogItem.h"
#include "rescomp/ItemList.h"
#include "rescomp/StringsCompiler.h"

namespace {

constexpr int16_t kListProc = 352;
constexpr int16_t kComboProc = 401;
constexpr int16_t kComboMinimum = -12345;
constexpr int16_t kCentredOnMainScreen = 0x280A;

struct Dialog {
  Node source;
  Node idSource;
  int16_t id;
  Rectangle bounds;
  std::vector<DialogItem> items;
};

std::string _NameOf(size_t index) {
  std::ostringstream name;
  name << "items[" << index << ']';
  return name.str();
}

bool _Intersect(const Rectangle& a, const Rectangle& b) {
  return a.left < b.right && b.left < a.right && a.top < b.bottom && b.top < a.bottom;
}

bool _MayOverlap(const DialogItem& item) {
  return item.type->overlaps || (item.flags & kVisibleFlag) == 0;
}

void _CheckPlaces(const Dialog& dialog) {
  const int width = dialog.bounds.right - dialog.bounds.left;
  const int height = dialog.bounds.bottom - dialog.bounds.top;
  for (size_t i = 0; i < dialog.items.size(); ++i) {
    const DialogItem& item = dialog.items[i];
    const Rectangle& rect = item.rect;
    if (rect.left < 0 || rect.top < 0 || rect.right > width || rect.bottom > height) {
      item.source.At("rect").Fail("lies outside the window, which is " + std::to_string(width) + " by " +
                                  std::to_string(height));
    }
    for (size_t j = 0; j < i; ++j) {
      const DialogItem& other = dialog.items[j];
      if (_MayOverlap(item) || _MayOverlap(other) || !_Intersect(rect, other.rect)) continue;
      item.source.Fail(_NameOf(i) + " overlaps " + _NameOf(j));
    }
  }
}

void _CheckLabels(const std::vector<DialogItem>& items) {
  for (size_t i = 0; i < items.size(); ++i) {
    const size_t labeled = items[i].labels;
    if (labeled == 0) continue;
    const Node source = items[i].source.At("labels");
    if (labeled > items.size()) source.Fail("there is no item " + std::to_string(labeled));
    if (labeled == i + 1) source.Fail("an item cannot label itself");
    for (size_t j = 0; j < i; ++j) {
      if (items[j].labels == labeled) source.Fail(_NameOf(j) + " labels this item already");
    }
  }
}

void _CheckSingle(const std::vector<DialogItem>& items, bool DialogItem::*role, const char* key) {
  const DialogItem* first = nullptr;
  for (const DialogItem& item : items) {
    if (!(item.*role)) continue;
    if (first != nullptr) item.source.At(key).Fail("the dialog has another such button");
    first = &item;
  }
}

void _CheckShortcuts(const std::vector<DialogItem>& items) {
  for (size_t i = 0; i < items.size(); ++i) {
    for (size_t j = 0; items[i].shortcut != 0 && j < i; ++j) {
      if (items[j].shortcut == items[i].shortcut) {
        items[i].source.At("shortcut").Fail(_NameOf(j) + " has this one already");
      }
    }
  }
}

Dialog _ReadDialog(const Node& source) {
  source.AllowKeys({{"id", "title", "bounds", "closeBox", "window", "centred", "items"}});
  const Node idSource = source.At("id");
  Dialog dialog = {source, idSource, idSource.ResourceId(), source.At("bounds").Rect(), {}};
  const std::vector<Node> items = source.At("items").Elements();
  for (const Node& item : items) {
    dialog.items.push_back(ReadDialogItem(item, static_cast<int32_t>(dialog.items.size()) + 1));
  }
  _CheckPlaces(dialog);
  _CheckLabels(dialog.items);
  _CheckShortcuts(dialog.items);
  _CheckSingle(dialog.items, &DialogItem::isDefault, "default");
  _CheckSingle(dialog.items, &DialogItem::isCancel, "cancel");
  return dialog;
}

ByteWriter _WindowBytes(const Dialog& dialog) {
  static constexpr int16_t kProcs[] = {5, 4, 1985};
  const Node& source = dialog.source;
  ByteWriter bytes;
  bytes.Rect(dialog.bounds)
      .I16(kProcs[source.At("window").Choice({"movable-modal", "modeless", "floating"})]);
  bytes.U8(0).U8(0);  // not visible until it is set up
  bytes.U8(source.FlagOr("closeBox", false) ? 1 : 0).U8(0).U32(0).I16(dialog.id);
  bytes.Pascal(source.At("title").Roman()).PadToEven();
  bytes.I16(source.FlagOr("centred", false) ? kCentredOnMainScreen : int16_t{0});
  return bytes;
}

int16_t _ControlId(const Dialog& dialog, size_t index) {
  const size_t id = static_cast<size_t>(dialog.id) + index;
  if (id > INT16_MAX) {
    dialog.items[index].source.Fail("its control would have the id " + std::to_string(id) + ", beyond 32767");
  }
  return static_cast<int16_t>(id);
}

ByteWriter _ControlBytes(const DialogItem& item, int16_t id) {
  const bool combo = item.type->procId == kComboProc;
  ByteWriter bytes;
  bytes.Rect(item.rect).I16(item.type->procId == kListProc ? id : int16_t{0});
  bytes.U8((item.flags & kVisibleFlag) != 0 ? 1 : 0).U8(0);
  bytes.I16(0).I16(combo ? kComboMinimum : int16_t{0}).I16(item.type->procId).U32(0).Pascal(item.title);
  return bytes;
}

// One column without rows, scrolled vertically.
ByteWriter _ListDescription(const DialogItem& item) {
  const int16_t definition = item.mode == kChecksMode ? 1571 : 1570;
  ByteWriter bytes;
  bytes.I16(0).I16(0).I16(1).I16(0).I16(0);  // version, rows, columns, height and width of a cell
  bytes.U8(1).U8(0).U8(0).U8(0).I16(definition).U8(0).U8(0);
  return bytes;
}

void _AddControl(const Dialog& dialog, size_t index, int16_t id, ForkWriter* file) {
  const DialogItem& item = dialog.items[index];
  file->AddOfDialog(dialog.id, "CNTL", id, _ControlBytes(item, id), item.source);
  if (item.type->procId != kListProc) return;
  file->AddOfDialog(dialog.id, "ldes", id, _ListDescription(item), item.source);
}

void _AddItems(const Dialog& dialog, ForkWriter* file) {
  ItemList list;
  for (size_t i = 0; i < dialog.items.size(); ++i) {
    const DialogItem& item = dialog.items[i];
    const bool enabled = (item.flags & kEnabledFlag) != 0;
    const auto kind = static_cast<uint8_t>(item.type->kind | (enabled ? 0 : kDisabledItem));
    if (item.type->kind == kUserItem) {
      list.AddUserItem(item.rect, kind);
    } else if (item.type->kind == kControlItem) {
      const int16_t controlId = _ControlId(dialog, i);
      list.AddControl(item.rect, kind, controlId);
      _AddControl(dialog, i, controlId, file);
    } else {
      list.AddTitled(item.rect, kind, item.title);
    }
  }
  file->Add("DITL", dialog.id, list.Bytes(), dialog.idSource);
}

ByteWriter _ItemExtension(const std::vector<DialogItem>& items) {
  ByteWriter bytes;
  bytes.U16(0).U16(static_cast<uint16_t>(items.size()));
  for (const DialogItem& item : items) bytes.I32(item.typeId).U32(item.flags).Raw(TypeDataOf(item).Bytes());
  return bytes;
}

void _AddHelpTags(const Dialog& dialog, ForkWriter* file) {
  std::vector<std::string> tags;
  bool any = false;
  for (const DialogItem& item : dialog.items) {
    tags.push_back(item.tag.value_or(""));
    any = any || item.tag.has_value();
  }
  if (any) file->Add("STR#", dialog.id, StringListBytes(tags), dialog.idSource);
}

}  // namespace

void CompileDialog(const Node& source, ForkWriter* file) {
  const Dialog dialog = _ReadDialog(source);
  file->Add("DLOG", dialog.id, _WindowBytes(dialog), dialog.idSource);
  _AddItems(dialog, file);
  file->Add("luDI", dialog.id, _ItemExtension(dialog.items), dialog.idSource);
  _AddHelpTags(dialog, file);
}

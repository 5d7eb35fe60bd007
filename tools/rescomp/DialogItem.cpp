#include "rescomp/DialogItem.h"

#include <algorithm>
#include <cstddef>

#include "Common/asciicase.h"
#include "rescomp/ItemList.h"

namespace {

constexpr int32_t kButton = 1;
constexpr int32_t kEdit = 2;
constexpr int32_t kText = 3;
constexpr int32_t kList = 7;

constexpr int32_t kMaximumEditLength = 1000;

const std::vector<ItemType>& _ItemTypes() {
  using enum TitleRule;
  static const std::vector<ItemType> types = {
      {"button", kButton, kButtonItem, 0, kRequired, false, {"default", "cancel", "shortcut"}},
      {"edit", kEdit, kEditTextItem, 0, kOptional, false, {"maxLength"}},
      {"text", kText, kStaticTextItem, 0, kOptional, false, {"labels"}},
      {"checkbox", 4, kCheckBoxItem, 0, kRequired, false, {}},
      {"radio", 5, kRadioItem, 0, kRequired, false, {}},
      {"list", kList, kControlItem, 352, kNone, false, {"mode", "checkCapacity"}},
      {"combo", 8, kControlItem, 401, kNone, false, {}},
      {"separator", 18, kControlItem, 144, kNone, true, {}},
      {"group", 19, kControlItem, 160, kOptional, true, {}},
      {"picture", 20, kUserItem, 0, kNone, true, {}},
      {"custom", 22, kUserItem, 0, kNone, false, {}},
  };
  return types;
}

const ItemType& _NumericType() {
  static const ItemType type = {"", 0, kUserItem, 0, TitleRule::kNone, false, {"control"}};
  return type;
}

const ItemType& _ReadNumericType(const Node& source, const Node& typeSource) {
  const int32_t id = typeSource.Integer(1, INT32_MAX);
  for (const ItemType& type : _ItemTypes()) {
    if (type.id == id) typeSource.Fail(std::string("is written as \"").append(type.name) + "\"");
  }
  source.At("control").Choice({"user"});
  return _NumericType();
}

const ItemType& _ReadType(const Node& source) {
  const Node typeSource = source.At("type");
  if (typeSource.IsInteger()) return _ReadNumericType(source, typeSource);
  std::vector<std::string_view> names;
  for (const ItemType& type : _ItemTypes()) names.push_back(type.name);
  return _ItemTypes()[typeSource.Choice(names)];
}

std::string _ReadTitle(const Node& source, TitleRule rule) {
  if (rule == TitleRule::kRequired) return source.At("title").Roman();
  return source.RomanOr("title", "");
}

uint32_t _ReadFlags(const Node& source) {
  uint32_t given = 0;
  const std::optional<Node> list = source.Find("flags");
  for (const Node& flag : list ? list->Elements() : std::vector<Node>()) {
    static constexpr uint32_t kFlags[] = {kNotifyFlag, kTabStopFlag, kVisibleFlag, kEnabledFlag};
    const uint32_t bit = kFlags[flag.Choice({"notify", "tab", "hidden", "disabled"})];
    if ((given & bit) != 0) flag.Fail("appears twice");
    given |= bit;
  }
  return given ^ (kVisibleFlag | kEnabledFlag);  // these two are on unless told otherwise
}

// The one that the title has, for which it will be underlined there.
uint8_t _ReadShortcut(const Node& source, const std::string& title) {
  const std::optional<Node> key = source.Find("shortcut");
  if (!key) return 0;
  const std::string text = key->Roman();
  const char letter = text.size() == 1 ? AsciiLower(text.front()) : '\0';
  if ((letter < 'a' || letter > 'z') && (letter < '0' || letter > '9')) {
    key->Fail("must be a letter from A to Z or a digit");
  }
  const auto isIt = [letter](char c) { return AsciiLower(c) == letter; };
  if (std::none_of(title.begin(), title.end(), isIt)) key->Fail("is not in the title");
  return static_cast<uint8_t>(letter);
}

void _ReadTypeData(const Node& source, DialogItem* item) {
  item->isDefault = source.FlagOr("default", false);
  item->isCancel = source.FlagOr("cancel", false);
  item->shortcut = _ReadShortcut(source, item->title);
  item->maximumLength = static_cast<uint16_t>(source.IntegerOr("maxLength", 0, 0, kMaximumEditLength));
  item->labels = static_cast<uint16_t>(source.IntegerOr("labels", 0, 0, INT16_MAX));
  if (item->typeId != kList) return;
  item->mode = static_cast<uint16_t>(source.At("mode").Choice({"single", "multiple", "checks"}));
  const std::optional<Node> capacity = source.Find("checkCapacity");
  if (capacity && item->mode != kChecksMode) capacity->Fail("is for the mode \"checks\" only");
  if (item->mode == kChecksMode) {
    item->checkCapacity = static_cast<uint16_t>(source.At("checkCapacity").Integer(1, UINT16_MAX));
  }
}

}  // namespace

DialogItem ReadDialogItem(const Node& source, int32_t number) {
  const ItemType& type = _ReadType(source);
  source.AllowKeys({{"number", "type", "rect", "flags", "tag"},
                    type.title == TitleRule::kNone ? std::vector<std::string_view>()
                                                   : std::vector<std::string_view>{"title"},
                    type.keys});
  const Node numberSource = source.At("number");
  if (numberSource.Integer(INT32_MIN, INT32_MAX) != number) {
    numberSource.Fail("must be " + std::to_string(number) + ", the position in the list");
  }
  const bool numeric = type.id == 0;
  DialogItem item = {.source = source,
                     .type = &type,
                     .typeId = numeric ? source.At("type").Integer(1, INT32_MAX) : type.id,
                     .rect = source.At("rect").Rect(),
                     .title = _ReadTitle(source, type.title),
                     .flags = _ReadFlags(source),
                     .tag = std::nullopt};
  if (const std::optional<Node> tag = source.Find("tag")) {
    item.tag = tag->Roman();
    item.flags |= kHelpTagFlag;
  }
  _ReadTypeData(source, &item);
  return item;
}

ByteWriter TypeDataOf(const DialogItem& item) {
  ByteWriter data;
  switch (item.typeId) {
    case kButton: data.U8(item.shortcut).U8((item.isDefault ? 1 : 0) | (item.isCancel ? 2 : 0)); break;
    case kEdit: data.U16(item.maximumLength); break;
    case kText: data.U16(item.labels); break;
    case kList: data.U16(item.mode).U16(item.checkCapacity); break;
    default: break;
  }
  return data;
}

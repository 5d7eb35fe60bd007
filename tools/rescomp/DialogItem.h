// One item of a dialog source.
#ifndef GRADIX_DIALOGITEM_H
#define GRADIX_DIALOGITEM_H

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "rescomp/ByteWriter.h"
#include "rescomp/Source.h"

enum class TitleRule { kNone, kOptional, kRequired };

// A type of items as sources name it.
struct ItemType {
  std::string_view name;
  int32_t id;      // the toolkit's
  uint8_t kind;    // in the item list
  int16_t procId;  // of a control, else 0
  TitleRule title;
  bool overlaps;                       // may lie over or under others
  std::vector<std::string_view> keys;  // of this type only
};

struct DialogItem {
  Node source;
  const ItemType* type;
  int32_t typeId;
  Rectangle rect;
  std::string title;
  uint32_t flags;                  // the toolkit's, as in the item extension
  std::optional<std::string> tag;  // help tag
  bool isDefault = false;
  bool isCancel = false;
  uint8_t shortcut = 0;  // of a button: a letter in lower case or a digit
  uint16_t maximumLength = 0;
  uint16_t labels = 0;  // number of the item that this text labels, or 0
  uint16_t mode = 0;    // of a list
  uint16_t checkCapacity = 0;
};

inline constexpr uint16_t kChecksMode = 2;

inline constexpr uint32_t kNotifyFlag = 0x10;
inline constexpr uint32_t kTabStopFlag = 0x20;
inline constexpr uint32_t kEnabledFlag = 0x40;
inline constexpr uint32_t kVisibleFlag = 0x80;
inline constexpr uint32_t kHelpTagFlag = 0x100;

// Reads the item at a 1-based position. Throws SourceError.
DialogItem ReadDialogItem(const Node& source, int32_t number);

// The part of the item extension that depends on the type.
ByteWriter TypeDataOf(const DialogItem& item);

#endif  // GRADIX_DIALOGITEM_H

// The item list of a dialog or an alert, a 'DITL'.
#ifndef GRADIX_ITEMLIST_H
#define GRADIX_ITEMLIST_H

#include <cstdint>
#include <string>

#include "rescomp/ByteWriter.h"

// Kinds of items; those between the user item and the resource control, and static and edit text, have a
// title.
inline constexpr uint8_t kUserItem = 0;
inline constexpr uint8_t kButtonItem = 4;
inline constexpr uint8_t kCheckBoxItem = 5;
inline constexpr uint8_t kRadioItem = 6;
inline constexpr uint8_t kControlItem = 7;
inline constexpr uint8_t kStaticTextItem = 8;
inline constexpr uint8_t kEditTextItem = 16;
inline constexpr uint8_t kDisabledItem = 128;  // added to the kind

class ItemList {
 public:
  void AddUserItem(const Rectangle& rect, uint8_t kind = kUserItem);
  void AddTitled(const Rectangle& rect, uint8_t kind, const std::string& title);
  void AddControl(const Rectangle& rect, uint8_t kind, int16_t controlId);

  ByteWriter Bytes() const;

 private:
  void Begin(const Rectangle& rect, uint8_t kind);

  uint16_t m_count = 0;
  ByteWriter m_items;
};

#endif  // GRADIX_ITEMLIST_H

#include "rescomp/ItemList.h"

void ItemList::Begin(const Rectangle& rect, uint8_t kind) {
  ++m_count;
  m_items.U32(0).Rect(rect).U8(kind);
}

void ItemList::AddUserItem(const Rectangle& rect, uint8_t kind) {
  Begin(rect, kind);
  m_items.U8(0);
}

void ItemList::AddTitled(const Rectangle& rect, uint8_t kind, const std::string& title) {
  Begin(rect, kind);
  m_items.Pascal(title).PadToEven();
}

void ItemList::AddControl(const Rectangle& rect, uint8_t kind, int16_t controlId) {
  Begin(rect, kind);
  m_items.U8(sizeof controlId).I16(controlId);
}

ByteWriter ItemList::Bytes() const {
  ByteWriter bytes;
  bytes.U16(static_cast<uint16_t>(m_count - 1)).Raw(m_items.Bytes());
  return bytes;
}

#include "rescomp/ByteWriter.h"

ByteWriter& ByteWriter::Number(uint32_t value, int size) {
  for (int shift = 8 * (size - 1); shift >= 0; shift -= 8) {
    m_bytes += static_cast<char>((value >> shift) & 0xFF);
  }
  return *this;
}

ByteWriter& ByteWriter::Raw(std::string_view bytes) {
  m_bytes += bytes;
  return *this;
}

ByteWriter& ByteWriter::Pascal(std::string_view text) {
  return U8(static_cast<uint8_t>(text.size())).Raw(text);
}

ByteWriter& ByteWriter::Rect(const Rectangle& rect) {
  return I16(rect.top).I16(rect.left).I16(rect.bottom).I16(rect.right);
}

ByteWriter& ByteWriter::Zeros(size_t count) {
  m_bytes.append(count, '\0');
  return *this;
}

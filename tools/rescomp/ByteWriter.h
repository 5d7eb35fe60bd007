// Bytes of resources: big-endian numbers, Pascal strings, rectangles.
#ifndef GRADIX_BYTEWRITER_H
#define GRADIX_BYTEWRITER_H

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

// A rectangle in a window or on the screen, in pixels; `right` and `bottom` lie behind it.
struct Rectangle {
  int16_t left = 0;
  int16_t top = 0;
  int16_t right = 0;
  int16_t bottom = 0;
};

class ByteWriter {
 public:
  // The lowest `size` bytes of the value.
  ByteWriter& Number(uint32_t value, int size);
  ByteWriter& U8(uint8_t value) { return Number(value, 1); }
  ByteWriter& U16(uint16_t value) { return Number(value, 2); }
  ByteWriter& I16(int16_t value) { return Number(static_cast<uint32_t>(value), 2); }
  ByteWriter& U32(uint32_t value) { return Number(value, 4); }
  ByteWriter& I32(int32_t value) { return Number(static_cast<uint32_t>(value), 4); }

  ByteWriter& Raw(std::string_view bytes);
  ByteWriter& Pascal(std::string_view text);  // at most 255 bytes
  ByteWriter& Rect(const Rectangle& rect);    // top, left, bottom, right
  ByteWriter& Zeros(size_t count);
  ByteWriter& PadToEven() { return Zeros(m_bytes.size() % 2); }

  const std::string& Bytes() const { return m_bytes; }

 private:
  std::string m_bytes;
};

#endif  // GRADIX_BYTEWRITER_H

// Bounded reading of big-endian records, the byte order of resources.
#ifndef GRADIX_BIGENDIAN_H
#define GRADIX_BIGENDIAN_H

#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

// Reads from front to back and never past the end. The first read that does not fit fails, and with it every
// later one; a failed read stores 0 or gives nothing. A record can thus be read whole and checked once.
class BigEndianReader {
 public:
  explicit BigEndianReader(std::span<const char> bytes) : m_bytes(bytes) {}

  bool Read8(uint8_t* value) { return Read(value, 1); }
  bool Read16(uint16_t* value) { return Read(value, 2); }
  bool Read24(uint32_t* value) { return Read(value, 3); }
  bool Read32(uint32_t* value) { return Read(value, 4); }
  bool ReadI16(int16_t* value) {
    uint16_t bits = 0;
    const bool read = Read16(&bits);
    *value = static_cast<int16_t>(bits);
    return read;
  }

  // The next `count` bytes; empty when there are fewer.
  std::span<const char> Take(size_t count) {
    if (!Fits(count)) return {};
    m_position += count;
    return m_bytes.subspan(m_position - count, count);
  }

  // The text of a Pascal string: a length byte and as many characters.
  std::string_view TakePascalString() {
    uint8_t length = 0;
    Read8(&length);
    const std::span<const char> text = Take(length);
    return {text.data(), text.size()};
  }

  bool Skip(size_t count) {
    Take(count);
    return !m_failed;
  }

  // Goes on at an offset from the first byte.
  bool Seek(size_t position) {
    if (position > m_bytes.size()) m_failed = true;
    if (!m_failed) m_position = position;
    return !m_failed;
  }

  // Skips the filler byte that leads to an even offset, if there is one.
  bool AlignToWord() { return Skip(m_position % 2); }

  bool failed() const { return m_failed; }
  size_t position() const { return m_position; }
  size_t remaining() const { return m_bytes.size() - m_position; }

 private:
  bool Fits(size_t count) {
    if (count > remaining()) m_failed = true;
    return !m_failed;
  }

  template <typename T>
  bool Read(T* value, size_t size) {
    *value = 0;
    uint32_t bits = 0;
    for (const char byte : Take(size)) bits = (bits << 8) | static_cast<uint8_t>(byte);
    *value = static_cast<T>(bits);
    return !m_failed;
  }

  std::span<const char> m_bytes;
  size_t m_position = 0;
  bool m_failed = false;
};

#endif  // GRADIX_BIGENDIAN_H

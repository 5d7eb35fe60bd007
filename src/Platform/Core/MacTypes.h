// Basic types of the platform interface, with the widths that records and resources prescribe.
#ifndef GRADIX_MACTYPES_H
#define GRADIX_MACTYPES_H

#include <cstddef>
#include <cstdint>

using OSErr = int16_t;
using OSStatus = int32_t;
using OSType = uint32_t;  // four characters, the first in the high byte
using ResType = OSType;

// In a dialog's window: units of the window's content, origin in its upper left corner.
struct Point {
  int16_t v = 0;
  int16_t h = 0;
};

struct Rect {
  int16_t top = 0;
  int16_t left = 0;
  int16_t bottom = 0;
  int16_t right = 0;
};

struct RGBColor {
  uint16_t red = 0;
  uint16_t green = 0;
  uint16_t blue = 0;
};

inline bool operator==(const Rect& a, const Rect& b) {
  return a.top == b.top && a.left == b.left && a.bottom == b.bottom && a.right == b.right;
}

inline int16_t RectWidth(const Rect& r) {
  return static_cast<int16_t>(r.right - r.left);
}
inline int16_t RectHeight(const Rect& r) {
  return static_cast<int16_t>(r.bottom - r.top);
}

// Left and top edges belong to the rectangle, right and bottom do not.
inline bool PtInRect(Point p, const Rect& r) {
  return p.v >= r.top && p.v < r.bottom && p.h >= r.left && p.h < r.right;
}

// The result codes that this platform layer gives.
enum : OSErr {
  noErr = 0,
  dskFulErr = -34,
  nsvErr = -35,  // no such volume
  ioErr = -36,
  bdNamErr = -37,
  eofErr = -39,
  fnfErr = -43,  // file not found
  dupFNErr = -48,
  paramErr = -50,
  memFullErr = -108,
  nilHandleErr = -109,
  dirNFErr = -120,
  resNotFound = -192,
  resFNotFound = -193,
  mapReadErr = -199,  // not a resource file, or a damaged one
};

// 'DLOG' as a number.
constexpr OSType FourCharCode(const char (&text)[5]) {
  OSType code = 0;
  for (int i = 0; i < 4; ++i) code = (code << 8) | static_cast<uint8_t>(text[i]);
  return code;
}

#endif  // GRADIX_MACTYPES_H

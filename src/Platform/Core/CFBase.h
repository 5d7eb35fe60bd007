// Core Foundation objects: counted references. What a call with "Create" or "Copy" in its name gives is the
// caller's to release; what a "Get" gives is not.
#ifndef GRADIX_CFBASE_H
#define GRADIX_CFBASE_H

#include <cstdint>

// The common part of every object.
struct CFObject {
  CFObject() = default;
  CFObject(const CFObject&) = delete;
  CFObject& operator=(const CFObject&) = delete;
  virtual ~CFObject() = default;

  mutable int32_t retainCount = 1;  // references are const; counting them is not a change
};

using CFTypeRef = const CFObject*;
using CFIndex = long;

// Null is ignored by both; CFRetain gives its argument.
CFTypeRef CFRetain(CFTypeRef object);
void CFRelease(CFTypeRef object);  // the last release frees the object

#endif  // GRADIX_CFBASE_H

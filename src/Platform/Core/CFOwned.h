// Keeps one reference to a Core Foundation object and releases it at the end of the scope.
#ifndef GRADIX_CFOWNED_H
#define GRADIX_CFOWNED_H

#include <memory>

#include "Platform/Core/CFBase.h"

struct CFReleaser {
  void operator()(CFTypeRef object) const { CFRelease(object); }
};

// CFOwned<CFString> holds a CFStringRef.
template <typename T>
using CFOwned = std::unique_ptr<const T, CFReleaser>;

#endif  // GRADIX_CFOWNED_H

#include "Platform/Core/CFBase.h"

CFTypeRef CFRetain(CFTypeRef object) {
  if (object != nullptr) ++object->retainCount;
  return object;
}

void CFRelease(CFTypeRef object) {
  if (object != nullptr && --object->retainCount == 0) delete object;
}

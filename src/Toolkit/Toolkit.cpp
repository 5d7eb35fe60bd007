#include "Toolkit/Toolkit.h"

#include <cstdarg>
#include <cstdio>

int16_t gDefaultFont = 0;
int32_t gToolkitLanguage = 0;

bool FontCacheInit(int16_t fontNumber) {
  gDefaultFont = fontNumber;
  return true;
}

void CurrentLocale(int32_t language) {
  gToolkitLanguage = language;
}

intptr_t DLGInstance() {
  static const char instance = 0;
  return reinterpret_cast<intptr_t>(&instance);
}

void WPInitFields() {}

void WPInitHyperLinks() {}

void LumoDebugOut([[maybe_unused]] const char* format, ...) {
#ifndef NDEBUG
  va_list arguments;
  va_start(arguments, format);
  std::vfprintf(stderr, format, arguments);
  va_end(arguments);
#endif
}

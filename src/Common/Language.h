// The session's language.
#ifndef GRADIX_LANGUAGE_H
#define GRADIX_LANGUAGE_H

#include <cstdint>

#include "gradix/QZFilter.h"

inline constexpr int16_t kLanguageSpanish = 6;

// Set by the host, 0 at first: 6 means Spanish, anything else English.
extern "C" QZFILTER_API int16_t gLang;

inline bool IsSpanish() {
  return gLang == kLanguageSpanish;
}

#endif  // GRADIX_LANGUAGE_H

// The session's language.
#ifndef GRADIX_LANGUAGE_H
#define GRADIX_LANGUAGE_H

#include <cstdint>

#include "gradix/QZFilter.h"

inline constexpr int16_t kLanguageSpanish = QZFILTER_SPANISH;

// Of gLang, which the host sets.
inline bool IsSpanish() {
  return gLang == kLanguageSpanish;
}

#endif  // GRADIX_LANGUAGE_H

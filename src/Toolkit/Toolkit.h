// What the whole toolkit shares: its language, default font and instance, and the hooks of parts that this
// library only initialises.
#ifndef GRADIX_TOOLKIT_H
#define GRADIX_TOOLKIT_H

#include <cstdint>

inline constexpr int16_t kDefaultFontSize = 10;  // points

extern int16_t gDefaultFont;      // font number
extern int32_t gToolkitLanguage;  // as last given to CurrentLocale; 0 at first

bool FontCacheInit(int16_t fontNumber);  // stores the default font; always true
void CurrentLocale(int32_t language);

// The reference constant of the toolkit's windows, unlike any other library's in the process.
intptr_t DLGInstance();

// The document engine's start: its fields and hyperlinks. No dialog of this library holds a document.
void WPInitFields();
void WPInitHyperLinks();

// A trace for developers: to standard error in debug builds, nowhere in release builds.
__attribute__((format(printf, 1, 2))) void LumoDebugOut(const char* format, ...);

#endif  // GRADIX_TOOLKIT_H

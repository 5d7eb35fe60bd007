// The language of the host's windows.
#ifndef GRADIX_LANGUAGE_H
#define GRADIX_LANGUAGE_H

#include <cstdint>

namespace host {

enum class HostLanguage : uint8_t { kEnglish, kSpanish };

HostLanguage CurrentLanguage();

// Translates the host's and Qt's own texts from now on, and has numbers and dates written as the language
// does. Every widget is told by a LanguageChange event, from the event loop.
void SetCurrentLanguage(HostLanguage language);

// Makes the remembered language the current one: without one, the system's if the host speaks it.
void RestoreLanguage();

// Makes the language the current one and remembers it.
void ChangeLanguage(HostLanguage language);

}  // namespace host

#endif  // GRADIX_LANGUAGE_H

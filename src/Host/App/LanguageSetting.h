// The user's language, remembered in the settings.
#ifndef GRADIX_LANGUAGESETTING_H
#define GRADIX_LANGUAGESETTING_H

#include "Host/App/HostTexts.h"

namespace host {

// Makes the remembered language the current one: without one, the system's if the host speaks it.
void RestoreLanguage();

// Makes the language the current one and remembers it.
void ChangeLanguage(HostLanguage language);

}  // namespace host

#endif  // GRADIX_LANGUAGESETTING_H

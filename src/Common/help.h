// Help: opens the host's help book in the desktop's browser.
//
// Texts are UTF-8. The state is the process's; call from one thread.
#ifndef GRADIX_HELP_H
#define GRADIX_HELP_H

#include <cstdint>

#include "Platform/Ui/Windows.h"

inline constexpr char kHelpWebSite[] = "https://help.gradix.example/";

// Tells where the book lies. The start pages are paths with colons, relative to the folder that holds the
// host's bundle, without a colon in front; a topic's page is
// "<group>/<prefix>_<topic, three digits>.htm" inside the book. Topics from `alternateTopicID` on use the
// alternate start page and group. Of each text 150 bytes count.
void RegisterLumoHelp(const char* startPage, int32_t contentsCommand, const char* alternateStartPage,
                      int32_t alternateTopicID, const char* group, const char* alternateGroup,
                      const char* pagePrefix);
void UnregisterLumoHelp(int32_t host);  // `host` is not read

// Shows a topic of the book; its start page for the contents command and for topics below 1. Command 0 only
// releases the help viewer. When nothing can be shown, a sheet on the window (may be null) says so and the
// result is false.
bool Help(WindowRef window, int32_t command, int32_t topic);

bool HelpWebSite(WindowRef window, const char* url);

// A sheet with a note on the window (null: on its own). Returns at once.
void _MessageBox(WindowRef window, const char* message, const char* explanation);

namespace qz {

// Opens the help web site for command 2, and for command 1 with a topic; false when it was not opened.
bool Help(WindowRef window, int32_t command, const char* fileName, int32_t topic);

}  // namespace qz

#endif  // GRADIX_HELP_H

// The records of dialogs, as resources hold them (Inside Macintosh: Macintosh Toolbox Essentials).
#ifndef GRADIX_DIALOGRESOURCES_H
#define GRADIX_DIALOGRESOURCES_H

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "Platform/Core/MacTypes.h"
#include "Platform/Ui/Controls.h"

namespace ui {

constexpr size_t kMostDialogItems = 1000;

struct DialogTemplate {
  Rect bounds;
  int16_t procID = 0;
  bool goAway = false;
  int16_t itemList = 0;
  int32_t refCon = 0;
  std::string title;       // Mac OS Roman
  bool isCentred = false;  // on the main screen, wherever the bounds are
};

// An item with all that its own control resource adds to it.
struct ItemTemplate {
  Rect bounds;
  ControlKind kind = kControlKindNone;  // none: an item without a control
  std::string text;                     // Mac OS Roman
  int16_t value = 0;
  int16_t maximum = 1;
  bool visible = true;
  int32_t refCon = 0;
  int16_t listDefinition = 0;
  bool hasScrollBar = true;
};

struct AlertTemplate {
  Rect bounds;
  int16_t itemList = 0;
};

// Null for a resource that is missing or cut short.
std::optional<DialogTemplate> ReadDialogTemplate(int16_t id);
std::optional<AlertTemplate> ReadAlertTemplate(int16_t id);
// Items 1 and on of a 'DITL'; null also when one names a control resource that is missing or cut short.
std::optional<std::vector<ItemTemplate>> ReadItemList(int16_t id);

}  // namespace ui

#endif  // GRADIX_DIALOGRESOURCES_H

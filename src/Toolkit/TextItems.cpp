#include "Toolkit/TextItems.h"

#include <limits>
#include <string>

#include "Platform/Ui/Events.h"
#include "Toolkit/DLGFocus.h"
#include "Toolkit/ItemControls.h"

namespace {

// Names the labelled item, whose number is the text's data, after the text.
void _NameLabelledItem(DLGRecord* dialog, const DLGItem& text) {
  const DLGItem* const labelled = DLGFindItem(dialog, static_cast<int32_t>(text.data));
  if (labelled != nullptr) SetControlLabel(labelled->control, text.control);
}

}  // namespace

intptr_t STItemProc(DLGRecord* dialog, int32_t item, int32_t message, intptr_t param1, intptr_t param2) {
  DLGItem* const found = DLGFindItem(dialog, item);
  if (found == nullptr) return 0;
  switch (message) {
    case kDLGCreate: {
      uint16_t labelled = 0;
      if (!ReadItemWord(dialog, param1, &labelled)) return -1;
      found->data = labelled;
      return sizeof labelled;
    }
    case kDLGSetText:
      ControlItemProc(dialog, item, message, param1, param2);
      _NameLabelledItem(dialog, *found);
      return 0;
    case kDLGAllCreated: _NameLabelledItem(dialog, *found); return 0;
    case kDLGGetControl:
    case kDLGGetText:
    case kDLGFocusLeaves: return ControlItemProc(dialog, item, message, param1, param2);
    default: return 0;  // neither pressed nor focused
  }
}

namespace {

// Keys that mean something to the dialog rather than to a text of one line.
bool _IsDialogKey(DLGKeyPress key) {
  switch (key.character) {
    case kTabChar:
    case kReturnChar:
    case kEnterChar:
    case kEscapeChar: return true;
    case kUpArrowChar:
    case kDownArrowChar:
    case kPageUpChar:
    case kPageDownChar: return key.modifiers == 0;
    default: return false;
  }
}

intptr_t _EditKey(const DLGItem& edit, DLGKeyPress key) {
  if (!ItemReacts(edit) || _IsDialogKey(key)) return kKeyNotUsed;
  const std::string before = GetControlText(edit.control);
  HandleControlKey(edit.control, key.character, key.modifiers);
  return GetControlText(edit.control) != before ? kKeyChanged : kKeyUsed;
}

}  // namespace

intptr_t ETItemProc(DLGRecord* dialog, int32_t item, int32_t message, intptr_t param1, intptr_t param2) {
  const DLGItem* const found = DLGFindItem(dialog, item);
  if (found == nullptr) return 0;
  switch (message) {
    case kDLGCreate: {
      uint16_t limit = 0;
      if (!ReadItemWord(dialog, param1, &limit)) return -1;
      SetEditTextLimit(found->control, limit);
      return sizeof limit;
    }
    case kDLGDoubleClick: return kDLGTakesDoubleClicks;
    case kDLGFocus:
      ControlItemProc(dialog, item, message, param1, param2);
      if (param1 != 0 && param2 != kFocusByMouse) {
        SelectEditText(found->control, 0, std::numeric_limits<int16_t>::max());
      }
      return 0;
    case kDLGKey: return _EditKey(*found, DLGUnpackKey(param1));
    default: return ControlItemProc(dialog, item, message, param1, param2);
  }
}

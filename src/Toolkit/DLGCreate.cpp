// Creating dialogs from their templates and item descriptions.
#include <algorithm>
#include <optional>
#include <vector>

#include "Platform/Core/BigEndian.h"
#include "Platform/Core/Resources.h"
#include "Platform/Ui/Events.h"
#include "Platform/Ui/HelpTags.h"
#include "Toolkit/DLGEvents.h"
#include "Toolkit/DLGItems.h"
#include "Toolkit/DLGLive.h"
#include "Toolkit/DLGManager.h"
#include "Toolkit/DLGRegister.h"
#include "Toolkit/Toolkit.h"

namespace {

constexpr ResType kItemDescriptions = FourCharCode("luDI");
constexpr uint32_t kTagDelay = 500;  // milliseconds

struct Request {
  WindowRef parent;
  int32_t kind;
  std::span<const int32_t> resourceIDs;
  int32_t userValue;
  DLGHitProc itemHit;
  DLGCloseProc close;
  DLGEventProc event;
};

// The items that one resource id contributes.
struct Template {
  int32_t resourceID;
  int32_t itemCount;
};

void (*gGlobalOpen)(DLGRecord*) = nullptr;

}  // namespace

void DLGSetGlobalOpenProc(void (*proc)(DLGRecord*)) {
  gGlobalOpen = proc;
}

namespace {

// The item descriptions as a copy, so that nothing an item procedure does can pull them away.
std::optional<std::vector<char>> _LoadItemDescriptions(int32_t resourceID) {
  const Handle resource = GetResource(kItemDescriptions, static_cast<int16_t>(resourceID));
  if (resource == nullptr) return std::nullopt;
  std::vector<char> bytes(*resource, *resource + GetHandleSize(resource));
  ReleaseResource(resource);
  return bytes;
}

// Appends the items of the further resource ids to the dialog and counts those of each.
bool _AppendTemplates(DialogRef dialog, std::span<const int32_t> resourceIDs,
                      std::vector<Template>* templates) {
  for (const int32_t id : resourceIDs) {
    const int16_t before = CountDITL(dialog);
    if (!AppendDialogItemList(dialog, static_cast<int16_t>(id))) return false;
    templates->push_back({id, CountDITL(dialog) - before});
  }
  return true;
}

void _SetWindowAttributes(WindowRef window, int32_t kind) {
  if (kind == kDLGModal) ChangeWindowAttributes(window, 0, kWindowCollapseBoxAttribute);
  if (kind == kDLGPane) ChangeWindowAttributes(window, kWindowCloseBoxAttribute, 0);
}

void _FillHeader(DLGRecord* dialog, DialogRef platformDialog, const Request& request) {
  const WindowRef window = GetDialogWindow(platformDialog);
  SetPortTextFont(window, gDefaultFont, kDefaultFontSize);
  SetWRefCon(window, DLGInstance());
  dialog->flags |= kDLGNew;
  dialog->window = window;
  dialog->parent = request.kind == kDLGModal ? request.parent : nullptr;
  dialog->dialog = platformDialog;
  dialog->kind = request.kind;
  dialog->resourceID = request.resourceIDs.front();
  dialog->focusItem = dialog->defaultButton = dialog->cancelItem = dialog->trackingItem = -1;
  dialog->itemHit = request.itemHit;
  dialog->close = request.close;
  dialog->event = request.event;
  dialog->userValue = request.userValue;
  dialog->foreColor = GetPortForeColor(window);
  dialog->backColor = GetWindowContentColor(window);
  if (request.kind != kDLGPane) dialog->growBounds = {};
  dialog->initialBounds = GetWindowPortBounds(window);
  if (dialog->parent != nullptr) SetWindowParent(window, dialog->parent);
  SetControlReference(GetRootControl(window), reinterpret_cast<intptr_t>(dialog));
}

void _InstallHelpTag(ControlRef control, int32_t resourceID, int32_t number) {
  const std::string tag = GetIndString(static_cast<int16_t>(resourceID), static_cast<int16_t>(number));
  if (tag.empty()) return;
  HMSetControlHelpContent(control, tag);
  HMSetTagDelay(kTagDelay);
}

// Control and flags agree from the start.
void _ApplyFlags(const DLGItem& row) {
  if (row.control == nullptr) return;
  SetControlReference(row.control, 0);
  if ((row.flags & kDLGEnabled) == 0) DeactivateControl(row.control);
  if ((row.flags & kDLGVisible) == 0) HideControl(row.control);
}

// Creates one item from the description at `data`; gives the bytes its own data takes, negative on failure.
intptr_t _CreateItem(DLGRecord* dialog, int32_t item, int32_t type, uint32_t flags, const char* data) {
  const DLGItemProc procedure = DLGFindItemProc(type);
  if (procedure == nullptr) return -1;
  DLGItem* row = DLGItemRow(dialog, item);
  *row = {type, flags, 0, procedure, GetDialogItemAsControl(dialog->dialog, static_cast<int16_t>(item))};
  _ApplyFlags(*row);
  const DLGWatch watch(dialog);
  const intptr_t consumed = procedure(dialog, item, kDLGCreate, reinterpret_cast<intptr_t>(data), 0);
  if (!watch.IsLive()) return -1;
  if (consumed < 0) LumoDebugOut("Item #%d failed to init\r\n", static_cast<int>(item));
  return consumed;
}

// Creates the items of one template behind those that are there.
bool _CreateItems(DLGRecord* dialog, const Template& part, const std::vector<char>& descriptions) {
  BigEndianReader reader(descriptions);
  uint16_t unused = 0;
  uint16_t count = 0;
  if (!reader.Read16(&unused) || !reader.Read16(&count) || count != part.itemCount) return false;
  if (dialog->itemCount + count > DLGRoom(dialog)) return false;
  for (int32_t number = 1; number <= count; ++number) {
    uint32_t type = 0;
    uint32_t flags = 0;
    if (!reader.Read32(&type) || !reader.Read32(&flags)) return false;
    const char* data = descriptions.data() + reader.position();
    dialog->dataEnd = descriptions.data() + descriptions.size();
    const int32_t item = ++dialog->itemCount;
    const intptr_t consumed = _CreateItem(dialog, item, static_cast<int32_t>(type), flags, data);
    if (consumed < 0) return false;
    dialog->dataEnd = nullptr;
    if (!reader.Skip(static_cast<size_t>(consumed))) return false;
    if ((flags & kDLGHelpTag) != 0)
      _InstallHelpTag(DLGGetChildControl(dialog, item), part.resourceID, number);
  }
  return true;
}

bool _CreateAllItems(DLGRecord* dialog, const std::vector<Template>& templates) {
  const DLGWatch watch(dialog);
  for (const Template& part : templates) {
    const auto descriptions = _LoadItemDescriptions(part.resourceID);
    if (!descriptions || !_CreateItems(dialog, part, *descriptions)) return false;
  }
  return watch.IsLive();
}

// A dialog with a window of its own.
DLGRecord* _CreateDialog(const Request& request) {
  const DialogRef platformDialog = GetNewDialog(static_cast<int16_t>(request.resourceIDs.front()));
  if (platformDialog == nullptr) return nullptr;
  std::vector<Template> templates{{request.resourceIDs.front(), CountDITL(platformDialog)}};
  DLGRecord* dialog = nullptr;
  if (_AppendTemplates(platformDialog, request.resourceIDs.subspan(1), &templates)) {
    const int32_t count = CountDITL(platformDialog);
    dialog = DLGNewRecord(request.kind == kDLGPane ? std::max(count, DLGRecord::kPaneCapacity) : count);
  }
  if (dialog == nullptr) {
    DisposeDialog(platformDialog);
    return nullptr;
  }
  _SetWindowAttributes(GetDialogWindow(platformDialog), request.kind);
  _FillHeader(dialog, platformDialog, request);
  dialog->ownItemCount = templates.front().itemCount;
  const DLGWatch watch(dialog);
  if (_CreateAllItems(dialog, templates)) return dialog;
  if (watch.IsLive()) DLGDiscard(dialog);
  return nullptr;
}

// Undoes what an appended pane left in the record.
void _RemovePane(DLGRecord* dialog, const DLGRecord& before, int16_t ownItemCount) {
  while (dialog->itemCount > ownItemCount) {
    SendDLGItemMessage(dialog, dialog->itemCount, kDLGDispose);
    *DLGItemRow(dialog, dialog->itemCount--) = {};
  }
  ShortenDITL(dialog->dialog, static_cast<int16_t>(CountDITL(dialog->dialog) - ownItemCount));
  DLGTimerEntry* timers = dialog->timers;
  *dialog = before;
  dialog->timers = timers;
}

// A pane: the items of its resource ids, appended to the dialog in `request.parent`, whose record it takes
// over.
DLGRecord* _CreatePane(DLGRecord* dialog, const Request& request) {
  const DLGRecord before = *dialog;
  const int16_t ownItemCount = CountDITL(dialog->dialog);
  std::vector<Template> templates;
  const DLGWatch watch(dialog);
  bool done = _AppendTemplates(dialog->dialog, request.resourceIDs, &templates);
  if (done) {
    _SetWindowAttributes(dialog->window, request.kind);
    _FillHeader(dialog, before.dialog, request);
    dialog->itemCapacity = DLGRecord::kPaneCapacity;
    dialog->itemCount = dialog->ownItemCount = ownItemCount;
    done = _CreateAllItems(dialog, templates);
  }
  if (done) return dialog;
  if (watch.IsLive()) _RemovePane(dialog, before, ownItemCount);
  return nullptr;
}

}  // namespace

DLGRecord* GetCombinedDialogResource(WindowRef parent, int32_t kind, void* /*instance*/,
                                     std::span<const int32_t> resourceIDs, int32_t userValue,
                                     DLGHitProc itemHit, DLGCloseProc close, DLGEventProc event) {
  const auto isID = [](int32_t id) { return id == static_cast<int16_t>(id); };
  if (resourceIDs.empty() || !std::all_of(resourceIDs.begin(), resourceIDs.end(), isID)) return nullptr;
  if (!InitApplication()) return nullptr;
  DLGInstallEventHandlers();
  const Request request{parent, kind, resourceIDs, userValue, itemHit, close, event};
  DLGRecord* container = kind == kDLGPane ? DLGFromHwnd(parent) : nullptr;
  DLGRecord* dialog = container != nullptr ? _CreatePane(container, request) : _CreateDialog(request);
  if (dialog == nullptr) return nullptr;

  const DLGWatch watch(dialog);
  const int32_t first = container != nullptr ? dialog->ownItemCount + 1 : 1;
  for (int32_t item = first; watch.IsLive() && item <= dialog->itemCount; ++item) {
    SendDLGItemMessage(dialog, item, kDLGAllCreated);
  }
  if (watch.IsLive() && gGlobalOpen != nullptr) gGlobalOpen(dialog);
  return watch.IsLive() ? dialog : nullptr;
}

DLGRecord* GetDialogResource(WindowRef parent, int32_t kind, void* instance, int32_t resourceID,
                             int32_t userValue, DLGHitProc itemHit, DLGCloseProc close, DLGEventProc event) {
  return GetCombinedDialogResource(parent, kind, instance, std::span(&resourceID, 1), userValue, itemHit,
                                   close, event);
}

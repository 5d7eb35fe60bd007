#include "Platform/Qt/QtRegistry.h"

#include <algorithm>
#include <cstdint>
#include <memory>
#include <unordered_map>

#include "Platform/Qt/EventQueue.h"

namespace ui {

namespace {

struct RemovedWidget {
  WindowRef window;
  QPointer<QWidget> widget;
};

struct Registry {
  std::unordered_map<WindowRef, std::unique_ptr<WindowRecord>> windows;
  std::unordered_map<ControlRef, std::unique_ptr<ControlRecord>> controls;
  std::unordered_map<const QWidget*, ControlRef> controlOfWidget;
  std::unordered_map<const QWidget*, WindowRef> windowOfWidget;
  std::vector<WindowRef> order;
  std::vector<WindowRef> inUse;
  std::vector<RemovedWidget> removed;  // has room for all there are
  uintptr_t lastNumber = 0;
};

}  // namespace

int Quiet::m_depth = 0;

namespace {

// Lives as long as the process: widgets may outlive every static object.
Registry& _Registry() {
  static auto* const registry = new Registry;
  return *registry;
}

template <typename Ref>
Ref _NewRef() {
  constexpr uintptr_t kStep = 16;
  _Registry().lastNumber += kStep;
  return reinterpret_cast<Ref>(_Registry().lastNumber);
}

template <typename Map, typename Key>
auto* _Find(Map& map, Key key) {
  const auto found = map.find(key);
  return found == map.end() ? nullptr : found->second.get();
}

}  // namespace

WindowRecord* FindWindow(WindowRef window) {
  return _Find(_Registry().windows, window);
}

ControlRecord* FindControl(ControlRef control) {
  return _Find(_Registry().controls, control);
}

WindowRecord* FindWindowOf(const QWidget* widget) {
  if (widget == nullptr) return nullptr;
  const auto& windows = _Registry().windowOfWidget;
  const auto found = windows.find(widget->window());
  return found == windows.end() ? nullptr : FindWindow(found->second);
}

ControlRecord* FindControlOf(const QWidget* widget) {
  const auto& controls = _Registry().controlOfWidget;
  for (; widget != nullptr && !widget->isWindow(); widget = widget->parentWidget()) {
    const auto found = controls.find(widget);
    if (found != controls.end()) return FindControl(found->second);
  }
  return nullptr;
}

std::vector<WindowRef>& WindowOrder() {
  return _Registry().order;
}

namespace {

// Removing a widget then needs no memory.
void _MakeRoomToRemove() {
  Registry& registry = _Registry();
  const size_t widgets = registry.removed.size() + registry.windows.size() + registry.controls.size() + 1;
  if (registry.removed.capacity() < widgets) registry.removed.reserve(2 * widgets);
}

}  // namespace

WindowRecord* AddWindowRecord(QWidget* widget) {
  _MakeRoomToRemove();
  auto record = std::make_unique<WindowRecord>();
  WindowRecord* const window = record.get();
  window->ref = _NewRef<WindowRef>();
  window->widget = widget;
  _Registry().windows.emplace(window->ref, std::move(record));
  _Registry().windowOfWidget.emplace(widget, window->ref);
  _Registry().order.insert(_Registry().order.begin(), window->ref);
  return window;
}

ControlRecord* AddControlRecord(WindowRecord* window, QWidget* widget, ControlKind kind) {
  _MakeRoomToRemove();
  auto record = std::make_unique<ControlRecord>();
  ControlRecord* const control = record.get();
  control->ref = _NewRef<ControlRef>();
  control->window = window->ref;
  control->kind = kind;
  control->widget = widget;
  _Registry().controls.emplace(control->ref, std::move(record));
  if (kind == kControlKindRoot) {
    window->root = control->ref;
  } else {
    window->controls.push_back(control->ref);
    _Registry().controlOfWidget.emplace(widget, control->ref);
  }
  return control;
}

namespace {

void _Remove(WindowRef window, const QPointer<QWidget>& widget) {
  if (widget.isNull()) return;
  widget->hide();
  _Registry().removed.push_back({window, widget});
  EventQueue::Get().WakeUp();
}

void _ForgetControl(ControlRef ref) {
  const ControlRecord* const control = FindControl(ref);
  if (control == nullptr) return;
  _Registry().controlOfWidget.erase(control->widget.data());
  _Registry().controls.erase(ref);
}

}  // namespace

void RemoveControlRecord(ControlRef ref) {
  const ControlRecord* const control = FindControl(ref);
  if (control == nullptr || control->kind == kControlKindRoot) return;
  const QPointer<QWidget> widget = control->widget;
  const WindowRef windowRef = control->window;
  if (WindowRecord* const window = FindWindow(windowRef)) {
    std::erase(window->controls, ref);
    if (window->focus == ref) window->focus = nullptr;
  }
  _ForgetControl(ref);
  _Remove(windowRef, widget);
}

void RemoveWindowRecord(WindowRef ref) {
  WindowRecord* const window = FindWindow(ref);
  if (window == nullptr) return;
  const QPointer<QWidget> widget = window->widget;
  for (const ControlRef control : window->controls) _ForgetControl(control);
  _ForgetControl(window->root);
  std::erase(_Registry().order, ref);
  _Registry().windowOfWidget.erase(widget.data());
  _Registry().windows.erase(ref);
  _Remove(ref, widget);
}

// One by one: what a widget's end sets off may remove others.
void FreeRemovedWidgets() noexcept {
  Registry& registry = _Registry();
  const auto isFree = [&registry](const RemovedWidget& removed) {
    return std::find(registry.inUse.begin(), registry.inUse.end(), removed.window) == registry.inUse.end();
  };
  while (true) {
    const auto found = std::find_if(registry.removed.begin(), registry.removed.end(), isFree);
    if (found == registry.removed.end()) return;
    const QPointer<QWidget> widget = found->widget;
    registry.removed.erase(found);
    delete widget.data();
  }
}

WindowInUse::WindowInUse(WindowRef window) {
  _Registry().inUse.push_back(window);
}

WindowInUse::~WindowInUse() {
  _Registry().inUse.pop_back();
  if (!_Registry().removed.empty()) EventQueue::Get().WakeUp();
}

}  // namespace ui

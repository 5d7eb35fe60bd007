#include "Platform/Ui/Windows.h"

#include <QApplication>
#include <QScreen>
#include <QWindow>
#include <algorithm>

#include "Platform/Qt/EventQueue.h"
#include "Platform/Qt/QtAlert.h"
#include "Platform/Qt/QtRegistry.h"
#include "Platform/Qt/QtText.h"
#include "Platform/Qt/QtWindow.h"
#include "Platform/Ui/Alerts.h"
#include "Platform/Ui/Events.h"

using ui::FindWindow;
using ui::WindowRecord;

namespace {

WindowRef gPort = nullptr;

}  // namespace

WindowRef CreateNewWindow(WindowClass windowClass, uint32_t attributes, const Rect& bounds) {
  if (!InitApplication()) return nullptr;
  auto* const widget = new ui::QtWindow(ui::WindowFlagsOf(windowClass, attributes));
  WindowRecord* const window = ui::AddWindowRecord(widget);
  window->windowClass = windowClass;
  window->attributes = attributes;
  ui::AddControlRecord(window, widget, kControlKindRoot);
  ui::EventQueue::Get().Watch(widget);
  widget->setFixedSize(std::max(bounds.right - bounds.left, 1), std::max(bounds.bottom - bounds.top, 1));
  widget->setGeometry(QRect(QPoint(bounds.left, bounds.top), widget->size()));
  return window->ref;
}

void DisposeWindow(WindowRef window) {
  if (FindWindow(window) == nullptr) return;
  ui::CloseAlertsOf(window);
  ui::RemoveWindowRecord(window);
}

bool IsValidWindow(WindowRef window) {
  return FindWindow(window) != nullptr;
}

namespace {

WindowRef _FirstVisible(bool floatingToo) {
  for (const WindowRef ref : ui::WindowOrder()) {
    const WindowRecord* const window = FindWindow(ref);
    if (window->widget->isHidden()) continue;
    if (floatingToo || window->windowClass != kFloatingWindowClass) return ref;
  }
  return nullptr;
}

}  // namespace

WindowRef FrontWindow() {
  return _FirstVisible(true);
}

WindowRef FrontNonFloatingWindow() {
  return _FirstVisible(false);
}

WindowRef GetWindowList() {
  return ui::WindowOrder().empty() ? nullptr : ui::WindowOrder().front();
}

WindowRef GetNextWindow(WindowRef window) {
  const std::vector<WindowRef>& order = ui::WindowOrder();
  const auto found = std::find(order.begin(), order.end(), window);
  return found == order.end() || found + 1 == order.end() ? nullptr : *(found + 1);
}

void BringToFront(WindowRef window) {
  const WindowRecord* const record = FindWindow(window);
  if (record == nullptr) return;
  std::vector<WindowRef>& order = ui::WindowOrder();
  const auto found = std::find(order.begin(), order.end(), window);
  std::rotate(order.begin(), found, found + 1);
  if (record->widget->isVisible()) record->widget->raise();
}

void SelectWindow(WindowRef window) {
  WindowRecord* const record = FindWindow(window);
  if (record == nullptr) return;
  BringToFront(window);
  record->hilited = true;
  if (record->widget->isVisible()) record->widget->activateWindow();
}

bool IsWindowInFrontOf(WindowRef window, WindowRef other) {
  const std::vector<WindowRef>& order = ui::WindowOrder();
  const auto first = std::find(order.begin(), order.end(), window);
  const auto second = std::find(order.begin(), order.end(), other);
  return second != order.end() && first < second;
}

namespace {

// Without a parent of ours, the host's window stays the parent, if there is one.
void _ApplyParent(const WindowRecord& window) {
  const WindowRecord* const parent = FindWindow(window.parent);
  if (parent == nullptr) return;
  if (parent->widget->windowHandle() == nullptr) parent->widget->winId();
  if (window.widget->windowHandle() == nullptr) window.widget->winId();
  window.widget->windowHandle()->setTransientParent(parent->widget->windowHandle());
}

}  // namespace

void ShowWindow(WindowRef window) {
  const WindowRecord* const record = FindWindow(window);
  if (record == nullptr || !record->widget->isHidden()) return;
  const WindowRef front = FrontWindow();
  const bool behind = front != nullptr && IsWindowInFrontOf(front, window);
  record->widget->setAttribute(Qt::WA_ShowWithoutActivating, behind);
  _ApplyParent(*record);
  record->widget->show();
}

void HideWindow(WindowRef window) {
  if (const WindowRecord* const record = FindWindow(window)) record->widget->hide();
}

bool IsWindowVisible(WindowRef window) {
  const WindowRecord* const record = FindWindow(window);
  return record != nullptr && !record->widget->isHidden();
}

void HiliteWindow(WindowRef window, bool on) {
  WindowRecord* const record = FindWindow(window);
  if (record == nullptr) return;
  record->hilited = on;
  if (on && record->widget->isVisible()) record->widget->activateWindow();
}

bool IsWindowHilited(WindowRef window) {
  const WindowRecord* const record = FindWindow(window);
  return record != nullptr && record->hilited;
}

void ActivateWindow(WindowRef window, bool on) {
  HiliteWindow(window, on);
}

WindowClass GetWindowClass(WindowRef window) {
  const WindowRecord* const record = FindWindow(window);
  return record == nullptr ? kDocumentWindowClass : record->windowClass;
}

void ChangeWindowAttributes(WindowRef window, uint32_t set, uint32_t clear) {
  WindowRecord* const record = FindWindow(window);
  if (record == nullptr) return;
  const uint32_t attributes = (record->attributes | set) & ~clear;
  if (attributes == record->attributes) return;
  record->attributes = attributes;
  QWidget* const widget = record->widget;
  const bool visible = !widget->isHidden();
  const QRect place = widget->geometry();
  widget->setWindowFlags(ui::WindowFlagsOf(record->windowClass, attributes));
  widget->setGeometry(place);
  if (!visible) return;
  _ApplyParent(*record);
  widget->show();
}

uint32_t GetWindowAttributes(WindowRef window) {
  const WindowRecord* const record = FindWindow(window);
  return record == nullptr ? 0 : record->attributes;
}

void SetWRefCon(WindowRef window, intptr_t value) {
  if (WindowRecord* const record = FindWindow(window)) record->refCon = value;
}

intptr_t GetWRefCon(WindowRef window) {
  const WindowRecord* const record = FindWindow(window);
  return record == nullptr ? 0 : record->refCon;
}

void SetWTitle(WindowRef window, const std::string& title) {
  WindowRecord* const record = FindWindow(window);
  if (record == nullptr) return;
  record->title = title;
  record->widget->setWindowTitle(ui::FromUTF8(title));
  record->widget->setAccessibleName(ui::FromUTF8(title));
}

std::string GetWTitle(WindowRef window) {
  const WindowRecord* const record = FindWindow(window);
  return record == nullptr ? std::string() : record->title;
}

void MoveWindow(WindowRef window, int16_t h, int16_t v) {
  const WindowRecord* const record = FindWindow(window);
  if (record != nullptr) record->widget->setGeometry(QRect(QPoint(h, v), record->widget->size()));
}

void SizeWindow(WindowRef window, int16_t width, int16_t height) {
  const WindowRecord* const record = FindWindow(window);
  if (record != nullptr) record->widget->setFixedSize(std::max<int>(width, 1), std::max<int>(height, 1));
}

void CenterWindowOnMainScreen(WindowRef window) {
  const WindowRecord* const record = FindWindow(window);
  const QScreen* const screen = record == nullptr ? nullptr : QGuiApplication::primaryScreen();
  if (screen == nullptr) return;
  const QRect available = screen->availableGeometry();
  const QRect content = record->widget->geometry();
  QRect frame = record->widget->frameGeometry();
  const QPoint inFrame = content.topLeft() - frame.topLeft();
  frame.moveCenter(available.center());
  const QPoint corner(std::max(frame.left(), available.left()), std::max(frame.top(), available.top()));
  record->widget->setGeometry(QRect(corner + inFrame, content.size()));
}

Rect GetWindowPortBounds(WindowRef window) {
  const WindowRecord* const record = FindWindow(window);
  if (record == nullptr) return {};
  return {0, 0, ui::ToInt16(record->widget->height()), ui::ToInt16(record->widget->width())};
}

Rect GetWindowScreenBounds(WindowRef window) {
  const WindowRecord* const record = FindWindow(window);
  if (record == nullptr) return {};
  const QRect content = record->widget->geometry();
  return {ui::ToInt16(content.top()), ui::ToInt16(content.left()),
          ui::ToInt16(content.top() + content.height()), ui::ToInt16(content.left() + content.width())};
}

void InvalWindowRect(WindowRef window, const Rect& area) {
  const WindowRecord* const record = FindWindow(window);
  if (record == nullptr) return;
  const QRect invalid(area.left, area.top, area.right - area.left, area.bottom - area.top);
  record->widget->update(invalid);
  for (const ControlRef control : record->controls) {
    if (ui::FindControl(control)->widget->geometry().intersects(invalid)) Draw1Control(control);
  }
}

void SetWindowParent(WindowRef window, WindowRef parent) {
  WindowRecord* const record = FindWindow(window);
  if (record == nullptr || window == parent || (parent != nullptr && FindWindow(parent) == nullptr)) return;
  record->parent = parent;
  QWindow* const handle = record->widget->windowHandle();
  if (parent == nullptr && handle != nullptr) handle->setTransientParent(nullptr);
  _ApplyParent(*record);
}

void SetPortTextFont(WindowRef window, int16_t font, int16_t size) {
  WindowRecord* const record = FindWindow(window);
  if (record == nullptr) return;
  record->portFont = font;
  record->portSize = size;
}

namespace {

RGBColor _ColorOf(WindowRef window, QPalette::ColorRole role) {
  const WindowRecord* const record = FindWindow(window);
  if (record == nullptr) return {};
  const QRgba64 color = record->widget->palette().color(role).rgba64();
  return {color.red(), color.green(), color.blue()};
}

}  // namespace

RGBColor GetPortForeColor(WindowRef window) {
  return _ColorOf(window, QPalette::WindowText);
}

RGBColor GetWindowContentColor(WindowRef window) {
  return _ColorOf(window, QPalette::Window);
}

void SetPortWindowPort(WindowRef window) {
  gPort = window;
}

WindowRef GetPort() {
  return FindWindow(gPort) == nullptr ? nullptr : gPort;
}

ControlRef GetRootControl(WindowRef window) {
  const WindowRecord* const record = FindWindow(window);
  return record == nullptr ? nullptr : record->root;
}

void* GetWindowID(WindowRef window) {
  const WindowRecord* const record = FindWindow(window);
  return record == nullptr ? nullptr : reinterpret_cast<void*>(record->widget->winId());
}

void SetWindowHostParent(WindowRef window, void* hostWindow) {
  const WindowRecord* const record = FindWindow(window);
  if (record == nullptr || hostWindow == nullptr) return;
  const auto id = reinterpret_cast<WId>(hostWindow);
  const QWidget* const known = QWidget::find(id);
  QWindow* const host = known != nullptr ? known->window()->windowHandle() : nullptr;
  record->widget->winId();  // makes the window system's window
  if (host != nullptr) record->widget->windowHandle()->setTransientParent(host);
}

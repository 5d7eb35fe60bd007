// What the input events of the windows become. The queue filters the events of every window and of the
// widgets in it: presses wait in it for their turn and go to the handlers before any widget; a widget gets
// its press only by HandleControlPress.
#ifndef GRADIX_EVENTQUEUE_H
#define GRADIX_EVENTQUEUE_H

#include <QKeyEvent>
#include <QMouseEvent>
#include <QObject>
#include <QPointer>
#include <QTimer>
#include <QWidget>
#include <deque>
#include <map>
#include <memory>
#include <type_traits>
#include <utility>
#include <vector>

#include "Platform/Qt/QtKeys.h"
#include "Platform/Qt/QtRegistry.h"
#include "Platform/Ui/Events.h"

namespace ui {

class EventQueue : public QObject {
 public:
  static EventQueue& Get();

  void SetHandlers(const DialogEventHandlers& handlers) { m_handlers = handlers; }
  const DialogEventHandlers& handlers() const { return m_handlers; }

  void Connect();               // to the application that there is now
  void Watch(QWidget* widget);  // and every widget in it, now and later
  // Handles what waits in the next turn of the event loop; without memory, when the next press or key comes.
  void WakeUp() noexcept;

  // A control's widget did what it is there for: noted for the press or key under way, or reported.
  void Acted(ControlRef ref);

  bool BeginTracking(ControlRef ref, Point where);
  bool EndTracking(ControlRef ref, Point where);
  bool StillDown();
  QPoint LastMousePosition() const;  // on the screen

  bool SendKey(ControlRef ref, KeyStroke stroke);
  void SetFocus(WindowRecord& window, ControlRecord* control);

  bool eventFilter(QObject* object, QEvent* event) noexcept override;

 protected:
  void customEvent(QEvent* event) noexcept override;

 private:
  using MouseCopy = std::unique_ptr<QMouseEvent>;

  // A press, and what came behind it before its widget could have it.
  struct Press {
    WindowRef window = nullptr;
    QPointer<QWidget> target;  // where it went, as the event says
    MouseCopy event;
    std::deque<MouseCopy> trailing;  // moves, then perhaps the release
    bool isKnown = false;            // to the application, which then knows of the release as well
    bool released = false;
    // Since BeginTracking:
    ControlRef control = nullptr;
    QPointer<QWidget> receiver;
    bool tracking = false;  // until EndTracking
    bool releaseDelivered = false;
    bool acted = false;
    // The handler asked StillDown, and was told that it is not.
    bool polled = false;
    bool toldReleased = false;
  };

  struct KeyUnderWay {
    std::unique_ptr<QKeyEvent> event;
    KeyStroke stroke;
  };

  struct KeyReceiver {
    ControlRef control;
    bool acted;
  };

  // While it exists, its value is the last one of the stack.
  template <typename Value>
  class Innermost {
   public:
    Innermost(std::vector<Value>* stack, std::type_identity_t<Value> value) : m_stack(stack) {
      m_stack->push_back(std::move(value));
    }
    ~Innermost() { m_stack->pop_back(); }
    Innermost(const Innermost&) = delete;
    Innermost& operator=(const Innermost&) = delete;

   private:
    std::vector<Value>* m_stack;
  };

  EventQueue();

  bool Filter(QObject* object, QEvent* event);
  bool FilterInput(WindowRecord& window, QWidget* widget, QEvent* event);
  bool GiveToPopup(const QWidget* widget, const QKeyEvent& event);
  void OnPopupEvent(QWidget* widget, const QEvent& event);
  bool OnPress(WindowRecord& window, QWidget* widget, const QMouseEvent& event);
  bool OnMove(QWidget* widget, const QMouseEvent& event);
  bool OnRelease(QWidget* widget, const QMouseEvent& event);
  bool OnKeyPress(WindowRecord& window, QWidget* widget, const QKeyEvent& event);
  bool OnKeyRelease(QWidget* widget, const QKeyEvent& event);
  void OnWindowActivated(const WindowRecord& window);
  void TellActivated();
  void OnFocusChanged(QWidget* now);

  bool CanHandle(WindowRef window) const;
  void HandlePresses();
  void HandlePress(std::unique_ptr<Press> press);
  bool DeliverNatively(Press& press, QWidget* widget, const QMouseEvent& event);
  void SendTrailing(Press& press, bool withRelease);
  void CancelTracking(Press& press);
  Press* TrackedPress(ControlRef control);
  bool IsDown(const Press& press) const;
  void Send(QWidget* widget, QEvent* event);

  DialogEventHandlers m_handlers;
  QPointer<QObject> m_application;
  std::deque<std::unique_ptr<Press>> m_queue;
  std::vector<std::unique_ptr<Press>> m_handling;  // innermost last
  std::unique_ptr<Press> m_made;                   // by BeginTracking outside of a press
  QPointer<QWidget> m_openPress;  // has its press natively, and will have the rest after the handler
  std::vector<KeyUnderWay> m_keys;
  std::vector<KeyReceiver> m_keyReceivers;
  std::map<int, QPointer<QWidget>> m_keysDown;  // Qt key: the widget that has its press
  QPoint m_lastPosition;
  QTimer m_activation;
  WindowRef m_activated = nullptr;  // by the window manager, not told yet
  int m_sending = 0;
  int m_settingFocus = 0;
  int m_popupKey = 0;             // Qt key whose press a popup has begun to handle
  bool m_windowHasPress = false;  // the event under way came through the window system
  bool m_wakeUpPosted = false;
};

}  // namespace ui

#endif  // GRADIX_EVENTQUEUE_H

#include "Platform/Qt/QtControl.h"

#include <QButtonGroup>
#include <QCheckBox>
#include <QComboBox>
#include <QFrame>
#include <QGroupBox>
#include <QItemSelectionModel>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <algorithm>
#include <memory>

#include "Platform/Qt/EventQueue.h"
#include "Platform/Qt/QtLabel.h"
#include "Platform/Qt/QtListView.h"
#include "Platform/Qt/QtText.h"

namespace ui {

namespace {

// A press anywhere in the item's rectangle is for it.
class CheckBox : public QCheckBox {
 public:
  using QCheckBox::QCheckBox;

 protected:
  bool hitButton(const QPoint& where) const override { return rect().contains(where); }
};

// Leaves it to the program which radio buttons exclude each other: it is alone in a group that excludes none.
// Without autoExclusive, it would be a check box to assistive technology.
class RadioButton : public QRadioButton {
 public:
  explicit RadioButton(QWidget* parent) : QRadioButton(parent), m_group(this) {
    m_group.setExclusive(false);
    m_group.addButton(this);
  }

 protected:
  void nextCheckState() override { setChecked(true); }
  bool hitButton(const QPoint& where) const override { return rect().contains(where); }

 private:
  QButtonGroup m_group;
};

QWidget* _MakeEdit(QWidget* parent) {
  auto* const edit = new QLineEdit(parent);
  edit->setDragEnabled(false);
  return edit;
}

QWidget* _MakeSeparator(QWidget* parent) {
  auto* const line = new QFrame(parent);
  line->setFrameStyle(static_cast<int>(QFrame::HLine) | static_cast<int>(QFrame::Sunken));
  return line;
}

QWidget* _MakePushButton(QWidget* parent) {
  auto* const button = new QPushButton(parent);
  button->setAutoDefault(false);
  return button;
}

QWidget* _MakePane(QWidget* parent) {
  auto* const pane = new QWidget(parent);
  pane->setAttribute(Qt::WA_TransparentForMouseEvents);
  return pane;
}

QWidget* _MakeWidget(ControlKind kind, QWidget* parent) {
  switch (kind) {
    case kControlKindPushButton: return _MakePushButton(parent);
    case kControlKindCheckBox: return new CheckBox(parent);
    case kControlKindRadioButton: return new RadioButton(parent);
    case kControlKindStaticText: return new QtLabel(parent);
    case kControlKindEditText: return _MakeEdit(parent);
    case kControlKindPopupButton: return new QComboBox(parent);
    case kControlKindListBox: return new QtListView(parent);
    case kControlKindGroupBox: return new QGroupBox(parent);
    case kControlKindSeparator: return _MakeSeparator(parent);
    default: return _MakePane(parent);
  }
}

}  // namespace

bool IsInteractive(ControlKind kind) {
  switch (kind) {
    case kControlKindPushButton:
    case kControlKindCheckBox:
    case kControlKindRadioButton:
    case kControlKindEditText:
    case kControlKindPopupButton:
    case kControlKindListBox: return true;
    default: return false;
  }
}

namespace {

void _SetPressed(ControlRef ref, bool pressed) {
  if (ControlRecord* const control = FindControl(ref)) control->pressed = pressed;
}

// A click toggles between pressed() and clicked(); a toggle alone comes from assistive technology.
void _OnToggled(QAbstractButton* button, ControlRef ref, bool on) {
  const ControlRecord* const control = FindControl(ref);
  if (control == nullptr || Quiet::IsOn()) return;
  if (!on && control->kind == kControlKindRadioButton) {
    const Quiet quiet;
    button->setChecked(true);
  }
  if (!control->pressed) EventQueue::Get().Acted(ref);
}

void _ConnectButton(QAbstractButton* button, ControlRef ref) {
  QObject::connect(button, &QAbstractButton::pressed, button, [ref] { _SetPressed(ref, true); });
  QObject::connect(button, &QAbstractButton::released, button, [ref] { _SetPressed(ref, false); });
  QObject::connect(button, &QAbstractButton::toggled, button,
                   [button, ref](bool on) { _OnToggled(button, ref, on); });
  QObject::connect(button, &QAbstractButton::clicked, button, [ref] { EventQueue::Get().Acted(ref); });
}

void _Connect(QWidget* widget, ControlRef ref) {
  const auto acted = [ref] { EventQueue::Get().Acted(ref); };
  if (auto* const button = qobject_cast<QAbstractButton*>(widget)) {
    _ConnectButton(button, ref);
  } else if (auto* const edit = qobject_cast<QLineEdit*>(widget)) {
    QObject::connect(edit, &QLineEdit::textChanged, edit, acted);
  } else if (auto* const combo = qobject_cast<QComboBox*>(widget)) {
    QObject::connect(combo, &QComboBox::currentIndexChanged, combo, acted);
  } else if (auto* const list = dynamic_cast<QtListView*>(widget)) {
    list->SetControl(ref);
    QObject::connect(list->selectionModel(), &QItemSelectionModel::selectionChanged, list, acted);
  }
}

}  // namespace

ControlRecord* CreateControl(WindowRecord* window, ControlKind kind, const Rect& bounds, int itemNumber) {
  QWidget* const widget = _MakeWidget(kind, window->widget);
  ControlRecord* const control = AddControlRecord(window, widget, kind);
  widget->setObjectName(QStringLiteral("item%1").arg(itemNumber));
  widget->setFocusPolicy(IsInteractive(kind) ? Qt::TabFocus : Qt::NoFocus);
  _Connect(widget, control->ref);
  EventQueue::Get().Watch(widget);
  PlaceControl(*control, bounds);
  if (kind == kControlKindGroupBox) widget->lower();
  widget->show();
  return control;
}

namespace {

// One line stands in the middle, as in the controls beside it.
void _AlignLabel(QLabel* label) {
  const bool isOneLine = label->height() < 2 * label->fontMetrics().lineSpacing();
  label->setAlignment((isOneLine ? Qt::AlignVCenter : Qt::AlignTop) | Qt::AlignLeft);
}

}  // namespace

void PlaceControl(ControlRecord& control, const Rect& bounds) {
  control.bounds = bounds;
  control.widget->setGeometry(bounds.left, bounds.top, std::max(bounds.right - bounds.left, 0),
                              std::max(bounds.bottom - bounds.top, 0));
  if (auto* const label = qobject_cast<QLabel*>(control.widget.data())) _AlignLabel(label);
}

namespace {

// A label without a buddy takes no mark for a shortcut.
void _ShowText(const ControlRecord& control, QString text) {
  QWidget* const widget = control.widget;
  if (auto* const button = qobject_cast<QAbstractButton*>(widget)) {
    button->setText(LiteralWithShortcut(text, control.shortcut));
  } else if (auto* const group = qobject_cast<QGroupBox*>(widget)) {
    group->setTitle(Literal(text));
  } else if (auto* const label = qobject_cast<QLabel*>(widget)) {
    text.replace(QLatin1Char('\r'), QLatin1Char('\n'));
    label->setText(label->buddy() != nullptr ? Literal(text) : text);
  }
}

}  // namespace

void ShowControlText(ControlRecord& control) {
  const QString text = FromMacRoman(control.text);
  _ShowText(control, text);
  control.widget->setAccessibleName(text.isEmpty() ? FromMacRoman(control.label) : text);
}

}  // namespace ui

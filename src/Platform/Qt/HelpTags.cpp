#include "Platform/Ui/HelpTags.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QStyle>
#include <QStyleOption>
#include <QTextDocument>
#include <QToolTip>
#include <algorithm>
#include <limits>

#include "Platform/Qt/QtHelpTags.h"
#include "Platform/Qt/QtLabel.h"
#include "Platform/Qt/QtRegistry.h"
#include "Platform/Qt/QtText.h"

namespace ui {

HelpTags::HelpTags() {
  m_timer.setSingleShot(true);
  connect(&m_timer, &QTimer::timeout, this, [this] { Show(); });
}

// Lives as long as the process.
HelpTags& HelpTags::Get() {
  static auto* const tags = new HelpTags;
  return *tags;
}

void HelpTags::MouseMoved(QWidget* widget, QPoint position) {
  if (position == m_position && widget == m_widget) return;
  Cancel();
  const ControlRecord* const control = FindControlOf(widget);
  if (control == nullptr) return;
  m_widget = widget;
  m_position = position;
  m_timer.start(m_delay);
}

void HelpTags::Cancel() {
  m_timer.stop();
  if (!m_widget.isNull()) QToolTip::hideText();
  m_widget.clear();
}

namespace {

bool _IsCut(const QComboBox& combo) {
  QStyleOptionComboBox option;
  option.initFrom(&combo);
  option.editable = false;
  const QRect field =
      combo.style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, &combo);
  return combo.fontMetrics().horizontalAdvance(combo.currentText()) > field.width();
}

// The whole of a text that the control shows shortened at that place of the screen; else empty.
QString _CutText(QWidget* control, QPoint position) {
  if (const auto* const view = qobject_cast<const QAbstractItemView*>(control)) {
    return view->indexAt(view->viewport()->mapFromGlobal(position)).data(Qt::ToolTipRole).toString();
  }
  if (const auto* const label = dynamic_cast<const QtLabel*>(control)) return label->CutText();
  const auto* const combo = qobject_cast<const QComboBox*>(control);
  return combo != nullptr && _IsCut(*combo) ? combo->currentText() : QString();
}

}  // namespace

void HelpTags::Show() {
  const ControlRecord* const control = FindControlOf(m_widget);
  if (control == nullptr || !m_widget->isVisible() || m_widget->window()->isHidden()) return;
  QString text = _CutText(control->widget, m_position);
  if (text.isEmpty()) text = control->widget->toolTip();
  if (text.isEmpty()) return;
  // Shown literally all the same. Only rich text is broken into lines.
  constexpr qsizetype kLong = 100;
  if (text.size() > kLong || Qt::mightBeRichText(text)) {
    text = QStringLiteral("<p>") + text.toHtmlEscaped();
  }
  QToolTip::showText(m_position, text, m_widget);
}

namespace {

void _TrackMouse(QWidget* widget) {
  widget->setMouseTracking(true);
  for (QObject* const child : widget->children()) {
    if (child->isWidgetType()) _TrackMouse(static_cast<QWidget*>(child));
  }
}

}  // namespace

}  // namespace ui

void HMSetControlHelpContent(ControlRef control, const std::string& text) {
  ui::ControlRecord* const record = ui::FindControl(control);
  if (record == nullptr) return;
  record->help = text;
  const QString shown = ui::FromMacRoman(text);
  record->widget->setToolTip(shown);
  record->widget->setAccessibleDescription(shown);
  if (!text.empty()) ui::_TrackMouse(record->widget);
}

void HMSetTagDelay(uint32_t milliseconds) {
  constexpr uint32_t kLongest = std::numeric_limits<int>::max();
  ui::HelpTags::Get().SetDelay(static_cast<int>(std::min(milliseconds, kLongest)));
}

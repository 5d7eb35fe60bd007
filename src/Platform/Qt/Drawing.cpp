#include "Platform/Ui/Drawing.h"

#include <QApplication>
#include <QFontMetrics>
#include <QStyle>
#include <QStyleOptionButton>
#include <algorithm>
#include <string>

#include "Platform/Qt/QtDrawing.h"
#include "Platform/Qt/QtRegistry.h"
#include "Platform/Qt/QtText.h"
#include "Platform/Ui/Events.h"

namespace ui {

QRect ToQRect(const Rect& rect) {
  return {rect.left, rect.top, rect.right - rect.left, rect.bottom - rect.top};
}

Rect ToRect(const QRect& rect) {
  return {ToInt16(rect.top()), ToInt16(rect.left()), ToInt16(rect.top() + rect.height()),
          ToInt16(rect.left() + rect.width())};
}

}  // namespace ui

namespace {

QStyle* _StyleOf(const DrawContext& context) {
  return context.widget != nullptr ? context.widget->style() : QApplication::style();
}

QStyleOptionViewItem _OptionFor(const DrawContext& context, const Rect& bounds, DrawState state) {
  QStyleOptionViewItem option = *context.option;
  option.rect = ui::ToQRect(bounds);
  option.state.setFlag(QStyle::State_Selected, state.selected);
  option.state.setFlag(QStyle::State_Enabled, state.active);
  option.state.setFlag(QStyle::State_HasFocus, state.focused);
  return option;
}

}  // namespace

// The current row of a list with the keyboard has the focus mark as well.
void DrawThemeRow(DrawContext* context, const Rect& bounds, DrawState state) {
  if (context == nullptr) return;
  const QStyleOptionViewItem option = _OptionFor(*context, bounds, state);
  QStyle* const style = _StyleOf(*context);
  style->drawPrimitive(QStyle::PE_PanelItemViewItem, &option, context->painter, context->widget);
  if (!state.focused || !context->option->state.testFlag(QStyle::State_HasFocus)) return;
  QStyleOptionFocusRect focus;
  focus.QStyleOption::operator=(option);
  focus.state |= QStyle::State_KeyboardFocusChange | QStyle::State_Item;
  focus.backgroundColor = option.palette.color(state.selected ? QPalette::Highlight : QPalette::Base);
  style->drawPrimitive(QStyle::PE_FrameFocusRect, &focus, context->painter, context->widget);
}

namespace {

QPalette::ColorGroup _ColorGroup(const DrawContext& context, DrawState state) {
  if (!state.active) return QPalette::Disabled;
  return context.option->state.testFlag(QStyle::State_Active) ? QPalette::Normal : QPalette::Inactive;
}

}  // namespace

void DrawThemeText(DrawContext* context, std::string_view text, const Rect& bounds, DrawState state) {
  if (context == nullptr) return;
  const QRect place = ui::ToQRect(bounds);
  const QPalette::ColorRole role = state.selected ? QPalette::HighlightedText : QPalette::Text;
  QPainter& painter = *context->painter;
  painter.save();
  painter.setFont(context->option->font);
  painter.setPen(context->option->palette.color(_ColorGroup(*context, state), role));
  const QString whole = ui::FromMacRoman(text);
  const QString shown =
      QFontMetrics(painter.font()).elidedText(whole, Qt::ElideRight, std::max(place.width(), 0));
  context->isCut = context->isCut || shown != whole;
  painter.drawText(place, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, shown);
  painter.restore();
}

namespace {

// An edge in the colour of the text: styles draw theirs after the window's colour, which in a dark theme is
// hardly seen on a list.
void _DrawCheckBoxEdge(const DrawContext& context, const QRect& place, DrawState state) {
  constexpr int kAlpha = 120;
  const QPalette::ColorRole role = state.selected ? QPalette::HighlightedText : QPalette::Text;
  QColor colour = context.option->palette.color(_ColorGroup(context, state), role);
  colour.setAlpha(kAlpha);
  context.painter->save();
  context.painter->setPen(colour);
  context.painter->setBrush(Qt::NoBrush);
  context.painter->drawRect(place.adjusted(0, 0, -1, -1));
  context.painter->restore();
}

}  // namespace

void DrawThemeCheckBox(DrawContext* context, const Rect& bounds, bool checked, DrawState state) {
  if (context == nullptr) return;
  QStyleOptionViewItem option = _OptionFor(*context, bounds, state);
  option.state.setFlag(QStyle::State_HasFocus, false);
  option.state.setFlag(checked ? QStyle::State_On : QStyle::State_Off);
  option.features |= QStyleOptionViewItem::HasCheckIndicator;
  option.checkState = checked ? Qt::Checked : Qt::Unchecked;
  _StyleOf(*context)->drawPrimitive(QStyle::PE_IndicatorItemViewItemCheck, &option, context->painter,
                                    context->widget);
  _DrawCheckBoxEdge(*context, option.rect, state);
}

Point GetThemeCheckBoxSize() {
  if (!InitApplication()) return {};
  const QStyle* const style = QApplication::style();
  return {ui::ToInt16(style->pixelMetric(QStyle::PM_IndicatorHeight)),
          ui::ToInt16(style->pixelMetric(QStyle::PM_IndicatorWidth))};
}

namespace {

Point _Measure(std::string_view text, const QFont& font) {
  const QFontMetrics metrics(font);
  QString shown = ui::FromMacRoman(text);
  shown.replace(QLatin1Char('\r'), QLatin1Char('\n'));
  int width = 0;
  int lines = 0;
  for (const QString& line : shown.split(QLatin1Char('\n'))) {
    width = std::max(width, metrics.horizontalAdvance(line));
    ++lines;
  }
  return {ui::ToInt16(metrics.height() + (lines - 1) * metrics.lineSpacing()), ui::ToInt16(width)};
}

}  // namespace

Point GetThemeTextDimensions(std::string_view text, int16_t themeFont, bool /*active*/) {
  if (!InitApplication()) return {};
  const int size = themeFont > 0 ? -themeFont : themeFont;
  return _Measure(text, ui::FontOf(0, ui::ToInt16(size)));
}

Point MeasurePortText(WindowRef window, std::string_view text, int16_t font, int16_t size) {
  if (ui::FindWindow(window) == nullptr) return {};
  return _Measure(text, ui::FontOf(font, size));
}

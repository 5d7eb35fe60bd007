#include "Host/ClassView/FrozenColumnView.h"

#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <QStyleOptionHeader>
#include <algorithm>

namespace host {

namespace {

constexpr int kFrozen = FrozenColumnView::kFrozenColumn;

}  // namespace

FrozenColumnHeader::FrozenColumnHeader(QWidget* parent) : QHeaderView(Qt::Horizontal, parent) {
  setSectionsClickable(true);
  setHighlightSections(true);
}

int FrozenColumnHeader::ShiftAt(int x) const {
  const bool isFrozen = count() > 0 && x >= 0 && x < sectionSize(kFrozen);
  return isFrozen ? sectionViewportPosition(kFrozen) : 0;
}

QMouseEvent FrozenColumnHeader::Shifted(const QMouseEvent& event) const {
  return {event.type(),          event.position() + QPointF(m_shift, 0),
          event.scenePosition(), event.globalPosition(),
          event.button(),        event.buttons(),
          event.modifiers(),     event.pointingDevice()};
}

void FrozenColumnHeader::mousePressEvent(QMouseEvent* event) {
  m_shift = ShiftAt(event->pos().x());
  QMouseEvent shifted = Shifted(*event);
  QHeaderView::mousePressEvent(&shifted);
}

void FrozenColumnHeader::mouseMoveEvent(QMouseEvent* event) {
  if (event->buttons() == Qt::NoButton) m_shift = ShiftAt(event->pos().x());
  QMouseEvent shifted = Shifted(*event);
  QHeaderView::mouseMoveEvent(&shifted);
}

void FrozenColumnHeader::mouseReleaseEvent(QMouseEvent* event) {
  QMouseEvent shifted = Shifted(*event);
  QHeaderView::mouseReleaseEvent(&shifted);
}

void FrozenColumnHeader::mouseDoubleClickEvent(QMouseEvent* event) {
  m_shift = ShiftAt(event->pos().x());
  QMouseEvent shifted = Shifted(*event);
  QHeaderView::mouseDoubleClickEvent(&shifted);
}

bool FrozenColumnHeader::viewportEvent(QEvent* event) {
  if (event->type() != QEvent::ToolTip) return QHeaderView::viewportEvent(event);
  const auto* const help = static_cast<QHelpEvent*>(event);
  const QPoint shift(ShiftAt(help->pos().x()), 0);
  QHelpEvent shifted(QEvent::ToolTip, help->pos() + shift, help->globalPos());
  return QHeaderView::viewportEvent(&shifted);
}

void FrozenColumnHeader::paintEvent(QPaintEvent* event) {
  QHeaderView::paintEvent(event);
  if (count() == 0 || offset() == 0) return;
  QPainter painter(viewport());
  const QRect area(0, 0, sectionSize(kFrozen), viewport()->height());
  painter.setClipRect(area);
  paintSection(&painter, area, kFrozen);
}

// The style would draw it at the section's edge, where it seems to belong to the title before.
void FrozenColumnHeader::initStyleOptionForIndex(QStyleOptionHeader* option, int section) const {
  QHeaderView::initStyleOptionForIndex(option, section);
  option->icon = {};
}

void FrozenColumnHeader::paintSection(QPainter* painter, const QRect& rect, int section) const {
  painter->save();
  QHeaderView::paintSection(painter, rect, section);
  painter->restore();  // the style leaves a clip that lets nothing through
  const auto icon = model()->headerData(section, orientation(), Qt::DecorationRole).value<QIcon>();
  if (icon.isNull()) return;
  QStyleOptionHeader option;
  initStyleOption(&option);
  initStyleOptionForIndex(&option, section);
  option.rect = rect;
  const QRect label = style()->subElementRect(QStyle::SE_HeaderLabel, &option, this);
  QFont bold = font();  // as the title of the current column is
  bold.setBold(true);
  const int side = fontMetrics().height();
  const int gap = side / 4;
  const bool isRight = option.textAlignment.testFlag(Qt::AlignRight);
  const int before = label.right() - QFontMetrics(bold).horizontalAdvance(option.text) - gap - side;
  const int left = isRight ? std::max(before, label.left() + gap) : label.right() - side;
  icon.paint(painter, left, label.center().y() - side / 2, side, side);
}

FrozenColumnView::FrozenColumnView(QWidget* parent)
    : QTableView(parent), m_header(new FrozenColumnHeader(this)) {
  setHorizontalHeader(m_header);
  setHorizontalScrollMode(ScrollPerPixel);
}

QRect FrozenColumnView::FrozenArea() const {
  const int width = m_header->count() > 0 ? columnWidth(kFrozen) : 0;
  return {0, 0, width, viewport()->height()};
}

QModelIndex FrozenColumnView::indexAt(const QPoint& point) const {
  if (point.x() < 0 || point.x() >= FrozenArea().width()) return QTableView::indexAt(point);
  return model()->index(rowAt(point.y()), kFrozen);
}

QRect FrozenColumnView::visualRect(const QModelIndex& index) const {
  QRect rect = QTableView::visualRect(index);
  if (index.isValid() && index.column() == kFrozen) rect.moveLeft(0);
  return rect;
}

void FrozenColumnView::scrollTo(const QModelIndex& index, ScrollHint hint) {
  QScrollBar* const bar = horizontalScrollBar();
  const int before = bar->value();
  QTableView::scrollTo(index, hint);
  if (!index.isValid()) return;
  if (index.column() == kFrozen) return bar->setValue(before);
  const int covered = FrozenArea().width() - columnViewportPosition(index.column());
  if (covered > 0) bar->setValue(bar->value() - covered);
}

QRegion FrozenColumnView::visualRegionForSelection(const QItemSelection& selection) const {
  return QTableView::visualRegionForSelection(selection) + FrozenArea();
}

// The scrolled pixels include those of the first column.
void FrozenColumnView::scrollContentsBy(int dx, int dy) {
  QTableView::scrollContentsBy(dx, dy);
  if (dx == 0) return;
  viewport()->update();
  m_header->viewport()->update();
}

void FrozenColumnView::paintEvent(QPaintEvent* event) {
  QTableView::paintEvent(event);
  const QRect area = FrozenArea() & event->rect();
  if (IsScrolled() && !area.isEmpty()) PaintFrozen(area);
}

void FrozenColumnView::PaintFrozen(const QRect& area) {
  QPainter painter(viewport());
  painter.setClipRect(area);
  painter.fillRect(area, palette().brush(viewport()->backgroundRole()));
  QStyleOptionViewItem option;
  initViewItemOption(&option);
  const int first = rowAt(area.top());
  if (first < 0) return;
  const int last = rowAt(area.bottom());
  for (int row = first; row <= (last < 0 ? model()->rowCount() - 1 : last); ++row) {
    PaintCell(&painter, option, row);
  }
  // The others go below it.
  painter.setPen(palette().color(QPalette::Disabled, QPalette::Text));
  const int right = FrozenArea().right();
  const int bottom = last < 0 ? verticalHeader()->length() - verticalOffset() - 1 : area.bottom();
  painter.drawLine(right, area.top(), right, bottom);
}

// As the other cells are drawn.
void FrozenColumnView::PaintCell(QPainter* painter, QStyleOptionViewItem option, int row) const {
  const QModelIndex index = model()->index(row, kFrozen);
  option.rect = visualRect(index);
  if (alternatingRowColors() && row % 2 == 1) option.features |= QStyleOptionViewItem::Alternate;
  if (selectionModel()->isSelected(index)) option.state |= QStyle::State_Selected;
  if (index == currentIndex() && hasFocus()) option.state |= QStyle::State_HasFocus;
  style()->drawPrimitive(QStyle::PE_PanelItemViewRow, &option, painter, this);
  itemDelegateForIndex(index)->paint(painter, option, index);
  const int grid = style()->styleHint(QStyle::SH_Table_GridLineColor, &option, this);
  painter->setPen(QColor::fromRgba(static_cast<QRgb>(grid)));
  const int bottom = rowViewportPosition(row) + rowHeight(row) - 1;
  painter->drawLine(0, bottom, option.rect.right() + 1, bottom);
}

}  // namespace host

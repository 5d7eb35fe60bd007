#include "Host/Findings/FindingDelegate.h"

#include <QApplication>
#include <QHeaderView>
#include <QPainter>
#include <QTextLayout>
#include <QTreeView>
#include <algorithm>
#include <cmath>

namespace host {

namespace {

// The places of a row's parts, from the row's left upper corner.
struct RowLayout {
  QRect icon;
  QPointF text;
  int height = 0;
};

// The row's text in lines, in `layout`.
qreal _BreakIntoLines(QTextLayout* layout, int width) {
  qreal height = 0;
  layout->beginLayout();
  for (QTextLine line = layout->createLine(); line.isValid(); line = layout->createLine()) {
    line.setLineWidth(width);
    line.setPosition({0, height});
    height += line.height();
  }
  layout->endLayout();
  return height;
}

// Below a top row the text begins where that row's does, `indentation` to the right.
RowLayout _LayOut(const QStyleOptionViewItem& option, int indentation, int width, QTextLayout* layout) {
  const bool isTop = indentation == 0;
  const int margin = option.fontMetrics.height() / 4;
  const int side = option.fontMetrics.height() * 3 / 2;
  const int left = std::max(margin, side + 3 * margin - indentation);

  layout->setText(option.text);
  layout->setFont(option.font);
  QTextOption wrapping;
  wrapping.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
  layout->setTextOption(wrapping);
  const qsizetype firstLine = option.text.indexOf(QChar::LineSeparator);
  if (isTop && firstLine > 0) {
    QTextCharFormat bold;
    bold.setFontWeight(QFont::Bold);
    layout->setFormats({{0, static_cast<int>(firstLine), bold}});
  }
  const qreal textHeight = _BreakIntoLines(layout, std::max(1, width - left - margin));
  const int top = isTop ? margin : margin / 2;
  return {.icon = {margin, top, side, side},
          .text = QPointF(left, top),
          .height = std::max(static_cast<int>(std::ceil(textHeight)), isTop ? side : 0) + 2 * top};
}

}  // namespace

FindingDelegate::FindingDelegate(QTreeView* view) : QStyledItemDelegate(view), m_view(view) {
  // The heights depend on the width.
  connect(view->header(), &QHeaderView::sectionResized, this, [this] { emit sizeHintChanged({}); });
}

int FindingDelegate::IndentationOf(const QModelIndex& index) const {
  return index.parent().isValid() ? m_view->indentation() : 0;
}

QSize FindingDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const {
  QStyleOptionViewItem item = option;
  initStyleOption(&item, index);
  const int indentation = IndentationOf(index);
  const int width = m_view->columnWidth(0) - m_view->indentation() - indentation;
  QTextLayout layout;
  return {width, _LayOut(item, indentation, width, &layout).height};
}

void FindingDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                            const QModelIndex& index) const {
  QStyleOptionViewItem item = option;
  initStyleOption(&item, index);
  QTextLayout layout;
  const RowLayout row = _LayOut(item, IndentationOf(index), item.rect.width(), &layout);
  const QIcon icon = item.icon;

  // The style draws the row and its focus.
  item.text.clear();
  item.icon = {};
  const QStyle* const style = m_view->style();
  style->drawControl(QStyle::CE_ItemViewItem, &item, painter, m_view);

  painter->save();
  painter->setClipRect(item.rect);
  icon.paint(painter, row.icon.translated(item.rect.topLeft()), Qt::AlignTop);
  const bool isSelected = item.state.testFlag(QStyle::State_Selected);
  const QPalette::ColorGroup group =
      item.state.testFlag(QStyle::State_Active) ? QPalette::Active : QPalette::Inactive;
  painter->setPen(item.palette.color(group, isSelected ? QPalette::HighlightedText : QPalette::Text));
  layout.draw(painter, row.text + item.rect.topLeft());
  painter->restore();
}

}  // namespace host

#include "Host/ClassView/ColumnWidth.h"

#include <QHeaderView>
#include <QStyle>
#include <QTableView>
#include <algorithm>

namespace host {

namespace {

constexpr int kSampledRows = 50;

int _CellWidth(const QTableView& view, const QModelIndex& index) {
  const int margin = view.style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, &view) + 1;
  const int text = view.fontMetrics().horizontalAdvance(index.data().toString()) + 2 * margin;
  const bool hasIcon = index.data(Qt::DecorationRole).isValid();
  return hasIcon ? text + view.iconSize().width() + 2 * margin : text;
}

}  // namespace

int FittingColumnWidth(const QTableView& view, int column) {
  const QAbstractItemModel& model = *view.model();
  int width = view.horizontalHeader()->sectionSizeHint(column);
  const int rows = model.rowCount();
  const int sampled = std::min(rows, kSampledRows);
  for (int i = 0; i < sampled; ++i) {
    const auto row = static_cast<int>(static_cast<long long>(i) * rows / sampled);
    width = std::max(width, _CellWidth(view, model.index(row, column)));
  }
  return width + view.fontMetrics().height() / 2;  // a title does not touch the next
}

}  // namespace host

#include "Host/ClassView/ClassOrder.h"

#include <QCollator>
#include <algorithm>
#include <cmath>
#include <numeric>
#include <optional>

#include "Host/App/Texts.h"
#include "Host/ClassView/ClassTableModel.h"

namespace host {

namespace {

// A number is worth itself. A text's is the number of different ones before it.
using Worth = std::optional<double>;

std::vector<Worth> _WorthOfTexts(const std::vector<QString>& texts) {
  QCollator collator{QLocale()};
  collator.setCaseSensitivity(Qt::CaseInsensitive);
  collator.setNumericMode(true);
  std::vector<QCollatorSortKey> keys;
  keys.reserve(texts.size());
  for (const QString& text : texts) keys.push_back(collator.sortKey(text));
  std::vector<size_t> sorted(texts.size());
  std::iota(sorted.begin(), sorted.end(), size_t{0});
  std::sort(sorted.begin(), sorted.end(), [&keys](size_t a, size_t b) { return keys[a] < keys[b]; });
  std::vector<Worth> found(texts.size());
  double worth = 0;
  for (size_t i = 0; i < sorted.size(); ++i) {
    if (i > 0 && keys[sorted[i - 1]] < keys[sorted[i]]) ++worth;
    if (!texts[sorted[i]].isEmpty()) found[sorted[i]] = worth;
  }
  return found;
}

std::vector<Worth> _WorthOf(const QAbstractItemModel& model, int column) {
  std::vector<Worth> numbers;
  std::vector<QString> texts;
  for (int row = 0; row < model.rowCount(); ++row) {
    const QVariant value = model.index(row, column).data(ClassTableModel::kValueRole);
    if (column < ClassTableModel::kFirstAssignmentColumn) {
      texts.push_back(value.toString());
    } else {
      const bool isNumber = value.isValid() && !std::isnan(value.toDouble());
      numbers.push_back(isNumber ? Worth(value.toDouble()) : Worth());
    }
  }
  return column < ClassTableModel::kFirstAssignmentColumn ? _WorthOfTexts(texts) : numbers;
}

// The rows as they stand one below the other.
std::vector<int> _Sorted(const std::vector<Worth>& worths, Qt::SortOrder order) {
  std::vector<int> rows(worths.size());
  std::iota(rows.begin(), rows.end(), 0);
  std::stable_sort(rows.begin(), rows.end(), [&](int a, int b) {
    const Worth& left = worths[static_cast<size_t>(a)];
    const Worth& right = worths[static_cast<size_t>(b)];
    if (!left || !right) return left.has_value() && !right.has_value();
    return order == Qt::AscendingOrder ? *left < *right : *right < *left;
  });
  return rows;
}

}  // namespace

ClassOrder::ClassOrder(QObject* parent) : QSortFilterProxyModel(parent) {
  setDynamicSortFilter(false);
}

void ClassOrder::sort(int column, Qt::SortOrder order) {
  m_places.clear();
  if (column >= 0 && sourceModel() != nullptr && column < sourceModel()->columnCount()) {
    const std::vector<int> rows = _Sorted(_WorthOf(*sourceModel(), column), order);
    m_places.resize(rows.size());
    int place = 0;
    for (const int row : rows) m_places[static_cast<size_t>(row)] = place++;
  }
  QSortFilterProxyModel::sort(column, column < 0 ? Qt::AscendingOrder : order);
}

// The places are already those of a descending order, which is asked backwards.
bool ClassOrder::lessThan(const QModelIndex& left, const QModelIndex& right) const {
  const auto placeOf = [this](const QModelIndex& index) {
    const auto row = static_cast<size_t>(index.row());
    return row < m_places.size() ? m_places[row] : index.row();
  };
  return sortOrder() == Qt::AscendingOrder ? placeOf(left) < placeOf(right) : placeOf(right) < placeOf(left);
}

QVariant ClassOrder::headerData(int section, Qt::Orientation orientation, int role) const {
  QVariant data = QSortFilterProxyModel::headerData(section, orientation, role);
  if (orientation != Qt::Horizontal || role != Qt::AccessibleTextRole) return data;
  if (section < 0 || section != sortColumn()) return data;
  return (sortOrder() == Qt::AscendingOrder ? Texts::tr("%1, sorted ascending")
                                            : Texts::tr("%1, sorted descending"))
      .arg(data.toString());
}

}  // namespace host

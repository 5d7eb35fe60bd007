#include "Host/Findings/RowItem.h"

namespace host {

QStandardItem* MakeRowItem(const QString& title, const QStringList& lines) {
  auto* const item = new QStandardItem((QStringList(title) + lines).join(u'\n'));
  const QString spoken = lines.isEmpty() ? title : title + QLatin1String(": ") + lines.join(u' ');
  item->setData(spoken, Qt::AccessibleTextRole);
  item->setEditable(false);
  return item;
}

}  // namespace host

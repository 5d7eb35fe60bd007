// A row of a tree that FindingDelegate draws.
#ifndef GRADIX_ROWITEM_H
#define GRADIX_ROWITEM_H

#include <QStandardItem>
#include <QString>
#include <QStringList>

namespace host {

// A title and what follows it: for the eye in lines, for a screen reader in one. Whoever calls it owns the
// item.
QStandardItem* MakeRowItem(const QString& title, const QStringList& lines = {});

}  // namespace host

#endif  // GRADIX_ROWITEM_H

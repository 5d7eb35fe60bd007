// How wide the columns of a table are to be.
#ifndef GRADIX_COLUMNWIDTH_H
#define GRADIX_COLUMNWIDTH_H

class QTableView;

namespace host {

// Wide enough for the column's heading and those of its cells that are looked at, which are not all.
int FittingColumnWidth(const QTableView& view, int column);

}  // namespace host

#endif  // GRADIX_COLUMNWIDTH_H

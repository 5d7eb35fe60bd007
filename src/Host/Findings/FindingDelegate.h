// Draws the rows of a tree in as many lines as they need, the first line of a top row bold.
#ifndef GRADIX_FINDINGDELEGATE_H
#define GRADIX_FINDINGDELEGATE_H

#include <QStyledItemDelegate>

class QTreeView;

namespace host {

// Of a tree of one column, which is as wide as the view, and two levels.
class FindingDelegate : public QStyledItemDelegate {
 public:
  explicit FindingDelegate(QTreeView* view);

  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
  void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;

 private:
  int IndentationOf(const QModelIndex& index) const;  // behind a top row

  const QTreeView* m_view;
};

}  // namespace host

#endif  // GRADIX_FINDINGDELEGATE_H

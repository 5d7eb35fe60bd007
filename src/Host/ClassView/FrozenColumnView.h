// A table whose first column stays where it is while the others scroll past it.
#ifndef GRADIX_FROZENCOLUMNVIEW_H
#define GRADIX_FROZENCOLUMNVIEW_H

#include <QHeaderView>
#include <QTableView>

namespace host {

// The headings of such a table. A heading's icon stands close to its text.
class FrozenColumnHeader : public QHeaderView {
 public:
  explicit FrozenColumnHeader(QWidget* parent);

  // The section that is seen at `x` of the viewport; -1 when there is none.
  int SectionAt(int x) const { return logicalIndexAt(x + ShiftAt(x)); }

 protected:
  bool viewportEvent(QEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void paintSection(QPainter* painter, const QRect& rect, int section) const override;
  void initStyleOptionForIndex(QStyleOptionHeader* option, int section) const override;

 private:
  int ShiftAt(int x) const;  // from where the section is seen to where it has been scrolled to
  QMouseEvent Shifted(const QMouseEvent& event) const;

  int m_shift = 0;  // of a press, until its release
};

// One view, which draws the first column over the others: whoever reads the table, by eye or by a screen
// reader, meets each of its cells once. The columns keep the model's order.
class FrozenColumnView : public QTableView {
 public:
  static constexpr int kFrozenColumn = 0;

  explicit FrozenColumnView(QWidget* parent);

  FrozenColumnHeader* Header() const { return m_header; }

  QModelIndex indexAt(const QPoint& point) const override;
  QRect visualRect(const QModelIndex& index) const override;
  // Never below the first column, which itself does not scroll the others.
  void scrollTo(const QModelIndex& index, ScrollHint hint = EnsureVisible) override;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void scrollContentsBy(int dx, int dy) override;
  QRegion visualRegionForSelection(const QItemSelection& selection) const override;

 private:
  QRect FrozenArea() const;  // of the viewport
  bool IsScrolled() const { return m_header->offset() > 0; }
  void PaintFrozen(const QRect& area);
  void PaintCell(QPainter* painter, QStyleOptionViewItem option, int row) const;

  FrozenColumnHeader* m_header;
};

}  // namespace host

#endif  // GRADIX_FROZENCOLUMNVIEW_H

// The open class as a table: names that stay while the rest scrolls, sorted by any column, searched by
// Ctrl+F.
#ifndef GRADIX_CLASSTABLE_H
#define GRADIX_CLASSTABLE_H

#include <QPersistentModelIndex>
#include <QWidget>
#include <functional>
#include <memory>
#include <vector>

#include "Host/ClassView/ClassOrder.h"
#include "Host/ClassView/ClassReader.h"
#include "Host/ClassView/ClassTableModel.h"
#include "Host/ClassView/ProblemMarks.h"
#include "Host/ClassView/TextSearch.h"

class QItemSelection;
class QLabel;

namespace host {

class FindBar;
class FrozenColumnView;

// Students and assignments are positions in the record, in whatever order they are shown.
class ClassTable : public QWidget {
 public:
  // `selected` is called with the assignment whose column the user has come to, by whichever way but
  // SelectAssignment.
  ClassTable(QWidget* parent, std::function<void(int assignment)> selected);

  // Another class, which has no marks yet. The same file again keeps order and place. Never null.
  void SetClass(std::shared_ptr<const OpenClass> openClass);

  // The student field that the second column shows.
  void SetIdentifier(qz::UserIDField field);

  void SetMarks(ProblemMarks marks);

  // Brings the column into view and selects it, unless one of its cells is the current one.
  void SelectAssignment(int assignment);

  // Selects the cells, rows or columns that the places are about and brings the first one into view.
  void SelectPlaces(const std::vector<FindingPlace>& places);

  // Opens the search, or goes to its field.
  void Find();

  // Ascending, then descending, then in the class's own order, as a click on the heading does.
  void SortByCurrentColumn();

 protected:
  void changeEvent(QEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  struct Current {
    int student = -1;
    int column = -1;
  };

  void SetUpView();
  void FitRows();
  void FitColumns();
  void WidenColumns();
  void LimitNames();
  void FitView();
  void ShowNote();

  void ShowOrder(int column, Qt::SortOrder order);
  void ShowColumnMenu(int column, QPoint where);
  Current CurrentCell() const;
  void MakeCurrent(Current cell);
  void CurrentChanged(const QModelIndex& current);
  void ScrollTo(const QModelIndex& index);
  void SelectColumn(int column);
  QItemSelection SelectionOf(const std::vector<FindingPlace>& places) const;

  void BeginAtCurrent();
  void CloseFind();
  void FindText();
  void FindNext(bool backwards);
  void ShowFound(const std::vector<TablePlace>& found, size_t which);

  void Retranslate();

  std::function<void(int)> m_selected;
  bool m_isTold = false;  // what to show; whoever tells it does not hear of it
  std::shared_ptr<const OpenClass> m_class;
  ClassTableModel m_model;
  ClassOrder m_order;
  FrozenColumnView* m_view;
  QLabel* m_note;
  FindBar* m_find;
  int m_nameWidth = 0;            // that the names want
  bool m_isNameWidthSet = false;  // by the user
  bool m_isFitting = false;
  TablePlace m_found;             // the last one; where the search begins
  QPersistentModelIndex m_shown;  // for it
};

}  // namespace host

#endif  // GRADIX_CLASSTABLE_H

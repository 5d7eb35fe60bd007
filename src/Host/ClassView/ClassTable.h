// The open class as a table: names that stay while the rest scrolls, sorted by any column, searched by
// Ctrl+F.
#ifndef GRADIX_CLASSTABLE_H
#define GRADIX_CLASSTABLE_H

#include <QWidget>
#include <functional>
#include <memory>
#include <vector>

#include "Host/ClassView/ClassReader.h"
#include "Host/ClassView/ProblemMarks.h"

namespace host {

// Students and assignments are positions in the record, in whatever order they are shown.
class ClassTable : public QWidget {
 public:
  // `selected` is called with the assignment whose column the user has come to.
  ClassTable(QWidget* parent, std::function<void(int assignment)> selected);

  // Another class. Never null.
  void SetClass(std::shared_ptr<const OpenClass> openClass);

  // The student field that the second column shows.
  void SetIdentifier(qz::UserIDField field);

  void SetMarks(ProblemMarks marks);

  // Brings the column into view and selects it.
  void SelectAssignment(int assignment);

  // Selects the cells, rows or columns that the places are about and brings the first one into view.
  void SelectPlaces(const std::vector<FindingPlace>& places);

  // Opens the search, or goes to its field.
  void Find();

  // Ascending, then descending, then in the class's own order, as a click on the heading does.
  void SortByCurrentColumn();

 protected:
  void changeEvent(QEvent* event) override;

 private:
  void Retranslate();
};

}  // namespace host

#endif  // GRADIX_CLASSTABLE_H

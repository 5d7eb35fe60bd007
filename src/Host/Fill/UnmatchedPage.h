// The page of students and assignments that were not matched, on both sides, to be joined by hand.
#ifndef GRADIX_UNMATCHEDPAGE_H
#define GRADIX_UNMATCHEDPAGE_H

#include <QWidget>

#include "Export/Fill.h"
#include "Host/Fill/JoinPanel.h"

namespace host {

class UnmatchedPage : public QWidget {
 public:
  // Positions are those of FillPlan: of students and members, of assignments and columns.
  UnmatchedPage(QWidget* parent, JoinPanel::Handlers students, JoinPanel::Handlers assignments);

  // In the current language; after a change of it, to be called again. Keeps nothing of the plan.
  void Show(const FillPlan& plan);

 private:
  JoinPanel* m_students;
  JoinPanel* m_assignments;
};

}  // namespace host

#endif  // GRADIX_UNMATCHEDPAGE_H

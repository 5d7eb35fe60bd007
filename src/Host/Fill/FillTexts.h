// What the window that fills a gradebook says about students, columns and faults.
#ifndef GRADIX_FILLTEXTS_H
#define GRADIX_FILLTEXTS_H

#include <QString>

#include "Export/Fill.h"
#include "Host/Fill/GradebookLoader.h"

namespace host {

// All in the current language, each on one line unless it says otherwise.

// What happens to a cell, in a word or two, and why.
QString KindWord(FillKind kind);
QString KindReason(const FillCell& cell, const FillPlan& plan);

// Why a student or an assignment was not matched.
QString UnmatchedReason(StudentMatch match);
QString UnmatchedReason(TitleMatch match);
QString TitleFaultText(ChosenTitleFault::Kind kind);

QString StudentText(const FillPlan& plan, size_t student);  // "Mia Becker (11)"
QString MemberText(const Gradebook& gradebook, size_t member);
QString AssignmentTitle(const FillPlan& plan, size_t assignment);  // position in ExportSubject::assignments
QString ColumnText(const Gradebook& gradebook, size_t column);

// Where the download is found in the system, in a sentence or two. `system` null: in any.
QString DownloadHint(const LearningSystem* system);

struct GradebookFaultText {
  QString what;
  QString advice;  // may have several lines
};

// The read must have a fault.
GradebookFaultText TextOfFault(const GradebookRead& read);

}  // namespace host

#endif  // GRADIX_FILLTEXTS_H

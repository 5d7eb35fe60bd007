// What was found, worst first, under a line that sums it up.
#ifndef GRADIX_FINDINGSVIEW_H
#define GRADIX_FINDINGSVIEW_H

#include <QWidget>
#include <functional>

#include "Host/Findings/FindingsModel.h"

class QLabel;
class QStackedWidget;
class QTreeView;

namespace host {

class FindingsView : public QWidget {
 public:
  // `chosen` is called with a place of the class when the user clicks on it or presses Return.
  FindingsView(QWidget* parent, std::function<void(const FindingPlace& place)> chosen);

  // In the current language; after a change of it, to be called again. Keeps nothing of the arguments.
  void Show(const Findings& findings, const ExportSubject& subject);

 private:
  void AddTree();
  QWidget* MakeNothingPage();
  void ShowSummary(const Findings& findings);
  void Choose(const QModelIndex& index);

  std::function<void(const FindingPlace&)> m_chosen;
  FindingsModel m_model;
  QLabel* m_summary;
  QStackedWidget* m_pages;
  QTreeView* m_tree;
  QLabel* m_nothing = nullptr;
};

}  // namespace host

#endif  // GRADIX_FINDINGSVIEW_H

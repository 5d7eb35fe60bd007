// What was found, worst first, under a line that sums it up.
#ifndef GRADIX_FINDINGSVIEW_H
#define GRADIX_FINDINGSVIEW_H

#include <QWidget>
#include <functional>
#include <vector>

#include "Host/Findings/FindingsModel.h"

class QLabel;
class QStackedWidget;
class QTreeView;

namespace host {

class FindingsView : public QWidget {
 public:
  using Chosen = std::function<void(const std::vector<FindingPlace>& places)>;

  // `chosen` is called with places of the class when the user clicks on a row or presses Return: with all of
  // a finding, or with the one of its own row.
  FindingsView(QWidget* parent, Chosen chosen);

  // In the current language; after a change of it, to be called again. Keeps nothing of the subject.
  void Show(Findings findings, const ExportSubject& subject);
  const Findings& Shown() const { return m_model.Shown(); }

  // For the page that it is on: with the number of problems, if there are any.
  QString Title() const;

 private:
  void AddTree();
  QWidget* MakeNothingPage();
  qsizetype Problems() const;
  void ShowSummary(const QString& system);
  void Choose(const QModelIndex& index);

  Chosen m_chosen;
  FindingsModel m_model;
  QLabel* m_summary;
  QStackedWidget* m_pages;
  QTreeView* m_tree;
  QLabel* m_nothing = nullptr;
};

}  // namespace host

#endif  // GRADIX_FINDINGSVIEW_H

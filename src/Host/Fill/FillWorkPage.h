// The page of a download that was read: what was recognised, what is chosen, and what will happen.
#ifndef GRADIX_FILLWORKPAGE_H
#define GRADIX_FILLWORKPAGE_H

#include <QString>
#include <QWidget>
#include <functional>
#include <memory>

#include "Host/Fill/FillDraft.h"
#include "Systems/Finding.h"

class QLabel;
class QPushButton;
class QTabWidget;

namespace host {

class FillCellsPage;
class FillChoicesPanel;
class FindingsView;
class UnmatchedPage;

class FillWorkPage : public QWidget {
 public:
  struct Handlers {
    std::function<void(const std::vector<FindingPlace>& places)> placesChosen;
    std::function<void()> chooseAnother;  // download
    std::function<void()> planned;        // the plan is another one
  };

  FillWorkPage(QWidget* parent, Handlers handlers);

  // Another class, or the same one read again.
  void SetClass(std::shared_ptr<const OpenClass> openClass);
  // There has to be a class. `wanted` is the field that is proposed if it is of any use.
  void SetGradebook(std::shared_ptr<const Gradebook> gradebook, const QString& path, qz::UserIDField wanted);

  bool HasGradebook() const { return m_draft.Download() != nullptr; }
  const QString& GradebookPath() const { return m_path; }
  const FillDraft& Draft() const { return m_draft; }

 protected:
  void changeEvent(QEvent* event) override;

 private:
  void AddTabs();
  void Plan();  // anew, of what is chosen
  void ShowPlan();
  void ShowRecognised();
  void ShowTabTitles();
  void JoinAssignment(size_t assignment, size_t column);

  Handlers m_handlers;
  FillDraft m_draft;
  QString m_path;
  QLabel* m_recognised;
  QPushButton* m_another;
  FillChoicesPanel* m_choices;
  QTabWidget* m_tabs;
  FillCellsPage* m_cells = nullptr;
  UnmatchedPage* m_unmatched = nullptr;
  FindingsView* m_findings = nullptr;
};

}  // namespace host

#endif  // GRADIX_FILLWORKPAGE_H

// The panel beside the table: choice of an assignment, its statistics and the distribution of its scores.
#ifndef GRADIX_ASSIGNMENTPANEL_H
#define GRADIX_ASSIGNMENTPANEL_H

#include <QWidget>
#include <functional>
#include <memory>
#include <vector>

#include "Host/ClassView/ClassReader.h"

class QComboBox;
class QGroupBox;
class QLabel;
class QScrollArea;

namespace host {

class HistogramWidget;

// Scrolls when it is lower than its figures.
class AssignmentPanel : public QWidget {
 public:
  // `selected` is called when another assignment becomes the selected one, whoever selected it.
  AssignmentPanel(QWidget* parent, std::function<void(int assignment)> selected);

  // Selects the first assignment.
  void SetClass(std::shared_ptr<const OpenClass> openClass);

  // The selected assignment's position in the record; -1 when there is none.
  int Selected() const;
  void Select(int assignment);

 protected:
  void changeEvent(QEvent* event) override;

 private:
  struct Figure {
    const char* caption;
    QLabel* label;
    QLabel* value;
  };

  void AddFigures();
  void AddScrolling(QWidget* contents);
  void FitWidth();
  void ShowSelected();
  void ShowFigures(const ScoreStatistics& statistics, int pointsPossible);
  void Retranslate();

  std::function<void(int)> m_selected;
  std::shared_ptr<const OpenClass> m_class;
  QLabel* m_label;
  QComboBox* m_combo;
  QLabel* m_nothing;
  QGroupBox* m_group;
  std::vector<Figure> m_figures;
  HistogramWidget* m_histogram;
  QScrollArea* m_scrolling;
};

}  // namespace host

#endif  // GRADIX_ASSIGNMENTPANEL_H

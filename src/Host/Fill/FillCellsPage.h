// The page that shows what will happen, cell by cell.
#ifndef GRADIX_FILLCELLSPAGE_H
#define GRADIX_FILLCELLSPAGE_H

#include <QWidget>
#include <array>
#include <functional>

#include "Host/Fill/FillTableModel.h"
#include "Systems/Finding.h"

class QLabel;
class QLineEdit;
class QRadioButton;
class QTableView;

namespace host {

class FillCellsPage : public QWidget {
 public:
  // `chosen` is called with the place of a cell that the user double-clicks or presses Return on.
  FillCellsPage(QWidget* parent, std::function<void(const FindingPlace& place)> chosen);

  // The plan outlives its being shown; null shows nothing.
  void Show(const FillPlan* plan);

  void Retranslate();

 protected:
  void changeEvent(QEvent* event) override;

 private:
  void AddTable(std::function<void(const FindingPlace&)> chosen);
  void FitColumns();
  void ShowCounts();

  FillTableModel m_model;
  std::array<QRadioButton*, 3> m_filters;  // by FillFilter
  QLabel* m_searchLabel;
  QLineEdit* m_search;
  QTableView* m_table;
};

}  // namespace host

#endif  // GRADIX_FILLCELLSPAGE_H

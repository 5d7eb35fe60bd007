// The student fields that can be the identifier: how well each tells the students apart.
#ifndef GRADIX_FIELDSPANEL_H
#define GRADIX_FIELDSPANEL_H

#include <QWidget>
#include <functional>
#include <memory>
#include <vector>

#include "Host/ClassView/ClassReader.h"
#include "Host/Findings/FieldsModel.h"
#include "Systems/ExportSubject.h"
#include "Systems/Finding.h"

class QLabel;
class QPushButton;
class QTreeView;

namespace host {

class FieldsPanel : public QWidget {
 public:
  struct Handlers {
    std::function<void(qz::UserIDField field)> fieldChosen;                     // the user wants to take it
    std::function<void(const std::vector<FindingPlace>& places)> placesChosen;  // the user wants to see them
  };

  FieldsPanel(QWidget* parent, Handlers handlers);

  // What is shown: the class (never null), the format whose dialog will propose a field, and the chosen
  // field.
  void Show(std::shared_ptr<const OpenClass> openClass, const FormatRow& format, qz::UserIDField chosen);

 protected:
  void changeEvent(QEvent* event) override;

 private:
  void AddTree();
  void Retranslate();
  void ShowFields();
  void ShowStudents(const QModelIndex& index);  // of a problem's row
  void Activate(const QModelIndex& index);
  void Take(const QModelIndex& index);
  void ShowWhetherTaken();

  Handlers m_handlers;
  std::shared_ptr<const OpenClass> m_class;
  const FormatRow* m_format = nullptr;
  qz::UserIDField m_chosen = qz::kUserIDAlias;
  FieldsModel m_model;
  QLabel* m_proposal;
  QTreeView* m_tree;
  QPushButton* m_take;
};

}  // namespace host

#endif  // GRADIX_FIELDSPANEL_H

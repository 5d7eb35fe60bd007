// What the user decides about a filling: the field that identifies students, the options, the assignments.
#ifndef GRADIX_FILLCHOICESPANEL_H
#define GRADIX_FILLCHOICESPANEL_H

#include <QString>
#include <QWidget>
#include <functional>
#include <memory>
#include <vector>

#include "Host/Fill/FillDraft.h"

class QCheckBox;
class QComboBox;
class QLabel;

namespace host {

class AssignmentPicker;

class FillChoicesPanel : public QWidget {
 public:
  // `changed` is called when the user has chosen anything else.
  FillChoicesPanel(QWidget* parent, const std::function<void()>& changed);

  // Offers the class's assignments; see AssignmentPicker.
  void SetClass(std::shared_ptr<const OpenClass> openClass);

  // Offers the fields with what they find, and chooses `wanted`: unless it finds nobody and another one does.
  // The draft has a class and a gradebook.
  void Propose(const FillDraft& draft, qz::UserIDField wanted);

  qz::UserIDField Identifier() const;
  FillDraft::Options Options() const;
  std::vector<size_t> Assignments() const;  // positions that ascend

 protected:
  void changeEvent(QEvent* event) override;

 private:
  void Retranslate();
  void ShowFields();
  void ShowHint();
  QString NameOf(qz::UserIDField field) const;

  std::shared_ptr<const OpenClass> m_class;
  std::vector<FieldHits> m_hits;
  qz::UserIDField m_wanted = qz::kUserIDAlias;
  QLabel* m_fieldLabel;
  QComboBox* m_field;
  QLabel* m_hint;
  QCheckBox* m_onlyEmpty;
  QCheckBox* m_newColumns;
  QCheckBox* m_matchNames;
  AssignmentPicker* m_assignments;
};

}  // namespace host

#endif  // GRADIX_FILLCHOICESPANEL_H

// Which assignments of a class go into a file.
#ifndef GRADIX_ASSIGNMENTPICKER_H
#define GRADIX_ASSIGNMENTPICKER_H

#include <QWidget>
#include <functional>
#include <memory>
#include <vector>

#include "Host/ClassView/ClassReader.h"

class QCheckBox;
class QLabel;
class QListWidget;

namespace host {

// A check list under a box for all of them; or, for a file about one assignment, a list to choose one from.
class AssignmentPicker : public QWidget {
 public:
  // `changed` is called when the user has chosen anything else.
  AssignmentPicker(QWidget* parent, std::function<void()> changed);

  // Chooses all assignments; of the same class, read again, those that were chosen and new ones. Never null.
  void SetClass(std::shared_ptr<const OpenClass> openClass);

  // Both kinds of choice are kept while the other one is asked for.
  void SetOnlyOne(bool onlyOne);

  // Positions that ascend; none: all. The one is the first of them.
  void Choose(const std::vector<size_t>& assignments);

  // Positions that ascend.
  std::vector<size_t> Chosen() const;

 protected:
  void changeEvent(QEvent* event) override;

 private:
  void Retranslate();
  std::vector<size_t> Checked() const;
  bool IsChecked(int row) const;
  void FillList(const std::vector<int32_t>& unchecked);
  void CheckAll(bool checked);
  void ShowWhetherAll();

  std::function<void()> m_changed;
  std::shared_ptr<const OpenClass> m_class;
  bool m_onlyOne = false;
  QCheckBox* m_all;
  QListWidget* m_checks;
  QLabel* m_oneLabel;
  QListWidget* m_one;
};

}  // namespace host

#endif  // GRADIX_ASSIGNMENTPICKER_H

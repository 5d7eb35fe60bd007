// What an export to check is made of: format, student field, dialect and assignments.
#ifndef GRADIX_CHECKCHOICES_H
#define GRADIX_CHECKCHOICES_H

#include <QWidget>
#include <functional>
#include <memory>
#include <vector>

#include "Host/ClassView/ClassReader.h"
#include "Systems/ExportSubject.h"

class QCheckBox;
class QListWidget;

namespace host {

class ExportPicker;

class CheckChoices : public QWidget {
 public:
  // `changed` is called when the user has chosen anything else.
  CheckChoices(QWidget* parent, std::function<void()> changed);

  // Chooses all assignments; the other choices stay. The class is never null.
  void SetClass(std::shared_ptr<const OpenClass> openClass);

  // The export that is chosen. The class outlives it.
  ExportSubject Subject() const;

 protected:
  void changeEvent(QEvent* event) override;

 private:
  void Retranslate();
  std::vector<size_t> Assignments() const;
  void AllClicked();
  void ShowWhetherAll();

  std::function<void()> m_changed;
  std::shared_ptr<const OpenClass> m_class;
  ExportPicker* m_picker;
  QCheckBox* m_all;
  QListWidget* m_assignments;
};

}  // namespace host

#endif  // GRADIX_CHECKCHOICES_H

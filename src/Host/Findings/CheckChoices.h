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
class QComboBox;
class QLabel;
class QListWidget;

namespace host {

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
  const FormatRow& Format() const;
  qz::UserIDField Identifier() const;
  Dialect ChosenDialect() const;
  std::vector<size_t> Assignments() const;

  void AddFormats();
  void ProposeField();
  void AllClicked();
  void ShowWhetherAll();
  void ShowFields();
  void ShowDialects();

  std::function<void()> m_changed;
  std::shared_ptr<const OpenClass> m_class;
  QLabel* m_formatLabel;
  QComboBox* m_format;
  QLabel* m_fieldLabel;
  QComboBox* m_field;
  QLabel* m_dialectLabel;
  QComboBox* m_dialect;
  QLabel* m_dialectHint;
  QCheckBox* m_all;
  QListWidget* m_assignments;
};

}  // namespace host

#endif  // GRADIX_CHECKCHOICES_H

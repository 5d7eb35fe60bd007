// The open class: its table, and beside it whether it is ready, which field identifies, and one assignment
// closer.
#ifndef GRADIX_CLASSPAGE_H
#define GRADIX_CLASSPAGE_H

#include <QWidget>
#include <functional>
#include <memory>
#include <vector>

#include "Host/ClassView/ClassReader.h"
#include "Systems/ExportSubject.h"
#include "Systems/Finding.h"

class QLabel;
class QSplitter;
class QTabWidget;

namespace host {

class AssignmentPanel;
class ClassTable;
class FieldsPanel;
class ReadinessPanel;

class ClassPage : public QWidget {
 public:
  enum class Pane : uint8_t { kReadiness, kFields, kAssignment };

  // `changed` is called when another assignment becomes the selected one, and for another choice of the
  // system, its field or its file.
  ClassPage(QWidget* parent, std::function<void()> changed);

  // Never null. `keepsSelection`: the same class, read again.
  void SetClass(std::shared_ptr<const OpenClass> openClass, bool keepsSelection);

  int SelectedAssignment() const;  // its position in the record; -1: there is none
  const FormatRow& Format() const;
  qz::UserIDField Identifier() const;

  // Another system is the one to be ready for.
  void ChooseFormat(const FormatRow& format);

  void SelectPlaces(const std::vector<FindingPlace>& places);
  void ShowPane(Pane pane);
  ClassTable* Table() { return m_table; }

  QByteArray SplitterState() const;
  void RestoreSplitter(const QByteArray& state);

 protected:
  void changeEvent(QEvent* event) override;

 private:
  void ShowReadiness();
  void Retranslate();

  std::function<void()> m_changed;
  std::shared_ptr<const OpenClass> m_class;
  bool m_isOpening = false;  // another class
  QLabel* m_heading;
  QSplitter* m_splitter;
  ClassTable* m_table;
  QTabWidget* m_panes;
  ReadinessPanel* m_readiness = nullptr;
  FieldsPanel* m_fields = nullptr;
  AssignmentPanel* m_assignment = nullptr;
};

}  // namespace host

#endif  // GRADIX_CLASSPAGE_H

// Whether the open class is ready for a learning system: what will happen to its file, worst first.
#ifndef GRADIX_READINESSPANEL_H
#define GRADIX_READINESSPANEL_H

#include <QWidget>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

#include "Host/ClassView/ClassReader.h"
#include "Host/ClassView/ProblemMarks.h"
#include "Systems/ExportSubject.h"

namespace host {

class ExportPicker;
class FindingsView;

// System, student field and kind of file are chosen in it and remembered: the system, and for each system its
// field.
class ReadinessPanel : public QWidget {
 public:
  struct Handlers {
    std::function<void()> changed;  // another choice, the class, or the language
    std::function<void(const std::vector<FindingPlace>& places)> placesChosen;  // the user wants to see them
  };

  ReadinessPanel(QWidget* parent, Handlers handlers);

  // Never null.
  void SetClass(std::shared_ptr<const OpenClass> openClass);

  const FormatRow& Format() const;
  qz::UserIDField Identifier() const;
  Dialect ChosenDialect() const;

  // Chooses the format with its remembered or proposed field.
  void ChooseFormat(const FormatRow& format);
  void ChooseIdentifier(qz::UserIDField field);

  // Of the class and the choices, in the current language.
  ProblemMarks Marks() const;

 protected:
  void changeEvent(QEvent* event) override;

 private:
  void Judge();

  Handlers m_handlers;
  std::shared_ptr<const OpenClass> m_class;
  std::optional<ExportSubject> m_subject;  // what is judged, of m_class
  ExportPicker* m_picker;
  FindingsView* m_findings;
};

}  // namespace host

#endif  // GRADIX_READINESSPANEL_H

// A window that says what a learning system will do with the file of an export.
#ifndef GRADIX_CHECKWINDOW_H
#define GRADIX_CHECKWINDOW_H

#include <QWidget>
#include <functional>
#include <memory>

#include "Host/ClassView/ClassReader.h"
#include "Systems/Finding.h"

class QPushButton;

namespace host {

class CheckChoices;
class FindingsView;

// A window of its own that goes with its parent and destroys itself when it is closed.
class CheckWindow : public QWidget {
 public:
  // `chosen` is called with a place of the class that the user wants to see.
  CheckWindow(QWidget* parent, std::shared_ptr<const OpenClass> openClass,
              std::function<void(const FindingPlace& place)> chosen);

  // Another class has taken the place of the shown one. Never null.
  void SetClass(std::shared_ptr<const OpenClass> openClass);

 protected:
  void changeEvent(QEvent* event) override;

 private:
  void Retranslate();
  void Check();

  std::shared_ptr<const OpenClass> m_class;
  CheckChoices* m_choices;
  FindingsView* m_findings;
  QPushButton* m_close;
};

}  // namespace host

#endif  // GRADIX_CHECKWINDOW_H

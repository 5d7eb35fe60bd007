// Answers every message box of the process with its default button, and remembers what it said.
#ifndef GRADIX_TESTS_ALERTANSWERER_H
#define GRADIX_TESTS_ALERTANSWERER_H

#include <QApplication>
#include <QEvent>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QTimer>
#include <functional>
#include <string>
#include <utility>
#include <vector>

struct ShownAlert {
  std::string text;
  QMessageBox::Icon icon;
  std::string button;
};

class AlertAnswerer : public QObject {
 public:
  AlertAnswerer() { qApp->installEventFilter(this); }

  std::vector<ShownAlert> Take() { return std::exchange(m_shown, {}); }

  // The texts since the last call.
  std::vector<std::string> TakeTexts() {
    std::vector<std::string> texts;
    for (const ShownAlert& alert : Take()) texts.push_back(alert.text);
    return texts;
  }

  std::function<void()> meanwhile;  // runs once, while an alert is shown, before it is answered

 protected:
  bool eventFilter(QObject* object, QEvent* event) override {
    auto* const box = event->type() == QEvent::Show ? qobject_cast<QMessageBox*>(object) : nullptr;
    if (box != nullptr) {
      m_shown.push_back({box->text().toStdString(), box->icon(), box->defaultButton()->text().toStdString()});
      QTimer::singleShot(0, box, [this, box = QPointer(box)] { Answer(box); });
    }
    return false;
  }

 private:
  void Answer(const QPointer<QMessageBox>& box) {
    if (const auto act = std::exchange(meanwhile, nullptr)) act();
    if (!box.isNull()) box->defaultButton()->click();
  }

  std::vector<ShownAlert> m_shown;
};

#endif  // GRADIX_TESTS_ALERTANSWERER_H

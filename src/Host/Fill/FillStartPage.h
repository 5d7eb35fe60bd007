// The page that asks for a download: where it is found, what was wrong with the last one, or that it is being
// read.
#ifndef GRADIX_FILLSTARTPAGE_H
#define GRADIX_FILLSTARTPAGE_H

#include <QString>
#include <QWidget>
#include <functional>

#include "Host/Fill/GradebookLoader.h"

class QLabel;
class QProgressBar;
class QPushButton;

namespace host {

class FillStartPage : public QWidget {
 public:
  struct Handlers {
    std::function<void()> choose;
    std::function<void()> back;  // to the download that was read before
  };

  // `system` null: any.
  FillStartPage(QWidget* parent, const LearningSystem* system, Handlers handlers);

  // `hasEarlier`: there is a download to go back to.
  void ShowReading(const QString& path);
  void ShowFault(const GradebookRead& read, bool hasEarlier);

 protected:
  void changeEvent(QEvent* event) override;

 private:
  void Retranslate();

  const LearningSystem* m_system;
  GradebookRead m_fault;  // the last one; without a path: none
  QString m_reading;      // empty: nothing
  QLabel* m_hint;
  QWidget* m_faultBox;
  QLabel* m_what;
  QLabel* m_advice;
  QPushButton* m_choose;
  QPushButton* m_back;
  QLabel* m_drop;
  QLabel* m_readingText;
  QProgressBar* m_progress;
};

}  // namespace host

#endif  // GRADIX_FILLSTARTPAGE_H

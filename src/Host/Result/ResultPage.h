// What was exported, beside what to click in the learning system.
#ifndef GRADIX_RESULTPAGE_H
#define GRADIX_RESULTPAGE_H

#include <QWidget>

#include "Host/Result/ExportedFile.h"

class QGridLayout;
class QHBoxLayout;
class QLabel;

namespace host {

class FileHandle;

class ResultPage : public QWidget {
 public:
  ResultPage(QWidget* parent, const ExportedFile& file);

  FileHandle* Handle() const { return m_handle; }
  QHBoxLayout* HandleRow() const { return m_handleRow; }  // what can be done with the file goes beside it

 protected:
  void changeEvent(QEvent* event) override;

 private:
  void Retranslate();
  void ShowFacts();
  void ShowSteps();

  ExportedFile m_file;
  FileHandle* m_handle;
  QHBoxLayout* m_handleRow;
  QLabel* m_factsTitle;
  QGridLayout* m_facts;
  QLabel* m_stepsTitle;
  QGridLayout* m_steps;
};

}  // namespace host

#endif  // GRADIX_RESULTPAGE_H

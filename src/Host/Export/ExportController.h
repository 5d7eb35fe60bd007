// Everything about exporting that the main window shows: the filter's formats, the run, its result.
#ifndef GRADIX_EXPORTCONTROLLER_H
#define GRADIX_EXPORTCONTROLLER_H

#include <QObject>
#include <functional>
#include <memory>
#include <vector>

#include "Host/ClassView/ClassReader.h"
#include "Host/Export/ExportRun.h"
#include "Host/Export/FilterModule.h"
#include "Host/Result/ResultWindow.h"

namespace host {

class ExportController : public QObject {
 public:
  // `stateChanged` is called with a text for the status bar when a run begins and after it has ended.
  ExportController(QWidget* window, std::function<void(const QString& status)> stateChanged);

  // Loads the filter; tells the user when that fails.
  void LoadFilter();

  const std::vector<ExportFormat>& Formats() const { return m_formats; }
  bool IsRunning() const { return m_run.IsRunning(); }

  // Exports in a format of Formats() with the assignment selected. Tells the user when that fails.
  void Export(const ExportFormat& format, const OpenClass& openClass, size_t assignment);

  // Told of the class that is shown, which no export may replace.
  void ClassOpened(const QString& path) { m_openClassPath = path; }

  // Asks the dialog of the run under way to close and brings it to the front when it does not.
  void CloseDialog();

 private:
  std::optional<QString> ChooseFile(QWidget* dialog);
  void RunFinished(const RunResult& result);
  void ShowNotWritten(const RunResult& result);
  void ShowLoadError(const QString& path, const FilterLoadError& error);
  void ShowStartError(StartResult result, const ExportFormat& format, const QString& classPath);

  QWidget* m_window;
  std::function<void(const QString&)> m_stateChanged;
  std::unique_ptr<FilterModule> m_filter;
  std::vector<ExportFormat> m_formats;
  QString m_openClassPath;
  QString m_exportedClassPath;  // another one when a class was opened meanwhile
  QString m_proposedName;
  QString m_extension;
  ExportRun m_run;
};

}  // namespace host

#endif  // GRADIX_EXPORTCONTROLLER_H

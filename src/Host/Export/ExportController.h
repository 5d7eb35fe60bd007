// Everything about exporting that the main window shows: the filter's formats, the run, its result.
#ifndef GRADIX_EXPORTCONTROLLER_H
#define GRADIX_EXPORTCONTROLLER_H

#include <QObject>
#include <QTimer>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

#include "Host/ClassView/ClassReader.h"
#include "Host/Export/ExportRun.h"
#include "Host/Export/FilterModule.h"
#include "Host/Result/ExportedFile.h"

namespace host {

class ExportController : public QObject {
 public:
  struct Handlers {
    // With a text for the status bar: an export begins, its dialog is there, it has ended.
    std::function<void(const QString& status)> stateChanged;
    // After that, the file of an export: complete.
    std::function<void(const ExportedFile& file)> written;
  };

  ExportController(QWidget* window, Handlers handlers);
  ~ExportController() override;

  // Loads the filter; tells the user when that fails.
  void LoadFilter();

  const std::vector<ExportFormat>& Formats() const { return m_formats; }
  bool IsRunning() const { return m_preparing.isActive() || m_run.IsRunning(); }

  // Exports in a format of Formats() with the assignment selected. Returns at once; the filter, which is busy
  // for a while with a large class, follows when the windows have been painted. Tells the user when it fails.
  void Export(const ExportFormat& format, std::shared_ptr<const OpenClass> openClass, size_t assignment);

  // Told of the class that is shown, which no export may replace.
  void ClassOpened(const QString& path) { m_openClassPath = path; }

  // Asks the dialog of the run under way to close and brings it to the front when it does not. Without a
  // dialog yet, there will be none.
  void CloseDialog();

 private:
  void Begin();
  void EndPreparing();
  std::optional<QString> ChooseFile(QWidget* dialog);
  void RunFinished(const RunResult& result);
  ExportedFile FileOf(const RunResult& result) const;
  void ShowLoadError(const QString& path, const FilterLoadError& error);
  void ShowStartError(StartResult result);

  QWidget* m_window;
  Handlers m_handlers;
  std::unique_ptr<FilterModule> m_filter;
  std::vector<ExportFormat> m_formats;
  QString m_openClassPath;
  std::shared_ptr<const OpenClass> m_class;  // that is exported; another one may have been opened meanwhile
  size_t m_assignment = 0;
  ExportFormat m_format{};
  QTimer m_preparing;  // until the windows have been painted
  QTimer m_calledOff;  // told later: whoever called it off may be in the middle of closing the window
  ExportRun m_run;
};

}  // namespace host

#endif  // GRADIX_EXPORTCONTROLLER_H

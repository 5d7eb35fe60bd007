// The ways from the open class into a learning system, and the windows that they open.
#ifndef GRADIX_EXPORTWAYS_H
#define GRADIX_EXPORTWAYS_H

#include <QList>
#include <QObject>
#include <QPointer>
#include <functional>
#include <memory>
#include <vector>

#include "Host/ClassView/ClassReader.h"
#include "Host/Export/ExportController.h"
#include "Host/Result/ExportedFile.h"
#include "Systems/ExportSubject.h"
#include "Systems/Finding.h"

namespace host {

class ExportWindow;
class FillWindow;
struct ExportStart;

// Windows that are open follow the class.
class ExportWays : public QObject {
 public:
  struct Handlers {
    std::function<void(const QString& status)> stateChanged;  // of an export through the filter's dialog
    std::function<void(const FormatRow& format)> formatUsed;
    std::function<void(const std::vector<FindingPlace>& places)> placesChosen;
    PresentClassAsker withPresentClass;
  };

  ExportWays(QWidget* window, Handlers handlers);

  void LoadFilter() { m_controller.LoadFilter(); }
  const std::vector<ExportFormat>& Formats() const { return m_controller.Formats(); }
  bool IsRunning() const { return m_controller.IsRunning(); }  // through the dialog
  void CloseDialog() { m_controller.CloseDialog(); }

  // Another class, or the same one read again. Never null; the ways need one.
  void SetClass(std::shared_ptr<const OpenClass> openClass);

  void ThroughDialog(const ExportFormat& format, size_t assignment);
  void FromHere(const FormatRow& format, qz::UserIDField identifier);
  // Without a path the user chooses the download; without a format its headings tell the system.
  void Fill(const FormatRow* format, qz::UserIDField identifier, const QString& gradebookPath);

 private:
  void OpenExportWindow(const ExportStart& start);
  void Written(const ExportedFile& file);

  QWidget* m_window;
  Handlers m_handlers;
  std::shared_ptr<const OpenClass> m_class;
  ExportController m_controller;
  QList<QPointer<ExportWindow>> m_exportWindows;
  QList<QPointer<FillWindow>> m_fillWindows;
};

}  // namespace host

#endif  // GRADIX_EXPORTWAYS_H

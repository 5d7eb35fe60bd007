#include "Host/Window/ExportWays.h"

#include <utility>

#include "Host/App/Choices.h"
#include "Host/Fill/FillWindow.h"
#include "Host/Findings/BeforeDialog.h"
#include "Host/Preview/ExportWindow.h"
#include "Host/Result/ResultWindow.h"
#include "Systems/LearningSystem.h"

namespace host {

namespace {

void _Show(QWidget* window) {
  window->show();
  window->raise();
  window->activateWindow();
}

template <typename Window>
void _SetClass(QList<QPointer<Window>>* windows, const std::shared_ptr<const OpenClass>& openClass) {
  windows->removeAll(nullptr);
  for (const QPointer<Window>& window : *windows) window->SetClass(openClass);
}

}  // namespace

ExportWays::ExportWays(QWidget* window, Handlers handlers)
    : QObject(window),
      m_window(window),
      m_handlers(std::move(handlers)),
      m_controller(window, {.stateChanged = m_handlers.stateChanged,
                            .written = [this](const ExportedFile& file) { Written(file); }}) {}

void ExportWays::SetClass(std::shared_ptr<const OpenClass> openClass) {
  m_class = std::move(openClass);
  m_controller.ClassOpened(m_class->path);
  _SetClass(&m_exportWindows, m_class);
  _SetClass(&m_fillWindows, m_class);
}

void ExportWays::ThroughDialog(const ExportFormat& format, size_t assignment) {
  const auto openDialog = [this, format, openClass = m_class, assignment] {
    m_controller.Export(format, openClass, assignment);
  };
  const FormatRow* const row = RowOf(format);
  if (row == nullptr) {
    openDialog();
    return;
  }
  m_handlers.formatUsed(*row);
  TellBeforeDialog(
      m_window, *m_class, *row,
      {.openDialog = openDialog, .exportHere = [this, row] {
         OpenExportWindow({.format = row, .identifier = FieldOf(*row), .dialect = Dialect::kClassic});
       }});
}

void ExportWays::FromHere(const FormatRow& format, qz::UserIDField identifier) {
  m_handlers.formatUsed(format);
  OpenExportWindow({.format = &format, .identifier = identifier});
}

void ExportWays::OpenExportWindow(const ExportStart& start) {
  auto* const window = new ExportWindow(m_window, m_class, start,
                                        {.placesChosen = m_handlers.placesChosen,
                                         .saved = [this](const ExportedFile& file) { Written(file); },
                                         .withPresentClass = m_handlers.withPresentClass});
  m_exportWindows.append(window);
  _Show(window);
}

void ExportWays::Fill(const FormatRow* format, qz::UserIDField identifier, const QString& gradebookPath) {
  if (format != nullptr) m_handlers.formatUsed(*format);
  auto* const window =
      new FillWindow(m_window, m_class, format != nullptr ? &SystemOf(*format) : nullptr, identifier,
                     {.placesChosen = m_handlers.placesChosen,
                      .saved = [this](const ExportedFile& file) { Written(file); },
                      .withPresentClass = m_handlers.withPresentClass});
  m_fillWindows.append(window);
  _Show(window);
  if (!gradebookPath.isEmpty()) window->OpenGradebook(gradebookPath);
}

void ExportWays::Written(const ExportedFile& file) {
  ShowResult(m_window, file,
             {.placesChosen = m_handlers.placesChosen, .saveCurrent = [this](const ExportedFile& classic) {
                OpenExportWindow({.format = classic.format,
                                  .identifier = classic.identifier,
                                  .dialect = Dialect::kCurrent,
                                  .assignments = classic.assignments});
              }});
}

}  // namespace host

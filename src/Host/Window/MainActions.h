// The actions and menus of the main window.
#ifndef GRADIX_MAINACTIONS_H
#define GRADIX_MAINACTIONS_H

#include <QList>
#include <QString>
#include <functional>
#include <vector>

#include "Host/App/Language.h"
#include "Host/Export/FilterModule.h"

class QAction;
class QMainWindow;
class QMenu;
class QToolBar;
class QToolButton;

namespace host {

// What the actions do.
struct ActionHandlers {
  std::function<void()> open;
  std::function<void(const QString& path)> openRecent;
  std::function<void()> quit;
  std::function<void()> about;
  std::function<void(HostLanguage language)> setLanguage;
  std::function<void(const ExportFormat& format)> exportAs;
  std::function<void()> check;
};

// Everything is owned by the window.
class MainActions {
 public:
  MainActions(QMainWindow* window, ActionHandlers handlers);
  MainActions(const MainActions&) = delete;
  MainActions& operator=(const MainActions&) = delete;

  // Fills the export menu, in front of the check.
  void SetFormats(const std::vector<ExportFormat>& formats);

  void SetOpenEnabled(bool enabled);
  void SetExportEnabled(bool enabled);
  void SetCheckEnabled(bool enabled);

  // Told of a change of the language.
  void Retranslate();

 private:
  void AddFileMenu();
  void AddExportMenu();
  void AddLanguageMenu();
  void AddHelpMenu();
  void AddToolBar();
  void FillRecentMenu();

  QMainWindow* m_window;
  ActionHandlers m_handlers;
  QMenu* m_fileMenu = nullptr;
  QMenu* m_recentMenu = nullptr;
  QMenu* m_exportMenu = nullptr;
  QMenu* m_languageMenu = nullptr;
  QMenu* m_helpMenu = nullptr;
  QAction* m_open = nullptr;
  QAction* m_quit = nullptr;
  QAction* m_about = nullptr;
  QAction* m_english = nullptr;
  QAction* m_spanish = nullptr;
  QAction* m_noFormats = nullptr;
  QAction* m_formatsEnd = nullptr;
  QAction* m_check = nullptr;
  QList<QAction*> m_exports;
  QToolBar* m_toolBar = nullptr;
  QToolButton* m_exportButton = nullptr;
};

}  // namespace host

#endif  // GRADIX_MAINACTIONS_H

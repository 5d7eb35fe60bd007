// The actions and menus of the main window.
#ifndef GRADIX_MAINACTIONS_H
#define GRADIX_MAINACTIONS_H

#include <QString>
#include <functional>
#include <memory>
#include <vector>

#include "Host/App/Language.h"
#include "Host/Window/ExportMenu.h"

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
  std::function<void()> reload;
  std::function<void()> showProperties;
  std::function<void()> quit;
  std::function<void()> find;
  std::function<void()> sort;  // by the column of the selected cell
  std::function<void(int pane)> showPane;
  ExportHandlers exports;
  std::function<void(HostLanguage language)> setLanguage;
  std::function<void()> helpContents;
  std::function<void()> helpOnSystem;
  std::function<void()> about;
};

// Everything is owned by the window.
class MainActions {
 public:
  static constexpr int kPanes = 3;  // of the class page

  MainActions(QMainWindow* window, ActionHandlers handlers);
  MainActions(const MainActions&) = delete;
  MainActions& operator=(const MainActions&) = delete;

  ExportMenu* Exports() { return m_exports.get(); }

  void SetOpenEnabled(bool enabled);
  void SetClassEnabled(bool enabled);  // what needs an open class
  void SetExportEnabled(bool throughDialog, bool fromHere);

  // The system that help is offered on.
  void SetSystem(const QString& name);

  // Told of a change of the language.
  void Retranslate();

 private:
  // An action whose text is set by Retranslate.
  QAction* Add(QMenu* menu, const char* text, const char* name, const std::function<void()>* act);

  void AddFileMenu();
  void AddViewMenu();
  void AddExportMenu();
  void AddLanguageMenu();
  void AddHelpMenu();
  void AddToolBar();
  void FillRecentMenu();

  struct Titled {
    QAction* action;
    const char* text;
  };

  QMainWindow* m_window;
  ActionHandlers m_handlers;
  std::vector<Titled> m_titled;  // menus, too
  std::vector<QAction*> m_ofClass;
  QMenu* m_recentMenu = nullptr;
  QMenu* m_exportMenu = nullptr;
  QAction* m_open = nullptr;
  QAction* m_find = nullptr;
  QAction* m_helpOnSystem = nullptr;
  QAction* m_english = nullptr;
  QAction* m_spanish = nullptr;
  QString m_systemName;
  std::unique_ptr<ExportMenu> m_exports;
  QToolBar* m_toolBar = nullptr;
  QToolButton* m_exportButton = nullptr;
};

}  // namespace host

#endif  // GRADIX_MAINACTIONS_H

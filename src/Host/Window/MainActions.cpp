#include "Host/Window/MainActions.h"

#include <QActionGroup>
#include <QFileInfo>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QStyle>
#include <QToolBar>
#include <QToolButton>
#include <utility>

#include "Host/App/Mnemonics.h"
#include "Host/App/RecentFiles.h"
#include "Host/App/Texts.h"

namespace host {

MainActions::MainActions(QMainWindow* window, ActionHandlers handlers)
    : m_window(window), m_handlers(std::move(handlers)) {
  AddFileMenu();
  AddViewMenu();
  AddExportMenu();
  AddLanguageMenu();
  AddHelpMenu();
  AddToolBar();
  Retranslate();
}

QAction* MainActions::Add(QMenu* menu, const char* text, const char* name, const std::function<void()>* act) {
  QAction* const action = menu->addAction(QString(), m_window, [act] { (*act)(); });
  action->setObjectName(QLatin1String(name));
  m_titled.push_back({action, text});
  return action;
}

void MainActions::AddFileMenu() {
  QMenu* const menu = m_window->menuBar()->addMenu(QString());
  m_titled.push_back({menu->menuAction(), QT_TRANSLATE_NOOP("Texts", "&File")});
  m_open = Add(menu, QT_TRANSLATE_NOOP("Texts", "&Open Class…"), "open", &m_handlers.open);
  m_open->setShortcut(QKeySequence::Open);
  m_open->setIcon(m_window->style()->standardIcon(QStyle::SP_DialogOpenButton));
  m_recentMenu = menu->addMenu(QString());
  m_titled.push_back({m_recentMenu->menuAction(), QT_TRANSLATE_NOOP("Texts", "Open &Recent")});
  QObject::connect(m_recentMenu, &QMenu::aboutToShow, m_window, [this] { FillRecentMenu(); });
  QAction* const reload = Add(menu, QT_TRANSLATE_NOOP("Texts", "Re&load"), "reload", &m_handlers.reload);
  reload->setShortcut(Qt::Key_F5);
  reload->setIcon(m_window->style()->standardIcon(QStyle::SP_BrowserReload));
  menu->addSeparator();
  QAction* const properties =
      Add(menu, QT_TRANSLATE_NOOP("Texts", "&Properties…"), "properties", &m_handlers.showProperties);
  properties->setShortcut(Qt::ALT | Qt::Key_Return);
  m_ofClass.insert(m_ofClass.end(), {reload, properties});
  menu->addSeparator();
  QAction* const quit = Add(menu, QT_TRANSLATE_NOOP("Texts", "&Quit"), "quit", &m_handlers.quit);
  quit->setShortcut(Qt::CTRL | Qt::Key_Q);
  quit->setMenuRole(QAction::QuitRole);
}

void MainActions::FillRecentMenu() {
  m_recentMenu->clear();
  int number = 0;
  for (const QString& path : RecentFiles()) {
    const QString text =
        QStringLiteral("&%1  %2").arg(++number).arg(EscapeMnemonics(QFileInfo(path).fileName()));
    QAction* const action =
        m_recentMenu->addAction(text, m_window, [this, path] { m_handlers.openRecent(path); });
    action->setToolTip(path);
    action->setEnabled(m_open->isEnabled());
  }
  m_recentMenu->setToolTipsVisible(true);
  if (number == 0) m_recentMenu->addAction(Texts::tr("No recent classes"))->setEnabled(false);
}

void MainActions::AddViewMenu() {
  QMenu* const menu = m_window->menuBar()->addMenu(QString());
  m_titled.push_back({menu->menuAction(), QT_TRANSLATE_NOOP("Texts", "&View")});
  m_find = Add(menu, QT_TRANSLATE_NOOP("Texts", "&Find…"), "find", &m_handlers.find);
  m_find->setShortcut(QKeySequence::Find);
  m_find->setIcon(m_window->style()->standardIcon(QStyle::SP_FileDialogContentsView));
  QAction* const sort =
      Add(menu, QT_TRANSLATE_NOOP("Texts", "&Sort by This Column"), "sort", &m_handlers.sort);
  sort->setShortcut(Qt::CTRL | Qt::SHIFT | Qt::Key_S);
  m_ofClass.insert(m_ofClass.end(), {m_find, sort});
  menu->addSeparator();
  constexpr const char* kTexts[kPanes] = {QT_TRANSLATE_NOOP("Texts", "&Readiness"),
                                          QT_TRANSLATE_NOOP("Texts", "&Id Fields"),
                                          QT_TRANSLATE_NOOP("Texts", "Assi&gnment")};
  constexpr const char* kNames[kPanes] = {"readiness", "fields", "assignment"};
  for (int pane = 0; pane < kPanes; ++pane) {
    QAction* const action = menu->addAction(QString(), m_window, [this, pane] { m_handlers.showPane(pane); });
    action->setObjectName(QLatin1String(kNames[pane]));
    action->setShortcut(QKeySequence(Qt::CTRL | static_cast<Qt::Key>(Qt::Key_1 + pane)));
    m_titled.push_back({action, kTexts[pane]});
    m_ofClass.push_back(action);
  }
}

void MainActions::AddExportMenu() {
  m_exportMenu = m_window->menuBar()->addMenu(QString());
  m_exportMenu->setObjectName(QStringLiteral("exportMenu"));
  m_titled.push_back({m_exportMenu->menuAction(), QT_TRANSLATE_NOOP("Texts", "&Export")});
  m_exports = std::make_unique<ExportMenu>(m_exportMenu, m_handlers.exports);
}

void MainActions::AddLanguageMenu() {
  QMenu* const menu = m_window->menuBar()->addMenu(QString());
  m_titled.push_back({menu->menuAction(), QT_TRANSLATE_NOOP("Texts", "&Language")});
  auto* const group = new QActionGroup(m_window);
  // Each in its own language, whichever is the current one.
  const auto add = [this, group, menu](HostLanguage language, const char* text) {
    QAction* const action = menu->addAction(QString::fromUtf8(text), m_window,
                                            [this, language] { m_handlers.setLanguage(language); });
    action->setCheckable(true);
    group->addAction(action);
    return action;
  };
  m_english = add(HostLanguage::kEnglish, "&English");
  m_spanish = add(HostLanguage::kSpanish, "E&spañol");
}

void MainActions::AddHelpMenu() {
  QMenu* const menu = m_window->menuBar()->addMenu(QString());
  m_titled.push_back({menu->menuAction(), QT_TRANSLATE_NOOP("Texts", "&Help")});
  QAction* const contents =
      Add(menu, QT_TRANSLATE_NOOP("Texts", "&Contents"), "helpContents", &m_handlers.helpContents);
  contents->setIcon(m_window->style()->standardIcon(QStyle::SP_DialogHelpButton));
  m_helpOnSystem = menu->addAction(QString(), m_window, [this] { m_handlers.helpOnSystem(); });
  m_helpOnSystem->setObjectName(QStringLiteral("helpOnSystem"));
  m_helpOnSystem->setShortcut(QKeySequence::HelpContents);
  menu->addSeparator();
  QAction* const about = Add(menu, QT_TRANSLATE_NOOP("Texts", "&About Gradix"), "about", &m_handlers.about);
  about->setMenuRole(QAction::AboutRole);
}

void MainActions::AddToolBar() {
  m_toolBar = m_window->addToolBar(QString());
  m_toolBar->setObjectName(QStringLiteral("toolBar"));
  m_toolBar->setMovable(false);
  m_toolBar->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
  m_toolBar->addAction(m_open);
  m_exportButton = new QToolButton(m_toolBar);
  m_exportButton->setObjectName(QStringLiteral("exportButton"));
  m_exportButton->setMenu(m_exportMenu);
  m_exportButton->setPopupMode(QToolButton::InstantPopup);
  m_exportButton->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
  m_exportButton->setIcon(m_window->style()->standardIcon(QStyle::SP_DialogSaveButton));
  m_toolBar->addWidget(m_exportButton);
  m_toolBar->addAction(m_find);
  // Reachable by keyboard, as the menus are.
  m_exportButton->setFocusPolicy(Qt::TabFocus);
  for (QAction* const action : {m_open, m_find}) {
    m_toolBar->widgetForAction(action)->setFocusPolicy(Qt::TabFocus);
  }
}

void MainActions::SetOpenEnabled(bool enabled) {
  m_open->setEnabled(enabled);
}

void MainActions::SetClassEnabled(bool enabled) {
  for (QAction* const action : m_ofClass) action->setEnabled(enabled);
}

void MainActions::SetExportEnabled(bool throughDialog, bool fromHere) {
  m_exports->SetEnabled(throughDialog, fromHere);
  m_exportButton->setEnabled(throughDialog || fromHere);
}

void MainActions::SetSystem(const QString& name) {
  m_systemName = name;
  m_helpOnSystem->setText(name.isEmpty() ? Texts::tr("&Help on This Window")
                                         : Texts::tr("&Help on %1").arg(EscapeMnemonics(name)));
}

void MainActions::Retranslate() {
  for (const Titled& titled : m_titled) titled.action->setText(Texts::tr(titled.text));
  SetSystem(m_systemName);
  m_exports->Retranslate();
  m_exportButton->setText(Texts::tr("Export"));
  m_toolBar->setWindowTitle(Texts::tr("Tools"));
  (CurrentLanguage() == HostLanguage::kSpanish ? m_spanish : m_english)->setChecked(true);
}

}  // namespace host

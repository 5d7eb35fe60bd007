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

#include "Host/App/RecentFiles.h"
#include "Host/App/Texts.h"

namespace host {

namespace {

// As the text of an action.
QString _Escaped(QString text) {
  return text.replace(QLatin1String("&"), QLatin1String("&&"));
}

}  // namespace

MainActions::MainActions(QMainWindow* window, ActionHandlers handlers)
    : m_window(window), m_handlers(std::move(handlers)) {
  AddFileMenu();
  AddExportMenu();
  AddLanguageMenu();
  AddHelpMenu();
  AddToolBar();
  Retranslate();
}

void MainActions::AddFileMenu() {
  m_fileMenu = m_window->menuBar()->addMenu(QString());
  m_open = m_fileMenu->addAction(QString(), m_window, [this] { m_handlers.open(); });
  m_open->setObjectName(QStringLiteral("open"));
  m_open->setShortcut(QKeySequence::Open);
  m_open->setIcon(m_window->style()->standardIcon(QStyle::SP_DialogOpenButton));
  m_recentMenu = m_fileMenu->addMenu(QString());
  QObject::connect(m_recentMenu, &QMenu::aboutToShow, m_window, [this] { FillRecentMenu(); });
  m_fileMenu->addSeparator();
  m_quit = m_fileMenu->addAction(QString(), m_window, [this] { m_handlers.quit(); });
  m_quit->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_Q));
  m_quit->setMenuRole(QAction::QuitRole);
}

void MainActions::FillRecentMenu() {
  m_recentMenu->clear();
  int number = 0;
  for (const QString& path : RecentFiles()) {
    const QString text = QStringLiteral("&%1  %2").arg(++number).arg(_Escaped(QFileInfo(path).fileName()));
    QAction* const action =
        m_recentMenu->addAction(text, m_window, [this, path] { m_handlers.openRecent(path); });
    action->setToolTip(path);
    action->setEnabled(m_open->isEnabled());
  }
  m_recentMenu->setToolTipsVisible(true);
  if (number == 0) m_recentMenu->addAction(Texts::tr("No recent classes"))->setEnabled(false);
}

void MainActions::AddExportMenu() {
  m_exportMenu = m_window->menuBar()->addMenu(QString());
  m_exportMenu->setObjectName(QStringLiteral("exportMenu"));
  m_noFormats = m_exportMenu->addAction(QString());
  m_noFormats->setEnabled(false);
  m_formatsEnd = m_exportMenu->addSeparator();
  m_check = m_exportMenu->addAction(QString(), m_window, [this] { m_handlers.check(); });
  m_check->setObjectName(QStringLiteral("check"));
  m_check->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_K));
  m_check->setIcon(m_window->style()->standardIcon(QStyle::SP_DialogApplyButton));
}

void MainActions::SetFormats(const std::vector<ExportFormat>& formats) {
  m_noFormats->setVisible(formats.empty());
  for (const ExportFormat& format : formats) {
    auto* const action = new QAction(_Escaped(format.name), m_window);
    QObject::connect(action, &QAction::triggered, m_window, [this, format] { m_handlers.exportAs(format); });
    m_exportMenu->insertAction(m_formatsEnd, action);
    m_exports.append(action);
  }
  SetExportEnabled(false);
}

void MainActions::AddLanguageMenu() {
  m_languageMenu = m_window->menuBar()->addMenu(QString());
  auto* const group = new QActionGroup(m_window);
  const auto add = [this, group](HostLanguage language) {
    QAction* const action = m_languageMenu->addAction(QString(), m_window,
                                                      [this, language] { m_handlers.setLanguage(language); });
    action->setCheckable(true);
    group->addAction(action);
    return action;
  };
  m_english = add(HostLanguage::kEnglish);
  m_spanish = add(HostLanguage::kSpanish);
}

void MainActions::AddHelpMenu() {
  m_helpMenu = m_window->menuBar()->addMenu(QString());
  m_about = m_helpMenu->addAction(QString(), m_window, [this] { m_handlers.about(); });
  m_about->setMenuRole(QAction::AboutRole);
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
  m_toolBar->addAction(m_check);
  // Reachable by keyboard, as the menus are.
  m_exportButton->setFocusPolicy(Qt::TabFocus);
  for (QAction* const action : {m_open, m_check}) {
    m_toolBar->widgetForAction(action)->setFocusPolicy(Qt::TabFocus);
  }
}

void MainActions::SetOpenEnabled(bool enabled) {
  m_open->setEnabled(enabled);
}

void MainActions::SetExportEnabled(bool enabled) {
  for (QAction* const action : m_exports) action->setEnabled(enabled);
  m_exportButton->setEnabled(enabled);
}

void MainActions::SetCheckEnabled(bool enabled) {
  m_check->setEnabled(enabled);
}

void MainActions::Retranslate() {
  const auto title = [](QMenu* menu, const char* id) {
    menu->setTitle(Texts::tr(id));
    menu->setAccessibleName(Texts::tr(id).remove(u'&'));
  };
  title(m_fileMenu, QT_TRANSLATE_NOOP("Texts", "&File"));
  title(m_recentMenu, QT_TRANSLATE_NOOP("Texts", "Open &Recent"));
  title(m_exportMenu, QT_TRANSLATE_NOOP("Texts", "&Export"));
  title(m_languageMenu, QT_TRANSLATE_NOOP("Texts", "&Language"));
  title(m_helpMenu, QT_TRANSLATE_NOOP("Texts", "&Help"));
  m_open->setText(Texts::tr("&Open Class…"));
  m_quit->setText(Texts::tr("&Quit"));
  m_about->setText(Texts::tr("&About Gradix"));
  m_english->setText(Texts::tr("English"));
  m_spanish->setText(Texts::tr("Español"));
  m_noFormats->setText(Texts::tr("No formats available"));
  m_check->setText(Texts::tr("&Check…"));
  m_exportButton->setText(Texts::tr("Export"));
  m_exportButton->setAccessibleName(Texts::tr("Export"));
  m_toolBar->setWindowTitle(Texts::tr("Tools"));
  m_toolBar->setAccessibleName(Texts::tr("Tools"));
  for (QAction* const action : {m_open, m_check}) {
    m_toolBar->widgetForAction(action)->setAccessibleName(action->text().remove(u'&'));
  }
  (CurrentLanguage() == HostLanguage::kSpanish ? m_spanish : m_english)->setChecked(true);
}

}  // namespace host

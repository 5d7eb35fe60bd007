#include "Host/Window/MainWindow.h"

#include <QCloseEvent>
#include <QFileInfo>
#include <QLabel>
#include <QMessageBox>
#include <QMimeData>
#include <QPushButton>
#include <QScreen>
#include <QSettings>
#include <QStackedWidget>
#include <QStatusBar>
#include <QVBoxLayout>
#include <utility>

#include "Host/App/DroppedFile.h"
#include "Host/App/FileDialogs.h"
#include "Host/App/HelpBook.h"
#include "Host/App/Messages.h"
#include "Host/App/RecentFiles.h"
#include "Host/App/Texts.h"
#include "Host/ClassView/ClassTable.h"
#include "Host/ClassView/ReadFaultText.h"
#include "Host/Export/FileNames.h"
#include "Host/Window/ClassPage.h"
#include "Host/Window/ClassProperties.h"
#include "Host/Window/NoticeBar.h"
#include "Host/Window/ReadingProgress.h"

namespace host {

namespace {

constexpr int kQuitPatience = 2000;  // milliseconds
constexpr const char* kGeometryKey = "window/geometry";
constexpr const char* kSplitterKey = "window/splitter";

}  // namespace

MainWindow::MainWindow()
    : m_loader(this),
      m_watcher(this, [this](ClassWatcher::Change change) { ClassChangedOnDisk(change); }),
      m_exports(this,
                {.stateChanged = [this](const QString& status) { ExportStateChanged(status); },
                 .formatUsed = [this](const FormatRow& format) { m_classPage->ChooseFormat(format); },
                 .placesChosen =
                     [this](const std::vector<FindingPlace>& places) { m_classPage->SelectPlaces(places); },
                 .withPresentClass =
                     [this](QWidget* window, std::function<void()> act) {
                       WithPresentClass(window, std::move(act));
                     }}),
      m_actions(this, MakeHandlers()),
      m_pages(new QStackedWidget(this)),
      m_notice(new NoticeBar(this, [this] { Reload({}); })),
      m_classPage(new ClassPage(m_pages, [this] { ChoicesChanged(); })),
      m_reading(new ReadingProgress(this, [this] { m_loader.Cancel(); })) {
  setObjectName(QStringLiteral("mainWindow"));
  setAcceptDrops(true);
  m_pages->addWidget(MakeEmptyPage());
  m_pages->addWidget(m_classPage);
  auto* const central = new QWidget(this);
  auto* const layout = new QVBoxLayout(central);
  layout->setContentsMargins({});
  layout->setSpacing(0);
  layout->addWidget(m_notice);
  layout->addWidget(m_pages, 1);
  setCentralWidget(central);
  statusBar()->addPermanentWidget(m_reading);
  m_quitPatience.setSingleShot(true);
  m_quitPatience.setInterval(kQuitPatience);
  SetFirstSize();
  Retranslate();
  UpdateActions();
}

ActionHandlers MainWindow::MakeHandlers() {
  return {
      .open = [this] { AskForClassFile(); },
      .openRecent = [this](const QString& path) { OpenRecentFile(path); },
      .reload = [this] { Reload({}); },
      .showProperties = [this] { ShowClassProperties(this, *m_class); },
      .quit = [this] { close(); },
      .find = [this] { m_classPage->Table()->Find(); },
      .sort = [this] { m_classPage->Table()->SortByCurrentColumn(); },
      .showPane = [this](int pane) { m_classPage->ShowPane(static_cast<ClassPage::Pane>(pane)); },
      .exports = {.throughDialog = [this](const ExportFormat& format) { ThroughDialog(format); },
                  .ownExport =
                      [this](const FormatRow& format) {
                        WithPresentClass(this, [this, &format] {
                          m_classPage->ChooseFormat(format);
                          m_exports.FromHere(format, m_classPage->Identifier());
                        });
                      },
                  .fill = [this](const FormatRow& format) { FillIn(&format, {}); }},
      .setLanguage = [this](HostLanguage language) { SetLanguage(language); },
      .helpContents = [this] { ShowHelp(this, 0); },
      .helpOnSystem = [this] { ShowHelp(this, m_class != nullptr ? m_classPage->Format().helpTopic : 0); },
      .about = [this] { ShowAbout(); }};
}

QWidget* MainWindow::MakeEmptyPage() {
  auto* const page = new QWidget(this);
  m_emptyHint = new QLabel(page);
  m_emptyHint->setAlignment(Qt::AlignCenter);
  m_emptyHint->setWordWrap(true);
  m_emptyButton = new QPushButton(page);
  m_emptyButton->setObjectName(QStringLiteral("openButton"));
  connect(m_emptyButton, &QPushButton::clicked, this, [this] { AskForClassFile(); });
  auto* const layout = new QVBoxLayout(page);
  layout->addStretch();
  layout->addWidget(m_emptyHint);
  layout->addSpacing(fontMetrics().height());
  layout->addWidget(m_emptyButton, 0, Qt::AlignHCenter);
  layout->addStretch();
  return page;
}

// As it was left; at first as large as is pleasant, and never larger than the screen.
void MainWindow::SetFirstSize() {
  const QSettings settings;
  const QSize wanted(fontMetrics().height() * 64, fontMetrics().height() * 38);
  resize(wanted.boundedTo(screen()->availableSize() * 95 / 100));
  restoreGeometry(settings.value(QLatin1String(kGeometryKey)).toByteArray());
  m_classPage->RestoreSplitter(settings.value(QLatin1String(kSplitterKey)).toByteArray());
}

void MainWindow::LoadFilter() {
  m_exports.LoadFilter();
  m_actions.Exports()->SetFormats(m_exports.Formats());
  UpdateActions();
}

void MainWindow::AskForClassFile() {
  auto* const dialog = new QFileDialog(this, Texts::tr("Open Class"));
  SetUpFileDialog(dialog, QStringLiteral("openChooser"), QFileDialog::AcceptOpen);
  dialog->setAttribute(Qt::WA_DeleteOnClose);
  dialog->setNameFilters({Texts::tr("Class files (*.xml)"), Texts::tr("All files (*)")});
  const QString latest = m_class != nullptr ? m_class->path : RecentFiles().value(0);
  if (!latest.isEmpty()) dialog->setDirectory(QFileInfo(latest).absolutePath());
  connect(dialog, &QFileDialog::fileSelected, this, &MainWindow::OpenFile);
  dialog->open();
}

void MainWindow::OpenRecentFile(const QString& path) {
  if (QFileInfo::exists(path)) {
    OpenFile(path);
    return;
  }
  RemoveRecentFile(path);
  ShowMessage(
      this, Texts::tr("The class file “%1” is no longer there.").arg(path),
      Texts::tr("It was taken off the list of recent classes. If it was moved, open it from its new place."));
}

void MainWindow::OpenFile(const QString& path) {
  const bool started = m_loader.Load(
      path, [this](const ReadResult& result) { FileRead(result); },
      [this](qint64 read, qint64 size) { m_reading->Show(read, size); });
  if (!started) {
    statusBar()->showMessage(Texts::tr("Another class is being read. Please wait a moment."));
    return;
  }
  m_reading->Begin(QFileInfo(path).fileName());
  UpdateActions();
}

void MainWindow::Reload(std::function<void()> afterwards) {
  if (m_class == nullptr || m_loader.IsLoading()) return;
  m_afterReading = std::move(afterwards);
  OpenFile(m_class->path);
}

void MainWindow::FileRead(const ReadResult& result) {
  m_reading->End();
  const std::function<void()> afterwards = std::exchange(m_afterReading, nullptr);
  if (result.openClass != nullptr) {
    AddRecentFile(result.path);
    ShowClass(result.openClass);
    UpdateActions();
    if (afterwards) afterwards();
    return;
  }
  UpdateActions();
  if (result.cancelled) {
    statusBar()->showMessage(Texts::tr("Nothing was opened"));
  } else if (result.kind == FileKind::kDownload && m_class != nullptr) {
    FillIn(nullptr, result.path);
  } else {
    const FaultText text = TextOfFault(result);
    ShowMessage(this, text.what, text.advice);
  }
}

void MainWindow::ShowClass(std::shared_ptr<const OpenClass> openClass) {
  const bool isSame = m_class != nullptr && m_class->path == openClass->path;
  m_class = std::move(openClass);
  m_watcher.Watch(m_class->path, m_class->stamp);
  m_notice->hide();
  m_classPage->SetClass(m_class, isSame);
  m_exports.SetClass(m_class);
  m_pages->setCurrentWidget(m_classPage);
  if (!isSame) m_classPage->Table()->setFocus();
  Retranslate();
}

void MainWindow::ClassChangedOnDisk(ClassWatcher::Change change) {
  if (change == ClassWatcher::Change::kNone) {
    m_notice->hide();
  } else if (change == ClassWatcher::Change::kGone) {
    m_notice->Tell(Texts::tr("The class file was deleted or renamed. What you see is how it was."), {});
  } else {
    m_notice->Tell(Texts::tr("The class file has changed since it was opened."), Texts::tr("Re&load"));
  }
}

void MainWindow::WithPresentClass(QWidget* window, std::function<void()> act) {
  if (m_class == nullptr) return;
  const ClassWatcher::Change change = m_watcher.Look();
  if (change == ClassWatcher::Change::kNone) {
    act();
    return;
  }
  ClassChangedOnDisk(change);
  if (change == ClassWatcher::Change::kGone) {
    ShowMessage(window,
                Texts::tr("The class file “%1” is no longer there.").arg(QFileInfo(m_class->path).fileName()),
                Texts::tr("Put it back, or open the class from its new place. Then export again."));
    return;
  }
  auto* const box = new QMessageBox(QMessageBox::Question, Texts::tr("Gradix"),
                                    Texts::tr("The class file has changed since it was opened."),
                                    QMessageBox::NoButton, window);
  box->setObjectName(QStringLiteral("changedQuestion"));
  box->setInformativeText(Texts::tr("Reload it first, so that what you see is what is exported."));
  box->setAttribute(Qt::WA_DeleteOnClose);
  QPushButton* const reload = box->addButton(Texts::tr("&Reload and Go On"), QMessageBox::AcceptRole);
  box->setEscapeButton(box->addButton(Texts::tr("Cancel"), QMessageBox::RejectRole));
  box->setDefaultButton(reload);
  connect(reload, &QPushButton::clicked, this, [this, act = std::move(act)] { Reload(act); });
  box->open();
}

void MainWindow::ThroughDialog(const ExportFormat& format) {
  WithPresentClass(this, [this, format] {
    const int assignment = m_classPage->SelectedAssignment();
    if (assignment >= 0) m_exports.ThroughDialog(format, static_cast<size_t>(assignment));
  });
}

void MainWindow::FillIn(const FormatRow* format, const QString& gradebookPath) {
  WithPresentClass(this, [this, format, gradebookPath] {
    if (format != nullptr) m_classPage->ChooseFormat(*format);
    m_exports.Fill(format, m_classPage->Identifier(), gradebookPath);
  });
}

void MainWindow::ExportStateChanged(const QString& status) {
  statusBar()->showMessage(status);
  UpdateActions();
  if (m_quitPatience.isActive() && !m_exports.IsRunning()) close();
}

void MainWindow::SetLanguage(HostLanguage language) {
  ChangeLanguage(language);
  statusBar()->showMessage(m_exports.IsRunning() ? Texts::tr("An export is under way") : QString());
}

void MainWindow::changeEvent(QEvent* event) {
  QMainWindow::changeEvent(event);
  if (event->type() != QEvent::LanguageChange) return;
  Retranslate();
  m_actions.Retranslate();
}

void MainWindow::ShowAbout() {
  auto* const box = new QMessageBox(
      QMessageBox::Information, Texts::tr("About Gradix"),
      Texts::tr("Gradix %1\n\nShows a class and exports its results to the gradebooks of learning systems.")
          .arg(QStringLiteral(GRADIX_VERSION)),
      QMessageBox::NoButton, this);
  box->addButton(Texts::tr("OK"), QMessageBox::AcceptRole);
  box->setAttribute(Qt::WA_DeleteOnClose);
  box->setAccessibleName(Texts::tr("About Gradix"));
  box->open();
}

void MainWindow::ChoicesChanged() {
  m_actions.Exports()->OrderChanged();
  UpdateActions();
}

void MainWindow::UpdateActions() {
  const bool isIdle = !m_loader.IsLoading();
  m_actions.SetOpenEnabled(isIdle);
  m_emptyButton->setEnabled(isIdle);
  const bool hasClass = m_class != nullptr;
  m_actions.SetClassEnabled(hasClass && isIdle);
  const bool hasAssignment = hasClass && m_classPage->SelectedAssignment() >= 0;
  m_actions.SetExportEnabled(hasAssignment && isIdle && !m_exports.IsRunning(), hasClass && isIdle);
  m_actions.SetSystem(hasClass ? FormatTitle(m_classPage->Format()) : QString());
}

void MainWindow::Retranslate() {
  const QString program = Texts::tr("Gradix");
  setWindowTitle(m_class == nullptr ? program : m_class->name + QStringLiteral(" – ") + program);
  m_emptyHint->setText(
      Texts::tr("Open a class file to see its students and results.\nYou can also drop one on this window."));
  m_emptyButton->setText(Texts::tr("Open a class file…"));
}

// An export under way has its own dialog, which may hold unsaved choices: it is asked to close first.
void MainWindow::closeEvent(QCloseEvent* event) {
  if (!m_exports.IsRunning()) {
    QSettings settings;
    settings.setValue(QLatin1String(kGeometryKey), saveGeometry());
    settings.setValue(QLatin1String(kSplitterKey), m_classPage->SplitterState());
    event->accept();
    return;
  }
  event->ignore();
  m_quitPatience.start();
  m_exports.CloseDialog();
  if (m_exports.IsRunning()) statusBar()->showMessage(Texts::tr("Close the export window first"));
}

void MainWindow::dragEnterEvent(QDragEnterEvent* event) {
  if (!DroppedFile(event->mimeData()).isEmpty()) event->acceptProposedAction();
}

void MainWindow::dropEvent(QDropEvent* event) {
  const QString path = DroppedFile(event->mimeData());
  if (path.isEmpty()) return;
  event->acceptProposedAction();
  OpenFile(path);
}

}  // namespace host

#include "Host/Window/MainWindow.h"

#include <QCloseEvent>
#include <QFileInfo>
#include <QHeaderView>
#include <QLabel>
#include <QMessageBox>
#include <QMimeData>
#include <QProgressBar>
#include <QPushButton>
#include <QSplitter>
#include <QStackedWidget>
#include <QStatusBar>
#include <QTableView>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

#include "Host/App/FileDialogs.h"
#include "Host/App/Messages.h"
#include "Host/App/RecentFiles.h"
#include "Host/App/Texts.h"
#include "Host/ClassView/AssignmentPanel.h"
#include "Host/ClassView/ReadFaultText.h"
#include "Host/Findings/CheckWindow.h"
#include "Host/Result/ResultWindow.h"

namespace host {

namespace {

constexpr int kProgressDelay = 300;  // milliseconds
constexpr int kQuitPatience = 2000;  // milliseconds

// The one local file of a drop; empty for anything else.
QString _DroppedFile(const QMimeData* data) {
  const QList<QUrl> urls = data->urls();
  return urls.size() == 1 ? urls.front().toLocalFile() : QString();
}

}  // namespace

MainWindow::MainWindow()
    : m_model(this),
      m_loader(this),
      m_export(this, {[this](const QString& status) { ExportStateChanged(status); },
                      [this](const ExportedFile& file) { ShowResult(this, file, {}); }}),
      m_actions(this, {[this] { AskForClassFile(); }, [this](const QString& path) { OpenRecentFile(path); },
                       [this] { close(); }, [this] { ShowAbout(); },
                       [this](HostLanguage language) { SetLanguage(language); },
                       [this](const ExportFormat& format) { ExportAs(format); }, [this] { ShowCheck(); }}),
      m_pages(new QStackedWidget(this)),
      m_summary(new QLabel(this)),
      m_progress(new QProgressBar(this)) {
  setObjectName(QStringLiteral("mainWindow"));
  setAcceptDrops(true);
  m_pages->addWidget(MakeEmptyPage());
  m_pages->addWidget(MakeClassPage());
  setCentralWidget(m_pages);
  AddProgress();
  statusBar()->addPermanentWidget(m_summary);
  m_quitPatience.setSingleShot(true);
  m_quitPatience.setInterval(kQuitPatience);
  resize(fontMetrics().height() * 64, fontMetrics().height() * 38);
  Retranslate();
  UpdateActions();
}

QWidget* MainWindow::MakeEmptyPage() {
  auto* const page = new QWidget(this);
  m_emptyHint = new QLabel(page);
  m_emptyHint->setAlignment(Qt::AlignCenter);
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

QWidget* MainWindow::MakeClassPage() {
  m_splitter = new QSplitter(this);
  m_table = new QTableView(m_splitter);
  m_table->setObjectName(QStringLiteral("classTable"));
  m_table->setModel(&m_model);
  m_table->setAlternatingRowColors(true);
  m_table->setTabKeyNavigation(false);
  m_table->setWordWrap(false);
  connect(m_table->selectionModel(), &QItemSelectionModel::currentColumnChanged, this,
          [this](const QModelIndex& current) { SelectColumn(current.column()); });
  connect(m_table->horizontalHeader(), &QHeaderView::sectionClicked, this, &MainWindow::SelectColumn);
  m_panel = new AssignmentPanel(m_splitter, [this](int /*assignment*/) { UpdateActions(); });
  m_splitter->setStretchFactor(0, 1);
  m_splitter->setStretchFactor(1, 0);
  m_splitter->setChildrenCollapsible(false);
  return m_splitter;
}

void MainWindow::AddProgress() {
  m_progress->setRange(0, 0);
  m_progress->setTextVisible(false);
  m_progress->setMaximumWidth(fontMetrics().height() * 10);
  m_progress->hide();
  statusBar()->addPermanentWidget(m_progress);
  m_progressDelay.setSingleShot(true);
  m_progressDelay.setInterval(kProgressDelay);
  connect(&m_progressDelay, &QTimer::timeout, this, [this] {
    m_progress->show();
    statusBar()->showMessage(Texts::tr("Reading “%1”…").arg(m_readingName));
  });
}

void MainWindow::LoadFilter() {
  m_export.LoadFilter();
  m_actions.SetFormats(m_export.Formats());
  UpdateActions();
}

void MainWindow::AskForClassFile() {
  auto* const dialog = new QFileDialog(this, Texts::tr("Open Class"));
  SetUpFileDialog(dialog, QStringLiteral("openChooser"), QFileDialog::AcceptOpen);
  dialog->setAttribute(Qt::WA_DeleteOnClose);
  dialog->setNameFilters({Texts::tr("Class files (*.xml)"), Texts::tr("All files (*)")});
  if (m_class != nullptr) dialog->setDirectory(QFileInfo(m_class->path).absolutePath());
  connect(dialog, &QFileDialog::fileSelected, this, &MainWindow::OpenClassFile);
  dialog->open();
}

void MainWindow::OpenRecentFile(const QString& path) {
  if (QFileInfo::exists(path)) {
    OpenClassFile(path);
    return;
  }
  RemoveRecentFile(path);
  ShowMessage(
      this, Texts::tr("The class file “%1” is no longer there.").arg(path),
      Texts::tr("It was taken off the list of recent classes. If it was moved, open it from its new place."));
}

void MainWindow::OpenClassFile(const QString& path) {
  const bool started = m_loader.Load(path, [this](const ReadResult& result) { ClassRead(result); });
  if (!started) {
    statusBar()->showMessage(Texts::tr("Another class is being read. Please wait a moment."));
    return;
  }
  m_readingName = QFileInfo(path).fileName();
  m_progressDelay.start();
  UpdateActions();
}

void MainWindow::ClassRead(const ReadResult& result) {
  m_progressDelay.stop();
  if (m_progress->isVisible()) statusBar()->clearMessage();
  m_progress->hide();
  if (result.openClass != nullptr) {
    AddRecentFile(result.path);
    ShowClass(result.openClass);
  } else {
    const FaultText text = TextOfFault(result);
    ShowMessage(this, text.what, text.advice);
  }
  UpdateActions();
}

void MainWindow::ShowClass(std::shared_ptr<const OpenClass> openClass) {
  m_class = std::move(openClass);
  m_export.ClassOpened(m_class->path);
  m_model.SetClass(m_class);
  FitColumns(m_model.columnCount());
  m_panel->SetClass(m_class);
  if (m_check != nullptr) m_check->SetClass(m_class);
  m_pages->setCurrentWidget(m_splitter);
  m_table->setFocus();
  Retranslate();
}

void MainWindow::FitColumns(int count) {
  constexpr int kMargin = 12;  // a title does not touch the next
  for (int column = 0; column < count; ++column) {
    m_table->resizeColumnToContents(column);
    m_table->setColumnWidth(column, m_table->columnWidth(column) + kMargin);
  }
}

void MainWindow::SelectColumn(int column) {
  m_panel->Select(column - ClassTableModel::kFirstAssignmentColumn);
}

// A student without an assignment by name; an assignment without a student in the row that was selected.
void MainWindow::SelectPlace(const FindingPlace& place) {
  const bool isStudent = place.student != FindingPlace::kNone;
  const int row = isStudent ? static_cast<int>(place.student) : std::max(m_table->currentIndex().row(), 0);
  const bool isAssignment = place.assignment != FindingPlace::kNone;
  const int column = isAssignment
                         ? ClassTableModel::kFirstAssignmentColumn + static_cast<int>(place.assignment)
                         : ClassTableModel::kNameColumn;
  m_table->setCurrentIndex(m_model.index(row, column));
}

void MainWindow::ShowCheck() {
  if (m_class == nullptr) return;
  if (m_check == nullptr) {
    m_check = new CheckWindow(this, m_class, [this](const FindingPlace& place) { SelectPlace(place); });
  }
  m_check->show();
  m_check->raise();
  m_check->activateWindow();
}

void MainWindow::ExportAs(const ExportFormat& format) {
  if (m_class == nullptr || m_panel->Selected() < 0) return;
  m_export.Export(format, m_class, static_cast<size_t>(m_panel->Selected()));
}

void MainWindow::ExportStateChanged(const QString& status) {
  statusBar()->showMessage(status);
  UpdateActions();
  if (m_quitPatience.isActive() && !m_export.IsRunning()) close();
}

void MainWindow::SetLanguage(HostLanguage language) {
  ChangeLanguage(language);
  statusBar()->showMessage(m_export.IsRunning() ? Texts::tr("An export is under way") : QString());
}

void MainWindow::changeEvent(QEvent* event) {
  QMainWindow::changeEvent(event);
  if (event->type() != QEvent::LanguageChange) return;
  Retranslate();
  m_actions.Retranslate();
  m_model.Retranslate();
  FitColumns(ClassTableModel::kFirstAssignmentColumn);
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

void MainWindow::UpdateActions() {
  const bool idle = !m_loader.IsLoading();
  m_actions.SetOpenEnabled(idle);
  if (m_emptyButton != nullptr) m_emptyButton->setEnabled(idle);
  const bool selected = m_class != nullptr && m_panel != nullptr && m_panel->Selected() >= 0;
  m_actions.SetCheckEnabled(m_class != nullptr);
  m_actions.SetExportEnabled(selected && !m_export.IsRunning() && !m_export.Formats().empty());
}

void MainWindow::Retranslate() {
  const QString program = Texts::tr("Gradix");
  setWindowTitle(m_class == nullptr ? program : m_class->name + QStringLiteral(" – ") + program);
  setAccessibleName(windowTitle());
  m_emptyHint->setText(
      Texts::tr("Open a class file to see its students and results.\nYou can also drop one on this window."));
  m_emptyHint->setAccessibleName(
      Texts::tr("Open a class file to see its students and results.\nYou can also drop one on this window."));
  m_emptyButton->setText(Texts::tr("Open a class file…"));
  m_emptyButton->setAccessibleName(Texts::tr("Open a class file…"));
  m_table->setAccessibleName(Texts::tr("Students and their points"));
  m_progress->setAccessibleName(Texts::tr("Reading “%1”…").arg(m_readingName));
  if (m_class == nullptr) return;
  m_summary->setText(Texts::tr("Students: %1   Assignments: %2")
                         .arg(m_class->record.students.size())
                         .arg(m_class->record.assignments.size()));
  m_summary->setAccessibleName(m_summary->text());
}

// An export under way has its own dialog, which may hold unsaved choices: it is asked to close first.
void MainWindow::closeEvent(QCloseEvent* event) {
  if (!m_export.IsRunning()) {
    event->accept();
    return;
  }
  event->ignore();
  m_quitPatience.start();
  m_export.CloseDialog();
  if (m_export.IsRunning()) statusBar()->showMessage(Texts::tr("Close the export dialog first"));
}

void MainWindow::dragEnterEvent(QDragEnterEvent* event) {
  if (!_DroppedFile(event->mimeData()).isEmpty()) event->acceptProposedAction();
}

void MainWindow::dropEvent(QDropEvent* event) {
  const QString path = _DroppedFile(event->mimeData());
  if (path.isEmpty()) return;
  event->acceptProposedAction();
  OpenClassFile(path);
}

}  // namespace host

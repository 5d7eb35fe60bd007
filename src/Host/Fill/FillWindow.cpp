#include "Host/Fill/FillWindow.h"

#include <QDragEnterEvent>
#include <QEvent>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QMimeData>
#include <QPointer>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QSettings>
#include <QShortcut>
#include <QStackedWidget>
#include <QStandardPaths>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

#include "Export/Fill.h"
#include "Host/App/CloseKeys.h"
#include "Host/App/DroppedFile.h"
#include "Host/App/FileDialogs.h"
#include "Host/App/HelpBook.h"
#include "Host/App/Texts.h"
#include "Host/Export/NotWritten.h"
#include "Host/Export/SaveChooser.h"
#include "Host/Fill/FillStartPage.h"
#include "Host/Fill/FillWorkPage.h"

namespace host {

namespace {

constexpr const char* kDownloadFolderKey = "fill/folder";

QString _LastFolder() {
  QString folder = QSettings().value(QLatin1String(kDownloadFolderKey)).toString();
  if (!folder.isEmpty() && QFileInfo(folder).isDir()) return folder;
  return QStandardPaths::writableLocation(QStandardPaths::DownloadLocation);
}

}  // namespace

FillWindow::FillWindow(QWidget* parent, std::shared_ptr<const OpenClass> openClass,
                       const LearningSystem* system, qz::UserIDField identifier, Handlers handlers)
    : QWidget(parent, Qt::Window),
      m_handlers(std::move(handlers)),
      m_system(system != nullptr && system->download != nullptr ? system : nullptr),
      m_identifier(identifier),
      m_loader(this, [this](const GradebookRead& read) { ReadEnded(read); }),
      m_pages(new QStackedWidget(this)),
      m_start(
          new FillStartPage(m_pages, system, {[this] { ChooseGradebook(); }, [this] { ShowPage(m_work); }})),
      m_work(new FillWorkPage(
          m_pages, {m_handlers.placesChosen, [this] { ChooseGradebook(); }, [this] { UpdateSave(); }})),
      m_save(new QPushButton(this)),
      m_close(new QPushButton(this)) {
  setObjectName(QStringLiteral("fillWindow"));
  setAttribute(Qt::WA_DeleteOnClose);
  setAcceptDrops(true);
  m_save->setObjectName(QStringLiteral("saveFill"));
  m_pages->addWidget(m_start);
  m_pages->addWidget(m_work);
  auto* const buttons = new QHBoxLayout;
  buttons->addStretch();
  buttons->addWidget(m_save);
  buttons->addWidget(m_close);
  auto* const layout = new QVBoxLayout(this);
  layout->addWidget(MakeScrolling(m_pages), 1);
  layout->addLayout(buttons);
  connect(m_save, &QPushButton::clicked, this, &FillWindow::AskToSave);
  connect(new QShortcut(QKeySequence::Save, this), &QShortcut::activated, this, [this] {
    if (m_save->isEnabled()) AskToSave();
  });
  connect(m_close, &QPushButton::clicked, this, &QWidget::close);
  CloseByKeys(this);
  OfferHelp(this, [this] { return HelpTopic(); });
  SetClass(std::move(openClass));
  const QSize wanted(fontMetrics().height() * 60, fontMetrics().height() * 36);
  resize(wanted.boundedTo(screen()->availableSize() * 9 / 10));
}

// With large letters the pages need more room than a small screen has.
QWidget* FillWindow::MakeScrolling(QWidget* pages) {
  auto* const area = new QScrollArea(this);
  area->setFrameShape(QFrame::NoFrame);
  area->setFocusPolicy(Qt::NoFocus);
  area->setWidgetResizable(true);
  area->setWidget(pages);
  return area;
}

void FillWindow::SetClass(std::shared_ptr<const OpenClass> openClass) {
  m_name = openClass->name;
  m_work->SetClass(std::move(openClass));
  Retranslate();
}

void FillWindow::OpenGradebook(const QString& path) {
  m_start->ShowReading(path);
  ShowPage(m_start);
  m_loader.Load(path, m_system);
}

void FillWindow::ReadEnded(const GradebookRead& read) {
  if (read.gradebook == nullptr) {
    m_start->ShowFault(read, m_work->HasGradebook());
    return;
  }
  const qz::UserIDField wanted = m_work->HasGradebook() ? m_work->Draft().Identifier() : m_identifier;
  m_work->SetGradebook(read.gradebook, read.path, wanted);
  ShowPage(m_work);
}

void FillWindow::ShowPage(QWidget* page) {
  m_pages->setCurrentWidget(page);
  UpdateSave();
}

void FillWindow::ChooseGradebook() {
  auto* const dialog = new QFileDialog(this, Texts::tr("Choose a Download"), _LastFolder());
  SetUpFileDialog(dialog, QStringLiteral("downloadChooser"), QFileDialog::AcceptOpen);
  dialog->setAttribute(Qt::WA_DeleteOnClose);
  dialog->setNameFilters({Texts::tr("Gradebooks (*.csv *.xls *.txt *.tsv)"), Texts::tr("All files (*)")});
  connect(dialog, &QFileDialog::fileSelected, this, [this](const QString& path) {
    QSettings().setValue(QLatin1String(kDownloadFolderKey), QFileInfo(path).absolutePath());
    OpenGradebook(path);
  });
  dialog->open();
}

void FillWindow::UpdateSave() {
  const bool isPlanned = m_pages->currentWidget() == m_work && m_work->HasGradebook();
  m_save->setEnabled(isPlanned && std::ranges::any_of(m_work->Draft().Plan().cells, &FillCell::IsWritten));
}

void FillWindow::AskToSave() {
  const auto save = [self = QPointer<FillWindow>(this)] {
    if (self != nullptr) self->Save();
  };
  if (m_handlers.withPresentClass) return m_handlers.withPresentClass(this, save);
  save();
}

void FillWindow::Save() {
  if (!m_save->isEnabled()) return;  // the class, read again, may have nothing for it
  const QFileInfo download(m_work->GradebookPath());
  const QString extension = download.suffix().isEmpty() ? QStringLiteral("csv") : download.suffix();
  const QString name = Texts::tr("%1 filled").arg(download.completeBaseName()) + u'.' + extension;
  const std::optional<QString> path = ChooseSaveFile(this, {.proposedName = name,
                                                            .extension = extension,
                                                            .classPaths = {m_work->Draft().Class().path},
                                                            .downloadPath = m_work->GradebookPath()});
  if (!path) return;
  const FileOutcome outcome = WriteFill(m_work->Draft().Plan(), QFile::encodeName(*path).toStdString());
  if (outcome.error != 0) {
    ShowNotWritten(this, *path, outcome.error, outcome.incomplete);
  } else {
    m_handlers.saved(SavedFile(*path));
  }
}

ExportedFile FillWindow::SavedFile(const QString& path) const {
  const FillDraft& draft = m_work->Draft();
  const FillPlan& plan = draft.Plan();
  ExportedFile file;
  file.path = path;
  file.openClass = draft.SharedClass();
  file.format = &draft.Format();
  file.dialect = Dialect::kFilled;
  file.delimiter = plan.gradebook->table.style.separator;
  file.identifier = draft.Identifier();
  for (const FillColumn& column : plan.columns) {
    if (column.assignment != GradebookMatch::kNone)
      file.assignments.push_back(plan.subject->assignments[column.assignment]);
  }
  std::ranges::sort(file.assignments);
  file.gradebookPath = m_work->GradebookPath();
  file.filledCells = static_cast<size_t>(std::ranges::count_if(plan.cells, IsChange, &FillCell::kind));
  return file;
}

int32_t FillWindow::HelpTopic() const {
  if (m_work->HasGradebook()) return m_work->Draft().Format().helpTopic;
  return m_system != nullptr ? FindFormat(m_system->formats.front().key)->helpTopic : 0;
}

void FillWindow::dragEnterEvent(QDragEnterEvent* event) {
  if (!DroppedFile(event->mimeData()).isEmpty()) event->acceptProposedAction();
}

void FillWindow::dropEvent(QDropEvent* event) {
  event->acceptProposedAction();
  OpenGradebook(DroppedFile(event->mimeData()));
}

void FillWindow::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::LanguageChange) Retranslate();
}

void FillWindow::Retranslate() {
  setWindowTitle(Texts::tr("Fill In a Gradebook – %1").arg(m_name));
  m_save->setText(Texts::tr("&Save for Upload…"));
  m_close->setText(Texts::tr("&Close"));
}

}  // namespace host

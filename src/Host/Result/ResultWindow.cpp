#include "Host/Result/ResultWindow.h"

#include <QClipboard>
#include <QDir>
#include <QEvent>
#include <QFileInfo>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QPointer>
#include <QPushButton>
#include <QScreen>
#include <QTabWidget>
#include <QVBoxLayout>
#include <optional>
#include <utility>

#include "Host/App/CloseKeys.h"
#include "Host/App/DesktopOpener.h"
#include "Host/App/HelpBook.h"
#include "Host/App/Messages.h"
#include "Host/App/Texts.h"
#include "Host/Findings/FindingsView.h"
#include "Host/Preview/FilePreview.h"
#include "Host/Result/ExportFacts.h"
#include "Host/Result/FileHandle.h"
#include "Host/Result/ResultPage.h"
#include "Systems/LearningSystem.h"

namespace host {

namespace {

FileReading _ReadingOf(const ExportedFile& file, const QByteArray& bytes) {
  if (file.format == nullptr) return {};
  return ReadingOf(*file.format, file.dialect, file.delimiter,
                   {bytes.constData(), static_cast<size_t>(bytes.size())});
}

bool _OffersCurrent(const ExportedFile& file) {
  return file.dialect == Dialect::kClassic && file.openClass != nullptr && file.format != nullptr &&
         FindCurrentFile(*file.format) != nullptr;
}

int32_t _HelpTopic(const ExportedFile& file) {
  return file.format != nullptr ? file.format->helpTopic : 0;
}

}  // namespace

ResultWindow::ResultWindow(QWidget* parent, const ExportedFile& file, ResultHandlers handlers)
    : QWidget(parent, Qt::Window),
      m_file(file),
      m_handlers(std::move(handlers)),
      m_preview(new FilePreview(this)),
      m_page(new ResultPage(this, file)),
      m_openFolder(new QPushButton(this)),
      m_copyPath(new QPushButton(this)),
      m_saveCurrent(new QPushButton(this)),
      m_help(new QPushButton(this)),
      m_close(new QPushButton(this)) {
  setObjectName(QStringLiteral("resultWindow"));
  setAttribute(Qt::WA_DeleteOnClose);
  AddPages();
  auto* const layout = new QVBoxLayout(this);
  layout->addWidget(m_preview, 1);
  AddButtons();
  OfferHelp(this, [topic = _HelpTopic(file)] { return topic; });
  Retranslate();
  const QSize wanted(fontMetrics().height() * 56, fontMetrics().height() * 34);
  resize(wanted.boundedTo(screen()->availableSize() * 9 / 10));
}

void ResultWindow::AddPages() {
  QTabWidget* const pages = m_preview->Pages();
  pages->insertTab(0, m_page, QString());
  if (m_file.dialect != Dialect::kFilled && SubjectOf(m_file)) {
    m_findings = new FindingsView(pages, [this](const std::vector<FindingPlace>& places) {
      if (m_handlers.placesChosen) m_handlers.placesChosen(places);
    });
    pages->insertTab(1, m_findings, QString());
  }
  pages->setCurrentIndex(0);
  const QByteArray bytes = BeginningOf(m_file.path);
  m_preview->Show(bytes, _ReadingOf(m_file, bytes), QFileInfo(m_file.path).size());
}

void ResultWindow::AddButtons() {
  auto* const row = new QHBoxLayout;
  for (QPushButton* const button : {m_openFolder, m_copyPath}) m_page->HandleRow()->addWidget(button);
  row->addWidget(m_saveCurrent);
  row->addStretch();
  for (QPushButton* const button : {m_help, m_close}) row->addWidget(button);
  static_cast<QVBoxLayout*>(layout())->addLayout(row);
  m_saveCurrent->setVisible(m_handlers.saveCurrent && _OffersCurrent(m_file));
  connect(m_openFolder, &QPushButton::clicked, this, &ResultWindow::OpenFolder);
  connect(m_copyPath, &QPushButton::clicked, this, &ResultWindow::CopyPath);
  connect(m_saveCurrent, &QPushButton::clicked, this, [this] { m_handlers.saveCurrent(m_file); });
  connect(m_help, &QPushButton::clicked, this, [this] { ShowHelp(this, _HelpTopic(m_file)); });
  connect(m_close, &QPushButton::clicked, this, &QWidget::close);
  CloseByKeys(this);
}

void ResultWindow::OpenFolder() {
  const QString folder = QFileInfo(m_file.path).absolutePath();
  OpenOnDesktop(folder, [window = QPointer<QWidget>(this), folder] {
    if (window == nullptr) return;
    ShowMessage(window, Texts::tr("The folder could not be opened."), QDir::toNativeSeparators(folder));
  });
}

void ResultWindow::CopyPath() {
  QGuiApplication::clipboard()->setText(QDir::toNativeSeparators(m_file.path));
  m_page->Handle()->Say(Texts::tr("The path was copied."));
}

void ResultWindow::ShowFindings() {
  const std::optional<ExportSubject> subject = SubjectOf(m_file);
  m_findings->Show(CheckExport(*subject), *subject);
  QTabWidget* const pages = m_preview->Pages();
  pages->setTabText(pages->indexOf(m_findings), m_findings->Title());
}

void ResultWindow::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::LanguageChange) Retranslate();
}

void ResultWindow::Retranslate() {
  setWindowTitle(Texts::tr("Exported file: %1").arg(QFileInfo(m_file.path).fileName()));
  QTabWidget* const pages = m_preview->Pages();
  pages->setTabText(pages->indexOf(m_page), Texts::tr("&Result"));
  if (m_findings != nullptr) ShowFindings();
  m_openFolder->setText(Texts::tr("Open &Folder"));
  m_copyPath->setText(Texts::tr("Copy &Path"));
  m_saveCurrent->setText(Texts::tr("Save the Current File as &Well…"));
  const QString system = SystemNameOf(m_file);
  m_help->setText(system.isEmpty() ? Texts::tr("H&elp") : Texts::tr("H&elp on %1").arg(system));
  m_close->setText(Texts::tr("&Close"));
}

void ShowResult(QWidget* parent, const ExportedFile& file, ResultHandlers handlers) {
  auto* const window = new ResultWindow(parent, file, std::move(handlers));
  window->show();
}

}  // namespace host

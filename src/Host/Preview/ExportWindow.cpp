#include "Host/Preview/ExportWindow.h"

#include <QEvent>
#include <QFile>
#include <QLabel>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QScreen>
#include <QShortcut>
#include <QSplitter>
#include <QTabWidget>
#include <QVBoxLayout>
#include <climits>
#include <new>
#include <string_view>
#include <utility>

#include "Host/App/CloseKeys.h"
#include "Host/App/HelpBook.h"
#include "Host/App/Texts.h"
#include "Host/ClassView/RomanText.h"
#include "Host/Export/NotWritten.h"
#include "Host/Export/SaveChooser.h"
#include "Host/Findings/ConsequenceIcon.h"
#include "Host/Findings/ExportPicker.h"
#include "Host/Findings/FindingsView.h"
#include "Host/Preview/AssignmentPicker.h"
#include "Host/Preview/FilePreview.h"

namespace host {

namespace {

const QString kExtension = QStringLiteral("csv");
constexpr qsizetype kMaxOwnPathBytes = PATH_MAX - 1;  // of the system's own calls

// What stands in the way of saving, or has to be confirmed; empty: nothing.
QString _ObstacleText(const PreparedExport& prepared) {
  if (!prepared.CanWrite()) return Texts::tr("Choose at least one assignment.");
  if (!prepared.HasRefusedIdentifiers()) return {};
  const IdentifierCheck& identifiers = prepared.Identifiers();
  if (identifiers.studentCount == 0) return Texts::tr("The class has no students.");
  return identifiers.AllEmpty() ? Texts::tr("No student has an identifier in the chosen field.")
                                : Texts::tr("Students share an identifier in the chosen field.");
}

// The sentences on the identifiers, as they stand among the findings.
QString _IdentifierSentences(const PreparedExport& prepared) {
  QStringList sentences;
  for (const Finding& finding : prepared.Found()) {
    if (!std::string_view(finding.code).starts_with("id-") || !IsTrouble(finding.consequence)) continue;
    const FindingText text = DescribeFinding(finding, prepared.Subject(), FindingLanguage());
    sentences.append(LineFromUtf8(text.what + (text.advice.empty() ? "" : " " + text.advice)));
  }
  return sentences.join(QLatin1String("\n\n"));
}

QByteArray _Borrowed(const std::string& bytes) {
  return QByteArray::fromRawData(bytes.data(), static_cast<qsizetype>(bytes.size()));
}

QString _ProposedName(const PreparedExport& prepared) {
  const OwnExportChoices& chosen = prepared.Choices();
  const QString name =
      chosen.assignments.size() == 1
          ? LineFromUtf8(prepared.Class()->Texts().AssignmentName(chosen.assignments.front()))
          : prepared.Class()->name;
  return ProposedFileName(name, QString::fromUtf8(chosen.choices.format->name), kExtension);
}

ExportedFile _FileAt(const QString& path, const PreparedExport& prepared) {
  const OwnExportChoices& chosen = prepared.Choices();
  ExportedFile file;
  file.path = path;
  file.openClass = prepared.Class();
  file.format = chosen.choices.format;
  file.dialect = chosen.choices.dialect;
  file.delimiter = chosen.choices.delimiter;
  file.useQuotes = chosen.choices.useQuotes;
  file.identifier = chosen.choices.identifier;
  file.assignments = chosen.assignments;
  file.assignmentCount = static_cast<uint32_t>(chosen.assignments.size());
  file.studentCount = static_cast<uint32_t>(file.openClass->record.students.size());
  const bool isClassic = chosen.choices.dialect == Dialect::kClassic;
  if (isClassic) file.replacedCharacters = static_cast<uint32_t>(file.openClass->replacedCharacters);
  file.studentsWithoutIdentifier = static_cast<uint32_t>(prepared.Identifiers().empty.size());
  return file;
}

}  // namespace

ExportWindow::ExportWindow(QWidget* parent, std::shared_ptr<const OpenClass> openClass,
                           const ExportStart& start, Handlers handlers)
    : QWidget(parent, Qt::Window),
      m_class(std::move(openClass)),
      m_handlers(std::move(handlers)),
      m_picker(new ExportPicker(
          this, [this] { Changed(); }, ExportPicker::Purpose::kOwnExport)),
      m_assignments(new AssignmentPicker(this, [this] { Changed(); })),
      m_reportHint(new QLabel(this)),
      m_preview(new FilePreview(this)),
      m_findings(new FindingsView(this, m_handlers.placesChosen)),
      m_obstacle(new QWidget(this)),
      m_obstacleText(new QLabel(m_obstacle)),
      m_help(new QPushButton(this)),
      m_save(new QPushButton(this)),
      m_close(new QPushButton(this)) {
  setObjectName(QStringLiteral("exportWindow"));
  setAttribute(Qt::WA_DeleteOnClose);
  for (QTimer* const timer : {&m_prepareSoon, &m_previewSoon}) timer->setSingleShot(true);
  connect(&m_prepareSoon, &QTimer::timeout, this, &ExportWindow::Prepare);
  connect(&m_previewSoon, &QTimer::timeout, this, &ExportWindow::ShowPreview);
  m_preview->Pages()->insertTab(0, m_findings, QString());
  m_preview->Pages()->setCurrentIndex(0);
  auto* const splitter = new QSplitter(this);
  splitter->addWidget(MakeChoices());
  splitter->addWidget(m_preview);
  splitter->setStretchFactor(1, 1);
  splitter->setChildrenCollapsible(false);
  auto* const layout = new QVBoxLayout(this);
  layout->addWidget(splitter, 1);
  layout->addLayout(MakeButtons());
  CloseByKeys(this);
  OfferHelp(this, [this] { return m_picker->Format().helpTopic; });
  Begin(start);
  const QSize wanted(fontMetrics().height() * 56, fontMetrics().height() * 34);
  resize(wanted.boundedTo(screen()->availableSize() * 9 / 10));
}

QWidget* ExportWindow::MakeChoices() {
  auto* const choices = new QWidget(this);
  m_reportHint->setObjectName(QStringLiteral("reportHint"));
  m_reportHint->setWordWrap(true);
  auto* const layout = new QVBoxLayout(choices);
  layout->setContentsMargins({});
  layout->addWidget(m_picker);
  layout->addWidget(m_reportHint);
  layout->addSpacing(fontMetrics().height() / 2);
  layout->addWidget(m_assignments, 1);
  return choices;
}

QLayout* ExportWindow::MakeButtons() {
  m_help->setObjectName(QStringLiteral("help"));
  m_save->setObjectName(QStringLiteral("save"));
  m_close->setObjectName(QStringLiteral("close"));
  m_obstacleText->setObjectName(QStringLiteral("obstacle"));
  m_obstacleText->setTextFormat(Qt::PlainText);
  m_obstacleText->setWordWrap(true);
  auto* const icon = new QLabel(m_obstacle);
  const int side = fontMetrics().height();
  icon->setPixmap(ConsequenceIcon(Consequence::kRefused).pixmap(side, side));
  auto* const line = new QHBoxLayout(m_obstacle);
  line->setContentsMargins({});
  line->addWidget(icon);
  line->addWidget(m_obstacleText, 1);
  auto* const row = new QHBoxLayout;
  row->addWidget(m_help);
  row->addWidget(m_obstacle, 1);
  row->addStretch();
  row->addWidget(m_save);
  row->addWidget(m_close);
  connect(m_help, &QPushButton::clicked, this, [this] { ShowHelp(this, m_picker->Format().helpTopic); });
  connect(m_save, &QPushButton::clicked, this, &ExportWindow::AskToSave);
  connect(m_close, &QPushButton::clicked, this, &QWidget::close);
  connect(new QShortcut(QKeySequence::Save, this), &QShortcut::activated, m_save, &QPushButton::click);
  return row;
}

void ExportWindow::Begin(const ExportStart& start) {
  m_picker->SetClass(m_class);
  if (start.format != nullptr) {
    m_picker->ChooseFormat(*start.format);
    m_picker->ChooseIdentifier(start.identifier);
  }
  m_picker->ChooseDialect(start.dialect);
  m_assignments->SetClass(m_class);
  m_assignments->Choose(start.assignments);
  Changed();
  Retranslate();
}

void ExportWindow::SetClass(std::shared_ptr<const OpenClass> openClass) {
  m_class = std::move(openClass);
  m_picker->SetClass(m_class);
  m_assignments->SetClass(m_class);
  Changed();
  Retranslate();
}

OwnExportChoices ExportWindow::Choices() const {
  OwnExportChoices chosen;
  chosen.choices.format = &m_picker->Format();
  chosen.choices.identifier = m_picker->Identifier();
  chosen.choices.dialect = m_picker->ChosenDialect();
  chosen.choices.delimiter = m_picker->Delimiter();
  chosen.assignments = m_assignments->Chosen();
  return chosen;
}

void ExportWindow::Changed() {
  const bool isReport = m_picker->Format().IsReport();
  m_assignments->SetOnlyOne(isReport);
  m_reportHint->setVisible(isReport);
  m_prepareSoon.start();
}

void ExportWindow::Prepare() {
  m_prepareSoon.stop();
  m_prepared.reset();
  try {
    m_prepared = std::make_shared<PreparedExport>(m_class, Choices());
  } catch (const std::bad_alloc&) {
  }
  ShowFindings();
  ShowObstacle();
  m_previewSoon.start();
}

void ExportWindow::ShowFindings() {
  if (m_prepared == nullptr) return;
  m_findings->Show(m_prepared->Found(), m_prepared->Subject());
  m_preview->Pages()->setTabText(m_preview->Pages()->indexOf(m_findings), m_findings->Title());
}

void ExportWindow::ShowObstacle() {
  const bool canWrite = m_prepared != nullptr && m_prepared->CanWrite();
  QString text = m_prepared == nullptr ? Texts::tr("There is not enough memory for this export.")
                                       : _ObstacleText(*m_prepared);
  if (canWrite && !text.isEmpty()) text += u' ' + Texts::tr("Save asks whether you want that file.");
  m_obstacleText->setText(text);
  m_obstacle->setVisible(!text.isEmpty());
  m_save->setEnabled(canWrite);
}

void ExportWindow::ShowPreview() {
  if (m_prepared == nullptr || !m_prepared->CanWrite()) {
    m_preview->ShowNothing(Texts::tr("There is no file to show."));
    return;
  }
  const std::string& bytes = m_prepared->Bytes();
  const ExportSubject& subject = m_prepared->Subject();
  m_preview->Show(_Borrowed(bytes), ReadingOf(*subject.format, subject.dialect, subject.delimiter, bytes));
}

void ExportWindow::AskToSave() {
  const auto save = [self = QPointer<ExportWindow>(this)] {
    if (self != nullptr) self->Save();
  };
  if (m_handlers.withPresentClass) return m_handlers.withPresentClass(this, save);
  save();
}

// Of the choices that stand there, also when their preview has still to come.
void ExportWindow::Save() {
  if (m_prepareSoon.isActive()) Prepare();
  if (m_prepared == nullptr || !m_prepared->CanWrite()) return;
  if (m_prepared->HasRefusedIdentifiers() && !MayShareIdentifiers()) return;
  const std::shared_ptr<PreparedExport> prepared = m_prepared;  // another one may follow meanwhile
  const QPointer<ExportWindow> self(this);
  const std::optional<QString> path =
      ChooseSaveFile(this, {.proposedName = _ProposedName(*prepared),
                            .extension = kExtension,
                            .classPaths = {prepared->Class()->path, m_class->path},
                            .maxPathBytes = kMaxOwnPathBytes});
  if (self == nullptr || !path) return;
  const FileOutcome outcome = prepared->Write(QFile::encodeName(*path).toStdString());
  if (outcome.error != 0) {
    ShowNotWritten(this, *path, outcome.error, outcome.incomplete);
  } else {
    m_handlers.saved(_FileAt(*path, *prepared));
  }
}

bool ExportWindow::MayShareIdentifiers() {
  QMessageBox question(QMessageBox::Warning, Texts::tr("Save File"), _ObstacleText(*m_prepared),
                       QMessageBox::NoButton, this);
  question.setObjectName(QStringLiteral("identifierQuestion"));
  question.setTextFormat(Qt::PlainText);
  question.setInformativeText(_IdentifierSentences(*m_prepared));
  QPushButton* const save = question.addButton(Texts::tr("Save All the Same…"), QMessageBox::AcceptRole);
  QPushButton* const cancel = question.addButton(Texts::tr("Cancel"), QMessageBox::RejectRole);
  question.setDefaultButton(cancel);
  question.setEscapeButton(cancel);
  question.exec();
  return question.clickedButton() == save;
}

void ExportWindow::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::LanguageChange) Retranslate();
}

void ExportWindow::Retranslate() {
  setWindowTitle(Texts::tr("Export – %1").arg(m_class->name));
  m_reportHint->setText(Texts::tr(
      "The report has the students' first and last names, their IDs and their responses. The export "
      "window offers more."));
  m_help->setText(Texts::tr("&Help"));
  m_save->setText(Texts::tr("Sa&ve…"));
  m_close->setText(Texts::tr("&Close"));
  ShowFindings();
  if (m_prepared != nullptr) ShowObstacle();
  if (m_prepared != nullptr && !m_previewSoon.isActive() && !m_prepared->CanWrite()) ShowPreview();
}

}  // namespace host

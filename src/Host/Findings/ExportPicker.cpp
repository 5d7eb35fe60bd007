#include "Host/Findings/ExportPicker.h"

#include <QComboBox>
#include <QEvent>
#include <QFormLayout>
#include <QLabel>
#include <QSignalBlocker>
#include <algorithm>
#include <utility>

#include "Common/QZData/StudentFields.h"
#include "Host/App/Choices.h"
#include "Host/App/Texts.h"
#include "Host/ClassView/RomanText.h"
#include "Host/Export/FileNames.h"
#include "Host/Findings/FindingsModel.h"
#include "Systems/CurrentFile.h"
#include "Systems/LearningSystem.h"

namespace host {

namespace {

constexpr int kCurrentFile = 1;  // rows of the boxes
constexpr int kSemicolon = 1;

// Fills a box again: the row that was chosen, or the first one, stays.
void _SetTexts(const QStringList& texts, QComboBox* combo) {
  const QSignalBlocker blocker(combo);
  const int chosen = std::max(combo->currentIndex(), 0);
  combo->clear();
  combo->addItems(texts);
  combo->setCurrentIndex(chosen);
}

}  // namespace

ExportPicker::ExportPicker(QWidget* parent, std::function<void()> changed, Purpose purpose)
    : QWidget(parent),
      m_changed(std::move(changed)),
      m_purpose(purpose),
      m_layout(new QFormLayout(this)),
      m_formatLabel(new QLabel(this)),
      m_format(new QComboBox(this)),
      m_fieldLabel(new QLabel(this)),
      m_field(new QComboBox(this)),
      m_dialectLabel(new QLabel(this)),
      m_dialect(new QComboBox(this)),
      m_dialectHint(new QLabel(this)),
      m_delimiterLabel(new QLabel(this)),
      m_delimiter(new QComboBox(this)) {
  m_layout->setContentsMargins({});
  m_layout->setRowWrapPolicy(QFormLayout::WrapLongRows);
  m_layout->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
  AddRow(m_formatLabel, m_format, "format");
  AddRow(m_fieldLabel, m_field, "field");
  AddRow(m_dialectLabel, m_dialect, "dialect");
  m_dialectHint->setWordWrap(true);
  m_layout->addRow(m_dialectHint);
  AddRow(m_delimiterLabel, m_delimiter, "delimiter");
  setFocusProxy(m_format);
  AddFormats();
  m_chosenFormat = FindFormat(m_format->currentData().toUInt());
  m_chosenField = FieldOf(*m_chosenFormat);
  Retranslate();
  connect(m_format, &QComboBox::currentIndexChanged, this, &ExportPicker::FormatChosen);
  connect(m_field, &QComboBox::currentIndexChanged, this, &ExportPicker::FieldChosen);
  const auto fileChosen = [this] {
    ShowFiles();
    m_changed();
  };
  connect(m_dialect, &QComboBox::currentIndexChanged, this, fileChosen);
  connect(m_delimiter, &QComboBox::currentIndexChanged, this, fileChosen);
}

void ExportPicker::AddRow(QLabel* label, QComboBox* combo, const char* name) {
  combo->setObjectName(QLatin1String(name));
  combo->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  combo->setMinimumContentsLength(8);
  label->setBuddy(combo);
  m_layout->addRow(label, combo);
}

void ExportPicker::Add(const FormatRow& format) {
  if (format.IsReport() && m_purpose == Purpose::kReadiness) return;
  m_format->addItem(ShortFormatName(QString::fromUtf8(format.name)), format.index);
}

void ExportPicker::AddFormats() {
  const FormatOrder order = FormatsInTeachersOrder();
  for (const FormatRow* format : order.inUse) Add(*format);
  m_format->insertSeparator(m_format->count());
  for (const FormatRow* format : order.retired) Add(*format);
}

void ExportPicker::SetClass(std::shared_ptr<const OpenClass> openClass) {
  m_class = std::move(openClass);
  ShowFields();
}

Dialect ExportPicker::ChosenDialect() const {
  const bool isCurrent = FindCurrentFile(Format()) != nullptr && m_dialect->currentIndex() == kCurrentFile;
  return isCurrent ? Dialect::kCurrent : Dialect::kClassic;
}

bool ExportPicker::TakesSemicolons() const {
  const CurrentFile* const current =
      ChosenDialect() == Dialect::kCurrent ? FindCurrentFile(Format()) : nullptr;
  return current != nullptr && current->takesSemicolons;
}

char ExportPicker::Delimiter() const {
  return TakesSemicolons() && m_delimiter->currentIndex() == kSemicolon ? ';' : ',';
}

void ExportPicker::ChooseFormat(const FormatRow& format) {
  const int row = m_format->findData(format.index);
  if (row < 0) return;
  SetLastFormat(format);
  m_format->setCurrentIndex(row);
}

void ExportPicker::ChooseIdentifier(qz::UserIDField field) {
  m_field->setCurrentIndex(m_field->findData(int{field}));
}

void ExportPicker::ChooseDialect(Dialect dialect) {
  m_dialect->setCurrentIndex(dialect == Dialect::kCurrent ? kCurrentFile : 0);
}

ExportSubject ExportPicker::Subject(std::vector<size_t> assignments) const {
  const Dialect dialect = ChosenDialect();
  ExportSubject subject =
      MakeExportSubject(Format(), m_class->Texts(), m_chosenField, dialect, std::move(assignments));
  subject.delimiter = Delimiter();
  subject.throughDialog = dialect == Dialect::kClassic;
  return subject;
}

void ExportPicker::FormatChosen() {
  m_chosenFormat = FindFormat(m_format->currentData().toUInt());
  m_chosenField = FieldOf(*m_chosenFormat);
  SetLastFormat(*m_chosenFormat);
  ShowFields();
  ShowFiles();
  m_changed();
}

void ExportPicker::FieldChosen() {
  m_chosenField = static_cast<qz::UserIDField>(m_field->currentData().toInt());
  SetFieldOf(*m_chosenFormat, m_chosenField);
  m_changed();
}

void ExportPicker::ShowFields() {
  const QSignalBlocker blocker(m_field);
  const OpenClass noClass;
  const qz::ClassTexts texts = (m_class != nullptr ? *m_class : noClass).Texts();
  m_field->clear();
  for (const qz::StudentField& field : qz::kStudentFields) {
    if (!field.CanIdentify()) continue;
    m_field->addItem(LineFromUtf8(DescribeField(field, texts, FindingLanguage())), int{field.userIDField});
  }
  m_field->setCurrentIndex(m_field->findData(int{m_chosenField}));
}

void ExportPicker::ShowFiles() {
  const bool hasCurrent = FindCurrentFile(Format()) != nullptr;
  m_layout->setRowVisible(m_field, !Format().IsReport());
  m_layout->setRowVisible(m_dialect, hasCurrent);
  m_layout->setRowVisible(m_dialectHint, hasCurrent);
  m_layout->setRowVisible(m_delimiter, TakesSemicolons());
  m_dialectHint->setText(DialectHint());
}

QString ExportPicker::DialectHint() const {
  const QString system = QString::fromUtf8(SystemOf(Format()).name);
  const bool isCurrent = ChosenDialect() == Dialect::kCurrent;
  if (Format().IsReport())
    return isCurrent ? Texts::tr("For today's spreadsheets.")
                     : Texts::tr("The file that the export window writes.");
  if (!isCurrent) return Texts::tr("The file that the export window writes.");
  return m_purpose == Purpose::kOwnExport
             ? Texts::tr("For today's %1.").arg(system)
             : Texts::tr("For today's %1. This program writes it, without the export window.").arg(system);
}

void ExportPicker::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::LanguageChange) Retranslate();
}

void ExportPicker::Retranslate() {
  m_formatLabel->setText(Texts::tr("&System:"));
  m_fieldLabel->setText(Texts::tr("Student fiel&d:"));
  m_dialectLabel->setText(Texts::tr("&Kind of file:"));
  m_delimiterLabel->setText(Texts::tr("Se&parator:"));
  _SetTexts({Texts::tr("Classic file"), Texts::tr("Current file")}, m_dialect);
  _SetTexts({Texts::tr("Commas"), Texts::tr("Semicolons")}, m_delimiter);
  ShowFields();
  ShowFiles();
}

}  // namespace host

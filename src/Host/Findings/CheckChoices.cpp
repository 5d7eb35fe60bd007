#include "Host/Findings/CheckChoices.h"

#include <QCheckBox>
#include <QComboBox>
#include <QEvent>
#include <QLabel>
#include <QListWidget>
#include <QSignalBlocker>
#include <QVBoxLayout>
#include <utility>

#include "Common/QZData/StudentFields.h"
#include "Host/App/Texts.h"
#include "Host/ClassView/RomanText.h"
#include "Host/Export/FileNames.h"
#include "Host/Findings/FindingsModel.h"
#include "Systems/LearningSystem.h"

namespace host {

CheckChoices::CheckChoices(QWidget* parent, std::function<void()> changed)
    : QWidget(parent),
      m_changed(std::move(changed)),
      m_formatLabel(new QLabel(this)),
      m_format(new QComboBox(this)),
      m_fieldLabel(new QLabel(this)),
      m_field(new QComboBox(this)),
      m_dialectLabel(new QLabel(this)),
      m_dialect(new QComboBox(this)),
      m_dialectHint(new QLabel(this)),
      m_all(new QCheckBox(this)),
      m_assignments(new QListWidget(this)) {
  m_format->setObjectName(QStringLiteral("format"));
  m_field->setObjectName(QStringLiteral("field"));
  m_dialect->setObjectName(QStringLiteral("dialect"));
  m_all->setObjectName(QStringLiteral("allAssignments"));
  m_assignments->setObjectName(QStringLiteral("assignments"));
  m_dialectHint->setWordWrap(true);
  auto* const layout = new QVBoxLayout(this);
  layout->setContentsMargins({});
  const struct {
    QLabel* label;
    QComboBox* combo;
  } rows[] = {{m_formatLabel, m_format}, {m_fieldLabel, m_field}, {m_dialectLabel, m_dialect}};
  for (const auto& row : rows) {
    row.label->setBuddy(row.combo);
    row.combo->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    row.combo->setMinimumContentsLength(20);
    layout->addWidget(row.label);
    layout->addWidget(row.combo);
  }
  layout->addWidget(m_dialectHint);
  layout->addSpacing(fontMetrics().height() / 2);
  layout->addWidget(m_all);
  layout->addWidget(m_assignments, 1);
  AddFormats();
  connect(m_format, &QComboBox::currentIndexChanged, this, [this] {
    ProposeField();
    ShowDialects();
    m_changed();
  });
  connect(m_field, &QComboBox::currentIndexChanged, this, m_changed);
  connect(m_dialect, &QComboBox::currentIndexChanged, this, [this] {
    ShowDialects();
    m_changed();
  });
  connect(m_all, &QCheckBox::clicked, this, &CheckChoices::AllClicked);
  connect(m_assignments, &QListWidget::itemChanged, this, [this] {
    ShowWhetherAll();
    m_changed();
  });
}

// The detailed report is not among them: no learning system reads it, and its dialog decides what is in it.
void CheckChoices::AddFormats() {
  for (const LearningSystem* system : LearningSystems()) {
    for (const SystemFormat& taken : system->formats) {
      const FormatRow& format = *FindFormat(taken.key);
      if (!format.IsReport())
        m_format->addItem(ShortFormatName(QString::fromUtf8(format.name)), format.index);
    }
  }
}

void CheckChoices::SetClass(std::shared_ptr<const OpenClass> openClass) {
  m_class = std::move(openClass);
  {
    const QSignalBlocker blocker(m_assignments);
    m_assignments->clear();
    for (size_t i = 0; i < m_class->record.assignments.size(); ++i) {
      auto* const item = new QListWidgetItem(LineFromUtf8(m_class->Texts().AssignmentName(i)), m_assignments);
      item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
      item->setCheckState(Qt::Checked);
    }
  }
  ShowWhetherAll();
  const bool isFirst = m_field->count() == 0;
  Retranslate();
  if (isFirst) ProposeField();
}

const FormatRow& CheckChoices::Format() const {
  return *FindFormat(m_format->currentData().toUInt());
}

qz::UserIDField CheckChoices::Identifier() const {
  return static_cast<qz::UserIDField>(m_field->currentData().toInt());
}

Dialect CheckChoices::ChosenDialect() const {
  const bool isCurrent = FindCurrentFile(Format()) != nullptr && m_dialect->currentIndex() == 1;
  return isCurrent ? Dialect::kCurrent : Dialect::kClassic;
}

std::vector<size_t> CheckChoices::Assignments() const {
  std::vector<size_t> checked;
  for (int row = 0; row < m_assignments->count(); ++row) {
    if (m_assignments->item(row)->checkState() == Qt::Checked) checked.push_back(static_cast<size_t>(row));
  }
  return checked;
}

ExportSubject CheckChoices::Subject() const {
  const Dialect dialect = ChosenDialect();
  ExportSubject subject = MakeExportSubject(Format(), m_class->Texts(), Identifier(), dialect, Assignments());
  subject.throughDialog = dialect == Dialect::kClassic;
  return subject;
}

void CheckChoices::ProposeField() {
  const QSignalBlocker blocker(m_field);
  m_field->setCurrentIndex(m_field->findData(int{Format().defaultUserIDField}));
}

// The box itself would go through its three states.
void CheckChoices::AllClicked() {
  const int count = m_assignments->count();
  const bool checked = std::cmp_less(Assignments().size(), count);
  {
    const QSignalBlocker blocker(m_assignments);
    for (int row = 0; row < count; ++row) {
      m_assignments->item(row)->setCheckState(checked ? Qt::Checked : Qt::Unchecked);
    }
  }
  m_assignments->viewport()->update();
  ShowWhetherAll();
  m_changed();
}

void CheckChoices::ShowWhetherAll() {
  const auto checked = static_cast<int>(Assignments().size());
  Qt::CheckState state = Qt::PartiallyChecked;
  if (checked == m_assignments->count()) state = Qt::Checked;
  if (checked == 0) state = Qt::Unchecked;
  m_all->setCheckState(state);
  m_all->setEnabled(m_assignments->count() > 0);
}

void CheckChoices::ShowFields() {
  const QSignalBlocker blocker(m_field);
  const int chosen = m_field->currentIndex();
  m_field->clear();
  for (const qz::StudentField& field : qz::kStudentFields) {
    if (!field.CanIdentify()) continue;
    m_field->addItem(LineFromUtf8(DescribeField(field, m_class->Texts(), FindingLanguage())),
                     int{field.userIDField});
  }
  m_field->setCurrentIndex(chosen);
}

void CheckChoices::ShowDialects() {
  const QString system = QString::fromUtf8(SystemOf(Format()).name);
  const bool hasCurrent = FindCurrentFile(Format()) != nullptr;
  {
    const QSignalBlocker blocker(m_dialect);
    if (m_dialect->count() == 0) m_dialect->addItems({QString(), QString()});
    m_dialect->setItemText(0, Texts::tr("Classic file"));
    m_dialect->setItemText(1, Texts::tr("Current file"));
  }
  m_dialectLabel->setVisible(hasCurrent);
  m_dialect->setVisible(hasCurrent);
  m_dialectHint->setVisible(hasCurrent);
  m_dialectHint->setText(
      ChosenDialect() == Dialect::kCurrent
          ? Texts::tr(
                "The file for today's %1. The program gxexport writes it, with the option --dialect current.")
                .arg(system)
          : Texts::tr("The file that the Export menu writes."));
}

void CheckChoices::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::LanguageChange && m_class != nullptr) Retranslate();
}

void CheckChoices::Retranslate() {
  const auto label = [](QLabel* title, QWidget* field, const char* text) {
    title->setText(Texts::tr(text));
    field->setAccessibleName(Texts::tr(text).remove(u'&').remove(u':'));
  };
  label(m_formatLabel, m_format, QT_TRANSLATE_NOOP("Texts", "&System:"));
  label(m_fieldLabel, m_field, QT_TRANSLATE_NOOP("Texts", "Student &field:"));
  label(m_dialectLabel, m_dialect, QT_TRANSLATE_NOOP("Texts", "Fi&le:"));
  m_all->setText(Texts::tr("&All assignments"));
  m_all->setAccessibleName(Texts::tr("&All assignments").remove(u'&'));
  m_assignments->setAccessibleName(Texts::tr("Assignments"));
  ShowFields();
  ShowDialects();
}

}  // namespace host

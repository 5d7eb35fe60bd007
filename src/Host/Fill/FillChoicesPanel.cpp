#include "Host/Fill/FillChoicesPanel.h"

#include <QCheckBox>
#include <QComboBox>
#include <QEvent>
#include <QLabel>
#include <QSignalBlocker>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

#include "Common/QZData/StudentFields.h"
#include "Host/App/Numbers.h"
#include "Host/App/Texts.h"
#include "Host/ClassView/RomanText.h"
#include "Host/Findings/FindingsModel.h"
#include "Host/Preview/AssignmentPicker.h"
#include "Systems/FindingTexts.h"
#include "Systems/LearningSystem.h"

namespace host {

FillChoicesPanel::FillChoicesPanel(QWidget* parent, const std::function<void()>& changed)
    : QWidget(parent),
      m_fieldLabel(new QLabel(this)),
      m_field(new QComboBox(this)),
      m_hint(new QLabel(this)),
      m_onlyEmpty(new QCheckBox(this)),
      m_newColumns(new QCheckBox(this)),
      m_matchNames(new QCheckBox(this)),
      m_assignments(new AssignmentPicker(this, changed)) {
  m_field->setObjectName(QStringLiteral("field"));
  m_hint->setObjectName(QStringLiteral("fieldHint"));
  m_onlyEmpty->setObjectName(QStringLiteral("onlyEmpty"));
  m_newColumns->setObjectName(QStringLiteral("newColumns"));
  m_matchNames->setObjectName(QStringLiteral("matchNames"));
  m_fieldLabel->setBuddy(m_field);
  m_field->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  m_field->setMinimumContentsLength(20);
  m_hint->setTextFormat(Qt::PlainText);
  m_hint->setWordWrap(true);
  auto* const layout = new QVBoxLayout(this);
  layout->setContentsMargins({});
  for (QWidget* widget : std::initializer_list<QWidget*>{m_fieldLabel, m_field, m_hint, m_matchNames,
                                                         m_onlyEmpty, m_newColumns}) {
    layout->addWidget(widget);
  }
  layout->addSpacing(fontMetrics().height() / 2);
  layout->addWidget(m_assignments, 1);
  connect(m_field, &QComboBox::currentIndexChanged, this, [this, changed] {
    ShowHint();
    changed();
  });
  for (QCheckBox* box : {m_onlyEmpty, m_newColumns, m_matchNames}) {
    connect(box, &QCheckBox::toggled, this, [changed] { changed(); });
  }
}

void FillChoicesPanel::SetClass(std::shared_ptr<const OpenClass> openClass) {
  m_class = std::move(openClass);
  m_assignments->SetClass(m_class);
}

void FillChoicesPanel::Propose(const FillDraft& draft, qz::UserIDField wanted) {
  m_hits = draft.HitsOfFields();
  m_wanted = wanted;
  const auto mostHits = std::ranges::max_element(m_hits, {}, &FieldHits::found);
  const auto wantedHits = std::ranges::find(m_hits, wanted, &FieldHits::field);
  const bool isOfUse = wantedHits != m_hits.end() && (wantedHits->found > 0 || mostHits->found == 0);
  m_newColumns->setVisible(draft.Download()->system->download->newTitle != nullptr);
  ShowFields();
  const QSignalBlocker blocker(m_field);
  m_field->setCurrentIndex(m_field->findData(int{(isOfUse ? wantedHits : mostHits)->field}));
  Retranslate();
}

qz::UserIDField FillChoicesPanel::Identifier() const {
  return static_cast<qz::UserIDField>(m_field->currentData().toInt());
}

// A box that is not shown offers nothing.
FillDraft::Options FillChoicesPanel::Options() const {
  return {.onlyEmpty = m_onlyEmpty->isChecked(),
          .newColumns = m_newColumns->isVisibleTo(this) && m_newColumns->isChecked(),
          .matchNames = m_matchNames->isChecked()};
}

std::vector<size_t> FillChoicesPanel::Assignments() const {
  return m_assignments->Chosen();
}

QString FillChoicesPanel::NameOf(qz::UserIDField field) const {
  return LineFromUtf8(DescribeField(qz::FindStudentField(field), m_class->Texts(), FindingLanguage()));
}

void FillChoicesPanel::ShowFields() {
  const QSignalBlocker blocker(m_field);
  const int chosen = m_field->currentIndex();
  m_field->clear();
  for (const FieldHits& hits : m_hits) {
    m_field->addItem(Texts::tr("%1: %2 found").arg(NameOf(hits.field), CountText(hits.found)),
                     int{hits.field});
  }
  m_field->setCurrentIndex(chosen);
}

void FillChoicesPanel::ShowHint() {
  const qz::UserIDField chosen = Identifier();
  const auto hits = std::ranges::find(m_hits, chosen, &FieldHits::field);
  QString text;
  if (hits != m_hits.end() && hits->found == 0) {
    text = Texts::tr("In this field nobody has an identifier that stands in the gradebook.");
  } else if (chosen != m_wanted) {
    const auto wanted = std::ranges::find(m_hits, m_wanted, &FieldHits::field);
    if (wanted != m_hits.end() && wanted->found == 0)
      text = Texts::tr("%1 finds nobody in this gradebook, %2 finds the most.")
                 .arg(NameOf(m_wanted), NameOf(chosen));
  }
  m_hint->setText(text);
  m_hint->setVisible(!text.isEmpty());
}

void FillChoicesPanel::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::LanguageChange && !m_hits.empty()) Retranslate();
}

void FillChoicesPanel::Retranslate() {
  m_fieldLabel->setText(Texts::tr("Student &field:"));
  m_onlyEmpty->setText(Texts::tr("Only fill &empty cells"));
  m_newColumns->setText(Texts::tr("Add columns for assignments\n&without one"));
  m_matchNames->setText(Texts::tr("Match by &name where\nthe identifier fails"));
  ShowFields();
  ShowHint();
}

}  // namespace host

#include "Host/ClassView/AssignmentPanel.h"

#include <QComboBox>
#include <QEvent>
#include <QFormLayout>
#include <QGroupBox>
#include <QLabel>
#include <QSignalBlocker>
#include <QVBoxLayout>
#include <utility>

#include "Host/App/Texts.h"
#include "Host/ClassView/HistogramWidget.h"
#include "Host/ClassView/RomanText.h"

namespace host {

namespace {

constexpr const char* kFigureTitles[] = {
    QT_TRANSLATE_NOOP("Texts", "Students"),       QT_TRANSLATE_NOOP("Texts", "Results"),
    QT_TRANSLATE_NOOP("Texts", "Missing"),        QT_TRANSLATE_NOOP("Texts", "Mean"),
    QT_TRANSLATE_NOOP("Texts", "Median"),         QT_TRANSLATE_NOOP("Texts", "Minimum"),
    QT_TRANSLATE_NOOP("Texts", "Maximum"),        QT_TRANSLATE_NOOP("Texts", "Standard deviation"),
    QT_TRANSLATE_NOOP("Texts", "Points possible")};

}  // namespace

AssignmentPanel::AssignmentPanel(QWidget* parent, std::function<void(int)> selected)
    : QWidget(parent),
      m_selected(std::move(selected)),
      m_label(new QLabel(this)),
      m_combo(new QComboBox(this)),
      m_nothing(new QLabel(this)),
      m_group(new QGroupBox(this)),
      m_histogram(new HistogramWidget(this)) {
  m_combo->setObjectName(QStringLiteral("assignment"));
  m_combo->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  m_combo->setMinimumContentsLength(20);
  m_label->setBuddy(m_combo);
  m_nothing->setWordWrap(true);
  AddFigures();
  auto* const layout = new QVBoxLayout(this);
  layout->addWidget(m_label);
  layout->addWidget(m_combo);
  layout->addWidget(m_nothing);
  layout->addWidget(m_group);
  layout->addWidget(m_histogram, 1);
  connect(m_combo, &QComboBox::currentIndexChanged, this, [this] { ShowSelected(); });
  SetClass(nullptr);
  Retranslate();
}

void AssignmentPanel::AddFigures() {
  auto* const form = new QFormLayout(m_group);
  form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
  for (const char* const title : kFigureTitles) {
    const Figure figure{title, new QLabel(m_group), new QLabel(m_group)};
    figure.value->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    figure.value->setTextInteractionFlags(Qt::TextSelectableByMouse);
    figure.label->setBuddy(figure.value);
    form->addRow(figure.label, figure.value);
    m_figures.push_back(figure);
  }
}

void AssignmentPanel::SetClass(std::shared_ptr<const OpenClass> openClass) {
  m_class = std::move(openClass);
  {
    const QSignalBlocker blocker(m_combo);
    m_combo->clear();
    if (m_class != nullptr) {
      for (size_t i = 0; i < m_class->record.assignments.size(); ++i) {
        m_combo->addItem(LineFromUtf8(m_class->Texts().AssignmentName(i)));
      }
    }
  }
  const bool any = m_combo->count() > 0;
  m_nothing->setVisible(!any);
  m_combo->setEnabled(any);
  m_group->setVisible(any);
  m_histogram->setVisible(any);
  ShowSelected();
}

int AssignmentPanel::Selected() const {
  return m_combo->currentIndex();
}

void AssignmentPanel::Select(int assignment) {
  if (assignment >= 0 && assignment < m_combo->count()) m_combo->setCurrentIndex(assignment);
}

void AssignmentPanel::ShowSelected() {
  const int selected = Selected();
  if (m_class != nullptr && selected >= 0) {
    const auto position = static_cast<size_t>(selected);
    const int pointsPossible = m_class->record.assignments[position].pointsPossible;
    const Scores scores = m_class->ScoresOn(position);
    ShowFigures(scores, pointsPossible);
    m_histogram->SetHistogram(ComputeHistogram(scores, pointsPossible));
  }
  if (m_selected) m_selected(selected);
}

void AssignmentPanel::ShowFigures(const Scores& scores, int pointsPossible) {
  const ScoreStatistics statistics = ComputeStatistics(scores);
  const auto number = [](size_t count) { return QString::number(count); };
  const auto points = [&statistics](double ScoreFigures::*member) {
    return statistics.figures ? PointsText((*statistics.figures).*member) : QStringLiteral("—");
  };
  const QString values[] = {number(statistics.students),    number(statistics.results),
                            number(statistics.missing),     points(&ScoreFigures::mean),
                            points(&ScoreFigures::median),  points(&ScoreFigures::minimum),
                            points(&ScoreFigures::maximum), points(&ScoreFigures::standardDeviation),
                            QString::number(pointsPossible)};
  static_assert(std::size(values) == std::size(kFigureTitles));
  for (size_t i = 0; i < m_figures.size(); ++i) m_figures[i].value->setText(values[i]);
}

void AssignmentPanel::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::LanguageChange) Retranslate();
}

void AssignmentPanel::Retranslate() {
  setAccessibleName(Texts::tr("Assignment"));
  m_label->setText(Texts::tr("&Assignment:"));
  m_combo->setAccessibleName(Texts::tr("Assignment"));
  m_nothing->setText(Texts::tr("This class has no assignments yet."));
  m_group->setTitle(Texts::tr("Statistics"));
  m_group->setAccessibleName(Texts::tr("Statistics"));
  for (const Figure& figure : m_figures) {
    figure.label->setText(Texts::tr(figure.title));
    figure.value->setAccessibleName(Texts::tr(figure.title));
  }
}

}  // namespace host

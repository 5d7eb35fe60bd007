#include "Host/ClassView/AssignmentPanel.h"

#include <QComboBox>
#include <QEvent>
#include <QFormLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QScrollArea>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QVBoxLayout>
#include <utility>

#include "Host/App/AccessibleRoles.h"
#include "Host/App/Numbers.h"
#include "Host/App/Texts.h"
#include "Host/ClassView/HistogramWidget.h"
#include "Host/ClassView/RomanText.h"

namespace host {

namespace {

constexpr int kComboLength = 12;  // letters that a title shows at least

constexpr const char* kCaptions[] = {
    QT_TRANSLATE_NOOP("Texts", "Students:"),       QT_TRANSLATE_NOOP("Texts", "Results:"),
    QT_TRANSLATE_NOOP("Texts", "Missing:"),        QT_TRANSLATE_NOOP("Texts", "Mean:"),
    QT_TRANSLATE_NOOP("Texts", "Median:"),         QT_TRANSLATE_NOOP("Texts", "Minimum:"),
    QT_TRANSLATE_NOOP("Texts", "Maximum:"),        QT_TRANSLATE_NOOP("Texts", "Standard deviation:"),
    QT_TRANSLATE_NOOP("Texts", "Points possible:")};

}  // namespace

AssignmentPanel::AssignmentPanel(QWidget* parent, std::function<void(int)> selected)
    : QWidget(parent),
      m_selected(std::move(selected)),
      m_label(new QLabel),
      m_combo(new QComboBox),
      m_nothing(new QLabel),
      m_group(new QGroupBox),
      m_histogram(new HistogramWidget(nullptr)),
      m_scrolling(new QScrollArea(this)) {
  m_combo->setObjectName(QStringLiteral("assignment"));
  m_combo->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  m_combo->setMinimumContentsLength(kComboLength);
  m_label->setBuddy(m_combo);
  m_nothing->setWordWrap(true);
  AddFigures();
  auto* const contents = new QWidget;
  auto* const choice = new QHBoxLayout;
  choice->addWidget(m_label);
  choice->addWidget(m_combo, 1);
  auto* const layout = new QVBoxLayout(contents);
  layout->addLayout(choice);
  layout->addWidget(m_nothing);
  layout->addWidget(m_group);
  layout->addWidget(m_histogram, 1);
  AddScrolling(contents);
  connect(m_combo, &QComboBox::currentIndexChanged, this, [this] { ShowSelected(); });
  SetClass(nullptr);
  Retranslate();
}

void AssignmentPanel::AddFigures() {
  auto* const form = new QFormLayout(m_group);
  form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
  form->setVerticalSpacing(fontMetrics().height() / 8);
  for (const char* const caption : kCaptions) {
    const Figure figure{caption, new QLabel(m_group), new QLabel(m_group)};
    figure.value->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    figure.value->setTextInteractionFlags(Qt::TextSelectableByMouse);
    figure.label->setBuddy(figure.value);
    form->addRow(figure.label, figure.value);
    m_figures.push_back(figure);
  }
}

// The keyboard scrolls, too, where there is something to scroll.
void AssignmentPanel::AddScrolling(QWidget* contents) {
  SetAccessibleRole(m_scrolling, QAccessible::Pane);
  m_scrolling->setFrameShape(QFrame::NoFrame);
  m_scrolling->setWidgetResizable(true);
  m_scrolling->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  m_scrolling->setFocusPolicy(Qt::NoFocus);
  m_scrolling->setWidget(contents);
  connect(m_scrolling->verticalScrollBar(), &QScrollBar::rangeChanged, this,
          [this](int /*minimum*/, int maximum) {
            m_scrolling->setFocusPolicy(maximum > 0 ? Qt::StrongFocus : Qt::NoFocus);
          });
  auto* const layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(m_scrolling);
}

// It never scrolls to the side. The usual numbers take the same width.
void AssignmentPanel::FitWidth() {
  const int usual = fontMetrics().horizontalAdvance(QStringLiteral("00000.00"));
  for (const Figure& figure : m_figures) figure.value->setMinimumWidth(usual);
  m_scrolling->setMinimumWidth(m_scrolling->widget()->minimumSizeHint().width() +
                               m_scrolling->verticalScrollBar()->sizeHint().width());
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
    const ScoreStatistics statistics = ComputeStatistics(scores);
    ShowFigures(statistics, pointsPossible);
    m_histogram->ShowScores(statistics, ComputeHistogram(scores, pointsPossible));
  }
  if (m_selected) m_selected(selected);
}

void AssignmentPanel::ShowFigures(const ScoreStatistics& statistics, int pointsPossible) {
  const auto points = [&statistics](double ScoreFigures::*member) {
    return statistics.figures ? NumberText((*statistics.figures).*member) : QStringLiteral("—");
  };
  const QString values[] = {CountText(statistics.students),    CountText(statistics.results),
                            CountText(statistics.missing),     points(&ScoreFigures::mean),
                            points(&ScoreFigures::median),     points(&ScoreFigures::minimum),
                            points(&ScoreFigures::maximum),    points(&ScoreFigures::standardDeviation),
                            QLocale().toString(pointsPossible)};
  static_assert(std::size(values) == std::size(kCaptions));
  for (size_t i = 0; i < m_figures.size(); ++i) m_figures[i].value->setText(values[i]);
  FitWidth();
}

void AssignmentPanel::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::LanguageChange) Retranslate();
  if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) FitWidth();
}

void AssignmentPanel::Retranslate() {
  m_label->setText(Texts::tr("&Assignment:"));
  m_nothing->setText(Texts::tr("This class has no assignments yet."));
  m_group->setTitle(Texts::tr("Statistics"));
  m_scrolling->setAccessibleName(Texts::tr("Assignment"));
  for (const Figure& figure : m_figures) figure.label->setText(Texts::tr(figure.caption));
  FitWidth();
}

}  // namespace host

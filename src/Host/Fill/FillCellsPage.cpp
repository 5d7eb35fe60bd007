#include "Host/Fill/FillCellsPage.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QTableView>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

#include "Host/App/Numbers.h"
#include "Host/App/Texts.h"
#include "Host/Fill/FillTexts.h"

namespace host {

FillCellsPage::FillCellsPage(QWidget* parent, std::function<void(const FindingPlace&)> chosen)
    : QWidget(parent),
      m_model(this),
      m_filters(),
      m_searchLabel(new QLabel(this)),
      m_search(new QLineEdit(this)),
      m_table(new QTableView(this)) {
  auto* const bar = new QHBoxLayout;
  constexpr const char* kNames[] = {"allCells", "changesOnly", "problemsOnly"};
  for (size_t i = 0; i < m_filters.size(); ++i) {
    m_filters[i] = new QRadioButton(this);
    m_filters[i]->setObjectName(QLatin1String(kNames[i]));
    connect(m_filters[i], &QRadioButton::toggled, this, [this, i](bool checked) {
      if (checked) m_model.SetFilter(static_cast<FillFilter>(i));
    });
    bar->addWidget(m_filters[i]);
  }
  m_filters.front()->setChecked(true);
  bar->addStretch();
  m_search->setObjectName(QStringLiteral("searchCells"));
  m_search->setClearButtonEnabled(true);
  m_searchLabel->setBuddy(m_search);
  connect(m_search, &QLineEdit::textChanged, this, [this](const QString& text) { m_model.Search(text); });
  bar->addWidget(m_searchLabel);
  bar->addWidget(m_search);
  AddTable(std::move(chosen));
  auto* const layout = new QVBoxLayout(this);
  layout->addLayout(bar);
  layout->addWidget(m_table, 1);
  Retranslate();
}

void FillCellsPage::AddTable(std::function<void(const FindingPlace&)> chosen) {
  m_table->setObjectName(QStringLiteral("fillTable"));
  m_table->setModel(&m_model);
  m_table->setSelectionBehavior(QAbstractItemView::SelectRows);
  m_table->setSelectionMode(QAbstractItemView::SingleSelection);
  m_table->setAlternatingRowColors(true);
  m_table->setTabKeyNavigation(false);
  m_table->setWordWrap(false);
  m_table->verticalHeader()->hide();
  m_table->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  m_table->horizontalHeader()->setHighlightSections(false);
  m_table->horizontalHeader()->setSortIndicatorClearable(true);
  m_table->horizontalHeader()->setSortIndicator(-1, Qt::AscendingOrder);
  m_table->setSortingEnabled(true);
  connect(
      m_table, &QTableView::activated, this,
      [this, chosen = std::move(chosen)](const QModelIndex& index) { chosen(m_model.PlaceOf(index.row())); });
}

void FillCellsPage::Show(const FillPlan* plan) {
  m_model.Show(plan);
  ShowCounts();
}

// The names share what the others leave.
void FillCellsPage::FitColumns() {
  const int unit = fontMetrics().height();
  const auto widthOf = [this, unit](const QString& text) {
    return fontMetrics().horizontalAdvance(text) + unit;
  };
  QHeaderView* const header = m_table->horizontalHeader();
  header->setMinimumSectionSize(unit * 5);
  header->setSectionResizeMode(QHeaderView::Interactive);
  for (const int column : {FillTableModel::kStudent, FillTableModel::kAssignment}) {
    header->setSectionResizeMode(column, QHeaderView::Stretch);
  }
  for (const int column : {FillTableModel::kOld, FillTableModel::kNew}) {
    const QString title = m_model.headerData(column, Qt::Horizontal, Qt::DisplayRole).toString();
    m_table->setColumnWidth(column, std::max(widthOf(title), widthOf(QStringLiteral("100.00"))));
  }
  m_table->setColumnWidth(FillTableModel::kWhat, widthOf(KindWord(FillKind::kNoNumber)) + unit * 3 / 2);
  m_table->verticalHeader()->setDefaultSectionSize(unit * 3 / 2);
}

void FillCellsPage::ShowCounts() {
  const auto show = [this](FillFilter filter, const QString& text) {
    m_filters[static_cast<size_t>(filter)]->setText(text.arg(CountText(m_model.Count(filter))));
  };
  show(FillFilter::kAll, Texts::tr("A&ll (%1)"));
  show(FillFilter::kChanges, Texts::tr("C&hanges only (%1)"));
  show(FillFilter::kProblems, Texts::tr("&Problems only (%1)"));
}

void FillCellsPage::Retranslate() {
  m_searchLabel->setText(Texts::tr("Loo&k for:"));
  m_search->setPlaceholderText(Texts::tr("Student or assignment"));
  m_table->setAccessibleName(Texts::tr("What will happen"));
  m_model.Retranslate();
  ShowCounts();
  FitColumns();
}

void FillCellsPage::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  switch (event->type()) {
    case QEvent::LanguageChange:
    case QEvent::PaletteChange:
    case QEvent::FontChange: Retranslate(); break;
    default: break;
  }
}

}  // namespace host

#include "Host/Findings/FindingsView.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QStackedWidget>
#include <QStyle>
#include <QTreeView>
#include <algorithm>
#include <utility>

#include "Host/App/Texts.h"
#include "Host/Findings/FindingDelegate.h"
#include "Systems/LearningSystem.h"

namespace host {

FindingsView::FindingsView(QWidget* parent, Chosen chosen)
    : QWidget(parent),
      m_chosen(std::move(chosen)),
      m_model(this),
      m_summary(new QLabel(this)),
      m_pages(new QStackedWidget(this)),
      m_tree(new QTreeView(m_pages)) {
  m_summary->setObjectName(QStringLiteral("findingsSummary"));
  m_summary->setTextFormat(Qt::PlainText);
  m_summary->setWordWrap(true);
  AddTree();
  m_pages->addWidget(MakeNothingPage());
  auto* const layout = new QVBoxLayout(this);
  layout->setContentsMargins({});
  layout->addWidget(m_summary);
  layout->addWidget(m_pages, 1);
}

void FindingsView::AddTree() {
  m_tree->setObjectName(QStringLiteral("findings"));
  m_tree->setModel(&m_model);
  m_tree->setItemDelegate(new FindingDelegate(m_tree));
  m_tree->setHeaderHidden(true);
  m_tree->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  m_tree->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
  m_tree->setTabKeyNavigation(false);
  connect(m_tree, &QTreeView::clicked, this, &FindingsView::Choose);
  connect(m_tree, &QTreeView::activated, this, &FindingsView::Choose);
  m_pages->addWidget(m_tree);
}

QWidget* FindingsView::MakeNothingPage() {
  auto* const page = new QWidget(m_pages);
  auto* const icon = new QLabel(page);
  const int side = fontMetrics().height() * 3;
  icon->setPixmap(style()->standardIcon(QStyle::SP_DialogApplyButton).pixmap(side, side));
  icon->setAlignment(Qt::AlignCenter);
  m_nothing = new QLabel(page);
  m_nothing->setObjectName(QStringLiteral("nothingFound"));
  m_nothing->setTextFormat(Qt::PlainText);
  m_nothing->setAlignment(Qt::AlignCenter);
  m_nothing->setWordWrap(true);
  auto* const layout = new QVBoxLayout(page);
  layout->addStretch();
  layout->addWidget(icon);
  layout->addWidget(m_nothing);
  layout->addStretch();
  return page;
}

void FindingsView::Show(Findings findings, const ExportSubject& subject) {
  m_model.Show(std::move(findings), subject);
  for (size_t i = 0; i < Shown().size(); ++i) {
    m_tree->setExpanded(m_model.index(static_cast<int>(i), 0), IsTrouble(Shown()[i].consequence));
  }
  const QString system = QString::fromUtf8(SystemOf(*subject.format).name);
  m_tree->setAccessibleName(Texts::tr("What will happen"));
  m_nothing->setText(Texts::tr("As far as this class tells, its results will arrive in %1.").arg(system));
  m_pages->setCurrentIndex(Shown().empty() ? 1 : 0);
  ShowSummary(system);
}

qsizetype FindingsView::Problems() const {
  return std::ranges::count_if(Shown(),
                               [](const Finding& finding) { return IsTrouble(finding.consequence); });
}

QString FindingsView::Title() const {
  const qsizetype problems = Problems();
  return Texts::tr("What will &happen") + (problems > 0 ? QStringLiteral(" (%1)").arg(problems) : QString());
}

void FindingsView::ShowSummary(const QString& system) {
  const qsizetype problems = Problems();
  const auto notes = static_cast<qsizetype>(Shown().size()) - problems;
  QString text = problems == 0 ? Texts::tr("No problems were found: ready for %1.").arg(system)
                               : Texts::tr("Problems: %1").arg(problems);
  if (notes > 0) text += QLatin1String("   ") + Texts::tr("Good to know: %1").arg(notes);
  m_summary->setText(text);
}

void FindingsView::Choose(const QModelIndex& index) {
  std::vector<FindingPlace> places = m_model.PlacesOf(index);
  std::erase_if(places, [](const FindingPlace& place) {  // who is not in the class
    return place.student == FindingPlace::kNone && place.assignment == FindingPlace::kNone;
  });
  if (!places.empty()) m_chosen(places);
}

}  // namespace host

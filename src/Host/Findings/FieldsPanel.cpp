#include "Host/Findings/FieldsPanel.h"

#include <QEvent>
#include <QLabel>
#include <QPushButton>
#include <QTreeView>
#include <QVBoxLayout>
#include <utility>

#include "Host/App/Texts.h"
#include "Host/Findings/FieldAdvice.h"
#include "Host/Findings/FindingDelegate.h"

namespace host {

FieldsPanel::FieldsPanel(QWidget* parent, Handlers handlers)
    : QWidget(parent),
      m_handlers(std::move(handlers)),
      m_model(this),
      m_proposal(new QLabel(this)),
      m_tree(new QTreeView(this)),
      m_take(new QPushButton(this)) {
  setObjectName(QStringLiteral("fieldsPanel"));
  m_proposal->setObjectName(QStringLiteral("fieldProposal"));
  m_proposal->setTextFormat(Qt::PlainText);
  m_proposal->setWordWrap(true);
  m_take->setObjectName(QStringLiteral("takeField"));
  AddTree();
  setFocusProxy(m_tree);
  auto* const layout = new QVBoxLayout(this);
  layout->addWidget(m_proposal);
  layout->addWidget(m_tree, 1);
  layout->addWidget(m_take);
  connect(m_take, &QPushButton::clicked, this, [this] { Take(m_tree->currentIndex()); });
  Retranslate();
}

void FieldsPanel::AddTree() {
  m_tree->setObjectName(QStringLiteral("fields"));
  m_tree->setModel(&m_model);
  m_tree->setItemDelegate(new FindingDelegate(m_tree));
  m_tree->setHeaderHidden(true);
  m_tree->setExpandsOnDoubleClick(false);
  m_tree->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  m_tree->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
  m_tree->setTabKeyNavigation(false);
  connect(m_tree, &QTreeView::clicked, this, &FieldsPanel::ShowStudents);
  connect(m_tree, &QTreeView::activated, this, &FieldsPanel::Activate);
  connect(m_tree->selectionModel(), &QItemSelectionModel::currentChanged, this,
          &FieldsPanel::ShowWhetherTaken);
}

void FieldsPanel::Show(std::shared_ptr<const OpenClass> openClass, const FormatRow& format,
                       qz::UserIDField chosen) {
  if (m_class != openClass) m_model.clear();  // with the current row
  m_class = std::move(openClass);
  m_format = &format;
  m_chosen = chosen;
  ShowFields();
}

// The current field stays it; first, it is the chosen one.
void FieldsPanel::ShowFields() {
  const QModelIndex before = m_tree->currentIndex();
  const qz::UserIDField current = before.isValid() ? FieldsModel::FieldOf(before) : m_chosen;
  const qz::UserIDField proposed = m_format->defaultUserIDField;
  const std::vector<FieldJudgement> all = JudgeFields(m_class->Texts());
  m_proposal->setText(DescribeProposal(all, *m_format));
  m_model.Show(all, proposed, m_chosen);
  for (int row = 0; row < m_model.rowCount(); ++row) {
    const QModelIndex index = m_model.index(row, 0);
    const qz::UserIDField field = FieldsModel::FieldOf(index);
    m_tree->setExpanded(index, field == proposed || field == m_chosen);
    if (field == current) m_tree->setCurrentIndex(index);
  }
  ShowWhetherTaken();
}

void FieldsPanel::ShowStudents(const QModelIndex& index) {
  std::vector<FindingPlace> places;
  for (const size_t student : m_model.StudentsOf(index)) places.push_back({.student = student});
  if (!places.empty()) m_handlers.placesChosen(places);
}

void FieldsPanel::Activate(const QModelIndex& index) {
  if (index.parent().isValid()) {
    ShowStudents(index);
  } else {
    Take(index);
  }
}

void FieldsPanel::Take(const QModelIndex& index) {
  if (index.isValid()) m_handlers.fieldChosen(FieldsModel::FieldOf(index));
}

void FieldsPanel::ShowWhetherTaken() {
  const QModelIndex current = m_tree->currentIndex();
  m_take->setEnabled(current.isValid() && FieldsModel::FieldOf(current) != m_chosen);
}

void FieldsPanel::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::LanguageChange) Retranslate();
}

void FieldsPanel::Retranslate() {
  m_tree->setAccessibleName(Texts::tr("Student fields"));
  m_take->setText(Texts::tr("&Use This Field"));
  if (m_class != nullptr) ShowFields();
}

}  // namespace host

#include "Host/Preview/AssignmentPicker.h"

#include <QCheckBox>
#include <QEvent>
#include <QLabel>
#include <QListWidget>
#include <QSignalBlocker>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

#include "Host/App/Texts.h"
#include "Host/ClassView/RomanText.h"

namespace host {

AssignmentPicker::AssignmentPicker(QWidget* parent, std::function<void()> changed)
    : QWidget(parent),
      m_changed(std::move(changed)),
      m_all(new QCheckBox(this)),
      m_checks(new QListWidget(this)),
      m_oneLabel(new QLabel(this)),
      m_one(new QListWidget(this)) {
  m_all->setObjectName(QStringLiteral("allAssignments"));
  m_checks->setObjectName(QStringLiteral("assignments"));
  m_one->setObjectName(QStringLiteral("oneAssignment"));
  m_oneLabel->setBuddy(m_one);
  auto* const layout = new QVBoxLayout(this);
  layout->setContentsMargins({});
  layout->addWidget(m_all);
  layout->addWidget(m_checks, 1);
  layout->addWidget(m_oneLabel);
  layout->addWidget(m_one, 1);
  for (QListWidget* const list : {m_checks, m_one}) {
    list->setMinimumSize(fontMetrics().height() * 10, fontMetrics().height() * 4);
    list->setTextElideMode(Qt::ElideMiddle);
    list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  }
  // The box itself would go through its three states.
  connect(m_all, &QCheckBox::clicked, this, [this] {
    CheckAll(std::cmp_less(Checked().size(), m_checks->count()));
    m_changed();
  });
  connect(m_checks, &QListWidget::itemChanged, this, [this] {
    ShowWhetherAll();
    m_changed();
  });
  connect(m_one, &QListWidget::currentRowChanged, this, [this] { m_changed(); });
  SetOnlyOne(false);
  Retranslate();
}

void AssignmentPicker::SetClass(std::shared_ptr<const OpenClass> openClass) {
  std::vector<int32_t> unchecked;
  const bool isSame = m_class != nullptr && m_class->path == openClass->path;
  for (int row = 0; isSame && row < m_checks->count(); ++row) {
    if (!IsChecked(row)) unchecked.push_back(m_class->record.assignments[static_cast<size_t>(row)].id);
  }
  const int current = isSame ? m_one->currentRow() : 0;
  m_class = std::move(openClass);
  FillList(unchecked);
  const QSignalBlocker blocker(m_one);
  m_one->setCurrentRow(std::clamp(current, 0, std::max(m_one->count() - 1, 0)));
}

void AssignmentPicker::FillList(const std::vector<int32_t>& unchecked) {
  const QSignalBlocker blockers[] = {QSignalBlocker(m_checks), QSignalBlocker(m_one)};
  m_checks->clear();
  m_one->clear();
  const std::vector<qz::AssignmentRecord>& assignments = m_class->record.assignments;
  for (size_t i = 0; i < assignments.size(); ++i) {
    const QString name = LineFromUtf8(m_class->Texts().AssignmentName(i));
    const bool isOut = std::ranges::find(unchecked, assignments[i].id) != unchecked.end();
    auto* const check = new QListWidgetItem(name, m_checks);
    check->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
    check->setCheckState(isOut ? Qt::Unchecked : Qt::Checked);
    for (QListWidgetItem* const item : {check, new QListWidgetItem(name, m_one)}) item->setToolTip(name);
  }
  ShowWhetherAll();
}

void AssignmentPicker::SetOnlyOne(bool onlyOne) {
  m_onlyOne = onlyOne;
  m_all->setVisible(!onlyOne);
  m_checks->setVisible(!onlyOne);
  m_oneLabel->setVisible(onlyOne);
  m_one->setVisible(onlyOne);
}

void AssignmentPicker::Choose(const std::vector<size_t>& assignments) {
  {
    const QSignalBlocker blockers[] = {QSignalBlocker(m_checks), QSignalBlocker(m_one)};
    for (int row = 0; row < m_checks->count(); ++row) {
      const bool isIn =
          assignments.empty() || std::ranges::binary_search(assignments, static_cast<size_t>(row));
      m_checks->item(row)->setCheckState(isIn ? Qt::Checked : Qt::Unchecked);
    }
    m_one->setCurrentRow(assignments.empty() ? 0 : static_cast<int>(assignments.front()));
  }
  ShowWhetherAll();
}

bool AssignmentPicker::IsChecked(int row) const {
  return m_checks->item(row)->checkState() == Qt::Checked;
}

std::vector<size_t> AssignmentPicker::Checked() const {
  std::vector<size_t> checked;
  for (int row = 0; row < m_checks->count(); ++row) {
    if (IsChecked(row)) checked.push_back(static_cast<size_t>(row));
  }
  return checked;
}

std::vector<size_t> AssignmentPicker::Chosen() const {
  if (!m_onlyOne) return Checked();
  const int row = m_one->currentRow();
  return row < 0 ? std::vector<size_t>() : std::vector<size_t>{static_cast<size_t>(row)};
}

void AssignmentPicker::CheckAll(bool checked) {
  {
    const QSignalBlocker blocker(m_checks);
    for (int row = 0; row < m_checks->count(); ++row) {
      m_checks->item(row)->setCheckState(checked ? Qt::Checked : Qt::Unchecked);
    }
  }
  ShowWhetherAll();
}

void AssignmentPicker::ShowWhetherAll() {
  const auto checked = static_cast<int>(Checked().size());
  Qt::CheckState state = Qt::PartiallyChecked;
  if (checked == m_checks->count()) state = Qt::Checked;
  if (checked == 0) state = Qt::Unchecked;
  m_all->setCheckState(state);
  m_all->setEnabled(m_checks->count() > 0);
  m_checks->viewport()->update();  // changes that were not told
}

void AssignmentPicker::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::LanguageChange) Retranslate();
}

void AssignmentPicker::Retranslate() {
  m_all->setText(Texts::tr("&All assignments"));
  m_checks->setAccessibleName(Texts::tr("Assignments"));
  m_oneLabel->setText(Texts::tr("&Assignment:"));
}

}  // namespace host

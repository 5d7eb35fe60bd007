#include "Host/Findings/CheckChoices.h"

#include <QCheckBox>
#include <QEvent>
#include <QListWidget>
#include <QSignalBlocker>
#include <QVBoxLayout>
#include <utility>

#include "Host/App/Texts.h"
#include "Host/ClassView/RomanText.h"
#include "Host/Findings/ExportPicker.h"

namespace host {

CheckChoices::CheckChoices(QWidget* parent, std::function<void()> changed)
    : QWidget(parent),
      m_changed(std::move(changed)),
      m_picker(new ExportPicker(this, m_changed)),
      m_all(new QCheckBox(this)),
      m_assignments(new QListWidget(this)) {
  m_all->setObjectName(QStringLiteral("allAssignments"));
  m_assignments->setObjectName(QStringLiteral("assignments"));
  auto* const layout = new QVBoxLayout(this);
  layout->setContentsMargins({});
  layout->addWidget(m_picker);
  layout->addSpacing(fontMetrics().height() / 2);
  layout->addWidget(m_all);
  layout->addWidget(m_assignments, 1);
  connect(m_all, &QCheckBox::clicked, this, &CheckChoices::AllClicked);
  connect(m_assignments, &QListWidget::itemChanged, this, [this] {
    ShowWhetherAll();
    m_changed();
  });
}

void CheckChoices::SetClass(std::shared_ptr<const OpenClass> openClass) {
  m_class = std::move(openClass);
  m_picker->SetClass(m_class);
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
  Retranslate();
}

std::vector<size_t> CheckChoices::Assignments() const {
  std::vector<size_t> checked;
  for (int row = 0; row < m_assignments->count(); ++row) {
    if (m_assignments->item(row)->checkState() == Qt::Checked) checked.push_back(static_cast<size_t>(row));
  }
  return checked;
}

ExportSubject CheckChoices::Subject() const {
  return m_picker->Subject(Assignments());
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

void CheckChoices::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::LanguageChange) Retranslate();
}

void CheckChoices::Retranslate() {
  m_all->setText(Texts::tr("&All assignments"));
  m_assignments->setAccessibleName(Texts::tr("Assignments"));
}

}  // namespace host

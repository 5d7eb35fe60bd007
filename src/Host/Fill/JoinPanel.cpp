#include "Host/Fill/JoinPanel.h"

#include <QGridLayout>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QShortcut>
#include <QVBoxLayout>
#include <algorithm>
#include <utility>

namespace host {

namespace {

constexpr int kPositionRole = Qt::UserRole;
constexpr int kJoinedRole = Qt::UserRole + 1;

QListWidget* _List(QWidget* parent, const QString& name) {
  auto* const list = new QListWidget(parent);
  list->setObjectName(name);
  list->setWordWrap(true);
  list->setAlternatingRowColors(true);
  list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  list->setResizeMode(QListView::Adjust);
  list->setMinimumSize(parent->fontMetrics().height() * 6, parent->fontMetrics().height() * 3);
  return list;
}

// A buddy does not name a list to assistive technology.
void _Name(QLabel* label, QListWidget* list, const QString& text) {
  label->setText(text);
  list->setAccessibleName(QString(text).remove(u'&').remove(u':'));
}

// The row that was current stays it, as far as there is one.
void _Fill(QListWidget* list, const std::vector<JoinEntry>& entries) {
  const int row = list->currentRow();
  list->clear();
  for (const JoinEntry& entry : entries) {
    auto* const item = new QListWidgetItem(entry.text, list);
    item->setToolTip(entry.text);
    item->setData(kPositionRole, QVariant::fromValue(qulonglong{entry.position}));
    item->setData(kJoinedRole, entry.isJoined);
  }
  list->setCurrentRow(std::min(row, list->count() - 1));
}

size_t _Position(const QListWidget& list) {
  return static_cast<size_t>(list.currentItem()->data(kPositionRole).toULongLong());
}

bool _IsJoined(const QListWidget& list) {
  return list.currentItem() != nullptr && list.currentItem()->data(kJoinedRole).toBool();
}

}  // namespace

JoinPanel::JoinPanel(QWidget* parent, const QString& name, Handlers handlers)
    : QWidget(parent),
      m_handlers(std::move(handlers)),
      m_oursLabel(new QLabel(this)),
      m_theirsLabel(new QLabel(this)),
      m_ours(_List(this, name + QLatin1String("Ours"))),
      m_theirs(_List(this, name + QLatin1String("Theirs"))),
      m_join(new QPushButton(this)),
      m_undo(new QPushButton(this)) {
  m_join->setObjectName(name + QLatin1String("Join"));
  m_undo->setObjectName(name + QLatin1String("Undo"));
  for (QLabel* label : {m_oursLabel, m_theirsLabel}) {
    label->setWordWrap(true);
    label->setAlignment(Qt::AlignBottom);
  }
  m_oursLabel->setBuddy(m_ours);
  m_theirsLabel->setBuddy(m_theirs);
  auto* const buttons = new QVBoxLayout;
  buttons->addStretch();
  buttons->addWidget(m_join);
  buttons->addWidget(m_undo);
  buttons->addStretch();
  auto* const layout = new QGridLayout(this);
  layout->setContentsMargins({});
  layout->addWidget(m_oursLabel, 0, 0);
  layout->addWidget(m_theirsLabel, 0, 2);
  layout->addWidget(m_ours, 1, 0);
  layout->addLayout(buttons, 1, 1);
  layout->addWidget(m_theirs, 1, 2);
  layout->setColumnStretch(0, 1);
  layout->setColumnStretch(2, 1);
  setTabOrder(m_ours, m_theirs);
  setTabOrder(m_theirs, m_join);
  setTabOrder(m_join, m_undo);
  for (QListWidget* list : {m_ours, m_theirs}) {
    // Whoever comes by the keyboard has the first one chosen at once.
    connect(list, &QListWidget::currentItemChanged, list, [](QListWidgetItem* item) {
      if (item != nullptr) item->setSelected(true);
    });
    connect(list, &QListWidget::itemSelectionChanged, this, &JoinPanel::UpdateButtons);
    connect(list, &QListWidget::itemActivated, this, &JoinPanel::Join);
  }
  connect(m_join, &QPushButton::clicked, this, &JoinPanel::Join);
  connect(m_undo, &QPushButton::clicked, this, &JoinPanel::Undo);
  auto* const key = new QShortcut(QKeySequence(Qt::Key_Delete), m_ours);
  key->setContext(Qt::WidgetShortcut);
  connect(key, &QShortcut::activated, this, &JoinPanel::Undo);
  UpdateButtons();
}

void JoinPanel::Show(const std::vector<JoinEntry>& ours, const std::vector<JoinEntry>& theirs,
                     const JoinTexts& texts) {
  _Name(m_oursLabel, m_ours, texts.ours);
  _Name(m_theirsLabel, m_theirs, texts.theirs);
  m_join->setText(texts.join);
  m_undo->setText(texts.undo);
  _Fill(m_ours, ours);
  _Fill(m_theirs, theirs);
  UpdateButtons();
}

// Both handlers may show other entries.
void JoinPanel::Join() {
  if (m_join->isEnabled()) m_handlers.join(_Position(*m_ours), _Position(*m_theirs));
}

void JoinPanel::Undo() {
  if (m_undo->isEnabled()) m_handlers.undo(_Position(*m_ours));
}

void JoinPanel::UpdateButtons() {
  const bool isJoined = _IsJoined(*m_ours);
  const bool hasBoth = m_ours->currentItem() != nullptr && m_theirs->currentItem() != nullptr;
  m_join->setEnabled(hasBoth && !isJoined);
  m_undo->setEnabled(isJoined);
}

}  // namespace host

#include "Host/ClassView/FindBar.h"

#include <QAccessible>
#include <QEvent>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QPushButton>
#include <QStyle>
#include <QToolButton>
#include <utility>

#include "Host/App/Texts.h"

namespace host {

FindBar::FindBar(QWidget* parent, Actions actions)
    : QWidget(parent),
      m_actions(std::move(actions)),
      m_label(new QLabel(this)),
      m_field(new QLineEdit(this)),
      m_previous(new QPushButton(this)),
      m_next(new QPushButton(this)),
      m_result(new QLabel(this)),
      m_close(new QToolButton(this)) {
  setObjectName(QStringLiteral("findBar"));
  m_field->setObjectName(QStringLiteral("findField"));
  m_result->setObjectName(QStringLiteral("findResult"));
  m_label->setBuddy(m_field);
  m_field->setClearButtonEnabled(true);
  m_result->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  m_close->setAutoRaise(true);
  m_close->setFocusPolicy(Qt::StrongFocus);
  m_close->setIcon(style()->standardIcon(QStyle::SP_TitleBarCloseButton));
  auto* const layout = new QHBoxLayout(this);
  const int gap = fontMetrics().height() / 4;
  layout->setContentsMargins(gap, gap, gap, gap);
  layout->addWidget(m_label);
  layout->addWidget(m_field, 2);
  layout->addWidget(m_previous);
  layout->addWidget(m_next);
  layout->addWidget(m_result, 1);
  layout->addWidget(m_close);
  connect(m_field, &QLineEdit::textChanged, this, [this] { m_actions.changed(); });
  connect(m_previous, &QPushButton::clicked, this, [this] { m_actions.next(true); });
  connect(m_next, &QPushButton::clicked, this, [this] { m_actions.next(false); });
  connect(m_close, &QToolButton::clicked, this, [this] { m_actions.close(); });
  ShowResult(0, 0);
  Retranslate();
}

QString FindBar::Text() const {
  return m_field->text();
}

void FindBar::Open() {
  show();
  m_field->setFocus(Qt::ShortcutFocusReason);
  m_field->selectAll();
}

void FindBar::ShowResult(size_t which, size_t count) {
  m_which = which;
  m_count = count;
  m_previous->setEnabled(count > 0);
  m_next->setEnabled(count > 0);
  QString text;
  if (count > 0) {
    const QLocale locale;
    text = Texts::tr("%1 of %2").arg(locale.toString(qulonglong{which}), locale.toString(qulonglong{count}));
  } else if (!Text().isEmpty()) {
    text = Texts::tr("Not found");
  }
  if (text == m_result->text()) return;
  m_result->setText(text);
  // The focus stays in the field.
  QAccessibleEvent spoken(m_result, QAccessible::Alert);
  QAccessible::updateAccessibility(&spoken);
}

void FindBar::keyPressEvent(QKeyEvent* event) {
  if (event->key() != Qt::Key_Return && event->key() != Qt::Key_Enter) return QWidget::keyPressEvent(event);
  auto* const button = qobject_cast<QAbstractButton*>(focusWidget());
  if (button != nullptr) return button->click();
  m_actions.next(event->modifiers().testFlag(Qt::ShiftModifier));
}

void FindBar::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::LanguageChange) Retranslate();
}

void FindBar::Retranslate() {
  m_label->setText(Texts::tr("Fi&nd:"));
  m_field->setPlaceholderText(Texts::tr("Name, identifier or title"));
  m_previous->setText(Texts::tr("Previ&ous"));
  m_next->setText(Texts::tr("Ne&xt"));
  m_close->setToolTip(Texts::tr("Close the search"));
  m_close->setAccessibleName(Texts::tr("Close the search"));
  ShowResult(m_which, m_count);
}

}  // namespace host

#include "Host/Window/NoticeBar.h"

#include <QAccessible>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QStyle>
#include <QToolButton>
#include <utility>

#include "Host/App/Texts.h"

namespace host {

NoticeBar::NoticeBar(QWidget* parent, std::function<void()> act)
    : QFrame(parent), m_text(new QLabel(this)), m_act(new QPushButton(this)), m_close(new QToolButton(this)) {
  setObjectName(QStringLiteral("notice"));
  setFrameShape(QFrame::StyledPanel);
  auto* const icon = new QLabel(this);
  const int side = style()->pixelMetric(QStyle::PM_SmallIconSize);
  icon->setPixmap(style()->standardIcon(QStyle::SP_MessageBoxInformation).pixmap(side, side));
  m_text->setTextFormat(Qt::PlainText);
  m_text->setWordWrap(true);
  m_act->setObjectName(QStringLiteral("noticeButton"));
  m_close->setIcon(style()->standardIcon(QStyle::SP_TitleBarCloseButton));
  m_close->setAutoRaise(true);
  m_close->setFocusPolicy(Qt::TabFocus);
  auto* const layout = new QHBoxLayout(this);
  const int margin = fontMetrics().height() / 3;
  layout->setContentsMargins(margin, margin, margin, margin);
  layout->addWidget(icon);
  layout->addWidget(m_text, 1);
  layout->addWidget(m_act);
  layout->addWidget(m_close);
  connect(m_act, &QPushButton::clicked, this, [this, act = std::move(act)] {
    hide();
    act();
  });
  connect(m_close, &QToolButton::clicked, this, &QWidget::hide);
  hide();
}

void NoticeBar::Tell(const QString& text, const QString& button) {
  m_text->setText(text);
  m_act->setText(button);
  m_act->setVisible(!button.isEmpty());
  m_close->setToolTip(Texts::tr("Close this notice"));
  m_close->setAccessibleName(m_close->toolTip());
  show();
  QAccessibleEvent told(m_text, QAccessible::Alert);
  QAccessible::updateAccessibility(&told);
}

}  // namespace host

#include "Host/Window/ReadingProgress.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <utility>

#include "Host/App/Texts.h"

namespace host {

namespace {

constexpr int kDelay = 300;   // milliseconds
constexpr int kSteps = 1000;  // of the bar

}  // namespace

ReadingProgress::ReadingProgress(QWidget* parent, std::function<void()> cancel)
    : QWidget(parent),
      m_text(new QLabel(this)),
      m_bar(new QProgressBar(this)),
      m_cancel(new QPushButton(this)) {
  m_text->setTextFormat(Qt::PlainText);
  m_bar->setMaximumWidth(fontMetrics().height() * 10);
  m_bar->setTextVisible(false);
  m_cancel->setObjectName(QStringLiteral("cancelReading"));
  auto* const layout = new QHBoxLayout(this);
  layout->setContentsMargins({});
  layout->addWidget(m_text);
  layout->addWidget(m_bar);
  layout->addWidget(m_cancel);
  connect(m_cancel, &QPushButton::clicked, this, std::move(cancel));
  m_delay.setSingleShot(true);
  m_delay.setInterval(kDelay);
  connect(&m_delay, &QTimer::timeout, this, &QWidget::show);
  hide();
}

void ReadingProgress::Begin(const QString& name) {
  m_text->setText(Texts::tr("Reading “%1”…").arg(name));
  m_bar->setAccessibleName(m_text->text());
  m_bar->setRange(0, 0);
  m_cancel->setText(Texts::tr("Cancel"));
  m_cancel->setShortcut(Qt::Key_Escape);  // a text takes the shortcut away
  m_delay.start();
}

void ReadingProgress::Show(qint64 read, qint64 size) {
  m_bar->setRange(0, size > 0 ? kSteps : 0);
  if (size > 0)
    m_bar->setValue(static_cast<int>(static_cast<double>(read) / static_cast<double>(size) * kSteps));
}

void ReadingProgress::End() {
  m_delay.stop();
  hide();
}

}  // namespace host

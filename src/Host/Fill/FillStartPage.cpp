#include "Host/Fill/FillStartPage.h"

#include <QEvent>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QStyle>
#include <QVBoxLayout>
#include <utility>

#include "Host/App/Texts.h"
#include "Host/Fill/FillTexts.h"

namespace host {

namespace {

QLabel* _Text(QWidget* parent, const char* name, Qt::Alignment alignment) {
  auto* const label = new QLabel(parent);
  label->setObjectName(QLatin1String(name));
  label->setTextFormat(Qt::PlainText);
  label->setWordWrap(true);
  label->setAlignment(alignment);
  return label;
}

}  // namespace

FillStartPage::FillStartPage(QWidget* parent, const LearningSystem* system, Handlers handlers)
    : QWidget(parent),
      m_system(system),
      m_hint(_Text(this, "downloadHint", Qt::AlignHCenter)),
      m_faultBox(new QWidget(this)),
      m_what(_Text(m_faultBox, "faultWhat", Qt::AlignLeft)),
      m_advice(_Text(m_faultBox, "faultAdvice", Qt::AlignLeft)),
      m_choose(new QPushButton(this)),
      m_back(new QPushButton(this)),
      m_drop(_Text(this, "dropHint", Qt::AlignHCenter)),
      m_readingText(_Text(this, "readingText", Qt::AlignHCenter)),
      m_progress(new QProgressBar(this)) {
  m_choose->setObjectName(QStringLiteral("chooseDownload"));
  m_back->setObjectName(QStringLiteral("backToDownload"));
  m_progress->setRange(0, 0);
  const int unit = fontMetrics().height();
  m_progress->setMaximumWidth(unit * 20);
  QFont bold = m_what->font();
  bold.setBold(true);
  m_what->setFont(bold);
  m_what->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  auto* const icon = new QLabel(m_faultBox);
  icon->setPixmap(style()->standardIcon(QStyle::SP_MessageBoxWarning).pixmap(unit * 2, unit * 2));
  icon->setAlignment(Qt::AlignTop);
  auto* const texts = new QVBoxLayout;
  texts->addWidget(m_what);
  texts->addWidget(m_advice);
  auto* const fault = new QHBoxLayout(m_faultBox);
  fault->setSpacing(unit);
  fault->addWidget(icon);
  fault->addLayout(texts, 1);
  auto* const buttons = new QHBoxLayout;
  buttons->addStretch();
  buttons->addWidget(m_choose);
  buttons->addWidget(m_back);
  buttons->addStretch();
  auto* const layout = new QVBoxLayout(this);
  layout->setContentsMargins(unit * 3, unit, unit * 3, unit);
  layout->addStretch();
  layout->addWidget(m_faultBox);
  layout->addWidget(m_hint);
  layout->addSpacing(unit);
  layout->addLayout(buttons);
  layout->addSpacing(unit / 2);
  layout->addWidget(m_drop);
  layout->addWidget(m_readingText);
  layout->addWidget(m_progress, 0, Qt::AlignHCenter);
  layout->addStretch();
  m_back->hide();
  connect(m_choose, &QPushButton::clicked, this, [choose = std::move(handlers.choose)] { choose(); });
  connect(m_back, &QPushButton::clicked, this, [back = std::move(handlers.back)] { back(); });
  Retranslate();
}

void FillStartPage::ShowReading(const QString& path) {
  m_reading = path;
  m_fault = {};
  m_back->hide();
  Retranslate();
}

void FillStartPage::ShowFault(const GradebookRead& read, bool hasEarlier) {
  m_reading.clear();
  m_fault = read;
  m_back->setVisible(hasEarlier);
  Retranslate();
  m_choose->setFocus();
}

void FillStartPage::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::LanguageChange) Retranslate();
}

void FillStartPage::Retranslate() {
  const bool isReading = !m_reading.isEmpty();
  const bool hasFault = !m_fault.path.isEmpty();
  QString hint = DownloadHint(m_system);
  if (m_system != nullptr && m_system->download == nullptr) {
    hint.prepend(Texts::tr("Gradebooks downloaded from %1 cannot be filled in.")
                     .arg(QString::fromUtf8(m_system->name)) +
                 QLatin1String("\n\n"));
  }
  m_hint->setText(hint);
  m_drop->setText(Texts::tr("You can also drop the file on this window."));
  m_choose->setText(Texts::tr("C&hoose a Download…"));
  m_back->setText(Texts::tr("&Back to the Earlier Download"));
  m_readingText->setText(Texts::tr("Reading “%1”…").arg(QFileInfo(m_reading).fileName()));
  m_progress->setAccessibleName(m_readingText->text());
  if (hasFault) {
    const GradebookFaultText text = TextOfFault(m_fault);
    m_what->setText(text.what);
    m_advice->setText(text.advice);
  }
  m_faultBox->setVisible(hasFault);
  m_hint->setVisible(!isReading);
  m_drop->setVisible(!isReading);
  m_choose->setVisible(!isReading);
  m_readingText->setVisible(isReading);
  m_progress->setVisible(isReading);
}

}  // namespace host

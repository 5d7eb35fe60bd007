#include "Host/Result/ResultPage.h"

#include <QEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLocale>
#include <QScrollArea>
#include <QSplitter>
#include <QStyle>
#include <QVBoxLayout>

#include "Host/App/Texts.h"
#include "Host/Result/ExportFacts.h"
#include "Host/Result/FileHandle.h"
#include "Host/Result/UploadSteps.h"

namespace host {

namespace {

QLabel* _MakeTitle(QWidget* parent) {
  auto* const title = new QLabel(parent);
  title->setTextFormat(Qt::PlainText);
  title->setWordWrap(true);
  QFont font = title->font();
  font.setBold(true);
  title->setFont(font);
  return title;
}

// Lines under a title, in a column of their own that scrolls when they need more room.
QGridLayout* _AddColumn(QSplitter* splitter, QLabel* title, const char* name) {
  auto* const area = new QScrollArea(splitter);
  area->setObjectName(QLatin1String(name));
  area->setWidgetResizable(true);
  area->setFrameShape(QFrame::NoFrame);
  area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  auto* const content = new QWidget(area);
  auto* const layout = new QVBoxLayout(content);
  auto* const lines = new QGridLayout;
  layout->addWidget(title);
  layout->addLayout(lines);
  layout->addStretch();
  area->setWidget(content);
  for (QWidget* const each : {content, area->viewport()}) each->setAutoFillBackground(false);
  title->setBuddy(area);
  splitter->addWidget(area);
  return lines;
}

void _Clear(QGridLayout* lines) {
  while (QLayoutItem* const item = lines->takeAt(0)) {
    delete item->widget();
    delete item;
  }
}

QLabel* _AddText(QGridLayout* lines, int row, int column, const QString& text) {
  auto* const label = new QLabel(text, lines->parentWidget());
  label->setTextFormat(Qt::PlainText);
  lines->addWidget(label, row, column, Qt::AlignTop);
  return label;
}

QLabel* _AddLongText(QGridLayout* lines, int row, int column, const QString& text) {
  QLabel* const label = _AddText(lines, row, column, text);
  label->setWordWrap(true);
  label->setTextInteractionFlags(Qt::TextSelectableByMouse);
  lines->setColumnStretch(column, 1);
  return label;
}

}  // namespace

ResultPage::ResultPage(QWidget* parent, const ExportedFile& file)
    : QWidget(parent), m_file(file), m_handle(new FileHandle(this, file.path)), m_handleRow(new QHBoxLayout) {
  auto* const splitter = new QSplitter(this);
  splitter->setChildrenCollapsible(false);
  m_factsTitle = _MakeTitle(splitter);
  m_facts = _AddColumn(splitter, m_factsTitle, "facts");
  m_stepsTitle = _MakeTitle(splitter);
  m_steps = _AddColumn(splitter, m_stepsTitle, "steps");
  for (const int column : {0, 1}) splitter->setStretchFactor(column, 1);
  auto* const layout = new QVBoxLayout(this);
  m_handleRow->addWidget(m_handle, 1);
  layout->addLayout(m_handleRow);
  layout->addWidget(splitter, 1);
  Retranslate();
}

void ResultPage::ShowFacts() {
  _Clear(m_facts);
  const int side = fontMetrics().height();
  int row = 0;
  for (const ExportFact& fact : ExportFactsOf(m_file)) {
    if (fact.isMissing) {
      QLabel* const icon = _AddText(m_facts, row, 0, {});
      icon->setPixmap(style()->standardIcon(QStyle::SP_MessageBoxWarning).pixmap(side, side));
    }
    QLabel* const title = _AddText(m_facts, row, 1, fact.title);
    QLabel* const text = _AddLongText(m_facts, row, 2, fact.text);
    text->setObjectName(QLatin1String(fact.key));
    title->setBuddy(text);
    ++row;
  }
}

void ResultPage::ShowSteps() {
  _Clear(m_steps);
  int row = 0;
  for (const QString& step : UploadStepsOf(m_file)) {
    _AddText(m_steps, row, 0, Texts::tr("%1.").arg(QLocale().toString(row + 1)));
    _AddLongText(m_steps, row, 1, step)->setObjectName(QStringLiteral("step%1").arg(row + 1));
    ++row;
  }
}

void ResultPage::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::LanguageChange) Retranslate();
}

void ResultPage::Retranslate() {
  m_factsTitle->setText(Texts::tr("The file was saved"));
  const bool isReport = m_file.format != nullptr && m_file.format->IsReport();
  m_stepsTitle->setText(isReport ? Texts::tr("How to read it")
                                 : Texts::tr("What to click in %1").arg(SystemNameOf(m_file)));
  ShowFacts();
  ShowSteps();
  m_stepsTitle->setVisible(m_steps->count() > 0);
}

}  // namespace host

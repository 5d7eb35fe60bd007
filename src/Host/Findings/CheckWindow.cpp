#include "Host/Findings/CheckWindow.h"

#include <QEvent>
#include <QPushButton>
#include <QScreen>
#include <QSplitter>
#include <QVBoxLayout>
#include <utility>

#include "Host/App/CloseKeys.h"
#include "Host/App/Texts.h"
#include "Host/Findings/CheckChoices.h"
#include "Host/Findings/FindingsView.h"
#include "Systems/LearningSystem.h"

namespace host {

CheckWindow::CheckWindow(QWidget* parent, std::shared_ptr<const OpenClass> openClass,
                         std::function<void(const FindingPlace&)> chosen)
    : QWidget(parent, Qt::Window),
      m_choices(new CheckChoices(this, [this] { Check(); })),
      m_findings(new FindingsView(
          this,
          [show = std::move(chosen)](const std::vector<FindingPlace>& places) { show(places.front()); })),
      m_close(new QPushButton(this)) {
  setObjectName(QStringLiteral("checkWindow"));
  setAttribute(Qt::WA_DeleteOnClose);
  auto* const splitter = new QSplitter(this);
  splitter->addWidget(m_choices);
  splitter->addWidget(m_findings);
  splitter->setStretchFactor(1, 1);
  splitter->setChildrenCollapsible(false);
  auto* const layout = new QVBoxLayout(this);
  layout->addWidget(splitter, 1);
  layout->addWidget(m_close, 0, Qt::AlignRight);
  connect(m_close, &QPushButton::clicked, this, &QWidget::close);
  CloseByKeys(this);
  SetClass(std::move(openClass));
  const QSize wanted(fontMetrics().height() * 52, fontMetrics().height() * 32);
  resize(wanted.boundedTo(screen()->availableSize() * 9 / 10));
}

void CheckWindow::SetClass(std::shared_ptr<const OpenClass> openClass) {
  m_class = std::move(openClass);
  m_choices->SetClass(m_class);
  Retranslate();
}

void CheckWindow::Check() {
  const ExportSubject subject = m_choices->Subject();
  m_findings->Show(CheckExport(subject), subject);
}

void CheckWindow::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::LanguageChange) Retranslate();
}

void CheckWindow::Retranslate() {
  setWindowTitle(Texts::tr("Check – %1").arg(m_class->name));
  setAccessibleName(windowTitle());
  m_close->setText(Texts::tr("&Close"));
  m_close->setAccessibleName(Texts::tr("&Close").remove(u'&'));
  Check();
}

}  // namespace host

#include "Host/App/Messages.h"

#include <QMessageBox>
#include <QPushButton>

#include "Host/App/Texts.h"

namespace host {

namespace {

// File names and parser messages in the texts are no markup.
void _SetUp(QMessageBox* box, const QString& what, const QString& advice) {
  box->setObjectName(QStringLiteral("message"));
  box->setIcon(QMessageBox::Warning);
  box->setWindowTitle(Texts::tr("Gradix"));
  box->setTextFormat(Qt::PlainText);
  box->setText(what);
  box->setInformativeText(advice);
  box->setAccessibleName(what);
  box->setAccessibleDescription(advice);
  box->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  QPushButton* const ok = box->addButton(Texts::tr("OK"), QMessageBox::AcceptRole);
  box->setDefaultButton(ok);
  box->setEscapeButton(ok);
}

}  // namespace

void ShowMessage(QWidget* parent, const QString& what, const QString& advice) {
  auto* const box = new QMessageBox(parent);
  box->setAttribute(Qt::WA_DeleteOnClose);
  _SetUp(box, what, advice);
  box->open();
}

void AskToConfirm(QWidget* parent, const QString& what, const QString& advice) {
  QMessageBox box(parent);
  _SetUp(&box, what, advice);
  box.exec();
}

}  // namespace host

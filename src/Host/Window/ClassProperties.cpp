#include "Host/Window/ClassProperties.h"

#include <QDateTime>
#include <QDialog>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileInfo>
#include <QFormLayout>
#include <QLabel>
#include <QLocale>

#include "Host/App/Texts.h"

namespace host {

namespace {

void _AddRow(QFormLayout* form, const QString& caption, const QString& value) {
  auto* const label = new QLabel(value);
  label->setTextFormat(Qt::PlainText);
  label->setWordWrap(true);
  label->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  auto* const title = new QLabel(caption);
  title->setBuddy(label);
  form->addRow(title, label);
}

}  // namespace

void ShowClassProperties(QWidget* parent, const OpenClass& openClass) {
  auto* const dialog = new QDialog(parent);
  dialog->setObjectName(QStringLiteral("classProperties"));
  dialog->setAttribute(Qt::WA_DeleteOnClose);
  dialog->setWindowTitle(Texts::tr("Properties – %1").arg(openClass.name));
  const QFileInfo file(openClass.path);
  const QLocale locale;
  auto* const form = new QFormLayout(dialog);
  form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
  _AddRow(form, Texts::tr("Class:"), openClass.name);
  _AddRow(form, Texts::tr("File:"), QDir::toNativeSeparators(openClass.path));
  _AddRow(form, Texts::tr("Size:"), locale.formattedDataSize(file.size()));
  _AddRow(form, Texts::tr("Saved:"), locale.toString(file.lastModified(), QLocale::LongFormat));
  _AddRow(form, Texts::tr("Students:"), locale.toString(qulonglong{openClass.record.students.size()}));
  _AddRow(form, Texts::tr("Assignments:"), locale.toString(qulonglong{openClass.record.assignments.size()}));
  auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Close, dialog);
  QObject::connect(buttons, &QDialogButtonBox::rejected, dialog, &QDialog::reject);
  form->addRow(buttons);
  dialog->resize(dialog->fontMetrics().averageCharWidth() * 70, dialog->sizeHint().height());
  dialog->open();
}

}  // namespace host

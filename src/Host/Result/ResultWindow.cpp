#include "Host/Result/ResultWindow.h"

#include <QDesktopServices>
#include <QDir>
#include <QEvent>
#include <QFileInfo>
#include <QFormLayout>
#include <QLabel>
#include <QLocale>
#include <QPushButton>
#include <QStringList>
#include <QTabWidget>
#include <QUrl>
#include <QVBoxLayout>

#include "Host/App/CloseKeys.h"
#include "Host/App/Texts.h"
#include "Host/Preview/FilePreview.h"

namespace host {

ResultWindow::ResultWindow(QWidget* parent, const ExportedFile& file)
    : QWidget(parent, Qt::Window),
      m_file(file),
      m_size(QFileInfo(file.path).size()),
      m_preview(new FilePreview(this)),
      m_notes(new QLabel(this)),
      m_details(new QFormLayout),
      m_sizeText(new QLabel(this)),
      m_openFolder(new QPushButton(this)),
      m_close(new QPushButton(this)) {
  setObjectName(QStringLiteral("resultWindow"));
  setAttribute(Qt::WA_DeleteOnClose);
  auto* const layout = new QVBoxLayout(this);
  layout->addWidget(m_preview, 1);
  layout->addWidget(m_notes);
  layout->addLayout(m_details);
  m_preview->Show(BeginningOf(file.path), {}, m_size);
  AddDetails(file.path);
  AddButtons(file.path);
  Retranslate();
  resize(fontMetrics().height() * 48, fontMetrics().height() * 28);
}

void ResultWindow::AddDetails(const QString& path) {
  auto* const pathText = new QLabel(QDir::toNativeSeparators(path), this);
  for (QLabel* const value : {pathText, m_sizeText}) {
    value->setTextFormat(Qt::PlainText);
    value->setTextInteractionFlags(Qt::TextSelectableByMouse);
  }
  pathText->setWordWrap(true);
  m_details->addRow(new QLabel(this), pathText);
  m_details->addRow(new QLabel(this), m_sizeText);
}

void ResultWindow::AddButtons(const QString& path) {
  auto* const row = new QHBoxLayout;
  row->addWidget(m_openFolder);
  row->addStretch();
  row->addWidget(m_close);
  static_cast<QVBoxLayout*>(layout())->addLayout(row);
  connect(m_openFolder, &QPushButton::clicked, this, [folder = QFileInfo(path).absolutePath()] {
    QDesktopServices::openUrl(QUrl::fromLocalFile(folder));
  });
  connect(m_close, &QPushButton::clicked, this, &QWidget::close);
  CloseByKeys(this);
}

QString ResultWindow::Notes() const {
  QStringList notes;
  if (m_file.replacedCharacters > 0)
    notes.append(Texts::tr("Characters of the class that became “?” because the file cannot hold them: %1")
                     .arg(m_file.replacedCharacters));
  if (m_file.studentsWithoutIdentifier > 0)
    notes.append(Texts::tr("Students without an identifier: %1").arg(m_file.studentsWithoutIdentifier));
  return notes.join(u'\n');
}

void ResultWindow::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::LanguageChange) Retranslate();
}

void ResultWindow::Retranslate() {
  setWindowTitle(Texts::tr("Exported file: %1").arg(QFileInfo(m_file.path).fileName()));
  setAccessibleName(windowTitle());
  m_preview->Pages()->setAccessibleName(windowTitle());
  m_notes->setText(Notes());
  m_notes->setVisible(!m_notes->text().isEmpty());
  constexpr const char* kDetails[] = {QT_TRANSLATE_NOOP("Texts", "File:"),
                                      QT_TRANSLATE_NOOP("Texts", "Size:")};
  m_sizeText->setText(QLocale().formattedDataSize(m_size));
  int row = 0;
  for (const char* const title : kDetails) {
    auto* const label = static_cast<QLabel*>(m_details->itemAt(row, QFormLayout::LabelRole)->widget());
    label->setText(Texts::tr(title));
    m_details->itemAt(row++, QFormLayout::FieldRole)->widget()->setAccessibleName(Texts::tr(title));
  }
  m_openFolder->setText(Texts::tr("Open &folder"));
  m_openFolder->setAccessibleName(Texts::tr("Open &folder").remove(u'&'));
  m_close->setText(Texts::tr("&Close"));
  m_close->setAccessibleName(Texts::tr("&Close").remove(u'&'));
}

}  // namespace host

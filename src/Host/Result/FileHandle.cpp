#include "Host/Result/FileHandle.h"

#include <QApplication>
#include <QDir>
#include <QDrag>
#include <QEvent>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QMimeData>
#include <QMouseEvent>
#include <QStyle>
#include <QUrl>

#include "Host/App/Texts.h"

namespace host {

namespace {

QLabel* _MakeLabel(QWidget* parent, const QString& text) {
  auto* const label = new QLabel(text, parent);
  label->setTextFormat(Qt::PlainText);
  label->setWordWrap(true);
  return label;
}

}  // namespace

FileHandle::FileHandle(QWidget* parent, const QString& path)
    : QFrame(parent), m_path(path), m_hint(_MakeLabel(this, {})) {
  setObjectName(QStringLiteral("fileHandle"));
  setFrameShape(QFrame::StyledPanel);
  setCursor(Qt::OpenHandCursor);
  auto* const icon = new QLabel(this);
  const int side = fontMetrics().height() * 2;
  icon->setPixmap(style()->standardIcon(QStyle::SP_FileIcon).pixmap(side, side));
  QLabel* const name = _MakeLabel(this, QDir::toNativeSeparators(path));
  name->setObjectName(QStringLiteral("filePath"));
  m_hint->setObjectName(QStringLiteral("fileHint"));
  auto* const texts = new QVBoxLayout;
  texts->setSpacing(0);
  texts->addWidget(name);
  texts->addWidget(m_hint);
  auto* const layout = new QHBoxLayout(this);
  layout->addWidget(icon);
  layout->addLayout(texts, 1);
  Retranslate();
}

void FileHandle::Say(const QString& what) {
  m_hint->setText(what.isEmpty() ? Texts::tr("Drag the file from here into the browser or into a folder.")
                                 : what);
}

void FileHandle::changeEvent(QEvent* event) {
  QFrame::changeEvent(event);
  if (event->type() == QEvent::LanguageChange) Retranslate();
}

void FileHandle::Retranslate() {
  Say({});
}

void FileHandle::mousePressEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton) m_pressed = event->pos();
}

void FileHandle::mouseMoveEvent(QMouseEvent* event) {
  const bool isDrag = (event->pos() - m_pressed).manhattanLength() >= QApplication::startDragDistance();
  if ((event->buttons() & Qt::LeftButton) != 0 && isDrag) Drag();
}

void FileHandle::Drag() {
  auto* const mimeData = new QMimeData;
  mimeData->setUrls({QUrl::fromLocalFile(m_path)});
  auto* const drag = new QDrag(this);
  drag->setMimeData(mimeData);
  const int side = fontMetrics().height() * 2;
  drag->setPixmap(style()->standardIcon(QStyle::SP_FileIcon).pixmap(side, side));
  drag->exec(Qt::CopyAction);
}

}  // namespace host

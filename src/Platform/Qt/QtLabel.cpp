#include "Platform/Qt/QtLabel.h"

#include <QPainter>
#include <QStyle>
#include <QTextLayout>
#include <algorithm>

namespace ui {

namespace {

// The lines of the text at that width, at most so many; the last one takes all that remains.
QStringList _Lines(const QString& text, const QFont& font, int width, int most) {
  QTextLayout layout(text, font);
  QTextOption option;
  option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
  layout.setTextOption(option);
  QStringList lines;
  layout.beginLayout();
  for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
    line.setLineWidth(width);
    const bool isLast = lines.size() + 1 == most;
    lines += isLast ? text.mid(line.textStart()) : text.mid(line.textStart(), line.textLength());
    if (isLast) break;
  }
  layout.endLayout();
  return lines;
}

}  // namespace

QtLabel::QtLabel(QWidget* parent) : QLabel(parent) {
  setWordWrap(true);
  setTextFormat(Qt::PlainText);
  setTextInteractionFlags(Qt::NoTextInteraction);
  setMouseTracking(true);  // for the tool tip of a text that is cut
}

// A label with a buddy has every "&" doubled.
QString QtLabel::WholeText() const {
  QString whole = text();
  if (buddy() != nullptr) whole.replace(QLatin1String("&&"), QLatin1String("&"));
  return whole;
}

bool QtLabel::IsCut() const {
  const QRect room = contentsRect();
  const QRect needed =
      fontMetrics().boundingRect(QRect(0, 0, room.width(), 0), Qt::TextWordWrap, WholeText());
  return needed.height() > room.height() || needed.width() > room.width();
}

QString QtLabel::CutText() const {
  return IsCut() ? WholeText() : QString();
}

void QtLabel::paintEvent(QPaintEvent* event) {
  if (!IsCut()) return QLabel::paintEvent(event);
  const QRect room = contentsRect();
  const int lineHeight = std::max(fontMetrics().lineSpacing(), 1);
  QString text = WholeText();
  text.replace(QLatin1Char('\n'), QChar(QChar::LineSeparator));
  QStringList lines = _Lines(text, font(), room.width(), std::max(room.height() / lineHeight, 1));
  if (lines.isEmpty()) return;
  lines.last().replace(QChar(QChar::LineSeparator), QLatin1Char(' '));
  lines.last() = fontMetrics().elidedText(lines.last(), Qt::ElideRight, room.width());
  QPainter painter(this);
  const int flags = static_cast<int>(alignment()) | Qt::TextSingleLine;
  QRect line(room.left(), room.top(), room.width(), lines.size() == 1 ? room.height() : lineHeight);
  for (const QString& shown : lines) {
    style()->drawItemText(&painter, line, flags, palette(), isEnabled(), shown, foregroundRole());
    line.translate(0, lineHeight);
  }
}

}  // namespace ui

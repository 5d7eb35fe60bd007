#include "Host/Export/FileNames.h"

#include <QFile>

namespace host {

namespace {

constexpr qsizetype kMaxNameBytes = 120;  // of an assignment's name; leaves room for folders

bool _IsAllowed(QChar character) {
  static const QString refused = QStringLiteral("/\\:*?\"<>|");
  return character.category() != QChar::Other_Control && !refused.contains(character);
}

QString _Cleaned(const QString& text) {
  QString cleaned;
  for (const QChar character : text) cleaned.append(_IsAllowed(character) ? character : QChar(u'_'));
  return cleaned.trimmed();
}

QString _Cut(QString name) {
  while (name.toUtf8().size() > kMaxNameBytes) {
    const bool pair = name.size() > 1 && name.back().isLowSurrogate();
    name.chop(pair ? 2 : 1);
  }
  return name.trimmed();
}

}  // namespace

QString ShortFormatName(const QString& formatName) {
  static const QString prefix = QStringLiteral("Assignment Results for ");
  return formatName.startsWith(prefix) ? formatName.mid(prefix.size()) : formatName;
}

QString ProposedFileName(const QString& assignmentName, const QString& formatName, const QString& extension) {
  QString name = _Cut(_Cleaned(assignmentName));
  if (name.startsWith(u'.')) name.replace(0, 1, u'_');  // would be hidden
  if (!name.isEmpty()) name += QLatin1String(" - ");
  return name + _Cleaned(ShortFormatName(formatName)) + u'.' + extension;
}

bool FitsIntoPath(const QString& path) {
  return QFile::encodeName(path).size() <= kMaxPathBytes;
}

}  // namespace host

#include "Host/Export/FileNames.h"

#include <QStringList>
#include <algorithm>

#include "Host/App/Texts.h"

namespace host {

namespace {

constexpr qsizetype kMaxPartBytes = 120;  // of a class's or an assignment's name; leaves room for folders

QChar _Cleaned(QChar character) {
  static const QString joining = QStringLiteral("/\\|");
  static const QString refused = QStringLiteral(":*?\"<>");
  if (joining.contains(character)) return u'-';
  const bool isRefused = character.category() == QChar::Other_Control || refused.contains(character);
  return isRefused ? QChar(u' ') : character;
}

// On one line; a name that begins with a point would be hidden.
QString _Cleaned(QString text) {
  std::transform(text.begin(), text.end(), text.begin(), [](QChar each) { return _Cleaned(each); });
  while (text.startsWith(u'.') || text.startsWith(u' ')) text.remove(0, 1);
  return text.simplified();
}

QString _Cut(QString name) {
  while (name.toUtf8().size() > kMaxPartBytes) {
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

QString FormatTitle(const FormatRow& format) {
  return format.IsReport() ? Texts::tr("Detailed Results as Text")
                           : ShortFormatName(QString::fromUtf8(format.name));
}

QString ProposedFileName(const QString& name, const QString& formatName, const QString& extension,
                         QDate date) {
  QStringList parts = {_Cut(_Cleaned(name)), _Cleaned(ShortFormatName(formatName)),
                       date.toString(Qt::ISODate)};
  parts.removeAll(QString());
  return parts.join(QStringLiteral(" – ")) + u'.' + extension;
}

}  // namespace host

#include "Host/ClassView/ReadFaultText.h"

#include <QFileInfo>

#include "Host/App/Texts.h"

namespace host {

namespace {

FaultText _MalformedText(const ReadResult& result, const QString& name) {
  QString advice = Text(TextID::kMalformedAdvice);
  if (!result.reason.isEmpty()) advice.prepend(Text(TextID::kMalformedReason).arg(result.reason));
  return {Text(TextID::kMalformed).arg(name).arg(result.line).arg(result.column), advice};
}

}  // namespace

FaultText TextOfFault(const ReadResult& result) {
  const QString name = QFileInfo(result.path).fileName();
  switch (result.fault) {
    case ReadFault::kCannotOpen:
      return {Text(TextID::kCannotOpen).arg(name), Text(TextID::kCannotOpenAdvice).arg(result.reason)};
    case ReadFault::kCannotRead:
      return {Text(TextID::kCannotRead).arg(name), Text(TextID::kCannotOpenAdvice).arg(result.reason)};
    case ReadFault::kMalformed: return _MalformedText(result, name);
    case ReadFault::kNotAClass: return {Text(TextID::kNotAClass).arg(name), Text(TextID::kNotAClassAdvice)};
    case ReadFault::kOutOfMemory:
      return {Text(TextID::kOutOfMemory).arg(name), Text(TextID::kOutOfMemoryAdvice)};
    case ReadFault::kNone: break;
  }
  return {};
}

}  // namespace host

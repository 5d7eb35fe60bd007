#include "Host/ClassView/ReadFaultText.h"

#include <QFileInfo>

#include "Host/App/HostTexts.h"

namespace host {

namespace {

FaultText _DamagedText(const ClassFault& fault, const QString& name, const QString& reason) {
  QString advice = Text(TextID::kMalformedAdvice);
  if (!reason.isEmpty()) advice.prepend(Text(TextID::kMalformedReason).arg(reason));
  return {Text(TextID::kMalformed).arg(name).arg(fault.line).arg(fault.column), advice};
}

}  // namespace

FaultText TextOfFault(const ReadResult& result) {
  const QString name = QFileInfo(result.path).fileName();
  const QString reason = QString::fromLocal8Bit(result.fault.reason);
  switch (result.fault.code) {
    case ClassFaultCode::kCannotOpen:
      return {Text(TextID::kCannotOpen).arg(name), Text(TextID::kCannotOpenAdvice).arg(reason)};
    case ClassFaultCode::kCannotRead:
      return {Text(TextID::kCannotRead).arg(name), Text(TextID::kCannotOpenAdvice).arg(reason)};
    case ClassFaultCode::kDamaged: return _DamagedText(result.fault, name, reason);
    case ClassFaultCode::kUnsupportedEncoding:
      return {Text(TextID::kUnsupportedEncoding).arg(name),
              Text(TextID::kUnsupportedEncodingAdvice).arg(reason)};
    case ClassFaultCode::kNotAClass:
      return {Text(TextID::kNotAClass).arg(name), Text(TextID::kNotAClassAdvice)};
    case ClassFaultCode::kOutOfMemory:
      return {Text(TextID::kOutOfMemory).arg(name), Text(TextID::kOutOfMemoryAdvice)};
    case ClassFaultCode::kNone: break;
  }
  return {};
}

}  // namespace host

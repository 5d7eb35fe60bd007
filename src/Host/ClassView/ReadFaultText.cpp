#include "Host/ClassView/ReadFaultText.h"

#include <QFileInfo>

#include "Host/App/Texts.h"

namespace host {

namespace {

FaultText _DamagedText(const ClassFault& fault, const QString& name, const QString& reason) {
  QString advice = Texts::tr("Save the class again in the class manager, or open a copy from a backup.");
  if (!reason.isEmpty()) advice.prepend(Texts::tr("The reader says: %1.\n\n").arg(reason));
  return {Texts::tr("The class file “%1” is damaged: line %2, column %3.")
              .arg(name)
              .arg(fault.line)
              .arg(fault.column),
          advice};
}

// What a file seems to be that is no class, and what to do then; nothing where it is not certain.
QString _NoClassAdvice(FileKind kind) {
  const QString seeming = SeemingText(kind);
  const QString advice =
      Texts::tr("Choose a file that the class manager saved. Its name usually ends in .xml.");
  return seeming.isEmpty() ? advice : seeming + QStringLiteral("\n\n") + advice;
}

}  // namespace

QString SeemingText(FileKind kind) {
  switch (kind) {
    case FileKind::kPicture: return Texts::tr("It looks like a picture.");
    case FileKind::kPdf: return Texts::tr("It looks like a PDF document.");
    case FileKind::kOfficeDocument: return Texts::tr("It looks like a document of an office program.");
    case FileKind::kArchive:
      return Texts::tr("It looks like a compressed archive. If your class is in it, unpack it first.");
    case FileKind::kWebPage: return Texts::tr("It looks like a web page.");
    case FileKind::kTable: return Texts::tr("It looks like a table (CSV).");
    case FileKind::kDownload:
      return Texts::tr(
          "It looks like a gradebook downloaded from a learning system. Open your class first, then this "
          "gradebook, to fill in your results.");
    case FileKind::kUnreadable:
    case FileKind::kEmpty:
    case FileKind::kClass:
    case FileKind::kOther: break;
  }
  return {};
}

FaultText TextOfFault(const ReadResult& result) {
  const QString name = QFileInfo(result.path).fileName();
  const QString reason = QString::fromLocal8Bit(result.fault.reason);
  switch (result.fault.code) {
    case ClassFaultCode::kCannotOpen:
      return {Texts::tr("The class file “%1” could not be opened.").arg(name),
              Texts::tr("%1\n\nCheck that the file is still there and that you may read it.").arg(reason)};
    case ClassFaultCode::kCannotRead:
      return {Texts::tr("The class file “%1” could not be read to its end.").arg(name),
              Texts::tr("%1\n\nCheck that the file is still there and that you may read it.").arg(reason)};
    case ClassFaultCode::kDamaged: return _DamagedText(result.fault, name, reason);
    case ClassFaultCode::kUnsupportedEncoding:
      return {Texts::tr("The class file “%1” is written in an encoding that cannot be read.").arg(name),
              Texts::tr("The reader says: %1.\n\nSave it as UTF-8 with a text editor.").arg(reason)};
    case ClassFaultCode::kNotAClass:
      return {Texts::tr("“%1” is not a class file.").arg(name), _NoClassAdvice(result.kind)};
    case ClassFaultCode::kOutOfMemory:
      return {Texts::tr("There is not enough memory to open “%1”.").arg(name),
              Texts::tr("Close other programs and try again.")};
    case ClassFaultCode::kNone: break;
  }
  return {};
}

}  // namespace host

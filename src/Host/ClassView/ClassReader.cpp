#include "Host/ClassView/ClassReader.h"

#include <QFile>
#include <QFileInfo>
#include <QXmlStreamReader>
#include <cerrno>
#include <cstring>
#include <fstream>
#include <new>

#include "Common/QZXMLParse/QZClassParse.h"
#include "Filters/GX_StdCsv/GradeColumns.h"

namespace host {

namespace {

QString _SystemReason(int error) {
  return QString::fromLocal8Bit(std::strerror(error != 0 ? error : EIO));
}

// The class record has no name of the class; it stands before the lists. Empty when there is none.
QString _ClassName(const QString& path) {
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) return {};
  QXmlStreamReader reader(&file);
  if (!reader.readNextStartElement()) return {};
  while (reader.readNextStartElement()) {
    if (reader.name() == QLatin1String("class-name")) return reader.readElementText().simplified();
    if (reader.name().endsWith(QLatin1String("-list"))) return {};
    reader.skipCurrentElement();
  }
  return {};
}

// Whether the document is well-formed up to its document element, and that is another than class.
bool _IsAnotherDocument(const QString& path) {
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) return false;
  QXmlStreamReader reader(&file);
  return reader.readNextStartElement() && reader.name() != QLatin1String("class");
}

void _SetFault(ReadResult* result, ReadFault fault, const QString& reason) {
  result->fault = fault;
  result->reason = reason;
}

void _SetParseFault(ReadResult* result, const QZClassParseReport& report) {
  _SetFault(result, _IsAnotherDocument(result->path) ? ReadFault::kNotAClass : ReadFault::kMalformed,
            QString::fromUtf8(report.reason));
  result->line = report.line;
  result->column = report.column;
}

void _Complete(OpenClass* openClass) {
  openClass->name = _ClassName(openClass->path);
  if (openClass->name.isEmpty()) openClass->name = QFileInfo(openClass->path).completeBaseName();
  const RosterIndex roster(openClass->record.students);
  for (const qz::AssignmentRecord& assignment : openClass->record.assignments) {
    openClass->scores.push_back(roster.FindTotals(assignment));
  }
}

void _Read(ReadResult* result) {
  if (QFileInfo(result->path).isDir()) {
    _SetFault(result, ReadFault::kCannotOpen, _SystemReason(EISDIR));
    return;
  }
  errno = 0;
  std::ifstream stream(QFile::encodeName(result->path).toStdString(), std::ios::in | std::ios::binary);
  if (!stream.is_open()) {
    _SetFault(result, ReadFault::kCannotOpen, _SystemReason(errno));
    return;
  }
  const auto openClass = std::make_shared<OpenClass>();
  openClass->path = result->path;
  QZClassParseReport report;
  errno = 0;
  const bool parsed = QZClassParse(&openClass->record, stream, &report);
  if (stream.bad()) {
    _SetFault(result, ReadFault::kCannotRead, _SystemReason(errno));
  } else if (!parsed || report.reason != nullptr) {
    _SetParseFault(result, report);
  } else {
    _Complete(openClass.get());
    result->openClass = openClass;
  }
}

}  // namespace

ReadResult ReadClassFile(const QString& path) {
  ReadResult result;
  result.path = QFileInfo(path).absoluteFilePath();
  try {
    _Read(&result);
  } catch (const std::bad_alloc&) {
    result.openClass.reset();
    _SetFault(&result, ReadFault::kOutOfMemory, {});
  }
  return result;
}

}  // namespace host

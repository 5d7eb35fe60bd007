#include "Host/ClassView/ClassReader.h"

#include <QFile>
#include <QFileInfo>
#include <cerrno>
#include <istream>
#include <new>
#include <string>
#include <system_error>
#include <utility>
#include <vector>

#include "Host/ClassView/WatchedFile.h"

namespace host {

namespace {

std::shared_ptr<const OpenClass> _Opened(const QString& path, const FileStamp& stamp, ClassFile* file) {
  const auto openClass = std::make_shared<OpenClass>();
  openClass->path = path;
  openClass->stamp = stamp;
  openClass->name = QString::fromStdString(file->name);
  if (openClass->name.isEmpty()) openClass->name = QFileInfo(path).completeBaseName();
  openClass->record = std::move(file->record);
  openClass->originals = std::move(file->originals);
  openClass->replacedCharacters = file->replacedCharacters;
  std::vector<const qz::AssignmentRecord*> assignments;
  for (const qz::AssignmentRecord& assignment : openClass->record.assignments) {
    assignments.push_back(&assignment);
  }
  openClass->scores = ScoreTable(openClass->record.students, assignments);
  return openClass;
}

// What is no text that begins as XML does was never a class: nothing in it is damaged.
ClassFault _Judged(const ClassFault& fault, FileKind kind) {
  const bool isAboutText =
      fault.code == ClassFaultCode::kDamaged || fault.code == ClassFaultCode::kUnsupportedEncoding;
  if (!isAboutText || kind == FileKind::kClass || kind == FileKind::kEmpty) return fault;
  return {ClassFaultCode::kNotAClass, 0, 0, fault.reason};
}

void _Read(ReadWatch* watch, ReadResult* result) {
  WatchedFile opened(watch);
  const std::string path = QFile::encodeName(result->path).toStdString();
  const int error = opened.Open(path);
  if (error != 0) {
    result->fault = {ClassFaultCode::kCannotOpen, 0, 0, std::generic_category().message(error)};
    return;
  }
  std::istream stream(&opened);
  ClassFile file = ReadClassFile(stream, path);
  if (watch->stop) return;
  if (file.IsRead()) {
    result->kind = FileKind::kClass;
    result->openClass = _Opened(result->path, opened.Stamp(), &file);
  } else if (file.fault.code == ClassFaultCode::kCannotRead) {
    result->fault = file.fault;
  } else {
    result->kind = KindOfFile(result->path, opened.Head());
    result->fault = _Judged(file.fault, result->kind);
  }
}

}  // namespace

Scores OpenClass::ScoresOn(size_t assignment) const {
  Scores found;
  found.reserve(record.students.size());
  for (size_t i = 0; i < record.students.size(); ++i) found.push_back(scores.Find(i, assignment));
  return found;
}

ReadResult ReadClass(const QString& path) {
  ReadWatch watch;
  return ReadClass(path, &watch);
}

ReadResult ReadClass(const QString& path, ReadWatch* watch) {
  ReadResult result;
  result.path = QFileInfo(path).absoluteFilePath();
  if (QFileInfo(path).isDir()) {
    result.fault = {ClassFaultCode::kCannotOpen, 0, 0, std::generic_category().message(EISDIR)};
    return result;
  }
  try {
    _Read(watch, &result);
  } catch (const std::bad_alloc&) {
    result.fault = {ClassFaultCode::kOutOfMemory, 0, 0, {}};
  }
  if (!watch->stop) return result;
  ReadResult cancelled;
  cancelled.path = result.path;
  cancelled.cancelled = true;
  return cancelled;
}

}  // namespace host

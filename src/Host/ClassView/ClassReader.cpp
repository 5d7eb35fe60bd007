#include "Host/ClassView/ClassReader.h"

#include <QFile>
#include <QFileInfo>
#include <cerrno>
#include <cstring>
#include <new>
#include <utility>
#include <vector>

namespace host {

namespace {

std::shared_ptr<const OpenClass> _Opened(const QString& path, ClassFile* file) {
  const auto openClass = std::make_shared<OpenClass>();
  openClass->path = path;
  openClass->name = QString::fromStdString(file->name);
  if (openClass->name.isEmpty()) openClass->name = QFileInfo(path).completeBaseName();
  openClass->record = std::move(file->record);
  openClass->originals = std::move(file->originals);
  std::vector<const qz::AssignmentRecord*> assignments;
  for (const qz::AssignmentRecord& assignment : openClass->record.assignments) {
    assignments.push_back(&assignment);
  }
  openClass->scores = ScoreTable(openClass->record.students, assignments);
  return openClass;
}

}  // namespace

Scores OpenClass::ScoresOn(size_t assignment) const {
  Scores found;
  found.reserve(record.students.size());
  for (size_t i = 0; i < record.students.size(); ++i) found.push_back(scores.Find(i, assignment));
  return found;
}

ReadResult ReadClass(const QString& path) {
  ReadResult result;
  result.path = QFileInfo(path).absoluteFilePath();
  if (QFileInfo(path).isDir()) {
    result.fault = {ClassFaultCode::kCannotOpen, 0, 0, std::strerror(EISDIR)};
    return result;
  }
  try {
    ClassFile file = ReadClassFile(QFile::encodeName(result.path).toStdString());
    result.fault = file.fault;
    if (file.IsRead()) result.openClass = _Opened(result.path, &file);
  } catch (const std::bad_alloc&) {
    result.fault = {ClassFaultCode::kOutOfMemory, 0, 0, {}};
  }
  return result;
}

}  // namespace host

#include "Export/ExportWriter.h"

#include "Systems/CurrentFile.h"
#include "Systems/LearningSystem.h"

FileOutcome WriteExport(Session* session, const std::string& path) {
  session->Export(path.c_str());
  return session->Outcome();
}

FileOutcome WriteExport(Session* session, std::FILE* stream) {
  session->ExportTo(stream);
  return session->Outcome();
}

FileOutcome WriteCurrentExport(const ExportSubject& subject, const std::string& path) {
  return WriteAtomicFile(path,
                         [&subject](std::FILE* file) { return WriteCurrentExport(subject, file).error; });
}

FileOutcome WriteCurrentExport(const ExportSubject& subject, std::FILE* stream) {
  FileOutcome outcome;
  outcome.begun = true;
  outcome.error = WriteCurrentFile(*FindCurrentFile(*subject.format), subject, stream);
  return outcome;
}

#include "Export/ExportWriter.h"

FileOutcome WriteExport(Session* session, const std::string& path) {
  session->Export(path.c_str());
  return session->Outcome();
}

FileOutcome WriteExport(Session* session, std::FILE* stream) {
  session->ExportTo(stream);
  return session->Outcome();
}

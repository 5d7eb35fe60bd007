#include "Export/ExportWriter.h"

FileOutcome WriteExport(Session* session, const std::string& path, TextEncoding encoding) {
  return WriteAtomicFile(
      path, [session, encoding](std::FILE* stream) { return WriteExport(session, stream, encoding).error; });
}

FileOutcome WriteExport(Session* session, std::FILE* stream, TextEncoding encoding) {
  switch (encoding) {
    case TextEncoding::kMacRoman: session->ExportTo(stream); break;
  }
  return session->Outcome();
}

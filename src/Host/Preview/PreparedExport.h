// The program's own export of the open class, complete but for its place on the disk.
#ifndef GRADIX_PREPAREDEXPORT_H
#define GRADIX_PREPAREDEXPORT_H

#include <memory>
#include <string>
#include <vector>

#include "Common/AtomicFile.h"
#include "Export/ExportChoices.h"
#include "Export/IdentifierCheck.h"
#include "Filters/GX_StdCsv/Session.h"
#include "Host/ClassView/ClassReader.h"
#include "Systems/ExportSubject.h"
#include "Systems/Finding.h"

namespace host {

// What the user chose. The positions ascend, and count in place of ExportChoices::assignmentIDs.
struct OwnExportChoices {
  ExportChoices choices;
  std::vector<size_t> assignments;
};

// Any thread, one at a time. Throws nothing but std::bad_alloc.
class PreparedExport {
 public:
  PreparedExport(std::shared_ptr<const OpenClass> openClass, OwnExportChoices choices);

  const std::shared_ptr<const OpenClass>& Class() const { return m_class; }
  const OwnExportChoices& Choices() const { return m_choices; }
  const ExportSubject& Subject() const { return m_subject; }
  const Findings& Found() const { return m_found; }                     // worst first
  const IdentifierCheck& Identifiers() const { return m_identifiers; }  // of the report: nothing

  // No student has an identifier, or students share one. Not the report's.
  bool HasRefusedIdentifiers() const;

  // An assignment is chosen, or a gradebook is made of a class without any.
  bool CanWrite() const;

  // The file as Write will write it. Empty when there is none, or no memory for it.
  const std::string& Bytes() const { return m_bytes; }

  // As WriteAtomicFile does.
  FileOutcome Write(const std::string& path);

 private:
  FileOutcome WriteTo(std::FILE* stream);

  std::shared_ptr<const OpenClass> m_class;
  OwnExportChoices m_choices;
  std::unique_ptr<Session> m_session;  // has a copy of the class; null where the class itself will do
  ExportSubject m_subject;
  Findings m_found;
  IdentifierCheck m_identifiers;
  std::string m_bytes;
};

}  // namespace host

#endif  // GRADIX_PREPAREDEXPORT_H

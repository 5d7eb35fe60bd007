// One class on its way into a file, as every program takes it: read, fitted to the choices, checked, written.
// What there is to say of it is data; nothing is shown here.
#ifndef GRADIX_EXPORT_CLASSEXPORT_H
#define GRADIX_EXPORT_CLASSEXPORT_H

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <memory>
#include <optional>
#include <string>

#include "Common/AtomicFile.h"
#include "Export/ClassFile.h"
#include "Export/ExportChoices.h"
#include "Export/IdentifierCheck.h"
#include "Filters/GX_StdCsv/Session.h"
#include "Systems/ExportSubject.h"
#include "Systems/Finding.h"

// What stands in the way of the file. The first that does counts.
enum class ExportObstacle : uint8_t {
  kNone,
  kClassFile,    // it was not read; see File().fault
  kChoices,      // they do not fit the class; see Applied()
  kIdentifiers,  // no student has one, or students share one; see Identifiers(). Never the report's
  kTrouble,      // a finding counts as trouble; see Found()
};

struct ExportRules {
  bool force = false;   // identifiers are no obstacle
  bool strict = false;  // trouble is one
};

struct ExportCounts {
  size_t students = 0;  // with a row in the file
  size_t assignments = 0;
  size_t scores = 0;
};

// Everything but the writing happens when it is made. Stays where it was made, since its parts point at each
// other. Throws nothing but std::bad_alloc.
class ClassExport {
 public:
  ClassExport(ClassFile file, const ExportChoices& choices, const ExportRules& rules);
  ClassExport(const ClassExport&) = delete;
  ClassExport& operator=(const ClassExport&) = delete;

  ExportObstacle Obstacle() const { return m_obstacle; }
  const ExportChoices& Choices() const { return m_choices; }

  // The class file without its record, which is in Texts().
  const ClassFile& File() const { return m_file; }
  qz::ClassTexts Texts() const { return {*m_session->GetClass(), m_file.originals}; }

  // Known of a class that was read. After a fault the class is whole, so that its assignments can be named.
  const AppliedChoices& Applied() const { return m_applied; }

  // These are known unless the obstacle is kClassFile or kChoices, whatever the rules say.
  const ExportSubject& Subject() const { return *m_subject; }
  const IdentifierCheck& Identifiers() const { return m_identifiers; }  // of the report: nothing
  const Findings& Found() const { return m_found; }                     // worst first
  ExportCounts Counts() const;

  // Whether the identifiers, but for `force`, would be an obstacle.
  bool HasRefusedIdentifiers() const;

  // Without an obstacle: writes the file of the chosen dialect as WriteAtomicFile does, or to an open stream,
  // which stays open.
  FileOutcome Write(const std::string& path);
  FileOutcome Write(std::FILE* stream);

 private:
  ExportObstacle Prepare(const ExportRules& rules);

  const ExportChoices m_choices;
  ClassFile m_file;
  std::unique_ptr<Session> m_session;  // has the class
  AppliedChoices m_applied;
  std::optional<ExportSubject> m_subject;
  IdentifierCheck m_identifiers;
  Findings m_found;
  ExportObstacle m_obstacle;
};

#endif  // GRADIX_EXPORT_CLASSEXPORT_H

// What somebody chose for an export, put into a session.
#ifndef GRADIX_EXPORT_EXPORTCHOICES_H
#define GRADIX_EXPORT_EXPORTCHOICES_H

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

#include "Common/QZData/OriginalTexts.h"
#include "Common/QZData/QZClass.h"
#include "Filters/GX_StdCsv/FormatTable.h"
#include "Systems/ExportSubject.h"

// What the detailed report contains.
struct ReportChoices {
  uint32_t fields = qz::kDefaultReportFields;  // a mask of qz::StudentField::reportBit
  std::array<bool, qz::kReportOptionCount> options = qz::kDefaultReportOptions;  // by qz::ReportOption
};

struct ExportChoices {
  const FormatRow* format = nullptr;
  std::vector<int32_t> assignmentIDs;  // empty: all
  qz::UserIDField identifier = qz::kUserIDAlias;
  bool useQuotes = true;  // in the classic file
  Dialect dialect = Dialect::kClassic;
  char delimiter = ',';  // in a current file that takes another one
  ReportChoices report;  // of the detailed report only
};

enum class ChoiceFault {
  kNone,
  kUnknownAssignment,  // no assignment has the id
  kNotOneAssignment,   // the detailed report is about one
};

struct AppliedChoices {
  ChoiceFault fault = ChoiceFault::kNone;
  int32_t unknownID = 0;
  size_t selected = 0;  // assignments; ids are not necessarily unique
};

// A session of the format for an export that no host began.
std::unique_ptr<Session> MakeSession(const FormatRow& format);

// Puts the choices into a session of their format whose class has been read. After a fault the session is not
// to be exported.
AppliedChoices Apply(const ExportChoices& choices, Session* session);

// What the export writes of a session to which the choices were applied. The session and the original texts
// of its class outlive the subject.
ExportSubject MakeExportSubject(const ExportChoices& choices, const Session& session,
                                const qz::OriginalTexts& originals);

#endif  // GRADIX_EXPORT_EXPORTCHOICES_H

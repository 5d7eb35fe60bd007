// One export run: what the host passed, the class that was read, and the writing of its one file format.
#ifndef GRADIX_SESSION_H
#define GRADIX_SESSION_H

#include <cstdint>
#include <cstdio>

#include "Common/AtomicFile.h"
#include "Common/QZData/ClassTexts.h"
#include "Common/QZData/OriginalTexts.h"
#include "Common/QZData/QZClass.h"
#include "gradix/QZFilter.h"

class Session {
 public:
  explicit Session(const QZEXPORTBEGIN* begin);  // copies the record
  virtual ~Session() = default;
  Session(const Session&) = delete;
  Session& operator=(const Session&) = delete;

  // Writes the whole file, as WriteAtomicFile does. Returns QZFILTER_SUCCESS, or QZFILTER_FILE_NOT_CREATED
  // when the file cannot be created. A disk that fills up later does not change the status: WriteError tells.
  virtual uint32_t Export(const char* path);

  // Writes the same bytes to an open stream, which stays open.
  void ExportTo(std::FILE* file);

  // Why the last Export or ExportTo did not write and close its file completely: an errno value, 0 when it
  // did.
  int WriteError() const { return m_outcome.error; }

  // The same in full.
  const FileOutcome& Outcome() const { return m_outcome; }

  QZEXPORTBEGIN GetExportInfo() const { return m_begin; }
  qz::ClassRecord* GetClass() { return &m_class; }
  const qz::ClassRecord& Class() const { return m_class; }

  // The class's texts that its records could not hold. Whoever reads the class keeps them here.
  qz::OriginalTexts* GetOriginals() { return &m_originals; }
  qz::ClassTexts Texts() const { return {m_class, m_originals}; }

  // Whether texts stand in quotes. Read by the formats that have an unquoted variant.
  bool m_bUseQuotes = true;

  // Writes the text with every double quote turned into an apostrophe, so that it can stand between double
  // quotes as it is. Writes no quotes around it.
  static void WriteSafeCSVString(std::FILE* file, const char* text);

 private:
  // Writes the format. Failures are read off the stream afterwards.
  virtual void Write(std::FILE* file) = 0;

  QZEXPORTBEGIN m_begin;
  qz::ClassRecord m_class;
  qz::OriginalTexts m_originals;
  FileOutcome m_outcome;
};

#endif  // GRADIX_SESSION_H

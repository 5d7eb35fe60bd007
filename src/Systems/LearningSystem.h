// The learning systems: what each does with our files. Whatever knows systems iterates this table.
#ifndef GRADIX_SYSTEMS_LEARNINGSYSTEM_H
#define GRADIX_SYSTEMS_LEARNINGSYSTEM_H

#include <span>
#include <string_view>

#include "Systems/CheckRules.h"
#include "Systems/ExportSubject.h"
#include "Systems/Finding.h"

struct CurrentFile;
struct ExportCheck;
struct DownloadLayout;
struct UploadRules;

// A format that the system takes.
struct SystemFormat {
  const char* key;                       // FormatRow::key
  const CurrentFile* current = nullptr;  // what today's version takes in its place; null: no such file
};

struct LearningSystem {
  const char* key;                           // by which programs name it
  const char* name;                          // as its makers write it
  std::span<const SystemFormat> formats;     // the present one first
  const DownloadLayout* download = nullptr;  // the gradebook that teachers download from it; null: unknown
  const UploadRules* upload = nullptr;       // with a gradebook at hand; null: what is true of every system
  bool isRetired = false;                    // no longer sold

  // What it makes of that which any file may hold; null: nothing is known.
  CheckRules (*rules)(const ExportSubject& subject) = nullptr;
  // Adds what is peculiar to the system; CheckExport adds what is true of all.
  void (*check)(ExportCheck* check) = nullptr;
};

std::span<const LearningSystem* const> LearningSystems();

// The system of a format; every format has one.
const LearningSystem& SystemOf(const FormatRow& format);

// The current file of a format, or null.
const CurrentFile* FindCurrentFile(const FormatRow& format);

// All findings, worst first. Says the same for the same subject, in linear time.
Findings CheckExport(const ExportSubject& subject);

#endif  // GRADIX_SYSTEMS_LEARNINGSYSTEM_H

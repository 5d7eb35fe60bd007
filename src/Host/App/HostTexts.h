// The host's own texts, in English and Spanish.
#ifndef GRADIX_HOSTTEXTS_H
#define GRADIX_HOSTTEXTS_H

#include <QString>
#include <cstdint>

namespace host {

enum class HostLanguage : uint8_t { kEnglish, kSpanish };

enum class TextID : uint8_t {
  kProgram,
  kDescription,
  kClassFileArgument,
  // menus
  kFileMenu,
  kOpen,
  kRecentMenu,
  kNoRecentFiles,
  kQuit,
  kExportMenu,
  kExport,
  kNoFormats,
  kCheck,
  kLanguageMenu,
  kEnglish,
  kSpanish,
  kHelpMenu,
  kAbout,
  kAboutTitle,
  kAboutText,
  kToolBar,
  // the class
  kEmptyHint,
  kEmptyButton,
  kOpenTitle,
  kOpenButton,
  kClassFiles,
  kAllFiles,
  kReading,
  kBusyReading,
  kClassTable,
  kStudentName,
  kStudentID,
  kNoResult,
  kPointsPossibleTip,
  kDateTip,
  kClassSummary,
  // the assignment panel
  kPanel,
  kAssignment,
  kNoAssignments,
  kStatistics,
  kStudents,
  kResults,
  kMissing,
  kMean,
  kMedian,
  kMinimum,
  kMaximum,
  kStandardDeviation,
  kPointsPossible,
  kHistogram,
  kHistogramPoints,
  kHistogramStudents,
  kHistogramEmpty,
  kHistogramBin,
  // what a learning system will do with the file
  kCheckTitle,
  kCheckSystem,
  kCheckField,
  kCheckFile,
  kClassicFile,
  kCurrentFile,
  kClassicHint,
  kCurrentHint,
  kAllAssignments,
  kAssignments,
  kFindings,
  kWhatToDo,
  kProblems,
  kNoProblems,
  kNotes,
  kNothingFound,
  kAndMore,
  // reading faults
  kCannotOpen,
  kCannotOpenAdvice,
  kCannotRead,
  kMalformed,
  kMalformedReason,
  kMalformedAdvice,
  kNotAClass,
  kNotAClassAdvice,
  kUnsupportedEncoding,
  kUnsupportedEncodingAdvice,
  kOutOfMemory,
  kOutOfMemoryAdvice,
  kRecentGone,
  kRecentGoneAdvice,
  // the filter
  kFilterNotFound,
  kFilterNotFoundAdvice,
  kFilterNotLoadable,
  kFilterMissingSymbol,
  kFilterReinstall,
  kFilterWithoutFormats,
  kFilterWithoutFormatsAdvice,
  kBeginFailed,
  kExportFileFailed,
  kExportFileFailedAdvice,
  kSessionUnknown,
  kTryAgain,
  kExportUnderWay,
  kExportCanceled,
  kExported,
  kExportFailed,
  kExportEnded,
  kCloseDialogFirst,
  // choosing the file
  kSaveTitle,
  kCsvFiles,
  kSave,
  kCancel,
  kFileNameLabel,
  kFileTypeLabel,
  kLookInLabel,
  kReplaceTitle,
  kReplaceQuestion,
  kReplace,
  kPathTooLong,
  kPathTooLongAdvice,
  kIsTheClass,
  kIsTheClassAdvice,
  kNotWritten,
  kIncomplete,
  kDiskFullAdvice,
  kNotWrittenAdvice,
  kOutcomeUnknown,
  kOutcomeUnknownAdvice,
  // the exported file
  kResultTitle,
  kResultTable,
  kResultText,
  kResultPath,
  kResultSize,
  kResultTooLarge,
  kReplacedCharacters,
  kWithoutIdentifier,
  kOpenFolder,
  kClose,
  kOk,
  kCount,
};

// The text in the current language.
QString Text(TextID id);

// The same in a given language; for the test that none is missing.
QString TextIn(HostLanguage language, TextID id);

HostLanguage CurrentLanguage();
void SetCurrentLanguage(HostLanguage language);

}  // namespace host

#endif  // GRADIX_HOSTTEXTS_H

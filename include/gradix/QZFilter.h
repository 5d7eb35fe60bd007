/* The export filter as its host sees it: records, status codes and entry points.
 *
 * Plain C; compiles alone. The records have the layout of a 32-bit process; the words that carry a
 * pointer or a host value are as wide as a pointer, so a 64-bit process has the same fields in the same
 * order at the offsets stated here. All text is 8-bit and NUL-terminated. Call from one thread only.
 */
#ifndef GRADIX_QZFILTER_H
#define GRADIX_QZFILTER_H

#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

/* Status codes of the entry points and of writing an export file. */
#define QZFILTER_SUCCESS 0u
#define QZFILTER_FAILED 0xC0000004u           /* failed run, unknown session or invalid format */
#define QZFILTER_FILE_NOT_CREATED 0xC0000008u /* the output file could not be created */

#if defined(__GNUC__)
#define QZFILTER_API __attribute__((visibility("default")))
#else
#define QZFILTER_API
#endif

/* Reasons of DllMain. */
#define QZFILTER_ATTACH 1u
#define QZFILTER_DETACH 0u

#define QZFILTER_SPANISH 6     /* of gLang */
#define QZFILTER_PATH_SIZE 256 /* bytes of the file chooser's buffer */

/* A file reference, 80 bytes at any alignment. QZFilter_MakeFSRef makes one:
 *   0..3   the tag
 *   4..7   zero
 *   8      pointer, in the process's width and byte order, to an absolute, NUL-terminated path in the file
 *          system's bytes
 *   then   zero */
typedef struct FSRef {
  uint8_t hidden[80];
} FSRef;

#define QZFILTER_FSREF_TAG "FSrf" /* bytes 0x46 0x53 0x72 0x66 */
#define QZFILTER_FSREF_TAG_SIZE 4
#define QZFILTER_FSREF_PATH_OFFSET 8

/* A reference to the file at an absolute, NUL-terminated path in the file system's bytes. The path must stay
 * valid as long as the reference or a copy of it is used. */
static inline FSRef QZFilter_MakeFSRef(const char* absolutePath) {
  const uint8_t* const pointer = (const uint8_t*)&absolutePath;
  FSRef reference = {{0}};
  unsigned i;
  for (i = 0; i < QZFILTER_FSREF_TAG_SIZE; ++i) reference.hidden[i] = (uint8_t)QZFILTER_FSREF_TAG[i];
  for (i = 0; i < sizeof absolutePath; ++i) reference.hidden[QZFILTER_FSREF_PATH_OFFSET + i] = pointer[i];
  return reference;
}

/* Windows pass as the window system's id of the window (winId() in Qt), cast to a pointer; null for none. */

/* Asks the user for the output file: receives the dialog window, 0, a buffer of `size` bytes for the path,
 * its size (QZFILTER_PATH_SIZE) and the host's value from QZEXPORTBEGIN. Returns 0 when a file was chosen,
 * with its path, in the file system's bytes, in the buffer. */
typedef int32_t (*QZFilter_ChooseFileProc)(void* dialog, int32_t reserved, char* path, int32_t size,
                                           uintptr_t value);

/* What the host passes to begin an export. Copied whole; the host may free it after the call. */
typedef struct QZEXPORTBEGIN {
  uint32_t host0;                     /* the host's; not read */
  uint32_t formatIndex;               /* 0-based */
  uint32_t host8[2];                  /* the host's; handed back unread */
  uintptr_t chooseFileValue;          /* last argument of chooseFile */
  QZFilter_ChooseFileProc chooseFile; /* null: the dialog cannot be confirmed */
} QZEXPORTBEGIN;

/* What the filter tells of one format. */
typedef struct QZEXPORTFORMAT {
  uint32_t host0;     /* the host's; left untouched */
  char name[51];      /* shown to the user */
  char extension[21]; /* without a dot */
  uint32_t flags;     /* always 14 */
} QZEXPORTFORMAT;

/* What the host passes to export one assignment of one class file. */
typedef struct QZEXPORTFILE {
  uint32_t host0[2];    /* the host's; not read */
  int32_t assignmentID; /* the assignment to preselect */
  FSRef classFile;      /* the class file, XML */
} QZEXPORTFILE;

/* How an export has ended, or that it has not. */
#define QZFILTER_PENDING 0u   /* nothing is decided: the dialog is open, or was never shown */
#define QZFILTER_CANCELLED 1u /* ended with nothing written */
#define QZFILTER_WRITTEN 2u   /* the file is there, complete */
#define QZFILTER_NOT_WRITTEN 3u

#define QZFILTER_FIRST_OUTCOME_SIZE 296u /* of the record's first version, which ended with its path */

/* What became of an export. The host clears the record and sets its size. */
typedef struct QZEXPORTOUTCOME {
  uint32_t size;        /* sizeof(QZEXPORTOUTCOME); later versions may have more members */
  uint32_t state;       /* one of the four above */
  int32_t error;        /* when not written, why: an errno value; 0: there was no assignment to write */
  uint32_t formatIndex; /* 0-based */

  /* The user's choices and what they meant, once the file was written or could not be; 0 before. The field is
   * the one taken as identifier: 1 first name, 2 last name, 3 student id, 4 alias, 5 to 7 the class's custom
   * fields. A format without identifier has neither field nor students without it. */
  int32_t userIDField;
  uint32_t assignments; /* how many were chosen */

  uint32_t replacedCharacters; /* of the class: "?" stands for what 8-bit text lacks */
  uint32_t studentsWithoutIdentifier;

  uint32_t incomplete; /* 1: not written, and a part of it stands where the earlier file was */

  char path[QZFILTER_PATH_SIZE + 4]; /* as the file chooser gave it, always with its NUL */

  /* More of the user's choices, told together with the others. */

  /* Which assignments were chosen: as many positions as `assignments` says, ascending; null when there is
   * none. They count from 0 in the class file's order. The filter's, valid until the next export begins. */
  const uint32_t* chosenAssignments;

  uint32_t useQuotes; /* 1: texts stand in quotes; 0 only in a format that lets the user choose */
  uint32_t students;  /* of the class, as it was read for this export */
} QZEXPORTOUTCOME;

/* Returns the number of export formats; their indices start at 0. */
QZFILTER_API uint32_t QZFilter_GetNumExportFormatsA(void);

/* The session's language: QZFILTER_SPANISH, anything else is English. Zero at load; the host sets it.
 * QZFilter_GetExportFormatInfoA sets it back to 0, so set it right before QZFilter_ExportFileA. */
QZFILTER_API extern int16_t gLang;

/* Tells of the format at a 0-based index. Returns 1, or 0 with the record untouched: for an index that does
 * not exist, and, after an alert, when the filter's resource file is missing. Sets gLang to 0. */
QZFILTER_API uint32_t QZFilter_GetExportFormatInfoA(QZEXPORTFORMAT* info, unsigned long index);

/* Begins an export in the format that `begin` names and stores the new session's id in `*id`.
 * Returns QZFILTER_SUCCESS, or QZFILTER_FAILED for a format index that does not exist. `host` is not read. */
QZFILTER_API uint32_t QZFilter_ExportBeginA(void* host, const QZEXPORTBEGIN* begin, unsigned long* id);

/* Reads the class file into the session, preselects the assignment and shows the options dialog. Returns at
 * once: the dialog lives in the host's event loop and writes the file when the user presses OK. The dialog
 * ends the session when it closes. Returns 1 when the class file was read, 0 when it or the filter's resource
 * file could not be read (no dialog then). Returns QZFILTER_FAILED for an unknown session, for one whose
 * dialog is open, and, with the session ended, for a class with an assignment name of exactly 30 characters.
 * `hostWindow`, a Qt window of the process, owns the dialog; `module` is the filter's handle, kept for the
 * call. */
QZFILTER_API uint32_t QZFilter_ExportFileA(void* hostWindow, unsigned long id, const QZEXPORTFILE* file,
                                           void* module);

/* Ends an export run. Returns QZFILTER_SUCCESS and does nothing else: the options dialog ends its session
 * when it closes. */
QZFILTER_API uint32_t QZFilter_ExportEnd(unsigned long id);

/* Tells what became of an export: of a session that lives, and of one that has ended until the next begins.
 * Fills `record` as the version of its size has it, with zeros where a later one knows more. Returns
 * QZFILTER_SUCCESS, or QZFILTER_FAILED with the record untouched for an unknown session and for a size below
 * QZFILTER_FIRST_OUTCOME_SIZE. A host finds it by name and does without where an older module has none. */
QZFILTER_API uint32_t QZFilter_GetExportOutcome(unsigned long id, QZEXPORTOUTCOME* record);
typedef uint32_t (*QZFilter_GetExportOutcomeProc)(unsigned long id, QZEXPORTOUTCOME* record);

/* Returns 0; this filter has no messages of its own. */
QZFILTER_API uint32_t QZFilter_GetCustomMessageA(void* host, unsigned long id, char* buffer, uint32_t size);

/* Told of the module's being loaded (QZFILTER_ATTACH) and unloaded (QZFILTER_DETACH: closes the dialogs that
 * are still open); returns 1. A host calls it with its handle of the module right after loading. */
QZFILTER_API int32_t DllMain(void* module, uint32_t reason, void* reserved);

#ifdef __cplusplus
} /* extern "C" */

static_assert(sizeof(QZEXPORTBEGIN) == (sizeof(void*) == 4 ? 24 : 32), "QZEXPORTBEGIN layout");
static_assert(sizeof(QZEXPORTFORMAT) == 80, "QZEXPORTFORMAT layout");
static_assert(sizeof(QZEXPORTFILE) == 92, "QZEXPORTFILE layout");
static_assert(sizeof(QZEXPORTOUTCOME) == (sizeof(void*) == 4 ? 308 : 312), "QZEXPORTOUTCOME layout");
#elif defined(__STDC_VERSION__) && __STDC_VERSION__ >= 201112L
_Static_assert(sizeof(QZEXPORTBEGIN) == (sizeof(void*) == 4 ? 24 : 32), "QZEXPORTBEGIN layout");
_Static_assert(sizeof(QZEXPORTFORMAT) == 80, "QZEXPORTFORMAT layout");
_Static_assert(sizeof(QZEXPORTFILE) == 92, "QZEXPORTFILE layout");
_Static_assert(sizeof(QZEXPORTOUTCOME) == (sizeof(void*) == 4 ? 308 : 312), "QZEXPORTOUTCOME layout");
#endif

#endif /* GRADIX_QZFILTER_H */

/* The public header has to compile alone, as C, and lay the records out as hosts do. */
#include "gradix/QZFilter.h"

#include <stddef.h>

#define POINTER sizeof(void*)

_Static_assert(offsetof(QZEXPORTBEGIN, formatIndex) == 4, "format index");
_Static_assert(offsetof(QZEXPORTBEGIN, host8) == 8, "host words");
_Static_assert(offsetof(QZEXPORTBEGIN, chooseFileValue) == 16, "file-chooser value");
_Static_assert(offsetof(QZEXPORTBEGIN, chooseFile) == 16 + POINTER, "file-chooser function");
_Static_assert(sizeof(QZEXPORTBEGIN) == 16 + 2 * POINTER, "begin record");

_Static_assert(offsetof(QZEXPORTFORMAT, name) == 4, "format name");
_Static_assert(offsetof(QZEXPORTFORMAT, extension) == 55, "extension");
_Static_assert(offsetof(QZEXPORTFORMAT, flags) == 76, "flags");
_Static_assert(sizeof(QZEXPORTFORMAT) == 80, "format record");

_Static_assert(offsetof(QZEXPORTFILE, assignmentID) == 8, "assignment id");
_Static_assert(offsetof(QZEXPORTFILE, classFile) == 12, "class file");
_Static_assert(sizeof(QZEXPORTFILE) == 92, "export-file record");

_Static_assert(offsetof(QZEXPORTOUTCOME, error) == 8, "error");
_Static_assert(offsetof(QZEXPORTOUTCOME, studentsWithoutIdentifier) == 28, "last count");
_Static_assert(offsetof(QZEXPORTOUTCOME, path) == 36, "path");
_Static_assert(offsetof(QZEXPORTOUTCOME, chosenAssignments) == QZFILTER_FIRST_OUTCOME_SIZE, "first version");
_Static_assert(offsetof(QZEXPORTOUTCOME, useQuotes) == 296 + POINTER, "quotes");
_Static_assert(sizeof(QZEXPORTOUTCOME) == 304 + POINTER, "outcome record");

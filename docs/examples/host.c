/* A small host of the export filter. Lists its formats; given a class file, it also opens the options dialog
 * of a format for the assignment with that id, and tells what became of the export.
 *
 *   host MODULE [CLASSFILE FORMATINDEX ASSIGNMENTID OUTPUT]
 */
#define _XOPEN_SOURCE 700 /* realpath */

#include <dlfcn.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

#include "gradix/QZFilter.h"

typedef struct Filter {
  void* module;
  int32_t (*dllMain)(void* module, uint32_t reason, void* reserved);
  uint32_t (*getNumExportFormats)(void);
  uint32_t (*getExportFormatInfo)(QZEXPORTFORMAT* info, unsigned long index);
  uint32_t (*exportBegin)(void* host, const QZEXPORTBEGIN* begin, unsigned long* id);
  uint32_t (*exportFile)(void* hostWindow, unsigned long id, const QZEXPORTFILE* file, void* module);
  uint32_t (*exportEnd)(unsigned long id);
  QZFilter_GetExportOutcomeProc getExportOutcome; /* null in an older filter */
  int16_t* language;
} Filter;

/* Stores the address of a symbol in `*pointer`, whatever it points to. Returns 1 when there is one. */
static int find(const Filter* filter, const char* name, void* pointer) {
  void* address = dlsym(filter->module, name);
  memcpy(pointer, &address, sizeof address);
  return address != NULL;
}

static int load(Filter* filter, const char* path) {
  filter->module = dlopen(path, RTLD_NOW | RTLD_LOCAL);
  if (filter->module == NULL) return 0;
  if (!find(filter, "DllMain", &filter->dllMain) ||
      !find(filter, "QZFilter_GetNumExportFormatsA", &filter->getNumExportFormats) ||
      !find(filter, "QZFilter_GetExportFormatInfoA", &filter->getExportFormatInfo) ||
      !find(filter, "QZFilter_ExportBeginA", &filter->exportBegin) ||
      !find(filter, "QZFilter_ExportFileA", &filter->exportFile) ||
      !find(filter, "QZFilter_ExportEnd", &filter->exportEnd) || !find(filter, "gLang", &filter->language)) {
    return 0;
  }
  find(filter, "QZFilter_GetExportOutcome", &filter->getExportOutcome);
  return filter->dllMain(filter->module, QZFILTER_ATTACH, NULL) == 1;
}

static void list_formats(const Filter* filter) {
  const uint32_t count = filter->getNumExportFormats();
  for (uint32_t index = 0; index < count; ++index) {
    QZEXPORTFORMAT format;
    if (filter->getExportFormatInfo(&format, index) != 1) break;
    printf("%u  %s (.%s)\n", (unsigned)index, format.name, format.extension);
  }
}

/* The file chooser of this host asks nobody: `value` is the path of the output file. */
static int32_t choose_file(void* dialog, int32_t reserved, char* path, int32_t size, uintptr_t value) {
  const char* output = (const char*)value;
  (void)dialog;
  (void)reserved;
  if (strlen(output) >= (size_t)size) return 1;
  strcpy(path, output);
  return 0;
}

/* Returns 1 when the options dialog is open. `id` is then the session's. */
static int export_class(const Filter* filter, char** arguments, unsigned long* id) {
  QZEXPORTBEGIN begin = {0};
  QZEXPORTFILE file = {0};
  char* class_path = realpath(arguments[0], NULL);
  uint32_t status;

  if (class_path == NULL) return 0;
  begin.formatIndex = (uint32_t)strtoul(arguments[1], NULL, 10);
  begin.chooseFileValue = (uintptr_t)arguments[3];
  begin.chooseFile = choose_file;
  status = filter->exportBegin(NULL, &begin, id);
  if (status == QZFILTER_SUCCESS) {
    file.assignmentID = (int32_t)strtol(arguments[2], NULL, 10);
    file.classFile = QZFilter_MakeFSRef(class_path);
    *filter->language = QZFILTER_SPANISH; /* anything else is English */
    status = filter->exportFile(NULL, *id, &file, filter->module);
    filter->exportEnd(*id);
  }
  free(class_path); /* the class has been read */
  return status == 1;
}

static void tell_outcome(const Filter* filter, unsigned long id) {
  QZEXPORTOUTCOME outcome = {0};
  outcome.size = sizeof outcome;
  if (filter->getExportOutcome == NULL || filter->getExportOutcome(id, &outcome) != QZFILTER_SUCCESS) {
    puts("This filter does not tell what became of the export.");
  } else if (outcome.state == QZFILTER_WRITTEN) {
    printf("Written: %s, %u replaced characters, assignments", outcome.path,
           (unsigned)outcome.replacedCharacters);
    if (outcome.chosenAssignments != NULL) { /* an older filter does not tell */
      for (uint32_t i = 0; i < outcome.assignments; ++i) {
        printf(" %u", (unsigned)outcome.chosenAssignments[i] + 1);
      }
    }
    putchar('\n');
  } else if (outcome.state == QZFILTER_NOT_WRITTEN) {
    printf("Not written: %s: %s\n", outcome.path, strerror(outcome.error));
  } else {
    puts("Nothing was exported.");
  }
}

int main(int argc, char** argv) {
  Filter filter = {0};
  unsigned long id = 0;
  if (argc != 2 && argc != 6) {
    fprintf(stderr, "usage: host MODULE [CLASSFILE FORMATINDEX ASSIGNMENTID OUTPUT]\n");
    return 2;
  }
  if (!load(&filter, argv[1])) {
    fprintf(stderr, "host: %s is no export filter\n", argv[1]);
    return 1;
  }
  list_formats(&filter);
  if (argc == 6) {
    if (!export_class(&filter, argv + 2, &id)) {
      fprintf(stderr, "host: nothing to export\n");
      return 1;
    }
    puts("The options dialog is open.");
    /* A host with windows runs its event loop now. */
  }
  filter.dllMain(filter.module, QZFILTER_DETACH, NULL); /* closes what is still open */
  if (argc == 6) tell_outcome(&filter, id);
  return 0;
}

/* A small host of the export filter. Lists its formats; given a class file, it also opens the options dialog
 * of a format for the assignment with that id.
 *
 *   host MODULE [CLASSFILE FORMATINDEX ASSIGNMENTID OUTPUT]
 */
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
  return filter->dllMain(filter->module, 1, NULL) == 1;
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

static FSRef file_reference(const char* absolute_path) {
  static const uint8_t tag[4] = {0x46, 0x53, 0x72, 0x66};
  FSRef reference = {{0}};
  memcpy(reference.hidden, tag, sizeof tag);
  memcpy(reference.hidden + 8, &absolute_path, sizeof absolute_path);
  return reference;
}

/* Returns 1 when the options dialog is open. */
static int export_class(const Filter* filter, char** arguments) {
  QZEXPORTBEGIN begin = {0};
  QZEXPORTFILE file = {0};
  unsigned long id = 0;
  char* class_path = realpath(arguments[0], NULL);
  uint32_t status;

  if (class_path == NULL) return 0;
  begin.formatIndex = (uint32_t)strtoul(arguments[1], NULL, 10);
  begin.chooseFileValue = (uintptr_t)arguments[3];
  begin.chooseFile = choose_file;
  status = filter->exportBegin(NULL, &begin, &id);
  if (status == QZFILTER_SUCCESS) {
    file.assignmentID = (int32_t)strtol(arguments[2], NULL, 10);
    file.classFile = file_reference(class_path);
    *filter->language = 6; /* Spanish; anything else is English */
    status = filter->exportFile(NULL, id, &file, filter->module);
    filter->exportEnd(id);
  }
  free(class_path); /* the class has been read */
  return status == 1;
}

int main(int argc, char** argv) {
  Filter filter = {0};
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
    if (!export_class(&filter, argv + 2)) {
      fprintf(stderr, "host: nothing to export\n");
      return 1;
    }
    puts("The options dialog is open.");
    /* A host with windows runs its event loop now. */
  }
  filter.dllMain(filter.module, 0, NULL); /* closes what is still open */
  return 0;
}

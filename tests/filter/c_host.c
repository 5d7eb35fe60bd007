/* A host in plain C: everything that works without a window. Its argument is the module's path. */
#include <dlfcn.h>
#include <stdio.h>
#include <string.h>

#include "gradix/QZFilter.h"

static int g_failures = 0;

#define CHECK(condition)                                                      \
  do {                                                                        \
    if (!(condition)) {                                                       \
      fprintf(stderr, "%s:%d: not so: %s\n", __FILE__, __LINE__, #condition); \
      ++g_failures;                                                           \
    }                                                                         \
  } while (0)

typedef uint32_t (*CountProc)(void);
typedef uint32_t (*InfoProc)(QZEXPORTFORMAT*, unsigned long);
typedef uint32_t (*BeginProc)(void*, const QZEXPORTBEGIN*, unsigned long*);
typedef uint32_t (*FileProc)(void*, unsigned long, const QZEXPORTFILE*, void*);
typedef uint32_t (*EndProc)(unsigned long);
typedef uint32_t (*MessageProc)(void*, unsigned long, char*, uint32_t);
typedef int32_t (*MainProc)(void*, uint32_t, void*);

/* ISO C has no conversion from an object's address to a function's. */
static void Find(void* module, const char* name, void* procedure) {
  void* symbol = dlsym(module, name);
  if (symbol == NULL) fprintf(stderr, "%s is missing\n", name);
  CHECK(symbol != NULL);
  memcpy(procedure, &symbol, sizeof symbol);
}

static void CheckFormats(void* module) {
  CountProc count = NULL;
  InfoProc info = NULL;
  Find(module, "QZFilter_GetNumExportFormatsA", &count);
  Find(module, "QZFilter_GetExportFormatInfoA", &info);
  if (g_failures > 0) return;
  CHECK(count() == 11);
  for (uint32_t i = 0; i < count(); ++i) {
    QZEXPORTFORMAT format;
    memset(&format, 0x55, sizeof format);
    CHECK(info(&format, i) == 1);
    CHECK(format.host0 == 0x55555555u);
    CHECK(strlen(format.name) > 0 && strlen(format.name) < sizeof format.name);
    CHECK(strcmp(format.extension, "csv") == 0);
    CHECK(format.flags == 14);
    printf("%u: %s\n", (unsigned)i, format.name);
  }
}

static unsigned long CheckBegin(void* module) {
  BeginProc begin = NULL;
  QZEXPORTBEGIN record = {0};
  unsigned long id = 0;
  Find(module, "QZFilter_ExportBeginA", &begin);
  if (g_failures > 0) return 0;
  record.formatIndex = 11;
  CHECK(begin(NULL, &record, &id) == QZFILTER_FAILED);
  CHECK(id == 0);
  record.formatIndex = 6;
  CHECK(begin(NULL, &record, &id) == QZFILTER_SUCCESS);
  CHECK(id != 0);
  return id;
}

static void CheckMissingFile(void* module, unsigned long id) {
  static const unsigned char kTag[] = {0x46, 0x53, 0x72, 0x66};
  const char* path = "/no/such/class.xml";
  FileProc export_file = NULL;
  QZEXPORTFILE file;
  Find(module, "QZFilter_ExportFileA", &export_file);
  if (g_failures > 0) return;
  memset(&file, 0, sizeof file);
  CHECK(export_file(NULL, id, &file, module) == 0);
  memcpy(file.classFile.hidden, kTag, sizeof kTag);
  memcpy(file.classFile.hidden + 8, &path, sizeof path);
  CHECK(export_file(NULL, id, &file, module) == 0);
  CHECK(export_file(NULL, id + 1, &file, module) == QZFILTER_FAILED);
}

static void CheckEnd(void* module, unsigned long id) {
  EndProc end = NULL;
  MessageProc message = NULL;
  char buffer[8] = "before";
  Find(module, "QZFilter_ExportEnd", &end);
  Find(module, "QZFilter_GetCustomMessageA", &message);
  if (g_failures > 0) return;
  CHECK(message(NULL, id, buffer, sizeof buffer) == 0);
  CHECK(strcmp(buffer, "before") == 0);
  CHECK(end(id) == QZFILTER_SUCCESS);
  CHECK(end(12345) == QZFILTER_SUCCESS);
}

int main(int argc, char** argv) {
  MainProc dll_main = NULL;
  void* module = argc == 2 ? dlopen(argv[1], RTLD_NOW | RTLD_LOCAL) : NULL;
  unsigned long id = 0;
  if (module == NULL) {
    fprintf(stderr, "%s\n", argc == 2 ? dlerror() : "the module's path is missing");
    return 2;
  }
  Find(module, "DllMain", &dll_main);
  if (g_failures == 0) CHECK(dll_main(module, 1, NULL) == 1);
  CheckFormats(module);
  id = CheckBegin(module);
  CheckMissingFile(module, id);
  CheckEnd(module, id);
  if (g_failures == 0) CHECK(dll_main(module, 0, NULL) == 1);
  CHECK(dlclose(module) == 0);
  return g_failures == 0 ? 0 : 1;
}

// Files, temporary folders and version information for the library's shared code, which was written against a
// desktop's file calls; the global functions below stand in for those.
//
// Paths are zero-terminated texts in the file system's bytes, in buffers of 256 bytes where nothing else is
// said. Pointers to static buffers are good until the next call of the same function. Failure is an empty
// text, 0, null or false; nothing throws.
#ifndef GRADIX_QZFILES_H
#define GRADIX_QZFILES_H

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "gradix/QZFilter.h"

inline constexpr size_t kPathSize = 256;

// A search in a folder, and the entry it found last. That entry's name is also the search's position, so
// entries may come and go between two steps. Owns nothing and may be dropped at any time.
struct FindFileBlock {
  uint8_t nameLength;  // with the name a Pascal string
  char name[256];      // zero-terminated
  char pattern[256];
  int16_t vRefNum;  // of the folder
  int32_t dirID;
};

static_assert(offsetof(FindFileBlock, name) == 1, "the name starts at the second byte");

// The full path of the program (null), or of the shared object that holds the address `module`; of the filter
// itself when none does. Writes at most `size` bytes with the closing zero and gives the text's length.
uint32_t GetModuleFileName(const void* module, char* buffer, uint32_t size);

// Version information has a fixed size and content here: GetFileVersionInfo leaves the buffer alone, and
// VerQueryValue sets the third and fourth word at `out`, the version's more and less significant words, to 1.
uint32_t GetFileVersionInfoSize(const char* path, uint32_t* handle);
bool GetFileVersionInfo(const char* path, uint32_t handle, uint32_t size, void* buffer);
bool VerQueryValue(const void* block, const char* subBlock, uint32_t* out, uint32_t* length);

// The folder for temporary items, made when missing. Gives the length of its path, 0 when it does not fit.
uint32_t GetTempPath(uint32_t size, char* buffer);

// Writes "<folder>/<prefix><number in five digits>" to `out`, cut to the buffer, and gives 1. Makes no file.
uint32_t GetTempFileName(const char* folder, const char* prefix, uint32_t number, char* out);

// Plain files and folders, "." and ".." excepted, in the order of their bytes. The last part of the path may
// hold "*" and "?"; "*.*" matches every name. FindFirstFile gives null when there is none.
void* FindFirstFile(const char* pattern, FindFileBlock* data);
bool FindNextFile(void* handle, FindFileBlock* data);
bool FindClose(void* handle);

// True even when the folder could not be made.
bool CreateDirectory(const char* path, const void* attributes);

// The filter's own path in lower case, up to its last backslash, if any.
void GetDllPath(char* buffer);

// The module's version as text, empty when it has none. Found once: later calls give the first answer,
// whatever the module.
const char* GetFileVersionString(const void* module);

namespace qz {

// The search behind FindFirstFile, in a folder given by its numbers.
bool _findfirst(int16_t vRefNum, int32_t dirID, const char* pattern, FindFileBlock* data);
bool _findnext(FindFileBlock* data);

// The program's path up to its last backslash, if any.
const char* GetProgramPath();

// As GetFileVersionString, with a last number of its own.
const char* GetModuleVersionString(const void* module);

// Joins folder and name in `out`, which may be `folder`. A slash is put in between unless the folder is empty
// or ends in a backslash. The name is left out when the path would exceed the buffer; a longer folder is cut.
void MakeFullPath(char* out, const char* folder, const char* name);

void ChangeSlashes(char* path);  // backslashes to slashes

// Removes the files whose name ends in the suffix, without regard to ASCII case; never folders.
void RemoveFileList(const char* folder, const char* suffix);

// The names in the folder that match the pattern, sorted.
std::vector<std::string> BuildFileList(const FSRef& folder, const char* pattern);

// The path for the temporary file, the same each time.
const char* GetTempFileName();

// The folder for temporary items. Pictures ("jpg") left in it are removed at the start, and at the end every
// file, if the path has a tilde: other folders may be shared.
class TempFolder {
 public:
  TempFolder();
  TempFolder(const TempFolder&) = delete;
  TempFolder& operator=(const TempFolder&) = delete;
  virtual ~TempFolder();

  // Removes the files in `name`, then the folder `path`, if it is empty.
  void DeleteFolder(const char* name);

  std::string path;
};

// The temporary file's path; the file, if one was made, goes with the object.
class TempFile {
 public:
  TempFile();
  TempFile(const TempFile&) = delete;
  TempFile& operator=(const TempFile&) = delete;
  virtual ~TempFile();

  std::string path;
};

// Hides a text of at most 511 characters from a casual look, as hexadecimal digits, and back. The key is a
// constant: this protects nothing. A longer text, and what EncryptString cannot have made, gives "".
const char* EncryptString(const char* text);
const char* DecryptString(const char* text);

}  // namespace qz

#endif  // GRADIX_QZFILES_H

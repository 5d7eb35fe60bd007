// Paths and whole files, for the sources of this folder.
#ifndef GRADIX_PATHS_H
#define GRADIX_PATHS_H

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "gradix/QZFilter.h"

// The absolute form of a path: a relative one is taken from the working folder, ".", repeated and closing
// slashes are dropped. ".." and symbolic links stay. Empty for an empty path or without a working folder.
std::string AbsolutePath(std::string_view path);

// What follows the last slash of an absolute path; empty for the root.
std::string_view LastComponent(std::string_view absolutePath);
// The part before it, at least "/".
std::string_view FolderPart(std::string_view absolutePath);

bool IsFolder(const std::string& path);

// The path that a reference holds; null for a reference that is none.
const char* FSRefPath(const FSRef* file);

// The bytes of a regular file of at most `limit` bytes; nullopt for anything else.
std::optional<std::string> ReadWholeFile(const char* path, size_t limit);

#endif  // GRADIX_PATHS_H

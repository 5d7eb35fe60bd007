// Core Foundation URLs, as far as they name files.
#ifndef GRADIX_CFURL_H
#define GRADIX_CFURL_H

#include <string>
#include <string_view>

#include "Platform/Core/CFString.h"
#include "gradix/QZFilter.h"

// Reached through the functions below.
struct CFURL final : CFObject {
  CFURL(std::string_view absolutePath, bool isFolder);
  ~CFURL() override;

  const std::string path;  // absolute, without a closing slash
  const bool isDirectory;
  const CFStringRef text;
};
using CFURLRef = const CFURL*;

// From a path in the file system's bytes, a relative one taken from the working folder; null for an empty
// one.
CFURLRef CFURLCreateWithFileSystemPath(const char* path, bool isDirectory);

// The URL without its last path component; null when there is nothing above.
CFURLRef CFURLCreateCopyDeletingLastPathComponent(CFURLRef url);

// The file that the URL names; false when it does not exist.
bool CFURLGetFSRef(CFURLRef url, FSRef* file);
// "file:///..." of a file reference, null for a reference that is none.
CFURLRef CFURLCreateFromFSRef(const FSRef* file);

// The URL's text, percent-encoded (RFC 3986); a folder's ends with a slash. Lives as long as the URL.
CFStringRef CFURLGetString(CFURLRef url);

#endif  // GRADIX_CFURL_H

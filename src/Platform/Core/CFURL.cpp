#include "Platform/Core/CFURL.h"

#include <cstring>

#include "Platform/Core/Files.h"
#include "Platform/Core/Paths.h"

namespace {

// What a URL's path may hold as it stands: RFC 3986, section 3.3.
bool _IsPathCharacter(char character) {
  const bool isAlphanumeric = (character >= 'a' && character <= 'z') ||
                              (character >= 'A' && character <= 'Z') ||
                              (character >= '0' && character <= '9');
  return isAlphanumeric || (character != '\0' && std::strchr("/-._~!$&'()*+,;=:@", character) != nullptr);
}

CFStringRef _CreateText(std::string_view path, bool isDirectory) {
  std::string text = "file://";
  for (const char character : path) {
    if (_IsPathCharacter(character)) {
      text += character;
    } else {
      const auto byte = static_cast<uint8_t>(character);
      text += '%';
      text += "0123456789ABCDEF"[byte >> 4];
      text += "0123456789ABCDEF"[byte & 0xF];
    }
  }
  if (isDirectory && text.back() != '/') text += '/';
  return CFStringCreateWithCString(text.c_str(), kCFStringEncodingUTF8);
}

}  // namespace

CFURL::CFURL(std::string_view absolutePath, bool isFolder)
    : path(absolutePath), isDirectory(isFolder), text(_CreateText(absolutePath, isFolder)) {}

CFURL::~CFURL() {
  CFRelease(text);
}

CFURLRef CFURLCreateWithFileSystemPath(const char* path, bool isDirectory) {
  if (path == nullptr) return nullptr;
  const std::string absolute = AbsolutePath(path);
  return absolute.empty() ? nullptr : new CFURL(absolute, isDirectory);
}

CFURLRef CFURLCreateCopyDeletingLastPathComponent(CFURLRef url) {
  if (url == nullptr || url->path == "/") return nullptr;
  if (LastComponent(url->path) == "..") return new CFURL(url->path + "/..", true);
  return new CFURL(FolderPart(url->path), true);
}

bool CFURLGetFSRef(CFURLRef url, FSRef* file) {
  return url != nullptr && FSPathMakeRef(url->path.c_str(), file, nullptr) == noErr;
}

CFURLRef CFURLCreateFromFSRef(const FSRef* file) {
  const char* const path = FSRefPath(file);
  return path == nullptr ? nullptr : CFURLCreateWithFileSystemPath(path, IsFolder(path));
}

CFStringRef CFURLGetString(CFURLRef url) {
  return url == nullptr ? nullptr : url->text;
}

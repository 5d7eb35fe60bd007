#include "Common/help.h"

#include <cstdio>
#include <memory>
#include <string>
#include <string_view>

#include "Common/Language.h"
#include "Common/QZData/QZFiles.h"
#include "Platform/Core/CFBundle.h"
#include "Platform/Core/CFString.h"
#include "Platform/Core/CFURL.h"
#include "Platform/Core/Files.h"
#include "Platform/Ui/Alerts.h"
#include "Platform/Ui/Launch.h"

namespace {

constexpr size_t kMaxText = 150;  // bytes of each registered text
constexpr CFIndex kMaxURL = 256;  // of a start page

constexpr int32_t kHelpContext = 1;
constexpr int32_t kHelpContents = 2;

struct Releaser {
  void operator()(CFTypeRef object) const { CFRelease(object); }
};
template <typename Object>
using Owned = std::unique_ptr<const Object, Releaser>;

std::string _gHelpFileName;
int32_t _gContentsTopicID = 0;
std::string _gAlternateHelpFileName;
int32_t _gAlternateTopicID = 0;
std::string _gGroupName;  // this and the next with a closing slash, or empty
std::string _gAlternateGroupName;
std::string _gHelpPrefix;
bool _gRegisteredHelp = false;
int16_t _gOrigVRefNum = -1;  // the folder that holds the host's bundle; -1 and 0: unknown
int32_t _gOrigParID = 0;

std::string _CutText(const char* text) {
  return text == nullptr ? std::string() : std::string(std::string_view(text).substr(0, kMaxText));
}

std::string _GroupText(const char* text) {
  std::string group = _CutText(text);
  if (!group.empty()) group.push_back('/');
  return group;
}

bool _FindHostFolder(int16_t* vRefNum, int32_t* dirID) {
  CFBundleRef bundle = CFBundleGetMainBundle();
  if (bundle == nullptr) return false;
  const Owned<CFURL> location(CFBundleCopyBundleURL(bundle));
  if (location == nullptr) return false;
  const Owned<CFURL> parent(CFURLCreateCopyDeletingLastPathComponent(location.get()));
  FSRef folder;
  return parent != nullptr && CFURLGetFSRef(parent.get(), &folder) &&
         FSRefToID(&folder, vRefNum, dirID) == noErr;
}

void _ReleaseHelpViewer() {
  _gRegisteredHelp = false;
}

// The URL of a start page; empty when the page is missing or its URL too long.
std::string _StartPageURL(const std::string& page) {
  FSRef file;
  const std::string partialPath = ":" + page;
  if (FSResolvePartialPath(_gOrigVRefNum, _gOrigParID, partialPath.c_str(), &file) != noErr) return {};
  const Owned<CFURL> url(CFURLCreateFromFSRef(&file));
  char text[kMaxURL + 1];
  if (url == nullptr ||
      !CFStringGetCString(CFURLGetString(url.get()), text, sizeof text, kCFStringEncodingUTF8)) {
    return {};
  }
  return text;
}

// What leads from the start page to the topic's section.
std::string _TopicAnchor(int32_t topic) {
  char number[16];
  std::snprintf(number, sizeof number, "_%03d.htm", topic);
  std::string anchor = "#";
  anchor.append(topic >= _gAlternateTopicID ? _gAlternateGroupName : _gGroupName);
  return anchor.append(_gHelpPrefix).append(number);
}

bool _ShowTopic(WindowRef window, int32_t command, int32_t topic) {
  std::string url = _StartPageURL(topic >= _gAlternateTopicID ? _gAlternateHelpFileName : _gHelpFileName);
  if (url.empty()) return false;
  if (command != _gContentsTopicID && topic >= 1) url += _TopicAnchor(topic);
  return ExecuteURL(window, url.c_str());
}

Owned<CFString> _Text(const char* text) {
  return Owned<CFString>(CFStringCreateWithCString(text, kCFStringEncodingUTF8));
}

}  // namespace

void RegisterLumoHelp(const char* startPage, int32_t contentsCommand, const char* alternateStartPage,
                      int32_t alternateTopicID, const char* group, const char* alternateGroup,
                      const char* pagePrefix) {
  _gHelpFileName = _CutText(startPage);
  _gContentsTopicID = contentsCommand;
  _gAlternateHelpFileName = _CutText(alternateStartPage);
  _gAlternateTopicID = alternateTopicID;
  _gGroupName = _GroupText(group);
  _gAlternateGroupName = _GroupText(alternateGroup);
  _gHelpPrefix = _CutText(pagePrefix);
  _gRegisteredHelp = true;
  if (!_FindHostFolder(&_gOrigVRefNum, &_gOrigParID)) {
    _gOrigVRefNum = -1;
    _gOrigParID = 0;
  }
}

void UnregisterLumoHelp(int32_t /*host*/) {
  if (_gRegisteredHelp) _ReleaseHelpViewer();
}

bool Help(WindowRef window, int32_t command, int32_t topic) {
  if (command == 0) {
    _ReleaseHelpViewer();
    return true;
  }
  if (_ShowTopic(window, command, topic)) return true;
  if (IsSpanish()) {
    _MessageBox(window, "No se pudo mostrar el tema de ayuda.", "Falta el archivo de ayuda.");
  } else {
    _MessageBox(window, "Could not display help topic.", "Help file is missing.");
  }
  return false;
}

bool HelpWebSite(WindowRef window, const char* url) {
  return ExecuteURL(window, url);
}

void _MessageBox(WindowRef window, const char* message, const char* explanation) {
  const Owned<CFString> messageText = _Text(message);
  const Owned<CFString> explanationText = _Text(explanation);
  const Owned<CFString> button = _Text(IsSpanish() ? "Acceptar" : "OK");  // spelled as in all our alerts
  AlertParameters parameters;
  parameters.defaultText = button.get();
  StandardSheet(kAlertNoteAlert, messageText.get(), explanationText.get(), parameters, window);
}

namespace qz {

bool Help(WindowRef window, int32_t command, const char* fileName, int32_t topic) {
  char path[kPathSize];
  MakeFullPath(path, GetProgramPath(), fileName);
  static_cast<void>(path);  // the book is on the web site for now

  if (command == kHelpContents || (command == kHelpContext && topic >= 1)) {
    return ExecuteURL(window, kHelpWebSite);
  }
  return false;
}

}  // namespace qz

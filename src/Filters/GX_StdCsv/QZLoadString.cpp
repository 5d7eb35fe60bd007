#include "Filters/GX_StdCsv/QZLoadString.h"

#include <cstdio>
#include <vector>

#include "Common/Language.h"
#include "Platform/Core/CFBundle.h"
#include "Platform/Core/CFOwned.h"
#include "Platform/Core/Resources.h"

const char* _ExtraResourceFileName() {
  return IsSpanish() ? "qzfstdcsvESP.rsrc" : "qzfstdcsv.rsrc";
}

bool _LoadExtraResourceFile(const char* name) {
  const CFBundleRef bundle = CFBundleGetMainBundle();
  if (bundle == nullptr) return false;
  const CFOwned<CFString> file(CFStringCreateWithCString(name, kCFStringEncodingMacRoman));
  if (file == nullptr) return false;
  const CFOwned<CFURL> url(CFBundleCopyResourceURL(bundle, file.get(), nullptr, nullptr));
  FSRef reference;
  if (url == nullptr || !CFURLGetFSRef(url.get(), &reference)) return false;
  ResFileRefNum refNum = 0;
  if (FSOpenResourceFile(&reference, 0, nullptr, fsRdPerm, &refNum) != noErr) return false;
  UseResFile(refNum);
  return true;
}

CFStringRef QZLoadCFString(int id) {
  const CFBundleRef bundle = CFBundleGetMainBundle();
  if (bundle == nullptr) return nullptr;
  char digits[16];
  std::snprintf(digits, sizeof digits, "%d", id);
  const CFOwned<CFString> key(CFStringCreateWithCString(digits, kCFStringEncodingMacRoman));
  const CFOwned<CFString> table(CFStringCreateWithCString(
      IsSpanish() ? "GradixStringsESP" : "GradixStringsENU", kCFStringEncodingMacRoman));
  if (key == nullptr || table == nullptr) return nullptr;
  return CFBundleCopyLocalizedString(bundle, key.get(), key.get(), table.get());
}

std::string QZLoadString(int id) {
  const CFOwned<CFString> string(QZLoadCFString(id));
  return VeyCFStringToCString(string.get());
}

std::string VeyCFStringToCString(CFStringRef string) {
  // Room for UTF-8, though the text becomes Mac OS Roman.
  const CFIndex size =
      CFStringGetMaximumSizeForEncoding(CFStringGetLength(string), kCFStringEncodingUTF8) + 1;
  std::vector<char> buffer(static_cast<size_t>(size));
  CFStringGetCString(string, buffer.data(), size, kCFStringEncodingMacRoman);
  return buffer.data();
}

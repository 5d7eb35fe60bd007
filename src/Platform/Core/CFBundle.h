// The main bundle: resources and localised strings of the running program.
//
// It is the folder "Gradix.bundle" in `<folder of the executable>/../share/gradix`, or, where that is
// missing, in `<folder of this code's module>/../../share/gradix`; or the one that the environment variable
// GRADIX_BUNDLE names. Resources and string tables lie in its folder "Resources".
#ifndef GRADIX_CFBUNDLE_H
#define GRADIX_CFBUNDLE_H

#include "Platform/Core/CFString.h"
#include "Platform/Core/CFURL.h"

struct CFBundle;  // a CFObject
using CFBundleRef = const CFBundle*;

// Null when the folder does not exist. Not the caller's to release. Asked anew when GRADIX_BUNDLE changes.
CFBundleRef CFBundleGetMainBundle();

// The bundle's own folder.
CFURLRef CFBundleCopyBundleURL(CFBundleRef bundle);

// The file `name` + "." + `type` (null or empty: `name` as it stands) in the subfolder (null or empty: none)
// of the bundle's Resources; null when there is none. Neither may hold a slash or be "." or "..".
CFURLRef CFBundleCopyResourceURL(CFBundleRef bundle, CFStringRef name, CFStringRef type,
                                 CFStringRef subfolder);

// The entry `key` of the string table `<table>.strings`. Without such an entry, table or bundle: `value`, or
// `key` when `value` is null or empty. A table (null or empty: "Localizable") is read once for each bundle.
//
// A table is UTF-8 text, or UTF-16 with a byte order mark, of at most 4 MiB: entries `"key" = "value";`, C
// comments between them, and the escapes \" \\ \n \r \t \Uxxxx (Apple, "Localizing String Resources"). What
// follows an entry that is malformed is not read.
CFStringRef CFBundleCopyLocalizedString(CFBundleRef bundle, CFStringRef key, CFStringRef value,
                                        CFStringRef table);

#endif  // GRADIX_CFBUNDLE_H

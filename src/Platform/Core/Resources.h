// Resource Manager: typed, numbered resources from resource files. The files have the published
// resource-fork format (Inside Macintosh: More Macintosh Toolbox, "Resource File Format"), in the data fork.
//
// Every offset and length of a file is checked when it is opened; a file that fails is not opened.
// A search walks the open files from the current one to the ones opened before it, then the application's own
// resource file: "Gradix.rsrc" in the main bundle's Resources, when there is one.
#ifndef GRADIX_RESOURCES_H
#define GRADIX_RESOURCES_H

#include <string>

#include "Platform/Core/MacTypes.h"
#include "Platform/Core/Memory.h"
#include "gradix/QZFilter.h"

using ResFileRefNum = int16_t;

enum : int8_t { fsCurPerm = 0, fsRdPerm = 1 };

// Opens a file's data fork (empty fork name) for reading and makes it the current one. A file that is open
// already gives its reference number again and becomes current; a file is known by its device and inode, and
// is read once. On failure the current file stays and `*refNum` is -1: fnfErr for a missing file, mapReadErr
// for one that is no regular file, exceeds 16 MiB or is damaged.
OSErr FSOpenResourceFile(const FSRef* file, uint16_t forkNameLength, const char16_t* forkName,
                         int8_t permissions, ResFileRefNum* refNum);

// Where the next search starts; an unknown number leaves it and sets ResError.
void UseResFile(ResFileRefNum refNum);
ResFileRefNum CurResFile();  // the application's own file, number 0, unless another was opened or chosen

// Closes an open file and disposes its resources; when it was current, the file opened before it becomes
// current. Number 0 stays.
void CloseResFile(ResFileRefNum refNum);

// The result of the last call: noErr or resNotFound, resFNotFound, ...
OSErr ResError();

// The resource, owned by its file; the same handle each time until it is released. Null when no file of the
// search holds it.
Handle GetResource(ResType type, int16_t id);

// Length of the resource in bytes, -1 for a handle that is no resource.
long GetResourceSizeOnDisk(Handle resource);

// Frees the resource's memory; the handle is dead afterwards. A handle that is no resource is ignored.
void ReleaseResource(Handle resource);

// Gives the resource to the caller, who disposes it with DisposeHandle.
void DetachResource(Handle resource);

// String `index`, counted from 1, of the string list resource `id` ('STR#'), in Mac OS Roman; empty when
// there is none or the list is cut short.
std::string GetIndString(int16_t id, int16_t index);

#endif  // GRADIX_RESOURCES_H

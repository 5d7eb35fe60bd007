// File Manager: file references, and folders known by volume and directory id.
//
// An FSRef (80 bytes, any alignment) holds a four-byte tag and the address of an interned, zero-terminated
// path in the file system's bytes, which lives as long as the process. Any host can make one; see
// gradix/QZFilter.h.
#ifndef GRADIX_FILES_H
#define GRADIX_FILES_H

#include <cstdint>

#include "Platform/Core/MacTypes.h"
#include "gradix/QZFilter.h"

// Makes a reference to an existing file or folder; fnfErr when it does not exist. A relative path is taken
// from the working folder. `isDirectory` may be null.
OSStatus FSPathMakeRef(const char* path, FSRef* file, bool* isDirectory);

// Writes the reference's path and a closing zero. paramErr for a reference that is none or whose path does
// not fit; the buffer is then an empty text.
OSStatus FSRefMakePath(const FSRef* file, char* path, uint32_t size);

// A folder's volume reference number and directory id, good for the life of the process; dirNFErr for what is
// no existing folder.
OSErr FSRefToID(const FSRef* folder, int16_t* vRefNum, int32_t* dirID);
// The same for the folder part of a path, which ends at its last slash; without one, the working folder.
OSErr PathToID(const char* path, int16_t* vRefNum, int32_t* dirID);

// The folder of a volume reference number and directory id; nsvErr for an unknown volume, dirNFErr for an
// unknown id and a folder that is gone.
OSErr FSMakeFSRefFromID(int16_t vRefNum, int32_t dirID, FSRef* folder);

// Resolves a partial path with colons (":Folder:Folder:file", the first one may be missing) from that folder.
// fnfErr when the file does not exist; bdNamErr for a component that is empty, "." or "..", that holds a
// slash or is longer than 255 bytes.
OSErr FSResolvePartialPath(int16_t vRefNum, int32_t dirID, const char* partialPath, FSRef* file);

enum : OSType { kTemporaryFolderType = FourCharCode("temp") };

// The temporary-items folder: the environment's TMPDIR, or /tmp; with `create` made when missing. fnfErr for
// other types and when there is no such folder.
OSErr FSFindFolder(OSType folderType, bool create, FSRef* folder);

#endif  // GRADIX_FILES_H

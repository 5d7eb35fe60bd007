// Memory Manager: relocatable blocks. A Handle is the address of the block's master pointer; `*handle` is the
// first byte and stays put until the block is resized or disposed.
#ifndef GRADIX_MEMORY_H
#define GRADIX_MEMORY_H

#include <cstddef>

using Handle = char**;

// A zero-filled block, aligned for any type; null when memory is short. The caller disposes it.
Handle NewHandleClear(size_t size);

// 0 for null.
size_t GetHandleSize(Handle handle);

// Null is ignored.
void DisposeHandle(Handle handle);

#endif  // GRADIX_MEMORY_H

#include "Platform/Core/Memory.h"

#include <cstdint>
#include <cstdlib>

namespace {

// Master pointer and block are one allocation; the alignment makes the bytes behind it good for any type.
struct alignas(std::max_align_t) Block {
  char* data;
  size_t size;
};

// The master pointer is the block's first member.
Block* _BlockOf(Handle handle) {
  return reinterpret_cast<Block*>(handle);
}

}  // namespace

Handle NewHandleClear(size_t size) {
  if (size > PTRDIFF_MAX - sizeof(Block)) return nullptr;
  auto* const block = static_cast<Block*>(std::calloc(1, sizeof(Block) + size));
  if (block == nullptr) return nullptr;
  block->data = reinterpret_cast<char*>(block + 1);
  block->size = size;
  return &block->data;
}

size_t GetHandleSize(Handle handle) {
  return handle == nullptr ? 0 : _BlockOf(handle)->size;
}

void DisposeHandle(Handle handle) {
  std::free(_BlockOf(handle));
}

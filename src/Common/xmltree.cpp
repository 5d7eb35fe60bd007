#include "Common/xmltree.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdlib>
#include <cstring>
#include <functional>
#include <limits>

#include "Common/number.h"
#include "Common/xmlutil.h"

namespace {

constexpr int32_t kCapacityStep = 5;

// A node is allocated together with room for its first items and for the bytes of short attributes and texts,
// which is all that most nodes ever need.
struct NodeBlock {
  _XmlTreeTag node;
  _XmlTreeItem firstItems[kCapacityStep];
  size_t bytesUsed;
  char bytes[64];
};
static_assert(offsetof(NodeBlock, node) == 0, "a node's address is its block's");

// Freed blocks, kept for the next nodes: a reader frees and makes the same few again with every record. Not
// under AddressSanitizer, which then sees any use of a freed node.
class SpareBlocks {
 public:
  ~SpareBlocks() {
    while (m_count > 0) std::free(m_blocks[--m_count]);
  }

  NodeBlock* Take() {
    return m_count > 0 ? m_blocks[--m_count] : static_cast<NodeBlock*>(std::malloc(sizeof(NodeBlock)));
  }

  void Give(NodeBlock* block) {
    if (m_count < kCapacity) {
      m_blocks[m_count++] = block;
    } else {
      std::free(block);
    }
  }

 private:
#if defined(__SANITIZE_ADDRESS__)
  static constexpr size_t kCapacity = 0;
#else
  static constexpr size_t kCapacity = 16;
#endif
  std::array<NodeBlock*, 16> m_blocks{};
  size_t m_count = 0;
};

thread_local SpareBlocks gSpareBlocks;

NodeBlock* _Block(_XmlTreeTag* node) {
  return reinterpret_cast<NodeBlock*>(node);
}

// Room for an attribute or a text of the node: in its own block while that lasts, else on the heap.
char* _NewBytes(_XmlTreeTag* node, size_t size) {
  NodeBlock* block = _Block(node);
  if (size > sizeof block->bytes - block->bytesUsed) return static_cast<char*>(std::malloc(size));
  char* bytes = block->bytes + block->bytesUsed;
  block->bytesUsed += size;
  return bytes;
}

// Frees what _NewBytes gave. Room in the node's own block comes back with the node.
void _FreeBytes(_XmlTreeTag* node, void* bytes) {
  const char* begin = _Block(node)->bytes;
  const bool inBlock = std::greater_equal<>()(static_cast<const char*>(bytes), begin) &&
                       std::less<>()(static_cast<const char*>(bytes), begin + sizeof _Block(node)->bytes);
  if (!inBlock) std::free(bytes);
}

void _FreeItemArray(_XmlTreeTag* node) {
  if (node->items != _Block(node)->firstItems) std::free(node->items);
}

// Makes room for one more item: by a few while the list is short, by half its length when it is long.
bool _GrowItems(_XmlTreeTag* node) {
  if (node->items == nullptr) {
    node->items = _Block(node)->firstItems;
    node->itemCapacity = kCapacityStep;
    return true;
  }
  if (node->itemCapacity > std::numeric_limits<int32_t>::max() / 2) return false;
  const int32_t capacity = node->itemCapacity + std::max(kCapacityStep, node->itemCapacity / 2);
  const bool onHeap = node->items != _Block(node)->firstItems;
  auto* items = static_cast<_XmlTreeItem*>(
      std::realloc(onHeap ? node->items : nullptr, static_cast<size_t>(capacity) * sizeof(_XmlTreeItem)));
  if (items == nullptr) return false;
  if (!onHeap) std::copy_n(node->items, node->itemCount, items);
  node->items = items;
  node->itemCapacity = capacity;
  return true;
}

bool _AddItem(_XmlTreeTag* node, XmlTreeItemKind kind, XmlTreeDestructor destructor, void* data) {
  if (node->itemCount == node->itemCapacity && !_GrowItems(node)) return false;
  node->items[node->itemCount++] = {kind, destructor, data};
  return true;
}

// Appends the bytes as an item, or frees them.
bool _AddBytes(_XmlTreeTag* node, XmlTreeItemKind kind, char* bytes) {
  if (_AddItem(node, kind, nullptr, bytes)) return true;
  _FreeBytes(node, bytes);
  return false;
}

void _RemoveItem(_XmlTreeTag* node, int32_t index) {
  if (index < 0 || index >= node->itemCount) return;
  --node->itemCount;
  std::copy(node->items + index + 1, node->items + node->itemCount + 1, node->items + index);
}

// Takes the node out of its parent. Searches from the end, where a streaming reader's node always is.
void _Unlink(_XmlTreeTag* node) {
  _XmlTreeTag* parent = node->parent;
  if (parent == nullptr) return;
  for (int32_t i = parent->itemCount - 1; i >= 0; --i) {
    if (parent->items[i].kind == kXmlTreeChild && parent->items[i].data == node) {
      _RemoveItem(parent, i);
      return;
    }
  }
}

void _ReleaseItem(_XmlTreeTag* node, const _XmlTreeItem& item) {
  if (item.kind == kXmlTreeAttribute || item.kind == kXmlTreeText) {
    _FreeBytes(node, item.data);
  } else if (item.kind == kXmlTreeUserData && item.destructor != nullptr) {
    item.destructor(item.data);
  }
}

// Frees the node and its subtree, items last first. Walks instead of recursing: a tree may be of any depth.
void _FreeSubtree(_XmlTreeTag* top) {
  _XmlTreeTag* node = top;
  while (node != nullptr) {
    if (node->itemCount > 0) {
      const _XmlTreeItem item = node->items[--node->itemCount];
      if (item.kind == kXmlTreeChild) {
        node = static_cast<_XmlTreeTag*>(item.data);
      } else {
        _ReleaseItem(node, item);
      }
      continue;
    }
    _XmlTreeTag* parent = node == top ? nullptr : node->parent;
    _FreeItemArray(node);
    gSpareBlocks.Give(_Block(node));
    node = parent;
  }
}

// The value of an attribute's bytes when its name is `name`, else null. Byte by byte, because the bytes were
// written so a moment ago, and wider reads would wait for them.
const char* _SkipName(const char* bytes, const char* name) {
  while (*bytes != '\0' && *bytes == *name) {
    ++bytes;
    ++name;
  }
  return *bytes == *name ? bytes + 1 : nullptr;
}

// The position of the item with the 0-based index among the items of one kind, or -1.
int32_t _FindItem(const _XmlTreeTag* node, XmlTreeItemKind kind, int32_t index) {
  for (int32_t i = 0; i < node->itemCount; ++i) {
    if (node->items[i].kind == kind && index-- == 0) return i;
  }
  return -1;
}

// The 8-bit byte for a code point, 0 when there is none.
using MapCodePoint = uint8_t (*)(int32_t codePoint, bool* mapped);

uint8_t _MapToRoman(int32_t codePoint, bool* mapped) {
  const uint8_t code = XmlMapFromUnicodeChar(codePoint, 0);
  *mapped = code != 0;
  return code;
}

uint8_t _MapToSymbol(int32_t codePoint, bool* mapped) {
  *mapped = codePoint < 256;
  return static_cast<uint8_t>(codePoint);
}

// Converts one text item behind the first `*count` bytes of the buffer. Returns the characters replaced.
uint64_t _JoinText(const char* text, char* buffer, int32_t size, int32_t* count, MapCodePoint map) {
  uint64_t replaced = 0;
  int32_t out = *count;
  while (*text != '\0' && out < size) {
    if (static_cast<unsigned char>(*text) < 0x80) {
      buffer[out++] = *text++;
      continue;
    }
    int32_t codePoint = 0;
    const int32_t length = XmlUtf8DecodeChar(&codePoint, text);
    bool mapped = false;
    const uint8_t code = length > 0 ? map(codePoint, &mapped) : uint8_t{0};
    buffer[out++] = mapped ? static_cast<char>(code) : '?';
    if (!mapped) ++replaced;
    text += length > 0 ? XmlUtf8Step(text, length) : 1;
  }
  *count = out;
  return replaced;
}

uint64_t _JoinAllText(const _XmlTreeTag* node, char* buffer, int32_t size, MapCodePoint map) {
  uint64_t replaced = 0;
  int32_t count = 0;
  buffer[0] = '\0';
  for (int32_t i = 0; i < node->itemCount && count < size; ++i) {
    if (node->items[i].kind != kXmlTreeText) continue;
    replaced += _JoinText(static_cast<const char*>(node->items[i].data), buffer, size, &count, map);
    buffer[count] = '\0';
  }
  return replaced;
}

}  // namespace

_XmlTreeTag* XmlTreeNewNode(_XmlTreeTag* parent, int32_t elementID, int32_t line, long byteIndex) {
  NodeBlock* block = gSpareBlocks.Take();
  if (block == nullptr) return nullptr;
  block->node = {elementID, line, byteIndex, parent, 0, 0, nullptr};
  block->bytesUsed = 0;
  if (parent != nullptr && !_AddItem(parent, kXmlTreeChild, nullptr, &block->node)) {
    gSpareBlocks.Give(block);
    return nullptr;
  }
  return &block->node;
}

void XmlTreeDeleteNode(_XmlTreeTag* node) {
  if (node == nullptr) return;
  _Unlink(node);
  _FreeSubtree(node);
}

void XmlTreeDeleteAllChildren(_XmlTreeTag* node) {
  for (int32_t i = node->itemCount - 1; i >= 0; --i) {
    if (node->items[i].kind == kXmlTreeChild)
      XmlTreeDeleteNode(static_cast<_XmlTreeTag*>(node->items[i].data));
  }
}

int32_t XmlTreeCountChildren(const _XmlTreeTag* node) {
  return static_cast<int32_t>(
      std::count_if(node->items, node->items + node->itemCount,
                    [](const _XmlTreeItem& item) { return item.kind == kXmlTreeChild; }));
}

_XmlTreeTag* XmlTreeGetChild(const _XmlTreeTag* node, int32_t index) {
  const int32_t found = _FindItem(node, kXmlTreeChild, index);
  return found < 0 ? nullptr : static_cast<_XmlTreeTag*>(node->items[found].data);
}

_XmlTreeTag* XmlTreeGetParent(const _XmlTreeTag* node) {
  return node == nullptr ? nullptr : node->parent;
}

_XmlTreeTag* XmlTreeGetRoot(_XmlTreeTag* node) {
  while (node != nullptr && node->parent != nullptr) node = node->parent;
  return node;
}

_XmlTreeTag* XmlTreeFindNode(const _XmlTreeTag* node, int32_t elementID) {
  for (int32_t i = 0; i < node->itemCount; ++i) {
    if (node->items[i].kind != kXmlTreeChild) continue;
    auto* child = static_cast<_XmlTreeTag*>(node->items[i].data);
    if (child->elementID == elementID) return child;
  }
  return nullptr;
}

bool XmlTreeAddText(_XmlTreeTag* node, const char* text, int32_t length) {
  if (length < 0) return false;
  const auto size = static_cast<size_t>(length);
  char* bytes = _NewBytes(node, size + 1);
  if (bytes == nullptr) return false;
  std::copy_n(text, size, bytes);
  bytes[size] = '\0';
  return _AddBytes(node, kXmlTreeText, bytes);
}

bool XmlTreeGetAllText(const _XmlTreeTag* node, char* buffer, int32_t size) {
  return XmlTreeJoinText(node, buffer, size) == 0;
}

uint64_t XmlTreeJoinText(const _XmlTreeTag* node, char* buffer, int32_t size) {
  return _JoinAllText(node, buffer, size, _MapToRoman);
}

bool XmlTreeGetAllTextAsSymbol(const _XmlTreeTag* node, char* buffer, int32_t size) {
  return _JoinAllText(node, buffer, size, _MapToSymbol) == 0;
}

void XmlTreeDeleteAllText(_XmlTreeTag* node) {
  for (int32_t i = node->itemCount - 1; i >= 0; --i) {
    if (node->items[i].kind == kXmlTreeText) _ReleaseItem(node, node->items[i]);
  }
  const _XmlTreeItem* end =
      std::remove_if(node->items, node->items + node->itemCount,
                     [](const _XmlTreeItem& item) { return item.kind == kXmlTreeText; });
  node->itemCount = static_cast<int32_t>(end - node->items);
}

bool XmlTreeAddAttribute(_XmlTreeTag* node, const char* name, const char* value) {
  // No text has more characters than bytes.
  const size_t nameSize = std::strlen(name);
  const size_t valueSize = std::strlen(value);
  constexpr size_t kMaximumSize = std::numeric_limits<int32_t>::max();
  if (nameSize > kMaximumSize || valueSize > kMaximumSize) return false;
  char* bytes = _NewBytes(node, nameSize + valueSize + 2);
  if (bytes == nullptr) return false;
  bool valid = false;
  char* nameEnd = XmlUtf8DecodeTo(bytes, static_cast<int32_t>(nameSize), name, &valid);
  XmlUtf8DecodeTo(nameEnd + 1, static_cast<int32_t>(valueSize), value, &valid);
  return _AddBytes(node, kXmlTreeAttribute, bytes);
}

const char* XmlTreeGetAttribute(const _XmlTreeTag* node, const char* name) {
  for (int32_t i = 0; i < node->itemCount; ++i) {
    if (node->items[i].kind != kXmlTreeAttribute) continue;
    const char* value = _SkipName(static_cast<const char*>(node->items[i].data), name);
    if (value != nullptr) return value;
  }
  return nullptr;
}

int32_t XmlTreeGetAttributeInt(const _XmlTreeTag* node, const char* name) {
  const char* value = XmlTreeGetAttribute(node, name);
  return value == nullptr ? 0 : ParseInt32(value);
}

bool XmlTreeAddUserData(_XmlTreeTag* node, void* data, XmlTreeDestructor destructor) {
  return _AddItem(node, kXmlTreeUserData, destructor, data);
}

void* XmlTreeGetUserData(_XmlTreeTag* node, int32_t index, bool remove) {
  const int32_t found = _FindItem(node, kXmlTreeUserData, index);
  if (found < 0) return nullptr;
  void* data = node->items[found].data;
  if (remove) _RemoveItem(node, found);
  return data;
}

#include "Common/xmltree.h"

#include <algorithm>
#include <cstddef>
#include <cstdlib>
#include <cstring>
#include <functional>
#include <limits>
#include <string_view>

#include "Common/number.h"
#include "Common/xmlutil.h"

#if defined(__SANITIZE_ADDRESS__)  // gcc
#define GRADIX_ADDRESS_SANITIZER
#elif defined(__has_feature)  // clang
#if __has_feature(address_sanitizer)
#define GRADIX_ADDRESS_SANITIZER
#endif
#endif

namespace {

constexpr int32_t kCapacityStep = 5;

class SpareBlocks;

// A node is allocated together with room for its first items and for the bytes of short attributes and texts,
// which is all that most nodes ever need.
struct NodeBlock {
  _XmlTreeTag node;
  _XmlTreeItem firstItems[kCapacityStep];
  SpareBlocks* spare;  // the tree's; owned by its root
  bool plain;          // no item has anything outside this block
  size_t bytesUsed;
  char bytes[64];
};
static_assert(offsetof(NodeBlock, node) == 0, "a node's address is its block's");

// The freed blocks of a tree, kept for its next nodes: a reader frees and makes the same few again with every
// record. Not under AddressSanitizer, which then sees any use of a freed node.
class SpareBlocks {
 public:
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

  void FreeAll() {
    while (m_count > 0) std::free(m_blocks[--m_count]);
  }

 private:
#if defined(GRADIX_ADDRESS_SANITIZER)
  static constexpr size_t kCapacity = 0;
#else
  static constexpr size_t kCapacity = 16;
#endif
  size_t m_count;
  NodeBlock* m_blocks[16];
};

NodeBlock* _Block(_XmlTreeTag* node) {
  return reinterpret_cast<NodeBlock*>(node);
}

// Null when memory is exhausted.
NodeBlock* _NewBlock(_XmlTreeTag* parent) {
  SpareBlocks* spare = parent != nullptr ? _Block(parent)->spare
                                         : static_cast<SpareBlocks*>(std::calloc(1, sizeof(SpareBlocks)));
  if (spare == nullptr) return nullptr;
  NodeBlock* block = spare->Take();
  if (block != nullptr) {
    block->spare = spare;
  } else if (parent == nullptr) {
    std::free(spare);
  }
  return block;
}

void _FreeBlock(NodeBlock* block) {
  SpareBlocks* spare = block->spare;
  const bool isRoot = block->node.parent == nullptr;
  spare->Give(block);
  if (!isRoot) return;
  spare->FreeAll();
  std::free(spare);
}

// Room for an attribute or a text of the node: in its own block while that lasts, else on the heap.
char* _NewBytes(_XmlTreeTag* node, size_t size) {
  NodeBlock* block = _Block(node);
  if (size > sizeof block->bytes - block->bytesUsed) {
    block->plain = false;
    return static_cast<char*>(std::malloc(size));
  }
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
[[gnu::noinline]] bool _GrowItems(_XmlTreeTag* node) {
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
  if (node->items == nullptr) {
    node->items = _Block(node)->firstItems;
    node->itemCapacity = kCapacityStep;
  } else if (node->itemCount == node->itemCapacity && !_GrowItems(node)) {
    return false;
  }
  node->items[node->itemCount++] = {kind, destructor, data};
  return true;
}

template <typename Word>
uint64_t _WordAt(const char* text) {
  Word word;
  std::memcpy(&word, text, sizeof word);
  return word;
}

bool _IsAscii(const char* text, size_t size) {
  uint64_t bits = 0;
  if (size >= 8) {
    for (size_t i = 8; i < size; i += 8) bits |= _WordAt<uint64_t>(text + i - 8);
    bits |= _WordAt<uint64_t>(text + size - 8);
  } else if (size >= 4) {
    bits = _WordAt<uint32_t>(text) | _WordAt<uint32_t>(text + size - 4);
  } else {
    for (size_t i = 0; i < size; ++i) bits |= static_cast<unsigned char>(text[i]);
  }
  return (bits & 0x8080808080808080) == 0;
}

// Converts a text to Mac OS Roman. Gives the address of the closing zero.
char* _Decode(char* destination, std::string_view text) {
  std::memcpy(destination, text.data(), text.size());
  destination[text.size()] = '\0';
  if (_IsAscii(text.data(), text.size())) return destination + text.size();
  bool valid = false;
  return XmlUtf8DecodeTo(destination, static_cast<int32_t>(text.size()), destination, &valid);
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

// Frees a node that has no more items to release.
void _FreeNode(_XmlTreeTag* node) {
  _FreeItemArray(node);
  _FreeBlock(_Block(node));
}

// Frees the node and its subtree, items last first. Walks instead of recursing: a tree may be of any depth.
void _FreeSubtree(_XmlTreeTag* top) {
  _XmlTreeTag* node = top;
  while (node != nullptr) {
    if (node->itemCount == 0 || _Block(node)->plain) {
      _XmlTreeTag* parent = node == top ? nullptr : node->parent;
      _FreeNode(node);
      node = parent;
      continue;
    }
    const _XmlTreeItem item = node->items[--node->itemCount];
    if (item.kind != kXmlTreeChild) {
      _ReleaseItem(node, item);
      continue;
    }
    auto* child = static_cast<_XmlTreeTag*>(item.data);
    if (_Block(child)->plain) {
      _FreeNode(child);
    } else {
      node = child;
    }
  }
}

// Adds an attribute of US-ASCII characters that fits into the node's own block, as nearly all do, in one pass
// over its value. False, with nothing changed, for any other.
bool _AddShortAttribute(_XmlTreeTag* node, std::string_view name, const char* value) {
  NodeBlock* block = _Block(node);
  char* const bytes = block->bytes + block->bytesUsed;
  const char* const end = block->bytes + sizeof block->bytes;
  if (name.size() + 1 >= static_cast<size_t>(end - bytes) || !_IsAscii(name.data(), name.size()))
    return false;
  std::memcpy(bytes, name.data(), name.size());
  char* next = bytes + name.size();
  *next++ = '\0';
  for (; next != end; ++value) {
    const auto byte = static_cast<int8_t>(*value);
    if (byte < 0) return false;
    *next++ = static_cast<char>(byte);
    if (byte > 0) continue;
    if (!_AddItem(node, kXmlTreeAttribute, nullptr, bytes)) return false;
    block->bytesUsed = static_cast<size_t>(next - block->bytes);
    return true;
  }
  return false;
}

// Whether the text at `bytes` is `name`. Most are told apart by their first byte.
bool _IsName(const char* bytes, std::string_view name) {
  if (name.empty()) return *bytes == '\0';
  return *bytes == name.front() && std::strncmp(bytes, name.data(), name.size()) == 0 &&
         bytes[name.size()] == '\0';
}

// The position of the item with the 0-based index among the items of one kind, or -1.
int32_t _FindItem(const _XmlTreeTag* node, XmlTreeItemKind kind, int32_t index) {
  for (int32_t i = 0; i < node->itemCount; ++i) {
    if (node->items[i].kind == kind && index-- == 0) return i;
  }
  return -1;
}

// The 8-bit byte for a code point; false when there is none.
using MapCodePoint = bool (*)(int32_t codePoint, char* byte);

bool _MapToRoman(int32_t codePoint, char* byte) {
  *byte = static_cast<char>(XmlMapFromUnicodeChar(codePoint));
  return *byte != '\0';
}

bool _MapToSymbol(int32_t codePoint, char* byte) {
  *byte = static_cast<char>(codePoint);
  return codePoint < 256;
}

// A node's texts on their way into a buffer.
struct JoinedText {
  char* next;         // where the next byte goes
  char* end;          // the last byte, kept for the closing zero
  uint64_t replaced;  // characters that became "?"
};

// Converts the character at `text`. Returns what is behind it.
const char* _JoinCharacter(const char* text, JoinedText* joined, MapCodePoint map) {
  int32_t codePoint = 0;
  const int32_t length = XmlUtf8DecodeChar(&codePoint, text);
  if (length == 0 || !map(codePoint, joined->next)) {
    *joined->next = '?';
    ++joined->replaced;
  }
  ++joined->next;
  return text + XmlUtf8Step(text, length);
}

void _JoinText(const char* text, JoinedText* joined, MapCodePoint map) {
  while (joined->next != joined->end) {
    const auto byte = static_cast<int8_t>(*text);
    if (byte == 0) return;
    if (byte > 0) {
      *joined->next++ = *text++;
    } else {
      text = _JoinCharacter(text, joined, map);
    }
  }
}

JoinedText _JoinAllText(const _XmlTreeTag* node, char* buffer, int32_t size, MapCodePoint map) {
  JoinedText joined = {buffer, buffer + size, 0};
  for (int32_t i = 0; i < node->itemCount; ++i) {
    if (node->items[i].kind == kXmlTreeText) {
      _JoinText(static_cast<const char*>(node->items[i].data), &joined, map);
    }
  }
  *joined.next = '\0';
  return joined;
}

}  // namespace

_XmlTreeTag* XmlTreeNewNode(_XmlTreeTag* parent, int32_t elementID, int32_t line, long byteIndex) {
  NodeBlock* block = _NewBlock(parent);
  if (block == nullptr) return nullptr;
  block->node = {elementID, line, byteIndex, parent, 0, 0, nullptr};
  block->plain = true;
  block->bytesUsed = 0;
  if (parent != nullptr && !_AddItem(parent, kXmlTreeChild, nullptr, &block->node)) {
    _FreeBlock(block);
    return nullptr;
  }
  if (parent != nullptr) _Block(parent)->plain = false;
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
  return _JoinAllText(node, buffer, size, _MapToRoman).replaced == 0;
}

uint64_t XmlTreeJoinText(const _XmlTreeTag* node, char* buffer, int32_t size) {
  return _JoinAllText(node, buffer, size, _MapToRoman).replaced;
}

bool XmlTreeGetAllTextAsSymbol(const _XmlTreeTag* node, char* buffer, int32_t size) {
  return _JoinAllText(node, buffer, size, _MapToSymbol).replaced == 0;
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

bool XmlTreeAddAttribute(_XmlTreeTag* node, std::string_view name, const char* value) {
  if (_AddShortAttribute(node, name, value)) return true;
  // No text has more characters than bytes.
  constexpr size_t kMaximumSize = std::numeric_limits<int32_t>::max();
  const size_t valueSize = std::strlen(value);
  if (name.size() > kMaximumSize || valueSize > kMaximumSize) return false;
  char* bytes = _NewBytes(node, name.size() + valueSize + 2);
  if (bytes == nullptr) return false;
  _Decode(_Decode(bytes, name) + 1, {value, valueSize});
  return _AddBytes(node, kXmlTreeAttribute, bytes);
}

const char* XmlTreeGetAttribute(const _XmlTreeTag* node, std::string_view name) {
  for (int32_t i = 0; i < node->itemCount; ++i) {
    if (node->items[i].kind != kXmlTreeAttribute) continue;
    const auto* bytes = static_cast<const char*>(node->items[i].data);
    if (_IsName(bytes, name)) return bytes + name.size() + 1;
  }
  return nullptr;
}

int32_t XmlTreeGetAttributeInt(const _XmlTreeTag* node, std::string_view name) {
  const char* value = XmlTreeGetAttribute(node, name);
  return value == nullptr ? 0 : ParseInt32(value);
}

bool XmlTreeAddUserData(_XmlTreeTag* node, void* data, XmlTreeDestructor destructor) {
  _Block(node)->plain = false;
  return _AddItem(node, kXmlTreeUserData, destructor, data);
}

void* XmlTreeGetUserData(_XmlTreeTag* node, int32_t index, bool remove) {
  const int32_t found = _FindItem(node, kXmlTreeUserData, index);
  if (found < 0) return nullptr;
  void* data = node->items[found].data;
  if (remove) _RemoveItem(node, found);
  return data;
}

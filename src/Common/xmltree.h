// A small generic tree of XML elements, known by numeric id.
//
// A node owns its items: child nodes, attributes, text pieces and user data, in the order in which they were
// added. Nodes are made and freed only by these functions. Nothing throws: exhausted memory gives null or
// false and leaves the tree as it was.
#ifndef GRADIX_XMLTREE_H
#define GRADIX_XMLTREE_H

#include <cstdint>
#include <string_view>

using XmlTreeDestructor = void (*)(void* data);

enum XmlTreeItemKind : int32_t {
  kXmlTreeChild = 1,      // data: the child node
  kXmlTreeAttribute = 2,  // data: name, a zero byte, value, a zero byte; 8-bit
  kXmlTreeText = 3,       // data: UTF-8 as it was added, zero-terminated
  kXmlTreeUserData = 4,   // data: the caller's
};

struct _XmlTreeItem {
  int32_t kind;
  XmlTreeDestructor destructor;  // called with the data of a user-data item, unless null
  void* data;
};

struct _XmlTreeTag {
  int32_t elementID;
  int32_t line;          // 1-based line of the start tag in the source
  long byteIndex;        // byte position of the start tag in the source
  _XmlTreeTag* parent;   // null for a root
  int32_t itemCount;     // items in use
  int32_t itemCapacity;  // items there is room for
  _XmlTreeItem* items;   // null until the first item is added
};

// A new node, appended to `parent` unless that is null. Free it, or a node above it, with XmlTreeDeleteNode.
_XmlTreeTag* XmlTreeNewNode(_XmlTreeTag* parent, int32_t elementID, int32_t line, long byteIndex);

// Frees the node with its items and its subtree, and takes it out of its parent. Null is allowed.
void XmlTreeDeleteNode(_XmlTreeTag* node);

// Frees every child node, last first.
void XmlTreeDeleteAllChildren(_XmlTreeTag* node);

int32_t XmlTreeCountChildren(const _XmlTreeTag* node);

// The child at the 0-based index among the child nodes, or null.
_XmlTreeTag* XmlTreeGetChild(const _XmlTreeTag* node, int32_t index);

// The node above, and the topmost node; null for null.
_XmlTreeTag* XmlTreeGetParent(const _XmlTreeTag* node);
_XmlTreeTag* XmlTreeGetRoot(_XmlTreeTag* node);

// The first direct child with that element id, or null.
_XmlTreeTag* XmlTreeFindNode(const _XmlTreeTag* node, int32_t elementID);

// Appends a copy of `length` bytes of UTF-8.
bool XmlTreeAddText(_XmlTreeTag* node, const char* text, int32_t length);

// Joins the node's own texts into `buffer`, which holds size + 1 bytes, as Mac OS Roman. A character that
// the set lacks becomes "?" and makes the result false.
bool XmlTreeGetAllText(const _XmlTreeTag* node, char* buffer, int32_t size);

// The same, giving the number of characters that became "?".
uint64_t XmlTreeJoinText(const _XmlTreeTag* node, char* buffer, int32_t size);

// The same as XmlTreeGetAllText for text in a symbol font: code points below 256 are the bytes.
bool XmlTreeGetAllTextAsSymbol(const _XmlTreeTag* node, char* buffer, int32_t size);

// Frees every text item.
void XmlTreeDeleteAllText(_XmlTreeTag* node);

// Appends an attribute; name and value are UTF-8.
bool XmlTreeAddAttribute(_XmlTreeTag* node, std::string_view name, const char* value);

// The 8-bit value of the first attribute with exactly that name, or null. Owned by the node.
const char* XmlTreeGetAttribute(const _XmlTreeTag* node, std::string_view name);

// The value as a decimal integer, 0 when there is none; saturates at 32 bits.
int32_t XmlTreeGetAttributeInt(const _XmlTreeTag* node, std::string_view name);

// Appends the caller's datum; `destructor`, unless null, is called with it when the node is deleted.
bool XmlTreeAddUserData(_XmlTreeTag* node, void* data, XmlTreeDestructor destructor);

// The datum at the 0-based index among the user data, or null. With `remove` it leaves the node without its
// destructor being called.
void* XmlTreeGetUserData(_XmlTreeTag* node, int32_t index, bool remove);

#endif  // GRADIX_XMLTREE_H

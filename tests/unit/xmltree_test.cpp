#include "Common/xmltree.h"

#include <gtest/gtest.h>

#include <cstring>
#include <memory>
#include <string>
#include <vector>

namespace {

struct TreeDeleter {
  void operator()(_XmlTreeTag* node) const { XmlTreeDeleteNode(node); }
};
using Tree = std::unique_ptr<_XmlTreeTag, TreeDeleter>;

Tree _NewRoot() {
  return Tree(XmlTreeNewNode(nullptr, 1, 1, 0));
}

void _AddText(_XmlTreeTag* node, const std::string& text) {
  ASSERT_TRUE(XmlTreeAddText(node, text.data(), static_cast<int32_t>(text.size())));
}

std::string _AllText(const _XmlTreeTag* node, int32_t size = 100, bool* complete = nullptr) {
  std::string buffer(static_cast<size_t>(size) + 1, '#');
  const bool result = XmlTreeGetAllText(node, buffer.data(), size);
  if (complete != nullptr) *complete = result;
  buffer.resize(std::strlen(buffer.c_str()));
  return buffer;
}

TEST(XmlTree, LinksNodesInDocumentOrder) {
  const Tree root = _NewRoot();
  std::vector<_XmlTreeTag*> children;
  for (int32_t id = 10; id < 30; ++id) {  // enough to leave the node's own block
    XmlTreeAddAttribute(root.get(), "between", "x");
    children.push_back(XmlTreeNewNode(root.get(), id, id, 100L * id));
  }
  ASSERT_EQ(XmlTreeCountChildren(root.get()), 20);
  EXPECT_EQ(XmlTreeGetChild(root.get(), 7), children[7]);
  EXPECT_EQ(XmlTreeGetChild(root.get(), 20), nullptr);
  EXPECT_EQ(XmlTreeGetChild(root.get(), -1), nullptr);
  EXPECT_EQ(XmlTreeFindNode(root.get(), 15), children[5]);
  EXPECT_EQ(children[5]->line, 15);
  EXPECT_EQ(children[5]->byteIndex, 1500);

  _XmlTreeTag* grandchild = XmlTreeNewNode(children[3], 99, 1, 1);
  EXPECT_EQ(XmlTreeFindNode(root.get(), 99), nullptr) << "only direct children are found";
  EXPECT_EQ(XmlTreeGetRoot(grandchild), root.get());
  EXPECT_EQ(XmlTreeGetParent(grandchild), children[3]);

  XmlTreeDeleteNode(children[7]);
  ASSERT_EQ(XmlTreeCountChildren(root.get()), 19);
  EXPECT_EQ(XmlTreeGetChild(root.get(), 6), children[6]);
  EXPECT_EQ(XmlTreeGetChild(root.get(), 7), children[8]);

  XmlTreeDeleteAllChildren(root.get());
  EXPECT_EQ(XmlTreeCountChildren(root.get()), 0);
  EXPECT_STREQ(XmlTreeGetAttribute(root.get(), "between"), "x") << "attributes stay";
}

TEST(XmlTree, NullHasNeitherParentNorRoot) {
  EXPECT_EQ(XmlTreeGetParent(nullptr), nullptr);
  EXPECT_EQ(XmlTreeGetRoot(nullptr), nullptr);
  XmlTreeDeleteNode(nullptr);
}

TEST(XmlTree, JoinsTheNodesOwnTexts) {
  const Tree root = _NewRoot();
  _AddText(root.get(), "Zo");
  _XmlTreeTag* child = XmlTreeNewNode(root.get(), 2, 1, 1);
  _AddText(child, "inner");
  _AddText(root.get(), "\xC3\xAB ");
  _AddText(root.get(), std::string(200, 'x'));  // too long for the node's own block
  bool complete = false;
  EXPECT_EQ(_AllText(root.get(), 1000, &complete), "Zo\x91 " + std::string(200, 'x'));
  EXPECT_TRUE(complete);
  EXPECT_EQ(_AllText(root.get(), 3), "Zo\x91") << "cut by characters of the result";
  EXPECT_EQ(_AllText(root.get(), 0), "");

  XmlTreeDeleteAllText(root.get());
  EXPECT_EQ(_AllText(root.get()), "");
  EXPECT_EQ(_AllText(XmlTreeFindNode(root.get(), 2)), "inner");
}

TEST(XmlTree, ConvertsToEightBit) {
  const struct {
    const char *what, *utf8, *roman, *symbol;
    bool romanComplete, symbolComplete;
  } rows[] = {
      {"in both", "z\xC3\xA9", "z\x8E", "z\xE9", true, true},
      {"only in the 8-bit set", "a\xE2\x80\xA2z", "a\xA5z", "a?z", true, false},
      {"in neither", "a\xE4\xB8\xADz", "a?z", "a?z", false, false},
      {"invalid lead byte", "a\x80z", "a?z", "a?z", false, false},
  };
  for (const auto& row : rows) {
    const Tree root = _NewRoot();
    _AddText(root.get(), row.utf8);
    bool complete = false;
    EXPECT_EQ(_AllText(root.get(), 100, &complete), row.roman) << row.what;
    EXPECT_EQ(complete, row.romanComplete) << row.what;
    char buffer[20];
    EXPECT_EQ(XmlTreeGetAllTextAsSymbol(root.get(), buffer, 19), row.symbolComplete) << row.what;
    EXPECT_STREQ(buffer, row.symbol) << row.what;
  }
}

TEST(XmlTree, TextCutInsideACharacterStaysInsideItsPiece) {
  const Tree root = _NewRoot();
  _AddText(root.get(), std::string(70, 'x') + "\xE2");  // on the heap, so that an overread is seen
  _AddText(root.get(), "y");
  EXPECT_EQ(_AllText(root.get()).substr(71), "y");
}

TEST(XmlTree, FindsAttributesByExactName) {
  const Tree root = _NewRoot();
  ASSERT_TRUE(XmlTreeAddAttribute(root.get(), "id", " 12x"));
  ASSERT_TRUE(XmlTreeAddAttribute(root.get(), "id", "13"));
  ASSERT_TRUE(XmlTreeAddAttribute(root.get(), "n\xC3\xA9", "\xC3\xA9\xE4\xB8\xAD"));
  ASSERT_TRUE(XmlTreeAddAttribute(root.get(), "empty", ""));
  ASSERT_TRUE(XmlTreeAddAttribute(root.get(), "large", "99999999999"));
  EXPECT_STREQ(XmlTreeGetAttribute(root.get(), "id"), " 12x") << "the first one counts";
  EXPECT_STREQ(XmlTreeGetAttribute(root.get(), "n\x8E"), "\x8E?");
  EXPECT_STREQ(XmlTreeGetAttribute(root.get(), "empty"), "");
  for (const char* name : {"ID", "i", "idx", ""})
    EXPECT_EQ(XmlTreeGetAttribute(root.get(), name), nullptr) << name;
  EXPECT_EQ(XmlTreeGetAttributeInt(root.get(), "id"), 12);
  EXPECT_EQ(XmlTreeGetAttributeInt(root.get(), "large"), INT32_MAX);
  EXPECT_EQ(XmlTreeGetAttributeInt(root.get(), "missing"), 0);
}

std::string gDestroyed;
void _Destroy(void* data) {
  gDestroyed += *static_cast<const char*>(data);
}

TEST(XmlTree, UserDataIsDestroyedOnceUnlessTakenOut) {
  char data[] = "abc";
  gDestroyed.clear();
  Tree root = _NewRoot();
  _XmlTreeTag* child = XmlTreeNewNode(root.get(), 2, 1, 1);
  ASSERT_TRUE(XmlTreeAddUserData(child, &data[0], _Destroy));
  ASSERT_TRUE(XmlTreeAddUserData(child, &data[1], _Destroy));
  ASSERT_TRUE(XmlTreeAddUserData(child, &data[2], nullptr));
  ASSERT_TRUE(XmlTreeAddUserData(root.get(), &data[2], _Destroy));
  EXPECT_EQ(XmlTreeGetUserData(child, 2, false), &data[2]);
  EXPECT_EQ(XmlTreeGetUserData(child, 0, true), &data[0]);
  EXPECT_EQ(XmlTreeGetUserData(child, 0, true), &data[1]);
  EXPECT_EQ(XmlTreeGetUserData(child, 1, true), nullptr);
  ASSERT_TRUE(XmlTreeAddUserData(child, &data[0], _Destroy));
  root.reset();
  EXPECT_EQ(gDestroyed, "ca") << "items are released last first";
}

TEST(XmlTree, AnyDepthCanBeFreed) {
  Tree root = _NewRoot();
  _XmlTreeTag* node = root.get();
  for (int i = 0; i < 1000000; ++i) node = XmlTreeNewNode(node, 2, 1, 1);
  EXPECT_EQ(XmlTreeGetRoot(node), root.get());
}

}  // namespace

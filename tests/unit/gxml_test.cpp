#include "Common/QZXMLParse/gxml.h"

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

namespace {

using Path = std::vector<int32_t>;

TEST(ElementTables, ResolveNamesByPath) {
  const struct {
    const char* what;
    Path path;
    const char* name;
    int32_t id;
  } rows[] = {
      {"the document element", {}, "class", 1},
      {"nothing else at the top", {}, "student", 0},
      {"names are case-sensitive", {}, "Class", 0},
      {"a student's id text", {1, 22, 51}, "student-id", 63},
      {"which the class has not", {1}, "student-id", 0},
      {"a label in the preferences", {1, 21}, "custom-1", 39},
      {"a custom text in a student", {1, 22, 51}, "custom-1", 72},
      {"pad-id comes last", {1, 22, 51}, "pad-id", 75},
      {"points of an assignment", {1, 23, 81}, "points-possible", 99},
      {"points of a question", {1, 23, 81, 100, 111}, "points-possible", 128},
      {"the response list", {1, 23, 81, 101, 141}, "response-list", 154},
      {"the deepest element", {1, 23, 81, 101, 141, 154, 161}, "points-earned", 172},
      {"nothing below a text", {1, 11}, "class-name", 0},
      {"nothing below an unknown element", {1, 0}, "student", 0},
      {"nothing on a wrong path", {22}, "student", 0},
  };
  for (const auto& row : rows) {
    const auto depth = static_cast<int32_t>(row.path.size());
    EXPECT_EQ(XmlElementFindElementID(row.path.data(), depth, row.name), row.id) << row.what;
    if (row.id != 0) {
      EXPECT_STREQ(XmlElementFindElementName(row.path.data(), depth, row.id), row.name) << row.what;
    }
  }
}

// Walks the lists as a document could.
void _Walk(const _XmlElementListTag* list, std::set<int32_t>* ids) {
  for (; list->elementID >= 0; ++list) {
    EXPECT_TRUE(ids->insert(list->elementID).second) << "id given twice: " << list->name;
    const bool isText = list->children == nullptr;
    EXPECT_EQ(list->acceptChars, isText || list->elementID == 51) << list->name;  // a student keeps its text
    if (!isText) _Walk(list->children, ids);
  }
}

TEST(ElementTables, HoldEveryElementOnce) {
  std::set<int32_t> ids;
  _Walk(_gRootElement, &ids);
  EXPECT_EQ(ids.size(), 1U + 13 + 11 + 1 + 15 + 1 + 11 + 1 + 9 + 1 + 4 + 1 + 2);
}

TEST(ElementTables, AcceptCharsLooksAtTheInnermostElement) {
  const Path text = {1, 22, 51, 61};
  EXPECT_TRUE(XmlElementAcceptChars(text.data(), 4));
  EXPECT_TRUE(XmlElementAcceptChars(text.data(), 3));
  EXPECT_FALSE(XmlElementAcceptChars(text.data(), 2));
  EXPECT_FALSE(XmlElementAcceptChars(text.data(), 0));
}

TEST(ElementTables, UserDataAndDisablingLastUntilCleared) {
  XmlElementClearAllUserData();
  const Path students = {1, 22};
  XmlElementSetUserData(students.data(), 2, 51, 77);
  XmlElementSetUserData(students.data(), 2, 99, 5);  // no such element: nothing happens
  EXPECT_EQ(XmlElementGetUserData(students.data(), 2, 51), 77);
  EXPECT_EQ(XmlElementGetUserData(students.data(), 2, 99), 0);

  XmlElementDisable(students.data(), 2, 51);
  const Path student = {1, 22, 51};
  EXPECT_EQ(XmlElementFindElementID(students.data(), 2, "student"), 0);
  EXPECT_EQ(XmlElementFindElementID(student.data(), 3, "alias"), 0) << "nor what is below";
  EXPECT_EQ(XmlElementGetUserData(students.data(), 2, 51), 0);

  XmlElementClearAllUserData();
  EXPECT_EQ(XmlElementFindElementID(students.data(), 2, "student"), 51);
  EXPECT_EQ(XmlElementGetUserData(students.data(), 2, 51), 0);
}

}  // namespace

#include "Common/QZXMLParse/gxml.h"

#include <array>
#include <cstring>

using List = _XmlElementListTag;

namespace {

constexpr List Text(int32_t id, const char* name) {
  return {id, name, nullptr, true, false, 0};
}
constexpr List Container(int32_t id, const char* name, List* children) {
  return {id, name, children, false, false, 0};
}
constexpr List End() {
  return {-1, nullptr, nullptr, false, false, 0};
}

// Innermost lists first: a list has to exist before the entry that points to it.

List _gResponseElement[] = {
    Text(kElementText, "text"),
    Text(kElementPointsEarned, "points-earned"),
    End(),
};

List _gResponseListElement[] = {
    Container(kElementResponse, "response", _gResponseElement),
    End(),
};

List _gResultsElement[] = {
    Text(kElementNumAttempts, "num-attempts"),
    Text(kElementStartDate, "start-date"),
    Text(kElementEndDate, "end-date"),
    Container(kElementResponseList, "response-list", _gResponseListElement),
    End(),
};

List _gResultsListElement[] = {
    Container(kElementResults, "results", _gResultsElement),
    End(),
};

List _gQuestionElement[] = {
    Text(kElementNumChoices, "num-choices"),
    Text(kElementAnswer, "answer"),
    Text(kElementReference, "reference"),
    Text(kElementLearningObjective, "learning-objective"),
    Text(kElementNationalStandard, "national-standard"),
    Text(kElementLocalStandard, "local-standard"),
    Text(kElementStateStandard, "state-standard"),
    Text(kElementQuestionPoints, "points-possible"),
    Text(kElementResponseGrid, "response-grid"),
    End(),
};

List _gQuestionListElement[] = {
    Container(kElementQuestion, "question", _gQuestionElement),
    End(),
};

List _gAssignmentElement[] = {
    Text(kElementAssignmentName, "assignment-name"),
    Text(kElementAssignmentID, "assignment-id"),
    Text(kElementCategory, "category"),
    Text(kElementOnlineID, "online-id"),
    Text(kElementTerm, "term"),
    Text(kElementAssignmentDate, "assignment-date"),
    Text(kElementDeliveryMethod, "delivery-method"),
    Text(kElementTestFile, "test-file"),
    Text(kElementAssignmentPoints, "points-possible"),
    Container(kElementQuestionList, "question-list", _gQuestionListElement),
    Container(kElementResultsList, "results-list", _gResultsListElement),
    End(),
};

List _gAssignmentListElement[] = {
    Container(kElementAssignment, "assignment", _gAssignmentElement),
    End(),
};

List _gStudentElement[] = {
    Text(kElementFirstName, "first-name"),
    Text(kElementLastName, "last-name"),
    Text(kElementStudentID, "student-id"),
    Text(kElementAlias, "alias"),
    Text(kElementPassword, "password"),
    Text(kElementGender, "gender"),
    Text(kElementDateOfBirth, "date-of-birth"),
    Text(kElementGradeLevel, "grade-level"),
    Text(kElementSociological, "sociological"),
    Text(kElementRace, "race"),
    Text(kElementOther, "other"),
    Text(kElementCustom1, "custom-1"),
    Text(kElementCustom2, "custom-2"),
    Text(kElementCustom3, "custom-3"),
    Text(kElementPadID, "pad-id"),
    End(),
};

// student is the one container that keeps its character data.
List _gStudentListElement[] = {
    {kElementStudent, "student", _gStudentElement, true, false, 0},
    End(),
};

List _gPreferencesElement[] = {
    Text(kElementStudentSort, "student-sort"),
    Text(kElementAssignmentSort, "assignment-sort"),
    Text(kElementDisplayScore, "display-score"),
    Text(kElementShowTerm, "show-term"),
    Text(kElementShowNCLB, "show-nclb"),
    Text(kElementDefaultTerm, "default-term"),
    Text(kElementDefaultGradeLevel, "default-grade-level"),
    Text(kElementCategoryName, "category-name"),
    Text(kElementLabel1, "custom-1"),
    Text(kElementLabel2, "custom-2"),
    Text(kElementLabel3, "custom-3"),
    End(),
};

List _gClassElement[] = {
    Text(kElementClassName, "class-name"),
    Text(kElementClassID, "class-id"),
    Text(kElementPeriod, "period"),
    Text(kElementSection, "section"),
    Text(kElementInstructorName, "instructor-name"),
    Text(kElementInstructorID, "instructor-id"),
    Text(kElementSchoolName, "school-name"),
    Text(kElementSchoolID, "school-id"),
    Text(kElementCity, "city"),
    Text(kElementState, "state"),
    Container(kElementPreferences, "preferences", _gPreferencesElement),
    Container(kElementStudentList, "student-list", _gStudentListElement),
    Container(kElementAssignmentList, "assignment-list", _gAssignmentListElement),
    End(),
};

List _gRootElement[] = {
    Container(kElementClass, "class", _gClassElement),
    End(),
};

// The first enabled entry of `list` that `matches`, or null.
template <typename Matches>
List* _FindEntry(List* list, Matches matches) {
  if (list == nullptr) return nullptr;
  for (List* entry = list; entry->elementID >= 0; ++entry) {
    if (!entry->disabled && matches(*entry)) return entry;
  }
  return nullptr;
}

List* _FindEntryByID(List* list, int32_t id) {
  return _FindEntry(list, [id](const List& entry) { return entry.elementID == id; });
}

// The list valid at the path, or null.
List* _FindTable(const int32_t* path, int32_t depth) {
  List* list = _gRootElement;
  for (int32_t i = 0; i < depth && list != nullptr; ++i) {
    const List* entry = _FindEntryByID(list, path[i]);
    list = entry == nullptr ? nullptr : entry->children;
  }
  return list;
}

// The lists already cleared in one walk. Beyond its capacity no further list is entered.
struct VisitedLists {
  std::array<const List*, 100> lists{};
  size_t count = 0;

  bool Enter(const List* list) {
    for (size_t i = 0; i < count; ++i) {
      if (lists[i] == list) return false;
    }
    if (count == lists.size()) return false;
    lists[count++] = list;
    return true;
  }
};

void _ClearDataHelper(List* list, VisitedLists* visited) {
  if (!visited->Enter(list)) return;
  for (List* entry = list; entry->elementID >= 0; ++entry) {
    entry->disabled = false;
    entry->userData = 0;
    if (entry->children != nullptr) _ClearDataHelper(entry->children, visited);
  }
}

}  // namespace

_XmlElementListTag* XmlElementRootList() {
  return _gRootElement;
}

_XmlElementListTag* XmlElementFindEntry(_XmlElementListTag* list, const char* name) {
  return _FindEntry(
      list, [name](const List& entry) { return *entry.name == *name && std::strcmp(entry.name, name) == 0; });
}

int32_t XmlElementFindElementID(const int32_t* path, int32_t depth, const char* name) {
  const List* entry = XmlElementFindEntry(_FindTable(path, depth), name);
  return entry == nullptr ? kElementUnknown : entry->elementID;
}

const char* XmlElementFindElementName(const int32_t* path, int32_t depth, int32_t id) {
  const List* entry = _FindEntryByID(_FindTable(path, depth), id);
  return entry == nullptr ? nullptr : entry->name;
}

bool XmlElementAcceptChars(const int32_t* path, int32_t depth) {
  if (depth < 1) return false;
  const List* entry = _FindEntryByID(_FindTable(path, depth - 1), path[depth - 1]);
  return entry != nullptr && entry->acceptChars;
}

void XmlElementSetUserData(const int32_t* path, int32_t depth, int32_t id, intptr_t value) {
  List* entry = _FindEntryByID(_FindTable(path, depth), id);
  if (entry != nullptr) entry->userData = value;
}

intptr_t XmlElementGetUserData(const int32_t* path, int32_t depth, int32_t id) {
  const List* entry = _FindEntryByID(_FindTable(path, depth), id);
  return entry == nullptr ? 0 : entry->userData;
}

void XmlElementDisable(const int32_t* path, int32_t depth, int32_t id) {
  List* entry = _FindEntryByID(_FindTable(path, depth), id);
  if (entry != nullptr) entry->disabled = true;
}

void XmlElementClearAllUserData() {
  VisitedLists visited;
  _ClearDataHelper(_gRootElement, &visited);
}

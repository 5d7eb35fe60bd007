#include "Common/QZXMLParse/gxml.h"

#include <array>

using List = _XmlElementListTag;

namespace {

constexpr List _Text(int32_t id, const char* name) {
  return {id, name, nullptr, true, false, 0};
}
constexpr List _Container(int32_t id, const char* name, List* children) {
  return {id, name, children, false, false, 0};
}
constexpr List _End() {
  return {-1, nullptr, nullptr, false, false, 0};
}

// Innermost lists first: a list has to exist before the entry that points to it.

List _gResponseElement[] = {
    _Text(kElementText, "text"),
    _Text(kElementPointsEarned, "points-earned"),
    _End(),
};

List _gResponseListElement[] = {
    _Container(kElementResponse, "response", _gResponseElement),
    _End(),
};

List _gResultsElement[] = {
    _Text(kElementNumAttempts, "num-attempts"),
    _Text(kElementStartDate, "start-date"),
    _Text(kElementEndDate, "end-date"),
    _Container(kElementResponseList, "response-list", _gResponseListElement),
    _End(),
};

List _gResultsListElement[] = {
    _Container(kElementResults, "results", _gResultsElement),
    _End(),
};

List _gQuestionElement[] = {
    _Text(kElementNumChoices, "num-choices"),
    _Text(kElementAnswer, "answer"),
    _Text(kElementReference, "reference"),
    _Text(kElementLearningObjective, "learning-objective"),
    _Text(kElementNationalStandard, "national-standard"),
    _Text(kElementLocalStandard, "local-standard"),
    _Text(kElementStateStandard, "state-standard"),
    _Text(kElementQuestionPoints, "points-possible"),
    _Text(kElementResponseGrid, "response-grid"),
    _End(),
};

List _gQuestionListElement[] = {
    _Container(kElementQuestion, "question", _gQuestionElement),
    _End(),
};

List _gAssignmentElement[] = {
    _Text(kElementAssignmentName, "assignment-name"),
    _Text(kElementAssignmentID, "assignment-id"),
    _Text(kElementCategory, "category"),
    _Text(kElementOnlineID, "online-id"),
    _Text(kElementTerm, "term"),
    _Text(kElementAssignmentDate, "assignment-date"),
    _Text(kElementDeliveryMethod, "delivery-method"),
    _Text(kElementTestFile, "test-file"),
    _Text(kElementAssignmentPoints, "points-possible"),
    _Container(kElementQuestionList, "question-list", _gQuestionListElement),
    _Container(kElementResultsList, "results-list", _gResultsListElement),
    _End(),
};

List _gAssignmentListElement[] = {
    _Container(kElementAssignment, "assignment", _gAssignmentElement),
    _End(),
};

List _gStudentElement[] = {
    _Text(kElementFirstName, "first-name"),
    _Text(kElementLastName, "last-name"),
    _Text(kElementStudentID, "student-id"),
    _Text(kElementAlias, "alias"),
    _Text(kElementPassword, "password"),
    _Text(kElementGender, "gender"),
    _Text(kElementDateOfBirth, "date-of-birth"),
    _Text(kElementGradeLevel, "grade-level"),
    _Text(kElementSociological, "sociological"),
    _Text(kElementRace, "race"),
    _Text(kElementOther, "other"),
    _Text(kElementCustom1, "custom-1"),
    _Text(kElementCustom2, "custom-2"),
    _Text(kElementCustom3, "custom-3"),
    _Text(kElementPadID, "pad-id"),
    _End(),
};

// student is the one container that keeps its character data.
List _gStudentListElement[] = {
    {kElementStudent, "student", _gStudentElement, true, false, 0},
    _End(),
};

List _gPreferencesElement[] = {
    _Text(kElementStudentSort, "student-sort"),
    _Text(kElementAssignmentSort, "assignment-sort"),
    _Text(kElementDisplayScore, "display-score"),
    _Text(kElementShowTerm, "show-term"),
    _Text(kElementShowNCLB, "show-nclb"),
    _Text(kElementDefaultTerm, "default-term"),
    _Text(kElementDefaultGradeLevel, "default-grade-level"),
    _Text(kElementCategoryName, "category-name"),
    _Text(kElementLabel1, "custom-1"),
    _Text(kElementLabel2, "custom-2"),
    _Text(kElementLabel3, "custom-3"),
    _End(),
};

List _gClassElement[] = {
    _Text(kElementClassName, "class-name"),
    _Text(kElementClassID, "class-id"),
    _Text(kElementPeriod, "period"),
    _Text(kElementSection, "section"),
    _Text(kElementInstructorName, "instructor-name"),
    _Text(kElementInstructorID, "instructor-id"),
    _Text(kElementSchoolName, "school-name"),
    _Text(kElementSchoolID, "school-id"),
    _Text(kElementCity, "city"),
    _Text(kElementState, "state"),
    _Container(kElementPreferences, "preferences", _gPreferencesElement),
    _Container(kElementStudentList, "student-list", _gStudentListElement),
    _Container(kElementAssignmentList, "assignment-list", _gAssignmentListElement),
    _End(),
};

}  // namespace

_XmlElementListTag _gRootElement[2] = {
    _Container(kElementClass, "class", _gClassElement),
    _End(),
};

namespace {

// The first enabled entry of `list` with that id, or null.
List* _FindEntryByID(List* list, int32_t id) {
  if (list == nullptr) return nullptr;
  for (List* entry = list; entry->elementID >= 0; ++entry) {
    if (!entry->disabled && entry->elementID == id) return entry;
  }
  return nullptr;
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

// The elements a class file may hold: nested lists that give each element its id, say which keep their
// character data, and carry one datum per element for the reader.
//
// A position in a document is a path of element ids from the document element down, with its depth. Names
// and ids are resolved relative to a path, so one name can have several ids: custom-1 is kElementLabel1
// in the preferences and kElementCustom1 in a student. The lists are process-wide: parses that run at the
// same time share them, and nobody changes them while there is one.
#ifndef GRADIX_GXML_H
#define GRADIX_GXML_H

#include <cstdint>
#include <cstring>

enum XmlElementID : int32_t {
  kElementUnknown = 0,
  kElementClass = 1,

  kElementClassName = 11,  // in class
  kElementClassID,
  kElementPeriod,
  kElementSection,
  kElementInstructorName,
  kElementInstructorID,
  kElementSchoolName,
  kElementSchoolID,
  kElementCity,
  kElementState,
  kElementPreferences,
  kElementStudentList,
  kElementAssignmentList,

  kElementStudentSort = 31,  // in preferences
  kElementAssignmentSort,
  kElementDisplayScore,
  kElementShowTerm,
  kElementShowNCLB,
  kElementDefaultTerm,
  kElementDefaultGradeLevel,
  kElementCategoryName,
  kElementLabel1,
  kElementLabel2,
  kElementLabel3,

  kElementStudent = 51,  // in student-list

  kElementFirstName = 61,  // in student
  kElementLastName,
  kElementStudentID,
  kElementAlias,
  kElementPassword,
  kElementGender,
  kElementDateOfBirth,
  kElementGradeLevel,
  kElementSociological,
  kElementRace,
  kElementOther,
  kElementCustom1,
  kElementCustom2,
  kElementCustom3,
  kElementPadID,

  kElementAssignment = 81,  // in assignment-list

  kElementAssignmentName = 91,  // in assignment
  kElementAssignmentID,
  kElementCategory,
  kElementOnlineID,
  kElementTerm,
  kElementAssignmentDate,
  kElementDeliveryMethod,
  kElementTestFile,
  kElementAssignmentPoints,
  kElementQuestionList,
  kElementResultsList,

  kElementQuestion = 111,  // in question-list

  kElementNumChoices = 121,  // in question
  kElementAnswer,
  kElementReference,
  kElementLearningObjective,
  kElementNationalStandard,
  kElementLocalStandard,
  kElementStateStandard,
  kElementQuestionPoints,
  kElementResponseGrid,

  kElementResults = 141,  // in results-list

  kElementNumAttempts = 151,  // in results
  kElementStartDate,
  kElementEndDate,
  kElementResponseList,

  kElementResponse = 161,  // in response-list

  kElementText = 171,  // in response
  kElementPointsEarned,
};

// One entry of a list. A list ends with an entry whose id is negative.
struct _XmlElementListTag {
  int32_t elementID;
  const char* name;              // without namespace
  _XmlElementListTag* children;  // the list valid inside this element, or null
  bool acceptChars;              // character data directly inside is kept
  bool disabled;                 // skipped by every lookup
  intptr_t userData;
};

// The list valid at depth 0: the document element.
extern _XmlElementListTag _gRootElement[2];

// The enabled entry of `list` with that name (exact comparison), or null. A null list has no entries.
inline _XmlElementListTag* XmlElementFindEntry(_XmlElementListTag* list, const char* name) {
  if (list == nullptr) return nullptr;
  for (; list->elementID >= 0; ++list) {
    if (*list->name == *name && !list->disabled && std::strcmp(list->name, name) == 0) return list;
  }
  return nullptr;
}

// Id of the element `name` at the path; 0 when the path or the name is unknown.
int32_t XmlElementFindElementID(const int32_t* path, int32_t depth, const char* name);

// Name of the element `id` at the path, or null.
const char* XmlElementFindElementName(const int32_t* path, int32_t depth, int32_t id);

// Whether the element path[depth - 1] keeps its character data.
bool XmlElementAcceptChars(const int32_t* path, int32_t depth);

// The datum of the element `id` at the path. Setting an unknown element does nothing; its datum is 0.
void XmlElementSetUserData(const int32_t* path, int32_t depth, int32_t id, intptr_t value);
intptr_t XmlElementGetUserData(const int32_t* path, int32_t depth, int32_t id);

// Hides the element from every lookup until XmlElementClearAllUserData.
void XmlElementDisable(const int32_t* path, int32_t depth, int32_t id);

// Clears the datum and the disabled flag of every entry.
void XmlElementClearAllUserData();

#endif  // GRADIX_GXML_H

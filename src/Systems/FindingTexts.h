// The sentences of findings: what will happen, and what to do, in a teacher's words. All of them stand here.
#ifndef GRADIX_SYSTEMS_FINDINGTEXTS_H
#define GRADIX_SYSTEMS_FINDINGTEXTS_H

#include <string>

#include "Systems/ExportSubject.h"
#include "Systems/Finding.h"

enum class TextLanguage : uint8_t { kEnglish, kSpanish };

struct FindingText {
  std::string what;    // what the system will do
  std::string advice;  // what to do; may be empty
};

// UTF-8. Does not list the places.
FindingText DescribeFinding(const Finding& finding, const ExportSubject& subject, TextLanguage language);

// The place in a few words: "Mia Becker (12), Quiz 1: 11 of 10".
std::string DescribePlace(const FindingPlace& place, const ExportSubject& subject);

// The title of a student field, which of a custom one is the class's label.
std::string DescribeField(const qz::StudentField& field, const qz::ClassTexts& texts, TextLanguage language);

// "refused", as people read it: "The file will be refused".
std::string DescribeConsequence(Consequence consequence, TextLanguage language);

#endif  // GRADIX_SYSTEMS_FINDINGTEXTS_H

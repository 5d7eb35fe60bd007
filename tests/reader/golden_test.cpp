// Whole files, byte for byte, from the sample class.
#include <gtest/gtest.h>

#include <clocale>
#include <fstream>
#include <string>

#include "Common/QZXMLParse/QZClassParse.h"
#include "tests/support/Exported.h"

namespace {

constexpr uint32_t kDefaultFields = 0x7;
constexpr uint32_t kAllFields = 0x7FFF;
constexpr int32_t kReportedAssignment = 306;  // Quiz 5: DNA & RNA

struct Report {
  const char* name;
  uint32_t fields;
  std::array<bool, qz::kReportOptionCount>
      options;  // answer key, responses, points, points possible, asterisks
};

const Report kReports[] = {
    {"detailed", kDefaultFields, {false, true, false, false, true}},
    {"detailed-everything", kAllFields, {true, true, true, true, true}},
    {"detailed-points", kDefaultFields, {false, false, true, true, false}},
    {"detailed-answer-key", 0x4, {true, true, false, false, false}},
    {"detailed-no-fields", 0, {true, true, true, false, true}},
};

void _ExpectAllGolden() {
  qz::ClassRecord sample;
  std::ifstream stream(SAMPLES "/secondary-school.xml", std::ios::binary);
  ASSERT_TRUE(QZClassParse(&sample, stream));
  for (const FormatRow& format : FormatTable()) {
    qz::ClassRecord record = sample;
    record.userIDField = format.defaultUserIDField;
    if (format.index == kDetailedResultsFormat) continue;
    for (qz::AssignmentRecord& assignment : record.assignments) assignment.selected = true;
    ExpectGolden(std::string("secondary-school.") + format.key, Exported(format.key, record));
    if (format.hasUnquotedVariant) {
      ExpectGolden(std::string("secondary-school.") + format.key + "-unquoted",
                   Exported(format.key, record, false));
    }
  }
  for (const Report& report : kReports) {
    qz::ClassRecord record = sample;
    for (qz::AssignmentRecord& assignment : record.assignments) {
      assignment.selected = assignment.id == kReportedAssignment;
    }
    record.optionValue = static_cast<int32_t>(report.fields);
    record.options = report.options;
    ExpectGolden(std::string("secondary-school.") + report.name, Exported("detailed", record));
  }
}

TEST(Golden, EveryFormatOfTheSampleClassInEveryLocale) {
  _ExpectAllGolden();
  if (std::setlocale(LC_ALL, "de_DE.UTF-8") == nullptr) GTEST_SKIP() << "no German locale on this machine";
  _ExpectAllGolden();
  std::setlocale(LC_ALL, "C");
}

}  // namespace

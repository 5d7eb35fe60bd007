#include "Systems/IdentifierQuality.h"

#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <vector>

#include "Export/ClassFile.h"

namespace {

ClassFile _ClassWith(const std::vector<std::string>& identifiers) {
  std::string text = "<class><student-list>";
  for (const std::string& identifier : identifiers) {
    text += "<student><student-id>" + identifier + "</student-id></student>";
  }
  std::istringstream stream(text + "</student-list></class>");
  return ReadClassFile(stream, "-");
}

std::string _Dump(const IdentifierQuality& quality) {
  std::ostringstream out;
  out << quality.Filled() << " of " << quality.students << " '" << quality.example << "'";
  for (const size_t student : quality.empty) out << " empty " << student;
  for (const auto* groups : {&quality.duplicates, &quality.nearDuplicates}) {
    for (const std::vector<size_t>& group : *groups) {
      out << (groups == &quality.duplicates ? " equal" : " near");
      for (const size_t student : group) out << ' ' << student;
    }
  }
  return out.str();
}

TEST(IdentifierQuality, FindsEmptyEqualAndNearlyEqualIdentifiers) {
  const struct {
    const char* name;
    std::vector<std::string> identifiers;
    const char* quality;
  } rows[] = {
      {"no students", {}, "0 of 0 ''"},
      {"all fine", {"a1", "a2", "a12", "1a"}, "4 of 4 'a1'"},
      {"empty ones are no duplicates", {"", " ", "x", "\t"}, "1 of 4 'x' empty 0 empty 1 empty 3"},
      {"equal", {"x", "y", "x", "y", "x"}, "5 of 5 'x' equal 0 2 4 equal 1 3"},
      {"letter case", {"Ann", "bob", "ANN", "ann"}, "4 of 4 'Ann' near 0 2 3"},
      {"letter case beyond ASCII", {"ÉMILE", "émile", "Ωμ", "ωΜ"}, "4 of 4 'ÉMILE' near 0 1 near 2 3"},
      {"blanks", {"a b", "ab", " ab", "a\u00A0b", "a-b"}, "5 of 5 'a b' near 0 1 2 3"},
      {"leading zeros", {"007", "7", "70", "0", "00"}, "5 of 5 '007' near 0 1 near 3 4"},
      {"letters that the records lack",
       {"?ukasz", "Łukasz", "Žukasz", "Łukasz"},
       "4 of 4 '?ukasz' equal 1 3"},
      {"one of each", {"x", "X", "x", "y"}, "4 of 4 'x' equal 0 2 near 0 1"},
  };
  for (const auto& row : rows) {
    const ClassFile file = _ClassWith(row.identifiers);
    EXPECT_EQ(_Dump(JudgeIdentifiers(file.Texts(), qz::kUserIDStudentID)), row.quality) << row.name;
  }
}

}  // namespace

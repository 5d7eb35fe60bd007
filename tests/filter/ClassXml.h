// Small class files.
#ifndef GRADIX_TESTS_CLASSXML_H
#define GRADIX_TESTS_CLASSXML_H

#include <sstream>
#include <string>
#include <vector>

struct NamedAssignment {
  int id;
  std::string name;
};

// A class of students with these student IDs and aliases; each has 2 points in every assignment.
inline std::string ClassXml(const std::vector<std::string>& studentIDs,
                            const std::vector<NamedAssignment>& assignments = {{7, "Quiz"}}) {
  std::ostringstream xml;
  xml << "<class><student-list>";
  for (size_t i = 1; i <= studentIDs.size(); ++i) {
    xml << "<student id='" << i << "'><first-name>F" << i << "</first-name><last-name>L" << i
        << "</last-name>"
        << "<student-id>" << studentIDs[i - 1] << "</student-id><alias>a" << i << "</alias></student>";
  }
  xml << "</student-list><assignment-list>";
  for (const NamedAssignment& assignment : assignments) {
    xml << "<assignment id='" << assignment.id << "'><assignment-name>" << assignment.name
        << "</assignment-name><question-list><question number='1' type='MC' question-id='1' bank-id='9'>"
        << "<answer>B</answer><points-possible>2</points-possible></question></question-list><results-list>";
    for (size_t i = 1; i <= studentIDs.size(); ++i) {
      xml << "<results id='" << i << "'><response-list><response question-id='1' bank-id='9'><text>B</text>"
          << "<points-earned>2</points-earned></response></response-list></results>";
    }
    xml << "</results-list></assignment>";
  }
  xml << "</assignment-list></class>";
  return xml.str();
}

#endif  // GRADIX_TESTS_CLASSXML_H

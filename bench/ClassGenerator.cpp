#include "bench/ClassGenerator.h"

#include <array>
#include <numeric>
#include <ostream>
#include <random>
#include <span>
#include <sstream>
#include <string_view>
#include <utility>

namespace {

class Dice {
 public:
  explicit Dice(uint32_t seed) : m_engine(seed) {}

  uint32_t Below(uint32_t limit) { return static_cast<uint32_t>((uint64_t{m_engine()} * limit) >> 32); }

  std::string_view Pick(std::span<const std::string_view> texts) {
    return texts[Below(static_cast<uint32_t>(texts.size()))];
  }
  void Shuffle(std::vector<uint32_t>& items) {
    for (size_t left = items.size(); left > 1; --left) {
      std::swap(items[left - 1], items[Below(static_cast<uint32_t>(left))]);
    }
  }

 private:
  std::mt19937 m_engine;
};

struct QuestionKind {
  std::string_view type;
  std::string_view choices;
  std::array<std::string_view, 4> texts;  // the first is the right answer
};

// clang-format off
constexpr std::array<QuestionKind, 5> kKinds = {{
    {"MC", "4", {"B", "A", "C", "D"}},
    {"TF", "2", {"T", "F", "F", "F"}},
    {"MC", "4", {"D", "A", "B", "C"}},
    {"NR", "0", {"42", "4.2", "24", "0"}},
    {"MR", "5", {"A,C", "A", "C", "B,C"}},
}};
// clang-format on
constexpr std::string_view kFirstNames[] = {"Ann", "Björn", "Chloé", "David"};
constexpr std::string_view kLastNames[] = {"Smith", "Müller", "García", "O'Brien", "Okafor"};
constexpr std::string_view kGenders[] = {"F", "M"};
constexpr std::string_view kRooms[] = {"Room 11", "Room 12", "Room 14"};

// One line: a text element whose content is the parts. At most one part may throw the dice, since C++ leaves
// the order of the arguments open.
template <typename... Parts>
void _WriteText(std::ostream& out, std::string_view name, Parts... parts) {
  out << "<" << name << ">";
  (out << ... << parts);
  out << "</" << name << ">\n";
}

// Ids count from 1. Indentation stops at the lists, so that the size is that of the records.
void _WriteStudent(std::ostream& out, Dice& dice, uint32_t id, const std::string& studentID) {
  out << "<student id=\"" << id << "\">\n";
  _WriteText(out, "first-name", dice.Pick(kFirstNames));
  _WriteText(out, "last-name", dice.Pick(kLastNames));
  _WriteText(out, "student-id", studentID);
  _WriteText(out, "alias", "user", id);
  _WriteText(out, "password", "pw", dice.Below(10'000));
  _WriteText(out, "gender", dice.Pick(kGenders));
  _WriteText(out, "date-of-birth", "2009-04-1", dice.Below(10));
  _WriteText(out, "grade-level", "9");
  _WriteText(out, "sociological", "S", dice.Below(3));
  _WriteText(out, "race", "R", dice.Below(4));
  _WriteText(out, "other", "");
  _WriteText(out, "custom-1", "login", id);
  _WriteText(out, "custom-2", "user", id, "@example.org");
  _WriteText(out, "custom-3", dice.Pick(kRooms));
  _WriteText(out, "pad-id", id);
  out << "</student>\n";
}

void _WriteQuestion(std::ostream& out, uint32_t assignment, uint32_t number) {
  const QuestionKind& kind = kKinds[number % kKinds.size()];
  out << "<question number=\"" << number << "\" type=\"" << kind.type << "\" question-id=\"" << number
      << "\" bank-id=\"" << assignment << "\">\n";
  _WriteText(out, "num-choices", kind.choices);
  _WriteText(out, "answer", kind.texts.front());
  _WriteText(out, "reference", "p. ", number);
  _WriteText(out, "learning-objective", "LO 1");
  _WriteText(out, "state-standard", "SC.1");
  _WriteText(out, "points-possible", "1");
  out << "</question>\n";
}

void _WriteResponse(std::ostream& out, Dice& dice, uint32_t assignment, uint32_t number) {
  const uint32_t roll = dice.Below(8);
  const uint32_t choice = roll < 5 ? 0 : roll - 4;
  const std::string_view points = choice == 0 ? "1" : choice == 1 ? "0.5" : "0";
  out << "<response question-id=\"" << number << "\" bank-id=\"" << assignment << "\"><text>"
      << kKinds[number % kKinds.size()].texts[choice] << "</text><points-earned>" << points
      << "</points-earned></response>\n";
}

void _WriteResults(std::ostream& out, Dice& dice, const ClassPlan& plan, uint32_t assignment,
                   uint32_t student) {
  out << "<results id=\"" << student << "\">\n";
  _WriteText(out, "num-attempts", "1");
  out << "<response-list>\n";
  for (uint32_t number = 1; number <= plan.questions; ++number) _WriteResponse(out, dice, assignment, number);
  out << "</response-list>\n</results>\n";
}

void _WriteAssignment(std::ostream& out, Dice& dice, const ClassPlan& plan, uint32_t id,
                      std::vector<uint32_t>& order) {
  const NamedAssignment named = id <= plan.named.size()
                                    ? plan.named[id - 1]
                                    : NamedAssignment{static_cast<int32_t>(id), "Quiz " + std::to_string(id)};
  out << "    <assignment id=\"" << named.id << "\">\n";
  _WriteText(out, "assignment-name", named.name);
  _WriteText(out, "assignment-id", "A", id);
  _WriteText(out, "category", "Quizzes");
  _WriteText(out, "online-id", 7000 + id);
  _WriteText(out, "assignment-date", "2023-10-12");
  _WriteText(out, "points-possible", plan.questions);
  out << "      <question-list>\n";
  for (uint32_t number = 1; number <= plan.questions; ++number) _WriteQuestion(out, id, number);
  out << "      </question-list>\n      <results-list>\n";
  dice.Shuffle(order);
  for (const uint32_t student : order) _WriteResults(out, dice, plan, id, student);
  out << "      </results-list>\n    </assignment>\n";
}

}  // namespace

void WriteClassFile(std::ostream& out, const ClassPlan& plan) {
  Dice dice(plan.seed);
  out << "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<class>\n  <preferences>\n";
  _WriteText(out, "custom-1", "Login");
  _WriteText(out, "custom-2", "E-mail");
  _WriteText(out, "custom-3", "Homeroom");
  out << "  </preferences>\n  <student-list>\n";
  for (uint32_t id = 1; id <= plan.students; ++id) {
    _WriteStudent(out, dice, id,
                  id <= plan.studentIDs.size() ? plan.studentIDs[id - 1] : std::to_string(100'000'000 + id));
  }
  out << "  </student-list>\n  <assignment-list>\n";
  std::vector<uint32_t> order(plan.students);
  std::iota(order.begin(), order.end(), 1U);
  for (uint32_t id = 1; id <= plan.assignments; ++id) _WriteAssignment(out, dice, plan, id, order);
  out << "  </assignment-list>\n</class>\n";
}

std::string ClassXml(const std::vector<std::string>& studentIDs,
                     const std::vector<NamedAssignment>& assignments) {
  std::ostringstream xml;
  const auto count = [](const auto& items) { return static_cast<uint32_t>(items.size()); };
  WriteClassFile(xml, {count(studentIDs), count(assignments), 1, 1, studentIDs, assignments});
  return xml.str();
}

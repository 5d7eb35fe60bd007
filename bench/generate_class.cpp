// Writes a large class file to standard output, to measure readers and writers with.
//
//   generate_class STUDENTS ASSIGNMENTS QUESTIONS [SEED]
//
// Every student takes every assignment and answers every question. The same arguments give the same bytes on
// every platform: chance comes from the Mersenne Twister, whose sequence the C++ standard fixes, and from
// nothing of the library's distributions or `std::shuffle`.
#include <array>
#include <charconv>
#include <cstdint>
#include <cstdlib>
#include <iostream>
#include <numeric>
#include <optional>
#include <random>
#include <span>
#include <string_view>
#include <system_error>
#include <utility>
#include <vector>

namespace {

struct Size {
  uint32_t students, assignments, questions, seed;
};

constexpr uint32_t kMaxCount = 10'000'000;
constexpr const char* kUsage =
    "usage: generate_class STUDENTS ASSIGNMENTS QUESTIONS [SEED]\n"
    "Writes a class file to standard output. The counts go from 0 to 10000000; SEED is 1 if not given.\n";

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
void _WriteStudent(std::ostream& out, Dice& dice, uint32_t id) {
  out << "<student id=\"" << id << "\">\n";
  _WriteText(out, "first-name", dice.Pick(kFirstNames));
  _WriteText(out, "last-name", dice.Pick(kLastNames));
  _WriteText(out, "student-id", 100'000'000 + id);
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

void _WriteResults(std::ostream& out, Dice& dice, const Size& size, uint32_t assignment, uint32_t student) {
  out << "<results id=\"" << student << "\">\n";
  _WriteText(out, "num-attempts", "1");
  out << "<response-list>\n";
  for (uint32_t number = 1; number <= size.questions; ++number) _WriteResponse(out, dice, assignment, number);
  out << "</response-list>\n</results>\n";
}

void _WriteAssignment(std::ostream& out, Dice& dice, const Size& size, uint32_t id,
                      std::vector<uint32_t>& order) {
  out << "    <assignment id=\"" << id << "\">\n";
  _WriteText(out, "assignment-name", "Quiz ", id);
  _WriteText(out, "assignment-id", "A", id);
  _WriteText(out, "category", "Quizzes");
  _WriteText(out, "online-id", 7000 + id);
  _WriteText(out, "assignment-date", "2023-10-12");
  _WriteText(out, "points-possible", size.questions);
  out << "      <question-list>\n";
  for (uint32_t number = 1; number <= size.questions; ++number) _WriteQuestion(out, id, number);
  out << "      </question-list>\n      <results-list>\n";
  dice.Shuffle(order);
  for (const uint32_t student : order) _WriteResults(out, dice, size, id, student);
  out << "      </results-list>\n    </assignment>\n";
}

void _WriteClass(std::ostream& out, const Size& size) {
  Dice dice(size.seed);
  out << "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<class>\n  <preferences>\n";
  _WriteText(out, "custom-1", "Login");
  _WriteText(out, "custom-2", "E-mail");
  _WriteText(out, "custom-3", "Homeroom");
  out << "  </preferences>\n  <student-list>\n";
  for (uint32_t id = 1; id <= size.students; ++id) _WriteStudent(out, dice, id);
  out << "  </student-list>\n  <assignment-list>\n";
  std::vector<uint32_t> order(size.students);
  std::iota(order.begin(), order.end(), 1U);
  for (uint32_t id = 1; id <= size.assignments; ++id) _WriteAssignment(out, dice, size, id, order);
  out << "  </assignment-list>\n</class>\n";
}

std::optional<uint32_t> _ParseNumber(std::string_view text, uint32_t limit) {
  uint32_t number = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (error != std::errc() || end != text.data() + text.size() || number > limit) return std::nullopt;
  return number;
}

std::optional<Size> _ParseArguments(int argc, char** argv) {
  if (argc != 4 && argc != 5) return std::nullopt;
  const auto students = _ParseNumber(argv[1], kMaxCount);
  const auto assignments = _ParseNumber(argv[2], kMaxCount);
  const auto questions = _ParseNumber(argv[3], kMaxCount);
  const auto seed = argc == 5 ? _ParseNumber(argv[4], UINT32_MAX) : 1U;
  if (!students || !assignments || !questions || !seed) return std::nullopt;
  return Size{*students, *assignments, *questions, *seed};
}

}  // namespace

int main(int argc, char** argv) {
  const std::optional<Size> size = _ParseArguments(argc, argv);
  if (!size) {
    std::cerr << kUsage;
    return 2;
  }
  std::ios::sync_with_stdio(false);
  static std::array<char, 1 << 20> buffer;  // std::cout outlives this function
  std::cout.rdbuf()->pubsetbuf(buffer.data(), buffer.size());
  _WriteClass(std::cout, *size);
  if (std::cout.flush()) return EXIT_SUCCESS;
  std::cerr << "generate_class: cannot write\n";
  return EXIT_FAILURE;
}

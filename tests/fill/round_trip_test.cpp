// Fills downloads as each system writes them, reads the files for upload back and compares cell by cell.
#include <algorithm>
#include <cmath>
#include <functional>
#include <map>
#include <random>

#include "Export/ClassFile.h"
#include "FillFixture.h"
#include "Systems/Systems.h"

namespace {

using Cells = std::vector<std::string>;

struct Member {
  std::string first, last, id;
};

struct Item {
  std::string title;
  int32_t points;
};

struct Course {
  std::vector<Member> members;
  std::vector<Item> items;
  std::vector<Cells> scores;  // by member, then by item
};

// How a system writes its gradebook.
struct Recipe {
  const char* name;
  const LearningSystem* system;
  TableStyle style;
  bool quotesAll;
  Cells leading;  // headings
  std::function<Cells(const Member&, size_t)> who;
  std::function<std::string(const Item&, size_t)> heading;
  const char* total;
  const char* noScore = "";
  Cells trailing = {};  // headings
  bool hasPointsRow = false;
};

std::string _Number(size_t number) {
  return std::to_string(number);
}

const Recipe kRecipes[] = {
    {"Canvas",
     &kCanvasSystem,
     {TextEncoding::kUtf8WithBom, ',', false},
     false,
     {"Student", "ID", "SIS User ID", "SIS Login ID", "Section", "Notes"},
     [](const Member& who, size_t i) {
       return Cells{who.last + ", " + who.first, _Number(900 + i), who.id, "login" + who.id, "A, B", "x"};
     },
     [](const Item& item, size_t i) { return item.title + " (" + _Number(40 + i) + ")"; },
     "Final Score",
     "",
     {},
     true},
    {"Canvas, semicolons",
     &kCanvasSystem,
     {TextEncoding::kUtf8, ';', true},
     true,
     {"LastName", "FirstName", "ID", "SIS User ID", "Section"},
     [](const Member& who, size_t i) {
       return Cells{who.last, who.first, _Number(900 + i), who.id, "A;B"};
     },
     [](const Item& item, size_t i) { return item.title + " (" + _Number(40 + i) + ")"; },
     "Quizzes Current Points",
     "N/A"},
    {"Moodle",
     &kMoodleSystem,
     {TextEncoding::kUtf8, '\t', false},
     false,
     {"First name", "Last name", "ID number", "Email address"},
     [](const Member& who, size_t) {
       return Cells{who.first, who.last, who.id, who.id + "@example.org"};
     },
     [](const Item& item, size_t i) { return (i % 2 == 0 ? "" : "Quiz: ") + item.title + " (Real)"; },
     "Course total (Real)",
     "-",
     {"Last downloaded from this course"}},
    {"Sakai",
     &kSakaiSystem,
     {TextEncoding::kLatin1, ';', true},
     true,
     {"Student ID", "Name"},
     [](const Member& who, size_t) {
       return Cells{who.id, who.last + ", " + who.first};
     },
     [](const Item& item, size_t) {
       return item.title + " [" + _Number(static_cast<size_t>(item.points)) + "]";
     },
     "# Total [100]"},
    {"Blackboard",
     &kBlackboardSystem,
     {TextEncoding::kUtf16LE, '\t', true},
     true,
     {"Last Name", "First Name", "Username", "Student ID", "Availability"},
     [](const Member& who, size_t i) {
       return Cells{who.last, who.first, _Number(i), who.id, "Yes"};
     },
     [](const Item& item, size_t i) {
       return item.title + " [Total Pts: " + _Number(static_cast<size_t>(item.points)) + " Score] |" +
              _Number(7 + i);
     },
     "Weighted Total [Total Pts: up to 0 Percentage] |3"},
    {"Brightspace",
     &kBrightspaceSystem,
     {TextEncoding::kUtf8, ',', false},
     false,
     {"OrgDefinedId", "Username", "Last Name", "First Name"},
     [](const Member& who, size_t) {
       return Cells{"#" + who.id, "#" + who.first, who.last, who.first};
     },
     [](const Item& item, size_t) {
       return item.title + " Points Grade <Numeric MaxPoints:" + _Number(static_cast<size_t>(item.points)) +
              " Weight:1>";
     },
     "Calculated Final Grade Numerator",
     "",
     {"End-of-Line Indicator"}},
};

std::string _Download(const Recipe& recipe, const Course& course) {
  std::string text;
  const auto add = [&text, &recipe](const Cells& cells) {
    for (size_t i = 0; i < cells.size(); ++i) {
      if (i > 0) text += recipe.style.separator;
      AppendCell(&text, cells[i], recipe.quotesAll, recipe.style.separator);
    }
    text += recipe.style.carriageReturns ? "\r\n" : "\n";
  };
  Cells headings = recipe.leading;
  for (size_t i = 0; i < course.items.size(); ++i) headings.push_back(recipe.heading(course.items[i], i));
  headings.emplace_back(recipe.total);
  headings.insert(headings.end(), recipe.trailing.begin(), recipe.trailing.end());
  add(headings);
  if (recipe.hasPointsRow) {
    Cells points(recipe.leading.size());
    points[0] = "    Points Possible";
    for (const Item& item : course.items) points.push_back(std::to_string(item.points));
    points.emplace_back("(read only)");
    add(points);
  }
  for (size_t i = 0; i < course.members.size(); ++i) {
    Cells cells = recipe.who(course.members[i], i);
    cells.insert(cells.end(), course.scores[i].begin(), course.scores[i].end());
    cells.emplace_back("55");
    cells.insert(cells.end(), recipe.trailing.size(), "#");
    add(cells);
  }
  return std::string(ByteOrderMark(recipe.style.encoding)) + EncodeText(text, recipe.style.encoding);
}

// The result of ours for the member and the item, judged by nothing but equal texts.
class Truth {
 public:
  Truth(const ExportSubject& subject, const Course& course) : m_subject(subject), m_course(course) {
    for (size_t i = 0; i < subject.texts.Record().students.size(); ++i) ++m_count[subject.Identifier(i)];
    for (size_t i = 0; i < m_count.size(); ++i) m_count.erase("");
    for (size_t i = 0; i < subject.texts.Record().students.size(); ++i) m_student[subject.Identifier(i)] = i;
    for (size_t i = 0; i < subject.titles.size(); ++i) m_assignment[subject.titles[i]] = i;
  }

  bool IsFilled(size_t item) const { return m_assignment.contains(m_course.items[item].title); }

  std::optional<double> Score(size_t member, size_t item) const {
    const std::string& id = m_course.members[member].id;
    if (!m_count.contains(id) || m_count.at(id) != 1 || !IsFilled(item)) return {};
    return m_subject.scores.Find(m_student.at(id), m_assignment.at(m_course.items[item].title));
  }

  bool HasRow(size_t member) const {
    for (size_t item = 0; item < m_course.items.size(); ++item) {
      if (Score(member, item)) return true;
    }
    return false;
  }

 private:
  const ExportSubject& m_subject;
  const Course& m_course;
  std::map<std::string, size_t> m_count, m_student, m_assignment;
};

// Compares the file for upload with the download, cell by cell. Returns how many results of ours it has.
size_t _Compare(const Recipe& recipe, const Course& course, const Truth& truth, const Gradebook& before,
                const std::string& uploadBytes, bool onlyEmpty) {
  EXPECT_TRUE(uploadBytes.starts_with(ByteOrderMark(recipe.style.encoding)));
  const Gradebook after = Parsed(uploadBytes, recipe.system);
  EXPECT_EQ(after.table.style.encoding, recipe.style.encoding);
  EXPECT_EQ(after.table.style.separator, recipe.style.separator);
  EXPECT_EQ(after.table.style.carriageReturns, recipe.style.carriageReturns);

  std::vector<size_t> columns;  // of the download that have to be there, and these only
  std::map<size_t, size_t> itemOf;
  for (size_t column = 0; column < before.columns.size(); ++column) {
    const bool isItem =
        column >= recipe.leading.size() && column < recipe.leading.size() + course.items.size();
    const ColumnRole role = before.columns[column].role;
    EXPECT_EQ(role == ColumnRole::kItem, isItem) << before.Heading(column);
    if (isItem) itemOf[column] = column - recipe.leading.size();
    const bool isFilled = isItem && truth.IsFilled(itemOf[column]);
    if (isFilled || role == ColumnRole::kIdentifier || role == ColumnRole::kName ||
        role == ColumnRole::kIdentity) {
      columns.push_back(column);
    }
  }
  EXPECT_EQ(after.columns.size(), columns.size());

  size_t results = 0;
  size_t row = 0;
  const auto compare = [&](size_t beforeRow, size_t member) {
    for (size_t i = 0; i < columns.size(); ++i) {
      const DelimitedTable::Cell old = before.table.At(beforeRow, columns[i]);
      const DelimitedTable::Cell now = after.table.At(row, i);
      EXPECT_EQ(now.quoted, old.quoted);
      std::optional<double> ours;
      if (member != SIZE_MAX && itemOf.contains(columns[i])) ours = truth.Score(member, itemOf[columns[i]]);
      if (ours) ++results;
      if (!ours || (onlyEmpty && before.HasScore(beforeRow, columns[i]))) {
        EXPECT_EQ(now.text, old.text) << "row " << row << ", column " << i;
      } else {
        EXPECT_EQ(after.Score(row, i), ours) << now.text;
      }
    }
    ++row;
  };
  for (const size_t header : before.headerRows) compare(header, SIZE_MAX);
  for (size_t member = 0; member < course.members.size(); ++member) {
    if (!truth.HasRow(member)) continue;
    const auto [begin, end] = std::pair(itemOf.begin(), itemOf.end());
    const size_t beforeRow = before.members[member].row;
    const bool hasOurs = std::any_of(begin, end, [&](const auto& each) {
      return truth.Score(member, each.second) &&
             (!onlyEmpty || !before.HasScore(beforeRow, each.first) ||
              before.Score(beforeRow, each.first) == truth.Score(member, each.second));
    });
    if (hasOurs) compare(beforeRow, member);
  }
  EXPECT_EQ(after.table.RowCount(), row);
  return results;
}

void _Check(const Recipe& recipe, const Course& course, const ExportSubject& subject, bool onlyEmpty,
            size_t* results) {
  const Gradebook gradebook = Parsed(_Download(recipe, course));
  ASSERT_EQ(gradebook.system, recipe.system);
  ASSERT_EQ(gradebook.members.size(), course.members.size());
  FillChoices choices;
  choices.onlyEmpty = onlyEmpty;
  const FillPlan plan = PlanFill(subject, gradebook, choices);
  if (plan.IsNothingMatched()) return;
  const std::string upload = Written(plan);
  if (!std::ranges::any_of(plan.cells, &FillCell::IsWritten)) return;
  *results += _Compare(recipe, course, Truth(subject, course), gradebook, upload, onlyEmpty);
}

class Random {
 public:
  explicit Random(uint32_t seed) : m_engine(seed) {}
  size_t Below(size_t limit) { return m_engine() % limit; }
  bool OneIn(size_t count) { return Below(count) == 0; }

 private:
  std::mt19937 m_engine;
};

// Titles that need quotes, or letters beyond ASCII.
const char* const kTitles[] = {"Quiz 1",   "Essay, long", "Lab \"A\"", "Práctica",
                               "Uno; dos", "quiz 2",      "=Sum"};

Course _RandomCourse(const Recipe& recipe, Random* random) {
  Course course;
  const size_t members = 1 + random->Below(9);
  for (size_t i = 0; i < members; ++i) {
    course.members.push_back(
        {"Zoë " + _Number(i), random->OneIn(3) ? "O\"Neil, Jr" : "Lee", "u" + _Number(i)});
    course.scores.emplace_back();
  }
  for (const char* title : kTitles) {
    if (random->OneIn(3)) continue;
    course.items.push_back({title, static_cast<int32_t>(5 + random->Below(3) * 5)});
    for (Cells& scores : course.scores) {
      const std::string mark = recipe.system == &kSakaiSystem ? "," : ".";
      scores.push_back(random->OneIn(3) ? recipe.noScore : _Number(random->Below(9)) + mark + "50");
    }
  }
  return course;
}

TestClass _RandomClass(const Course& course, Random* random) {
  TestClass made;
  for (const Member& member : course.members) {
    if (random->OneIn(6)) made.AddStudent("Some", "Body", random->OneIn(2) ? "" : "x" + member.id);
    if (!random->OneIn(5)) made.AddStudent("Zo", "Lee", member.id);
    if (random->OneIn(12)) made.AddStudent("Dou", "Ble", member.id);
  }
  std::ranges::shuffle(made.record.students, std::mt19937(static_cast<uint32_t>(random->Below(99))));
  for (size_t i = 0; i < made.record.students.size(); ++i)
    made.record.students[i].id = static_cast<int32_t>(i) + 1;
  for (const char* title : kTitles) {
    if (random->OneIn(4)) continue;
    std::vector<Score> scores;
    for (size_t i = 0; i < made.record.students.size(); ++i) {
      scores.push_back(random->OneIn(3) ? Score() : static_cast<double>(random->Below(40)) / 4);
    }
    made.AddAssignment("8-bit", 10, scores);
    made.originals.KeepAssignment(made.record.assignments.size() - 1, qz::AssignmentText::kName, title);
  }
  return made;
}

TEST(RoundTrip, RandomClassesInEverySystemsDownload) {
  for (const Recipe& recipe : kRecipes) {
    size_t results = 0;
    for (uint32_t seed = 1; seed <= 150; ++seed) {
      SCOPED_TRACE(std::string(recipe.name) + ", seed " + std::to_string(seed));
      Random random(seed);
      const Course course = _RandomCourse(recipe, &random);
      const TestClass made = _RandomClass(course, &random);
      _Check(recipe, course, made.Subject(*recipe.system, Dialect::kFilled), seed % 3 == 0, &results);
      if (HasFailure()) return;
    }
    EXPECT_GT(results, 1000U) << recipe.name;
  }
}

// Every result of the samples has its place.
TEST(RoundTrip, SamplesInEverySystemsDownload) {
  for (const char* sample : {"secondary-school", "village-school", "college-lecture"}) {
    ClassFile file = ReadClassFile(std::string(SAMPLES "/") + sample + ".xml");
    ASSERT_TRUE(file.IsRead());
    for (qz::AssignmentRecord& assignment : file.record.assignments) assignment.selected = true;
    for (const Recipe& recipe : kRecipes) {
      SCOPED_TRACE(std::string(sample) + ", " + recipe.name);
      const FormatRow* format = FindFormat(std::string_view(recipe.system->formats.front().key));
      const ExportSubject subject =
          MakeExportSubject(*format, file.Texts(), format->defaultUserIDField, Dialect::kFilled);
      Course course;
      for (const std::string& title : subject.titles) course.items.push_back({title, 10});
      size_t expected = 0;
      for (size_t i = file.record.students.size(); i-- > 0;) {
        if (subject.Identifier(i).empty()) continue;
        const auto text = [&](qz::UserIDField field) {
          return subject.texts.Student(i, qz::FindStudentField(field));
        };
        course.members.push_back(
            {text(qz::kUserIDFirstName), text(qz::kUserIDLastName), subject.Identifier(i)});
        course.scores.emplace_back(course.items.size(), recipe.noScore);
        expected += subject.scores.ScoresOf(i).size();
      }
      size_t results = 0;
      _Check(recipe, course, subject, false, &results);
      EXPECT_EQ(results, expected);
      EXPECT_GT(results, 0U);
    }
  }
}

}  // namespace

// Who is who in a gradebook, what is planned for each cell, and what is left.
#include <cmath>

#include "FillFixture.h"
#include "Systems/Systems.h"

namespace {

const std::string kHead = "Student,ID,SIS User ID,SIS Login ID,Section,";

// Three students, one assignment each has 7 points on.
TestClass _Class(const std::vector<std::string>& ids, const std::vector<std::string>& titles) {
  TestClass made;
  const char* const names[] = {"Ann", "Bob", "Cat"};
  for (size_t i = 0; i < ids.size(); ++i) made.AddStudent(names[i], "Lee", ids[i]);
  for (const std::string& title : titles) made.AddAssignment(title, 10, std::vector<Score>(ids.size(), 7.0));
  return made;
}

std::string _Students(const GradebookMatch& match) {
  std::string text;
  for (size_t i = 0; i < match.students.size(); ++i) {
    text += "ifnhu0csmt"[static_cast<size_t>(match.students[i])];
    if (match.memberOf[i] != GradebookMatch::kNone) text += std::to_string(match.memberOf[i]);
  }
  return text;
}

TEST(GradebookMatch, FindsStudents) {
  const struct {
    const char* name;
    std::vector<std::string> ids;
    bool matchNames;
    std::string members;
    const char* expected;  // i by id, f folded, n by name, h by hand, u unknown, 0 no id, c other case, s
                           // shared, m several, t taken
    std::vector<std::pair<size_t, size_t>> chosen = {};
  } rows[] = {
      {"by the login", {"a", "b", "x"}, false, "\"Lee, Bob\",1,u1,b,A,\n\"Lee, Ann\",2,u2,a,A,\n", "i1i0u"},
      {"most values decide", {"u1", "u2", "b"}, false, ",1,u1,b,A,\n,2,u2,a,A,\n", "i0i1u"},
      {"names on demand",
       {"a", "", "x"},
       true,
       "\"Lee, Bob\",1,u1,q,A,\nAnn Lee,2,u2,a,A,\ncat  LEE,3,,,A,\n",
       "i1n0n2"},
      {"a name twice", {"a", "x", ""}, true, "\"Lee, Bob\",1,u1,q,A,\n\"Lee, Bob\",2,u2,a,A,\n", "i1u0"},
      {"a name whose member is taken", {"a", "x"}, true, "\"Lee, Bob\",1,u1,a,A,\n", "i0u"},
      {"ours share an id", {"a", "a", "b"}, true, "\"Lee, Ann\",1,u1,a,A,\n\"Lee, Bob\",2,u2,b,A,\n", "ssi1"},
      {"theirs share an id",
       {"a", "b"},
       true,
       "\"Lee, Ann\",1,u,a,A,\n\"Lee, Cat\",2,u,a,A,\n,3,u,b,A,\n",
       "mi2"},
      {"leading zeros count", {"007", "7"}, false, "x,1,\"=\"\"007\"\"\",,A,\n", "i0u"},
      {"Canvas's own numbers", {"1", "3"}, false, "\"Lee, Ann\",1,,q,A,\n\"Lee, Bob\",3,,r,A,\n", "i0i1"},
      {"other people's numbers", {"1", "3"}, false, "\"Lee, Eve\",1,,q,A,\n\"Fox, Bob\",3,,r,A,\n", "uu"},
      {"nobody", {"a", ""}, false, "x,1,u1,q,A,\n", "u0"},
      {"by hand", {"a", "x", ""}, false, "p,1,,a,A,\nq,2,,b,A,\nr,3,,c,A,\n", "i0h2h1", {{1, 2}, {2, 1}}},
      {"by hand before the id", {"a", "b"}, false, "p,1,,a,A,\nq,2,,b,A,\n", "th0", {{1, 0}}},
      {"by hand before the id, folded", {"A", "b"}, false, "p,1,,a,A,\nq,2,,b,A,\n", "ch0", {{1, 0}}},
      {"by hand before the name", {"x", "b"}, true, "\"Lee, Ann\",1,,q,A,\ny,2,,b,A,\n", "uh0", {{1, 0}}},
      {"by hand, one of two with an id", {"a", "a"}, false, "p,1,,a,A,\n", "h0s", {{0, 0}}},
      {"a later join holds",
       {"x", "", "z"},
       false,
       "p,1,,a,A,\nq,2,,b,A,\n",
       "u0h0",
       {{0, 0}, {1, 1}, {0, 1}, {2, 0}, {2, 1}, {2, 0}}},
      {"joins of nobody", {"a"}, false, "p,1,,a,A,\n", "i0", {{1, 0}, {0, 1}}},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.name);
    const TestClass made = _Class(row.ids, {});
    const Gradebook gradebook = Parsed(kHead + "Q (1)\n" + row.members);
    const GradebookMatch match = MatchGradebook(made.Subject(kCanvasSystem, Dialect::kFilled), gradebook,
                                                {.matchNames = row.matchNames, .members = row.chosen});
    EXPECT_EQ(_Students(match), row.expected);
  }
}

// Whether a system tells "ANN" from "ann" is its layout's business.
TEST(GradebookMatch, FoldsLetterCaseWhereTheSystemDoes) {
  const TestClass made = _Class({"ANN", "bob", "BOB"}, {});
  Gradebook gradebook = Parsed(kHead + "Q (1)\nx,1,,Ann,A,\ny,2,,bob,A,\n");
  LearningSystem system = *gradebook.system;
  DownloadLayout layout = *system.download;
  system.download = &layout;
  gradebook.system = &system;
  for (const bool folds : {false, true}) {
    layout.foldsIdentifierCase = folds;
    const GradebookMatch match = MatchGradebook(made.Subject(kCanvasSystem, Dialect::kFilled), gradebook, {});
    EXPECT_EQ(_Students(match), folds ? "f0i1s" : "ci1c");
    EXPECT_EQ(match.likeMember[0], 0U);
  }
}

TEST(GradebookMatch, FindsColumns) {
  using Map = std::vector<std::pair<int32_t, std::string>>;
  const struct {
    const char* name;
    std::vector<std::string> titles;
    Map chosen;
    std::string headings;
    const char* expected;  // e exact, f folded, c chosen, n none, r read-only, s shared, m several; faults
  } rows[] = {
      {"exactly before folded", {"Quiz 1", "Essay"}, {}, "QUIZ 1 (1),Quiz 1 (2),essay (3)", "e6f7"},
      {"blanks and case", {"quiz  1 "}, {}, "Quiz 1 (1)", "f5"},
      {"nothing like it", {"Quiz", ""}, {}, "Quiz 1 (1)", "nn"},
      {"several columns", {"Quiz"}, {}, "Quiz (1),Quiz (2)", "m"},
      {"several folded columns", {"Quiz"}, {}, "QUIZ (1),quiz (2)", "m"},
      {"ours twice", {"Quiz", "Quiz", "quiz"}, {}, "Quiz (1)", "sss"},
      {"ours twice but for case", {"Quiz", "quiz"}, {}, "Quiz (1)", "e5s"},
      {"a total", {"Final Score"}, {}, "Quiz (1),Final Score", "r"},
      {"chosen", {"A", "B"}, {{302, "Quiz"}}, "Quiz (1),A (2)", "e6c5"},
      {"chosen, any case", {"A"}, {{301, "QUIZ  1"}}, "Quiz 1 (1)", "c5"},
      {"chosen by the whole heading", {"A"}, {{301, "Quiz (2)"}}, "Quiz (1),Quiz (2)", "c6"},
      {"what is chosen is not guessed", {"A", "Quiz"}, {{301, "Quiz"}}, "Quiz (1)", "c5s"},
      {"faults: unknown assignment", {"A"}, {{300, "Quiz"}}, "Quiz (1)", "n!0"},
      {"faults: an assignment twice", {"A"}, {{301, "Quiz"}, {301, "B"}}, "Quiz (1),B (2)", "c5!1"},
      {"faults: no such title", {"A"}, {{301, "Quizz"}}, "Quiz (1)", "n!2"},
      {"faults: several columns", {"A"}, {{301, "Quiz"}}, "Quiz (1),Quiz (2)", "n!3"},
      {"faults: a total", {"A"}, {{301, "final score"}}, "Quiz (1),Final Score", "n!4"},
      {"faults: one column twice", {"A", "B"}, {{301, "Quiz"}, {302, "Quiz"}}, "Quiz (1)", "c5n!5"},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.name);
    const TestClass made = _Class({"a"}, row.titles);
    const Gradebook gradebook = Parsed(kHead + row.headings + "\nx,1,,a,A\n");
    const GradebookMatch match =
        MatchGradebook(made.Subject(kCanvasSystem, Dialect::kFilled), gradebook, {.titles = row.chosen});
    std::string found;
    for (size_t i = 0; i < match.titles.size(); ++i) {
      found += "efcnrsm"[static_cast<size_t>(match.titles[i])];
      if (match.columnOf[i] != GradebookMatch::kNone) found += std::to_string(match.columnOf[i]);
    }
    for (const ChosenTitleFault& fault : match.titleFaults) {
      found.append("!").append(std::to_string(static_cast<int>(fault.kind)));
    }
    EXPECT_EQ(found, row.expected);
  }
}

TEST(FillPlan, JudgesEachCell) {
  const struct {
    const char* name;
    const char* old;
    Score ours;
    bool onlyEmpty;
    char kind;  // f filled, c changed, s same, k kept, n no number; blank: nothing
    const char* text;
  } rows[] = {
      {"empty", "", 7.5, false, 'f', "7.5"},
      {"no grade", "N/A", 7.5, true, 'f', "7.5"},
      {"another score", "5.00", 7.5, false, 'c', "7.5"},
      {"another score, only empty", "5.00", 7.5, true, 'k', "5.00"},
      {"the same", "7.50", 7.5, false, 's', "7.50"},
      {"the same, only empty", "7.50", 7.5, true, 's', "7.50"},
      {"a word", "EX", 7.5, false, 'c', "7.5"},
      {"a word, only empty", "EX", 7.5, true, 'k', "EX"},
      {"none of ours", "5.00", {}, false, 'k', "5.00"},
      {"neither", "", {}, false, ' ', ""},
      {"zero is a score", "", 0.0, false, 'f', "0"},
      {"no exponent", "", 1234567.0, false, 'f', "1234567"},
      {"no exponent of small ones", "", 0.00001, false, 'f', "0.00001"},
      {"negative", "", -2.5, false, 'f', "-2.5"},
      {"no number", "5.00", NAN, false, 'n', "5.00"},
      {"no number either", "", INFINITY, false, 'n', ""},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.name);
    TestClass made = _Class({"a", "b"}, {});
    made.AddAssignment("Q", 10, {row.ours, 1.0});
    const Gradebook gradebook = Parsed(kHead + "Q (1)\nx,1,,a,A," + row.old + "\ny,2,,b,A,1\n");
    FillChoices choices;
    choices.onlyEmpty = row.onlyEmpty;
    const ExportSubject subject = made.Subject(kCanvasSystem, Dialect::kFilled);
    const FillPlan plan = PlanFill(subject, gradebook, choices);
    EXPECT_EQ(plan.IsSomethingLeftOut(), row.kind == 'n');
    ASSERT_EQ(plan.cells.size(), row.kind == ' ' ? 1U : 2U);
    if (row.kind == ' ') continue;
    EXPECT_EQ("fcskn"[static_cast<size_t>(plan.cells[0].kind)], row.kind);
    EXPECT_EQ(plan.cells[0].oldText, row.old);
    EXPECT_EQ(plan.cells[0].newText, row.text);
    const bool hasRow = row.kind == 'f' || row.kind == 'c' || row.kind == 's';
    EXPECT_EQ(Written(plan), "Student,ID,SIS User ID,SIS Login ID,Section,Q (1)\n" +
                                 (hasRow ? std::string("x,1,,a,A,") + row.text + "\n" : "") + "y,2,,b,A,1\n");
  }
}

TEST(FillPlan, AddsColumnsAndListsTheRest) {
  const Gradebook gradebook = Parsed(kHead +
                                     "Notes,Q (1),Old (2),Final Score\n    Points Possible,,,,,,20,5,(read "
                                     "only)\n\"Lee, Ann\",1,,a,A,hm,,4,9\n"
                                     "\"Fox, Dan\",2,,d,A,,1,1,1\n");
  const TestClass made = _Class({"a", "b"}, {"Q", "New", "notes", "Final Score", "Twin", "twin"});
  const ExportSubject subject = made.Subject(kCanvasSystem, Dialect::kFilled);
  using Positions = std::vector<size_t>;
  for (const bool add : {false, true}) {
    FillChoices choices;
    choices.newColumns = add;
    const FillPlan plan = PlanFill(subject, gradebook, choices);
    EXPECT_EQ(plan.newColumns, add ? Positions{1} : Positions{});
    EXPECT_EQ(plan.unmatchedAssignments, add ? (Positions{2, 3, 4, 5}) : (Positions{1, 2, 3, 4, 5}));
    EXPECT_EQ(plan.unmatchedStudents, Positions{1});
    EXPECT_EQ(plan.unmatchedMembers, Positions{1});
    EXPECT_EQ(plan.unmatchedColumns, Positions{7});
    EXPECT_EQ(plan.differentPoints, Positions{0});
    EXPECT_TRUE(plan.IsSomethingLeftOut());
    EXPECT_FALSE(plan.IsNothingMatched());
    EXPECT_EQ(Written(plan), add ? "Student,ID,SIS User ID,SIS Login ID,Section,Q (1),New\n"
                                   "    Points Possible,,,,,20,10\n\"Lee, Ann\",1,,a,A,7,7\n"
                                 : "Student,ID,SIS User ID,SIS Login ID,Section,Q (1)\n"
                                   "    Points Possible,,,,,20\n\"Lee, Ann\",1,,a,A,7\n");
  }
}

TEST(FillPlan, KnowsWhenNothingIsMatched) {
  const Gradebook gradebook = Parsed(kHead + "Q (1)\nx,1,,a,A,\ny,2,,b,A,3\n");
  const struct {
    const char* name;
    std::vector<std::string> ids;
    const char* title;
    bool nothing;
  } rows[] = {{"nobody", {"c"}, "Q", true},
              {"no column", {"a"}, "R", true},
              {"both", {"a"}, "Q", false},
              {"kept on demand", {"b"}, "Q", false}};
  for (const auto& row : rows) {
    SCOPED_TRACE(row.name);
    const TestClass made = _Class(row.ids, {row.title});
    const ExportSubject subject = made.Subject(kCanvasSystem, Dialect::kFilled);
    FillChoices choices;
    choices.onlyEmpty = true;
    const FillPlan plan = PlanFill(subject, gradebook, choices);
    EXPECT_EQ(plan.IsNothingMatched(), row.nothing);
    EXPECT_EQ(plan.IsSomethingLeftOut(), row.nothing);
  }
}

}  // namespace

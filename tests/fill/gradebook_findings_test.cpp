// What a gradebook tells about an upload: each condition, and its nearest harmless neighbour.
#include "Export/GradebookCheck.h"
#include "FillFixture.h"
#include "Systems/FindingTexts.h"
#include "Systems/GradebookMatch.h"
#include "Systems/Systems.h"
#include "Systems/UploadRules.h"

namespace {

struct Row {
  const char* name;
  const LearningSystem* system;
  Dialect dialect;
  std::vector<std::string> ids;  // of Ann Lee and Bob Lee
  std::string title;             // of the one assignment, with 10 points
  std::vector<Score> scores;
  std::string download;
  std::string expected;  // "code consequence: places" of each finding
};

const std::string kCanvas = "Student,ID,SIS User ID,Section,Quiz (40)\n    Points Possible,,,,10\n";
const std::string kMoodle = "First name,Last name,ID number,Quiz (Real)\n";
const std::string kSakai = "Student ID,Name,Quiz [10]\n";
const std::string kBrightspace =
    "Username,Last Name,First Name,Quiz Points Grade <Numeric MaxPoints:5>,End-of-Line Indicator\n";
const std::string kBlackboard = "Last Name,First Name,Username,Availability,Quiz [Total Pts: 5 Score] |7\n";

constexpr Dialect kClassic = Dialect::kClassic;
constexpr Dialect kCurrent = Dialect::kCurrent;

// clang-format off
const Row kRows[] = {
    {"all in", &kCanvasSystem, kClassic, {"a", "b"}, "Quiz", {7, 0}, kCanvas + "Ann Lee,1,a,A,5\nx,2,b,A,\n",
     ""},
    {"Canvas erases", &kCanvasSystem, kClassic, {"a", "b"}, "Quiz", {7, {}}, kCanvas +
     "y,1,a,A,5\nx,2,b,A,EX\n",
     "gradebook-erased wrong: Bob Lee (b), Quiz: EX\ngradebook-no-result note: Bob Lee (b)\n"},
    {"nothing to erase", &kCanvasSystem, kCurrent, {"a", "b"}, "Quiz", {7, {}}, kCanvas +
     "y,1,a,A,5\nx,2,b,A,N/A\n", "gradebook-no-result note: Bob Lee (b)\n"},
    {"Moodle erases", &kMoodleSystem, kCurrent, {"a", "b"}, "quiz", {7, {}}, kMoodle + "A,L,a,-\nB,L,b,3\n",
     "gradebook-erased wrong: Bob Lee (b), quiz: 3\ngradebook-no-result note: Bob Lee (b)\n"},
    {"Sakai erases when another score changes", &kSakaiSystem, kClassic, {"a", "b"}, "Quiz", {7, {}}, kSakai
     + "a,x,6\nb,y,3\n",
     "gradebook-erased wrong: Bob Lee (b), Quiz: 3\ngradebook-no-result note: Bob Lee (b)\n"},
    {"Sakai erases only then", &kSakaiSystem, kClassic, {"a", "b"}, "Quiz", {7, {}}, kSakai +
     "a,x,7.00\nb,y,3\n", "gradebook-no-result note: Bob Lee (b)\n"},
    {"nothing is claimed of Blackboard", &kBlackboardSystem, kClassic, {"a", "b"}, "Essay", {7, {}},
     kBlackboard + "L,A,a,Yes,5\nL,B,b,Yes,3\n", "gradebook-no-result note: Bob Lee (b)\n"},
    {"Moodle refuses strangers", &kMoodleSystem, kClassic, {"a", "b"}, "Quiz", {7, {}}, kMoodle +
     "A,L,a,-\n", "gradebook-unknown-student refused: Bob Lee (b)\n"},
    {"others lose them", &kSakaiSystem, kClassic, {"a", "b"}, "Quiz", {7, 7}, kSakai + "a,x,\n",
     "gradebook-unknown-student lost: Bob Lee (b)\n"},
    {"who has no result is no loss", &kSakaiSystem, kClassic, {"a", "b"}, "Quiz", {7, {}}, kSakai + "a,x,\n",
     ""},
    {"Canvas knows names", &kCanvasSystem, kClassic, {"a", ""}, "Quiz", {7, 7}, kCanvas +
     "y,1,a,A,\n\"Lee, Bob\",2,,A,\n", ""},
    {"nobody in Sakai", &kSakaiSystem, kClassic, {"a", "b"}, "Quiz", {7, {}}, kSakai + "c,x,\n",
     "gradebook-unknown-student lost: Ann Lee (a)\ngradebook-no-result note: x\n"},
    {"perhaps not in the download of Moodle", &kMoodleSystem, kClassic, {"a", "b"}, "Quiz", {7, 7}, kMoodle +
     "A,L,c,-\n", "gradebook-no-ids note: \n"},
    {"case in Sakai", &kSakaiSystem, kClassic, {"a", "B"}, "Quiz", {7, 7}, kSakai + "a,x,\nb,y,\n",
     "gradebook-id-case lost: Bob Lee (B): b\ngradebook-no-result note: y\n"},
    {"case in Moodle", &kMoodleSystem, kClassic, {"a", "B"}, "Quiz", {7, 7}, kMoodle + "A,L,a,\nB,L,b,\n",
     "gradebook-id-case note: Bob Lee (B): b\ngradebook-no-result note: B L\n"},
    {"a number of Canvas's own", &kCanvasSystem, kClassic, {"012x", "b"}, "Quiz", {7, 7}, kCanvas +
     "Ann Lee,11,012x,A,\nx,12,b,A,\n", "gradebook-id-of-other wrong: Ann Lee (012x): x\n"},
    {"the same in the current file", &kCanvasSystem, kCurrent, {"012x", "b"}, "Quiz", {7, 7}, kCanvas +
     "Ann Lee,11,012x,A,\nx,12,b,A,\n", ""},
    {"her own number", &kCanvasSystem, kClassic, {"11", "b"}, "Quiz", {7, 7}, kCanvas +
     "Ann Lee,11,,A,\nx,12,b,A,\n", ""},
    {"a second column", &kCanvasSystem, kClassic, {"a", "b"}, "QUIZ", {7, 7}, kCanvas +
     "y,1,a,A,5\nx,2,b,A,6\n", "gradebook-second-column wrong: QUIZ: Quiz\n"},
    {"two columns of one title", &kCanvasSystem, kClassic, {"a", "b"}, "Quiz", {7, {}},
     "Student,ID,SIS User ID,Section,Quiz (40),Quiz (41)\n    Points Possible,,,,10,10\ny,1,a,A,5,\nx,2,b,A,6,\n",
     "gradebook-erased wrong: Bob Lee (b), Quiz: 6\ngradebook-no-result note: Bob Lee (b)\n"
     "gradebook-several-columns note: Quiz\n"},
    {"no column at all", &kCanvasSystem, kClassic, {"a", "b"}, "Test", {7, 7}, kCanvas +
     "y,1,a,A,5\nx,2,b,A,6\n", ""},
    {"Moodle's columns are chosen by hand", &kMoodleSystem, kClassic, {"a", "b"}, "QUIZ", {7, 7}, kMoodle +
     "A,L,a,\nB,L,b,\n", ""},
    {"points in Sakai", &kSakaiSystem, kClassic, {"a", "b"}, "Quiz", {7, 7},
     "Student ID,Name,Quiz [20]\na,x,7\nb,y,7\n", "gradebook-points changed: Quiz: 10 / 20\n"},
    {"points in Brightspace", &kBrightspaceSystem, kClassic, {"a", "b"}, "Quiz", {5, 5.5}, kBrightspace +
     "#a,L,A,,#\n#b,L,B,,#\n",
     "gradebook-score-above-points changed: Bob Lee (b), Quiz: 5.5/5\ngradebook-points note: Quiz: 10 / "
     "5\n"},
    {"points in Blackboard", &kBlackboardSystem, kClassic, {"a", "b"}, "Quiz", {5, 5.5}, kBlackboard +
     "L,A,a,Yes,\nL,B,b,Yes,\n", "gradebook-points note: Quiz: 10 / 5\n"},
};
// clang-format on

TEST(GradebookFindings, TellWhatOnlyTheGradebookKnows) {
  for (const Row& row : kRows) {
    SCOPED_TRACE(row.name);
    TestClass made;
    made.AddStudent("Ann", "Lee", row.ids[0]);
    made.AddStudent("Bob", "Lee", row.ids[1]);
    made.AddAssignment(row.title, 10, row.scores);
    const ExportSubject subject = made.Subject(*row.system, row.dialect);
    std::string found;
    for (const Finding& finding : CheckExport(subject, Parsed(row.download, row.system))) {
      // Every finding has its sentences, in both languages.
      for (const TextLanguage language : {TextLanguage::kEnglish, TextLanguage::kSpanish}) {
        const FindingText text = DescribeFinding(finding, subject, language);
        EXPECT_FALSE(text.what.empty() || text.what.find_first_of("{<|>}") != std::string::npos) << text.what;
      }
      EXPECT_STRNE(finding.code, "result-missing");
      EXPECT_STRNE(finding.code, "id-as-user-number");
      if (!std::string_view(finding.code).starts_with("gradebook-")) continue;
      found.append(finding.code).append(" ").append(ConsequenceKey(finding.consequence)).append(": ");
      for (const FindingPlace& place : finding.places) {
        if (&place != &finding.places.front()) found += "; ";
        found += DescribePlace(place, subject);
      }
      found += "\n";
    }
    EXPECT_EQ(found, row.expected);
  }
}

// What is written is judged, not what the class has beside it.
TEST(GradebookFindings, OfAFilledGradebook) {
  TestClass made;
  made.AddStudent("Ann", "Lee", "a");
  made.AddStudent("Bob", "Lee", "b");
  made.AddAssignment("Quiz", 10, {12.0, 11.0});
  made.AddAssignment("Other", 10, {13.0, 13.0});
  const ExportSubject subject = made.Subject(kMoodleSystem, Dialect::kFilled);
  const Gradebook gradebook = Parsed(kMoodle + "A,L,a,-\nB,L,b,5\n");
  FillChoices choices;
  choices.onlyEmpty = true;
  const FillPlan plan = PlanFill(subject, gradebook, choices);
  ASSERT_EQ(plan.findings.size(), 1U);
  ASSERT_EQ(plan.findings[0].places.size(), 1U);
  EXPECT_EQ(DescribePlace(plan.findings[0].places[0], subject), "Ann Lee (a), Quiz: 12/10");
}

}  // namespace

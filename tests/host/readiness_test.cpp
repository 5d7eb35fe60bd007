#include <QComboBox>
#include <QLabel>
#include <QTreeView>
#include <numeric>

#include "Host/App/Choices.h"
#include "Host/Findings/ExportPicker.h"
#include "Host/Findings/FindingMarks.h"
#include "Host/Findings/NameList.h"
#include "Host/Findings/ReadinessPanel.h"
#include "Systems/FindingSentences.h"
#include "Systems/LearningSystem.h"
#include "tests/host/HostFixture.h"

namespace host {

namespace {

struct Pupil {
  const char *firstName, *lastName, *studentID, *alias = "";
};

// Everybody has 5 of 10 points in every assignment.
std::shared_ptr<OpenClass> _Class(const std::vector<Pupil>& pupils, const std::vector<const char*>& titles) {
  auto made = std::make_shared<OpenClass>();
  std::vector<qz::StudentRecord>& students = made->record.students;
  for (const Pupil& pupil : pupils) {
    qz::StudentRecord& student = students.emplace_back();
    student.id = static_cast<int32_t>(students.size());
    student.firstName = pupil.firstName;
    student.lastName = pupil.lastName;
    student.studentID = pupil.studentID;
    student.alias = pupil.alias;
  }
  for (const char* title : titles) {
    qz::AssignmentRecord& assignment = made->record.assignments.emplace_back();
    assignment.id = static_cast<int32_t>(made->record.assignments.size());
    assignment.name = title;
    assignment.pointsPossible = 10;
    for (const qz::StudentRecord& student : students) {
      assignment.results.push_back({.studentID = student.id, .responses = {{1, 0, "", 5}}});
    }
  }
  return made;
}

// Nothing is wrong with it for any system, but that it has no e-mail addresses.
std::shared_ptr<OpenClass> _HealthyClass() {
  return _Class({{"Mia", "Becker", "m12", "mia"}, {"Noah", "Carter", "n7", "noah"}}, {"Quiz 1", "Quiz 2"});
}

std::string _Names(const QComboBox* combo) {
  QStringList names;
  for (int i = 0; i < combo->count(); ++i) names.append(combo->itemText(i));
  return names.join(u'|').toStdString();
}

class ExportPickerTest : public HostTest {
 protected:
  // As after a start of the program.
  void Make() {
    m_picker = std::make_unique<ExportPicker>(nullptr, [this] { ++m_changes; });
    m_picker->SetClass(std::make_shared<OpenClass>());
    m_picker->show();
    m_changes = 0;
  }

  QComboBox* Combo(const char* name) { return m_picker->findChild<QComboBox*>(QLatin1String(name)); }

  // From the box's open list.
  void Choose(const char* name, const char* text, Input input = Input::keys) {
    QComboBox* const combo = Combo(name);
    ASSERT_TRUE(combo->isVisible()) << name;
    const int row = combo->findText(QString::fromUtf8(text));
    combo->showPopup();
    gestures::ChooseFromOpenPopup(combo->currentIndex(), row, input);
    ASSERT_EQ(combo->currentIndex(), row) << text;
  }

  std::unique_ptr<ExportPicker> m_picker;
  int m_changes = 0;
};

TEST_F(ExportPickerTest, OffersWhatWasUsedLastFirstAndRemembersItsField) {
  Make();
  EXPECT_EQ(_Names(Combo("format")),
            "Canvas|Moodle 3.1.2|Blackboard Learn 9.1|Brightspace by D2L|Schoology|Sakai||"
            "Blackboard 8.0 - 9.0|Blackboard 6.0 - 7.0|ANGEL|WebCT Vista");
  EXPECT_EQ(m_picker->Identifier(), qz::kUserIDStudentID);
  Choose("format", "Blackboard 6.0 - 7.0", Input::mouse);
  EXPECT_EQ(m_picker->Identifier(), qz::kUserIDAlias);
  Choose("field", "Last name");
  Choose("format", "Sakai", Input::mouse);
  EXPECT_EQ(m_picker->Identifier(), qz::kUserIDStudentID);
  m_picker->ChooseFormat(*FindFormat("blackboard6"));
  EXPECT_EQ(m_changes, 4);

  Make();
  EXPECT_EQ(_Names(Combo("format")).rfind("Blackboard 6.0 - 7.0|Canvas|", 0), 0U);
  EXPECT_EQ(m_picker->Format().key, std::string("blackboard6"));
  EXPECT_EQ(Combo("field")->currentText(), QStringLiteral("Last name"));

  SetLastFormat(*FindFormat("detailed"));  // which is not offered here, but in the menu
  EXPECT_EQ(FormatsInTeachersOrder().inUse.front()->key, std::string("detailed"));
  Make();
  EXPECT_EQ(m_picker->Format().key, std::string("canvas"));
}

TEST_F(ExportPickerTest, OffersOnlyFilesThatThereAre) {
  const struct {
    const char *format, *dialect;
    char delimiter;  // when semicolons were chosen; 0: there is no choice
  } rows[] = {{"canvas", "Classic file", 0},
              {"canvas", "Current file", ';'},
              {"brightspace", "Current file", 0},
              {"angel", nullptr, 0}};
  Make();
  for (const auto& row : rows) {
    m_picker->ChooseFormat(*FindFormat(row.format));
    EXPECT_EQ(Combo("dialect")->isVisible(), row.dialect != nullptr) << row.format;
    if (row.dialect != nullptr) Choose("dialect", row.dialect);
    EXPECT_EQ(Combo("delimiter")->isVisible(), row.delimiter != 0) << row.format;
    if (row.delimiter != 0) Choose("delimiter", "Semicolons");
    const ExportSubject subject = m_picker->Subject({});
    EXPECT_EQ(subject.delimiter, row.delimiter == 0 ? ',' : row.delimiter) << row.format;
    const bool isClassic = row.dialect == nullptr || row.dialect == std::string("Classic file");
    EXPECT_EQ(subject.dialect, isClassic ? Dialect::kClassic : Dialect::kCurrent) << row.format;
    EXPECT_EQ(subject.throughDialog, isClassic) << row.format;
  }
}

// A line for each mark: place, student or assignment or both, consequence, and the first line of its text.
std::string _Lines(const ProblemMarks& marks) {
  const char* const places[] = {"name", "id", "title", "points"};
  std::string lines;
  for (const auto& [key, mark] : marks) {
    lines += places[static_cast<size_t>(key.place)];
    for (const size_t position : {key.student, key.assignment}) {
      if (position != FindingPlace::kNone) lines += ' ' + std::to_string(position);
    }
    const QString line = mark.text.section(u'\n', 0, 0);
    lines += std::string(" ") + ConsequenceKey(mark.consequence) + ": " + line.toStdString() + '\n';
  }
  return lines;
}

std::string _MarksOf(const OpenClass& openClass, const char* format, qz::UserIDField field) {
  std::vector<size_t> all;
  for (size_t i = 0; i < openClass.record.assignments.size(); ++i) all.push_back(i);
  ExportSubject subject =
      MakeExportSubject(*FindFormat(format), openClass.Texts(), field, Dialect::kClassic, all);
  subject.throughDialog = true;
  return _Lines(MarksOf(CheckExport(subject), subject));
}

TEST(FindingMarks, StandWhereTheProblemIs) {
  const struct {
    const char *name, *format;
    std::vector<Pupil> pupils;
    std::vector<const char*> titles;
    const char* marks;
  } rows[] = {
      {"healthy", "canvas", {{"Mia", "Becker", "m12"}, {"Noah", "Carter", "n7"}}, {"Quiz 1", "Quiz 2"}, ""},
      {"identifiers",
       "schoology",
       {{"Mia", "Becker", "12"}, {"Noah", "Carter", "12"}, {"Lena", "Roth", "012"}, {"Tom", "Hill", ""}},
       {"Quiz"},
       "id 0 wrong: The same in the field “Student ID”: Noah Carter.\n"
       "id 1 wrong: The same in the field “Student ID”: Mia Becker.\n"
       "id 2 note: Nearly the same in the field “Student ID”, but for capitals, blanks or leading zeros: "
       "Mia Becker.\n"
       "id 3 lost: One student has no Schoology User ID. This student's results will not arrive in "
       "Schoology.\n"},
      {"accents",
       "canvas",
       {{"Jos\x8E", "Vega", "a"}, {"Ana", "Gil", "\x8E"}},
       {"R\x8Esum\x8E"},
       "name 0 refused: Canvas refuses the whole file because of letters with accents or signs such as "
       "dashes in "
       "this text.\n"
       "id 1 refused: Canvas refuses the whole file because of letters with accents or signs such as dashes "
       "in "
       "this text.\n"
       "title 0 refused: Canvas refuses the whole file because of letters with accents or signs such as "
       "dashes in "
       "this text.\n"},
      {"accents that do no harm", "schoology", {{"Jos\x8E", "Vega", "\x8E"}}, {"R\x8Esum\x8E"}, ""},
      {"titles",
       "canvas",
       {{"Mia", "Becker", "m12"}},
       {"Essay on the French Revolution", "Quiz, part 2", "Oral presentation on the causes 1",
        "Oral presentation on the causes 2"},
       "title 0 refused: One title has exactly 30 characters. The export window cannot show such a class, so "
       "no "
       "export is possible there.\n"
       "title 1 wrong: There is a comma in one title. Canvas takes it for the next column, so results end up "
       "in "
       "the wrong columns.\n"
       "title 2 wrong: The export window cuts titles to 31 characters, and 2 titles become equal by that.\n"
       "title 3 wrong: The export window cuts titles to 31 characters, and 2 titles become equal by that.\n"},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(_MarksOf(*_Class(row.pupils, row.titles), row.format, qz::kUserIDStudentID), row.marks)
        << row.name;
  }

  const auto above = _HealthyClass();
  above->record.assignments[1].results[0].responses = {{1, 0, "", 10.5}};
  EXPECT_EQ(_MarksOf(*above, "canvas", qz::kUserIDAlias),
            "points 0 1 note: One result is above the points possible.\n");
}

TEST(NameList, NamesAHandful) {
  const auto openClass = _Class(std::vector<Pupil>(8, {"Mia", "Roth", ""}), {});
  openClass->record.students[1].firstName = openClass->record.students[1].lastName = "";
  const struct {
    size_t count;
    const char* names;
  } rows[] = {{0, ""},
              {1, "Mia Roth"},
              {2, "Mia Roth and #2"},
              {6, "Mia Roth, #2, Mia Roth, Mia Roth, Mia Roth and Mia Roth"},
              {7, "Mia Roth, #2, Mia Roth, Mia Roth, Mia Roth and 2 more"}};
  for (const auto& row : rows) {
    std::vector<size_t> students(row.count);
    std::iota(students.begin(), students.end(), size_t{0});
    EXPECT_EQ(StudentNames(students, openClass->Texts()).toStdString(), row.names);
  }
}

// As trouble, every finding about students and assignments is seen in the table, once.
TEST(FindingMarks, NoTroubleIsWithoutAMark) {
  const std::vector<std::string> wholeFile = {
      "no-assignments", "no-students",        "formula",         "id-as-user-number",
      "id-capitals",    "id-digits",          "answer-replaced", "answer-quote",
      "result-missing", "results-off-roster", "new-columns",     "points-replaced",
      "decimal-comma",  "semicolons",         "text-columns",    "totals-offered"};
  const auto openClass = _HealthyClass();
  const ExportSubject subject = MakeExportSubject(*FindFormat("moodle"), openClass->Texts(), qz::kUserIDAlias,
                                                  Dialect::kClassic, {0, 1});
  for (const FindingSentences& sentence : CheckSentences()) {
    const Findings findings = {{sentence.code, Consequence::kWrong, {{0, 1}}, {"1"}}};
    const bool isAboutFile = std::ranges::find(wholeFile, sentence.code) != wholeFile.end();
    EXPECT_EQ(MarksOf(findings, subject).size(), isAboutFile ? 0U : 1U) << sentence.code;
  }
}

class ReadinessTest : public HostTest {
 protected:
  ReadinessTest()
      : m_panel(nullptr, {[this] { ++m_changes; },
                          [this](const std::vector<FindingPlace>& places) { m_chosen = places; }}) {
    m_panel.resize(300, 500);
    m_panel.show();
  }

  QModelIndex Row(int finding) { return m_tree->model()->index(finding, 0); }
  std::string Label(const char* name) {
    const auto* const label = m_panel.findChild<QLabel*>(QLatin1String(name));
    return label->isVisible() ? label->text().toStdString() : "";
  }
  std::vector<size_t> ChosenStudents() {
    std::vector<size_t> students;
    for (const FindingPlace& place : m_chosen) students.push_back(place.student);
    return students;
  }

  int m_changes = 0;
  std::vector<FindingPlace> m_chosen;
  ReadinessPanel m_panel;
  QTreeView* m_tree = m_panel.findChild<QTreeView*>(QStringLiteral("findings"));
};

TEST_F(ReadinessTest, LeadsToThePlacesOfAFinding) {
  std::vector<Pupil> pupils(23, {"Mia", "Becker", ""});
  pupils.push_back({"Noah", "Carter", "n7"});
  m_panel.SetClass(_Class(pupils, {"Quiz"}));
  m_panel.ChooseFormat(*FindFormat("schoology"));
  ASSERT_EQ(m_tree->model()->rowCount(Row(0)), 21);
  EXPECT_TRUE(Row(0).data().toString().startsWith(QStringLiteral("Something will not arrive\n23 students")));

  gestures::ClickRow(m_tree, 0);
  EXPECT_EQ(m_chosen.size(), 23U);
  m_tree->setFocus();
  QTest::keyClick(m_tree, Qt::Key_Return);
  EXPECT_EQ(m_chosen.size(), 23U);
  const struct {
    int downs;
    std::vector<size_t> students;
  } rows[] = {{2, {1}}, {19, {20, 21, 22}}};  // the second student, "and 3 more"
  for (const auto& row : rows) {
    for (int i = 0; i < row.downs; ++i) QTest::keyClick(m_tree, Qt::Key_Down);
    QTest::keyClick(m_tree, Qt::Key_Return);
    EXPECT_EQ(ChosenStudents(), row.students);
  }
}

TEST_F(ReadinessTest, FollowsClassChoicesAndLanguage) {
  m_panel.ChooseFormat(*FindFormat("schoology"));
  EXPECT_EQ(m_changes, 0);  // there is no class yet
  m_panel.SetClass(_HealthyClass());
  EXPECT_EQ(m_changes, 1);
  EXPECT_EQ(Label("findingsSummary"), "No problems were found: ready for Schoology.");
  EXPECT_EQ(Label("nothingFound"), "As far as this class tells, its results will arrive in Schoology.");
  EXPECT_TRUE(m_panel.Marks().empty());

  m_panel.ChooseIdentifier(qz::kUserIDCustom1);  // which nobody has
  EXPECT_EQ(m_changes, 2);
  EXPECT_EQ(Label("findingsSummary"), "Problems: 1");
  EXPECT_EQ(m_panel.Marks().size(), 2U);
  SetCurrentLanguage(HostLanguage::kSpanish);
  QCoreApplication::processEvents();
  EXPECT_EQ(m_changes, 3);
  EXPECT_EQ(Label("findingsSummary"), "Problemas: 1");
  EXPECT_TRUE(m_panel.Marks().begin()->second.text.startsWith(QStringLiteral("Un estudiante no tiene")));
  m_panel.SetClass(_Class({}, {}));
  EXPECT_TRUE(Row(0).data().toString().startsWith(QStringLiteral("Conviene saber")));
}

}  // namespace

}  // namespace host

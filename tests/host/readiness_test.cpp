#include <QComboBox>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QTreeView>
#include <numeric>

#include "Host/App/Choices.h"
#include "Host/Findings/BeforeDialog.h"
#include "Host/Findings/ExportPicker.h"
#include "Host/Findings/FieldsPanel.h"
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
  EXPECT_EQ(
      _Names(Combo("format")),
      "Blackboard 6.0 - 7.0|Canvas|Moodle 3.1.2|Blackboard Learn 9.1|Brightspace by D2L|Schoology|Sakai||"
      "Blackboard 8.0 - 9.0|ANGEL|WebCT Vista");
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

class FindingMarksTest : public HostTest {};
class NameListTest : public HostTest {};
class FieldAdviceTest : public HostTest {};

TEST_F(FindingMarksTest, StandWhereTheProblemIs) {
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

TEST_F(NameListTest, NamesAHandful) {
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
TEST_F(FindingMarksTest, NoTroubleIsWithoutAMark) {
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
  m_chosen.clear();
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

TEST_F(FieldAdviceTest, SaysWhetherTheProposedFieldIsRight) {
  const char* const proposal = "The export window for Canvas will propose “Student ID”. ";
  const struct {
    const char* name;
    std::vector<Pupil> pupils;
    const char* rest;
  } rows[] = {
      {"right",
       {{"A", "A", "1", "x"}, {"A", "A", "2", "x"}},
       "It tells everybody apart. It is right if Canvas knows these identifiers."},
      {"one shared, alias better",
       {{"A", "A", "12", "x"}, {"B", "A", "12", "y"}, {"C", "A", "", "z"}},
       "It is filled in for 2 of 3 students, and 2 share “12”. “Student alias” tells everybody apart."},
      {"several shared, alias a little better",
       {{"A", "A", "1", "x"}, {"B", "A", "1", "y"}, {"C", "A", "2", "z"}, {"D", "A", "2"}},
       "It is filled in for 4 of 4 students, and 4 share theirs with another one. “Student alias” is better. "
       "It is "
       "filled in for 3 of 4 students, all different."},
      {"names are no identifiers",
       {{"A", "C", "1"}, {"B", "D", ""}},
       "It is filled in for 1 of 2 students, all different. No other field is better."},
      {"empty", {{"A", "A", ""}, {"B", "A", ""}}, "Nobody has one. No other field is better."},
  };
  for (const auto& row : rows) {
    const auto openClass = _Class(row.pupils, {});
    EXPECT_EQ(DescribeProposal(JudgeFields(openClass->Texts()), *FindFormat("canvas")).toStdString(),
              std::string(proposal) + row.rest)
        << row.name;
  }
}

class FieldsPanelTest : public HostTest {
 protected:
  FieldsPanelTest()
      : m_panel(nullptr, {[this](qz::UserIDField field) { Take(field); },
                          [this](const std::vector<FindingPlace>& places) { m_places = places; }}) {
    m_panel.resize(300, 600);
    m_panel.show();
  }

  // As the main window does.
  void Take(qz::UserIDField field) {
    m_taken = field;
    m_panel.Show(m_class, *FindFormat("canvas"), field);
  }

  // The field's rows, those of its problems behind a blank.
  std::string RowsOf(int field) {
    const QModelIndex index = m_tree->model()->index(field, 0);
    std::string rows = index.data().toString().toStdString();
    for (int i = 0; i < m_tree->model()->rowCount(index); ++i) {
      rows += "\n " + m_tree->model()->index(i, 0, index).data().toString().toStdString();
    }
    return rows;
  }
  QPoint At(int field, int problem) {
    const QModelIndex index = m_tree->model()->index(field, 0);
    return m_tree->visualRect(problem < 0 ? index : m_tree->model()->index(problem, 0, index)).center();
  }
  std::vector<size_t> Students() {
    std::vector<size_t> students;
    for (const FindingPlace& place : m_places) students.push_back(place.student);
    return students;
  }

  std::shared_ptr<OpenClass> m_class;
  qz::UserIDField m_taken{};
  std::vector<FindingPlace> m_places;
  FieldsPanel m_panel;
  QTreeView* m_tree = m_panel.findChild<QTreeView*>(QStringLiteral("fields"));
  QPushButton* m_take = m_panel.findChild<QPushButton*>(QStringLiteral("takeField"));
};

TEST_F(FieldsPanelTest, ShowsEveryFieldAndWhatIsWrongWithIt) {
  m_class = _Class({{"Mia", "Becker", "12", "mia"},
                    {"Noah", "Carter", "12", "noah"},
                    {"Lena", "Roth", "012", "lena"},
                    {"Tom", "Hill", "", "tom"}},
                   {});
  m_class->record.customLabels[0] = "E-mail";
  m_panel.Show(m_class, *FindFormat("canvas"), qz::kUserIDAlias);
  EXPECT_EQ(m_tree->model()->rowCount(), 7);
  EXPECT_EQ(RowsOf(2),
            "Student ID (proposed)\n3 of 4 filled in, 1 shared value, 1 nearly the same\nExample: 12\n"
            " Without: Tom Hill\n “12”: Mia Becker and Noah Carter\n Nearly the same: “12” and “012”");
  EXPECT_EQ(RowsOf(3), "Student alias (chosen)\n4 of 4 filled in, all different\nExample: mia");
  EXPECT_EQ(RowsOf(4), "E-mail\nNobody has one");
  EXPECT_FALSE(m_take->isEnabled());  // the current field is the chosen one

  QTest::mouseClick(m_tree->viewport(), Qt::LeftButton, {}, At(2, 1));
  EXPECT_EQ(Students(), (std::vector<size_t>{0, 1}));
  QTest::mouseClick(m_tree->viewport(), Qt::LeftButton, {}, At(0, -1));
  QTest::mouseDClick(m_tree->viewport(), Qt::LeftButton, {}, At(0, -1));
  EXPECT_EQ(m_taken, qz::kUserIDFirstName);
  EXPECT_EQ(RowsOf(0).substr(0, 19), "First name (chosen)");
  EXPECT_FALSE(m_take->isEnabled());

  m_panel.setFocus();
  QTest::keyClick(m_tree, Qt::Key_Down);
  QTest::keyClick(m_tree, Qt::Key_Return);
  EXPECT_EQ(m_taken, qz::kUserIDLastName);
  for (int i = 0; i < 2; ++i) QTest::keyClick(m_tree, Qt::Key_Down);
  QTest::keyClick(m_tree, Qt::Key_Return);
  EXPECT_EQ(Students(), std::vector<size_t>{3});
  EXPECT_EQ(m_taken, qz::kUserIDLastName);
  QTest::keyClick(m_take, Qt::Key_Space);  // of the field above the problem
  EXPECT_EQ(m_taken, qz::kUserIDStudentID);

  gestures::ClickRow(m_tree, 3);
  QTest::mouseClick(m_take, Qt::LeftButton);
  EXPECT_EQ(m_taken, qz::kUserIDAlias);

  m_panel.Show(m_class, *FindFormat("moodle"), qz::kUserIDStudentID);
  SetCurrentLanguage(HostLanguage::kSpanish);
  QCoreApplication::processEvents();
  EXPECT_EQ(RowsOf(2).substr(0, 62), "Id. de estudiante (elegido)\n3 de 4 rellenos, 1 valor compartid");
  EXPECT_EQ(RowsOf(4), "E-mail (propuesto)\nNadie tiene uno");
  EXPECT_EQ(m_tree->currentIndex().row(), 3);
}

TEST_F(FieldsPanelTest, GathersManyGroupsInOneRow) {
  std::vector<Pupil> pupils;
  for (const char* id : {"a", "b", "c", "d", "e", "f", "g"}) pupils.insert(pupils.end(), 2, {"", "", id});
  m_panel.Show(_Class(pupils, {}), *FindFormat("canvas"), qz::kUserIDStudentID);
  ASSERT_EQ(m_tree->model()->rowCount(m_tree->model()->index(2, 0)), 6);
  QTest::mouseClick(m_tree->viewport(), Qt::LeftButton, {}, At(2, 5));  // "and 2 more"
  EXPECT_EQ(Students(), (std::vector<size_t>{10, 11, 12, 13}));
}

enum class Answer { kNone, kOpen, kHere };

class BeforeDialogTest : public HostTest {
 protected:
  void Tell(const OpenClass& openClass, const char* format = "canvas") {
    m_answer = Answer::kNone;
    TellBeforeDialog(&m_parent, openClass, *FindFormat(format),
                     {[this] { m_answer = Answer::kOpen; }, [this] { m_answer = Answer::kHere; }});
  }

  QWidget m_parent;
  Answer m_answer{};
};

TEST_F(BeforeDialogTest, SaysWhatTheDialogWillNotSay) {
  const Pupil mia{"Mia", "Becker", "12", "mia"};
  const std::vector<Pupil> two = {mia, {"Noah", "Carter", "7", "noah"}};
  const char* const exactly30 = "Essay on the French Revolution";
  const char* const equal1 = "Oral presentation on the causes 1";
  const char* const equal2 = "Oral presentation on the causes 2";
  const struct {
    const char* name;
    std::vector<Pupil> pupils;
    std::vector<const char*> titles;
    const char* heading;  // null: silence
    std::vector<const char*> parts;
  } rows[] = {
      {"healthy", two, {"Quiz 1", "Quiz 2"}, nullptr, {}},
      {"one without", {mia, {"Tom", "Hill", ""}}, {"Quiz"}, nullptr, {}},  // of whom the dialog tells
      {"cut, but different", two, {equal1}, nullptr, {}},
      {"shared and two without",
       {mia, {"Noah", "Carter", "12", "noah"}, {"Lena", "Roth", "", "lena"}, {"Tom", "Hill", "", "tom"}},
       {equal1, equal2},
       "OK in the export window will do nothing.",
       {"It will propose “Student ID”, which does not tell everybody apart.\n“12”: Mia Becker and Noah "
        "Carter\nWithout: Lena Roth and Tom Hill\n“Student alias” tells everybody apart. Choose it there.",
        "2 titles become equal by that.\n“Oral presentation on the causes 1” and “Oral presentation on the "
        "causes "
        "2”\n"}},
      {"equal in the records only",
       {{"Mia", "Becker", "a?"}, {"Noah", "Carter", "a?"}},
       {},
       "OK in the export window will do nothing.",
       {"“a?”: Mia Becker and Noah Carter"}},
      {"nobody has one",
       {{"Mia", "Becker", "", "mia"}},
       {"Quiz"},
       "The export window will not export anything.",
       {"It will propose “Student ID”, which nobody has.\n“Student alias” tells"}},
      {"nobody there", {}, {"Quiz"}, "The export window will not export anything.", {"no students"}},
      {"exactly 30",
       {mia, mia},
       {"Quiz", exactly30},
       "The export window cannot open.",
       {"“Essay on the French Revolution”", "An export from here takes titles of any length."}},
      {"equal",
       two,
       {equal1, "Quiz", equal2},
       "The export window will cut titles so that they become equal.",
       {"“Oral presentation on the causes 1” and “Oral"}},
  };
  for (const auto& row : rows) {
    const auto openClass = _Class(row.pupils, row.titles);
    if (row.name == std::string("equal in the records only")) {
      openClass->originals.KeepStudent(0, qz::FindStudentField(qz::kUserIDStudentID), "aж");
    }
    Tell(*openClass);
    QMessageBox* const box = gestures::MessageBox();
    ASSERT_EQ(box != nullptr, row.heading != nullptr) << row.name;
    EXPECT_EQ(m_answer, box == nullptr ? Answer::kOpen : Answer::kNone) << row.name;
    if (box == nullptr) continue;
    EXPECT_EQ(box->text().toStdString(), row.heading) << row.name;
    for (const char* part : row.parts) {
      EXPECT_TRUE(box->informativeText().contains(QString::fromUtf8(part)))
          << row.name << ": " << box->informativeText().toStdString();
    }
    EXPECT_EQ(box->buttons().size(), row.name == std::string("exactly 30") ? 2 : 3) << row.name;
    QTest::keyClick(box, Qt::Key_Escape);
    EXPECT_EQ(m_answer, Answer::kNone) << row.name;
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }

  Tell(*_Class({mia, mia}, {"Quiz"}), "detailed");  // whose dialog has no identifiers
  EXPECT_EQ(m_answer, Answer::kOpen);
}

TEST_F(BeforeDialogTest, DoesWhatIsChosen) {
  const auto openClass = _Class({{"Mia", "Becker", ""}, {"Tom", "Hill", ""}}, {"Quiz"});
  const struct {
    Input input;
    const char* button;
    Answer answer;
  } rows[] = {{Input::mouse, "&Open Anyway", Answer::kOpen},
              {Input::mouse, "Export from &Here…", Answer::kHere},
              {Input::mouse, "Cancel", Answer::kNone},
              {Input::keys, nullptr, Answer::kHere}};
  for (const auto& row : rows) {
    Tell(*openClass);
    QMessageBox* const box = gestures::MessageBox();
    if (row.input == Input::mouse) {
      ClickButton(box, row.button);
    } else {
      gestures::Type(box, Qt::Key_Return);
    }
    EXPECT_EQ(m_answer, row.answer) << (row.button != nullptr ? row.button : "Return");
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }
}

}  // namespace

}  // namespace host

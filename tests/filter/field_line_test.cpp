// The line under the field popup: what it says, and that OK does what it says.
#include <QAccessible>
#include <QLabel>
#include <QToolTip>

#include "bench/ClassGenerator.h"
#include "tests/filter/FilterFixture.h"

namespace {

using FieldLineTest = FilterTest;

TEST_F(FieldLineTest, TellsWhyOKWillStop) {
  using IDs = std::vector<std::string>;
  const struct {
    IDs ids;
    const char *english, *spanish;
    bool stops;
  } rows[] = {
      {{"1", "2"},
       "2 of 2 students have a Student ID.",
       "2 de 2 estudiantes tienen «Id. de estudiante».",
       false},
      {{"1"}, "1 of 1 student has a Student ID.", "1 de 1 estudiante tiene «Id. de estudiante».", false},
      {{"12", "2", "12"},
       "3 of 3 students have a Student ID; Björn Okafor and Björn Okafor share 12. OK stops while two are "
       "equal.",
       "3 de 3 estudiantes tienen «Id. de estudiante»; Björn Okafor comparte 12 con Björn Okafor. Aceptar no "
       "sigue mientras haya dos iguales.",
       true},
      {{"1", "", "12", "12", "2", "12", "2"},
       "6 of 7 students have a Student ID; Björn Okafor, Ann García and 1 more share 12, and 2 other "
       "students "
       "share as well. OK stops while two are equal.",
       "6 de 7 estudiantes tienen «Id. de estudiante»; Björn Okafor comparte 12 con Ann García y 1 más, y "
       "otros 2 "
       "estudiantes también comparten. Aceptar no sigue mientras haya dos iguales.",
       true},
      {{"1", "", ""},
       "1 of 3 students have a Student ID. OK stops while more than one is empty.",
       "1 de 3 estudiantes tienen «Id. de estudiante». Aceptar no sigue mientras haya más de uno vacío.",
       true},
      {{"1", "", "", "1"},
       "2 of 4 students have a Student ID; Björn Okafor and Ann García share 1. OK stops while two are equal "
       "or "
       "more than one is empty.",
       "2 de 4 estudiantes tienen «Id. de estudiante»; Björn Okafor comparte 1 con Ann García. Aceptar no "
       "sigue "
       "mientras haya dos iguales o más de uno vacío.",
       true},
      {{"", ""},
       "0 of 2 students have a Student ID. OK stops; choose another field.",
       "0 de 2 estudiantes tienen «Id. de estudiante». Aceptar no sigue; elija otro campo.",
       true},
      {{},
       "The class has no students, so OK stops.",
       "La clase no tiene estudiantes, así que Aceptar no sigue.",
       true},
      {{"学"},
       "1 of 1 student has a Student ID. In one Blackboard Learn 9.1 Username the file has “?” for a letter",
       "1 de 1 estudiante tiene «Id. de estudiante». En un Blackboard Learn 9.1 Username el archivo tiene "
       "«?»",
       false},
      {{"学", "文"},  // equal to the filter, which knows neither
       "2 of 2 students have a Student ID; Björn Okafor and Ann Müller share ?. OK stops while two are "
       "equal.",
       "2 de 2 estudiantes tienen «Id. de estudiante»; Björn Okafor comparte ? con Ann Müller. Aceptar no "
       "sigue "
       "mientras haya dos iguales.",
       true},
  };
  for (const auto& row : rows) {
    for (const bool spanish : {false, true}) {
      SCOPED_TRACE(row.english);
      const std::string classFile = WriteClass(ClassXml(row.ids));
      const QPointer<QWidget> dialog = Open(kBlackboard91, classFile, kQuiz, spanish);
      const std::string expected = spanish ? row.spanish : row.english;
      EXPECT_EQ(TextOf(dialog, kFieldLine).substr(0, expected.size()), expected);
      chooser.calls.clear();
      Click(dialog, kOK);
      EXPECT_EQ(chooser.calls.empty(), row.stops);
      if (!IsGone(dialog)) Click(dialog, kCancel);
    }
  }
}

TEST_F(FieldLineTest, FollowsTheChoices) {
  const std::string cut(31, 'a');
  const std::string classFile =
      WriteClass(ClassXml({"1", "1"}, {{7, "Quiz, one"}, {8, cut + "b"}, {9, cut + "c"}}));
  const std::string shared =
      "2 of 2 students have a Student ID; Björn Okafor and Ann Müller share 1. OK stops while two are equal.";
  const std::string alias = "2 of 2 students have a Student alias.";
  const struct {
    const char* name;
    std::function<void(QWidget*)> change;
    std::string line;
  } steps[] = {
      {"nothing yet", [](QWidget*) {}, shared},
      {"field by mouse", [](QWidget* dialog) { ChooseRow(dialog, kFieldPopup, 3, Input::mouse); }, alias},
      {"without quotes", [](QWidget* dialog) { Click(dialog, kWithoutQuotes); },
       alias + " There is a comma in one title. Blackboard takes it for the next column, so results end up "
               "in the wrong columns."},
      {"with quotes", [](QWidget* dialog) { Click(dialog, kWithQuotes); }, alias},
      {"one more by mouse", [](QWidget* dialog) { ToggleRow(dialog, kAssignments, 1, Input::mouse); },
       alias + " The export window cuts one title to 31 characters."},
      {"none", [](QWidget* dialog) { Click(dialog, kClearAll); }, alias},
      {"one by keys", [](QWidget* dialog) { ToggleRow(dialog, kAssignments, 2, Input::keys); },
       alias + " The export window cuts one title to 31 characters."},
      {"all", [](QWidget* dialog) { Click(dialog, kSelectAll); },
       alias + " The export window cuts titles to 31 characters, and 2 titles become equal by that."},
      {"field by keys", [](QWidget* dialog) { ChooseRow(dialog, kFieldPopup, 4, Input::keys); },
       "2 of 2 students have “Login” filled in. The export window cuts titles to 31 characters, and 2 titles "
       "become equal by that."},
  };
  const QPointer<QWidget> dialog = Open(kBlackboard91, classFile, kQuiz);
  for (const auto& step : steps) {
    SCOPED_TRACE(step.name);
    step.change(dialog);
    EXPECT_EQ(TextOf(dialog, kFieldLine), step.line);
  }
  QAccessibleInterface* const line = QAccessible::queryAccessibleInterface(Item(dialog, kFieldLine));
  EXPECT_EQ(line->role(), QAccessible::StaticText);
  EXPECT_EQ(line->text(QAccessible::Name).toStdString(), steps[std::size(steps) - 1].line);
  EXPECT_NE(dialog->focusWidget(), Item(dialog, kFieldLine));
  EXPECT_EQ(Finish(dialog, kBlackboard91).find(cut + "b"), std::string::npos) << "what is cut stays cut";
}

TEST_F(FieldLineTest, HasItsWholeTextAsToolTipWhereItIsCut) {
  constexpr int kRest = 700;  // milliseconds until a tool tip
  std::string longID = "id";
  for (int i = 0; i < 30; ++i) longID += " 12345";
  const QPointer<QWidget> dialog = Open(kCanvas, WriteClass(ClassXml({longID, longID})), kQuiz);
  QWidget* const line = Item(dialog, kFieldLine);
  const std::string text = TextOf(dialog, kFieldLine);
  EXPECT_NE(text.find("share " + longID + ". OK stops"), std::string::npos) << text;
  QTest::mouseMove(line, line->rect().center());
  QTest::qWait(kRest);
  EXPECT_EQ(QToolTip::text().toStdString(), "<p>" + text);
  ChooseRow(dialog, kFieldPopup, 3, Input::mouse);
  QTest::mouseMove(line, line->rect().center() + QPoint(1, 1));
  QTest::qWait(kRest);
  EXPECT_FALSE(QToolTip::isVisible());
}

}  // namespace

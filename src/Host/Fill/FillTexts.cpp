#include "Host/Fill/FillTexts.h"

#include <QFileInfo>
#include <QLocale>
#include <QStringList>
#include <algorithm>
#include <iterator>
#include <string_view>

#include "Host/App/Numbers.h"
#include "Host/App/Texts.h"
#include "Host/ClassView/ReadFaultText.h"
#include "Host/ClassView/RomanText.h"
#include "Systems/LearningSystem.h"

namespace host {

namespace {

// The reasons that no number or name stands in. The others are in English.
constexpr const char* kReasons[] = {
    QT_TRANSLATE_NOOP("Texts", "a quote begins here and does not end"),
    QT_TRANSLATE_NOOP("Texts", "a quote (\") stands where none may stand"),
    QT_TRANSLATE_NOOP("Texts", "a zero byte stands in the text"),
    QT_TRANSLATE_NOOP("Texts", "the file is empty"),
    QT_TRANSLATE_NOOP("Texts", "the file is larger than 256 MB"),
    QT_TRANSLATE_NOOP("Texts", "the gradebook has headings, but no students"),
    QT_TRANSLATE_NOOP("Texts",
                      "no column has points; download the gradebook with grades of the type \"Real\""),
    QT_TRANSLATE_NOOP("Texts", "out of memory"),
};

QString _Reason(const TableFault& fault) {
  const auto known =
      std::ranges::find_if(kReasons, [&fault](const char* reason) { return fault.reason == reason; });
  return known != std::end(kReasons) ? Texts::tr(*known) : LineFromUtf8(fault.reason);
}

// Of those whose gradebooks can be read.
QString _SystemNames() {
  QStringList names;
  for (const LearningSystem* system : LearningSystems()) {
    if (system->download != nullptr) names.append(QString::fromUtf8(system->name));
  }
  return names.join(QStringLiteral(", "));
}

GradebookFaultText _ForeignText(const GradebookRead& read, const QString& name) {
  if (read.system == nullptr) {
    return {Texts::tr("“%1” is a gradebook of no system that Gradix knows.").arg(name),
            Texts::tr("Choose the file that you downloaded from %1, just as it was downloaded.")
                .arg(_SystemNames())};
  }
  const QString system = QString::fromUtf8(read.system->name);
  const QString advice =
      Texts::tr("Choose the file that you downloaded from %1, just as it was downloaded.").arg(system);
  if (read.other == nullptr) return {Texts::tr("“%1” is no gradebook of %2.").arg(name, system), advice};
  return {Texts::tr("“%1” is no gradebook of %2, but one of %3.")
              .arg(name, system, QString::fromUtf8(read.other->name)),
          advice};
}

// What cannot be read, and where.
QString _Place(const TableFault& fault, const QString& name) {
  const QLocale locale;
  if (fault.line == 0) return Texts::tr("The gradebook “%1” cannot be used.").arg(name);
  const QString line = locale.toString(qulonglong{fault.line});
  if (fault.column == 0) return Texts::tr("The gradebook “%1” is damaged: line %2.").arg(name, line);
  return Texts::tr("The gradebook “%1” is damaged: line %2, column %3.")
      .arg(name, line, locale.toString(qulonglong{fault.column}));
}

}  // namespace

QString KindWord(FillKind kind) {
  switch (kind) {
    case FillKind::kFilled: return Texts::tr("new");
    case FillKind::kChanged: return Texts::tr("changed");
    case FillKind::kSame: return Texts::tr("same");
    case FillKind::kKept: return Texts::tr("kept");
    case FillKind::kNoNumber: return Texts::tr("left out (no number)");
  }
  return {};
}

QString KindReason(const FillCell& cell, const FillPlan& plan) {
  switch (cell.kind) {
    case FillKind::kFilled: return Texts::tr("The gradebook has no result there yet.");
    case FillKind::kChanged: return Texts::tr("The gradebook has another result there, which is replaced.");
    case FillKind::kSame: return Texts::tr("The gradebook has this result already.");
    case FillKind::kKept:
      return plan.subject->scores.Find(cell.student, cell.assignment)
                 ? Texts::tr("The gradebook has another result there, and only empty cells are filled.")
                 : Texts::tr("The class has no result there, so the gradebook keeps its own.");
    case FillKind::kNoNumber:
      return Texts::tr(
          "The result of the class is no number that can be written; the gradebook keeps its own.");
  }
  return {};
}

QString UnmatchedReason(StudentMatch match) {
  switch (match) {
    case StudentMatch::kNoIdentifier: return Texts::tr("has no identifier in the class");
    case StudentMatch::kLetterCase: return Texts::tr("the identifier differs in upper and lower case");
    case StudentMatch::kSharedIdentifier:
      return Texts::tr("another student of the class has the same identifier");
    case StudentMatch::kSeveralMembers:
      return Texts::tr("several students in the gradebook have the identifier");
    case StudentMatch::kTakenMember:
      return Texts::tr("another student was joined with the one who has the identifier");
    default: return Texts::tr("the identifier is not in the gradebook");
  }
}

QString UnmatchedReason(TitleMatch match) {
  switch (match) {
    case TitleMatch::kReadOnly: return Texts::tr("the column with this title cannot be filled");
    case TitleMatch::kSharedTitle: return Texts::tr("another assignment of the class has this title");
    case TitleMatch::kSeveralColumns: return Texts::tr("several columns have this title");
    default: return Texts::tr("no column has this title");
  }
}

QString TitleFaultText(ChosenTitleFault::Kind kind) {
  using Kind = ChosenTitleFault::Kind;
  switch (kind) {
    case Kind::kUnknownAssignment:
    case Kind::kSeveralAssignments:
      return Texts::tr(
          "Two assignments of the class have the same number, so it is not clear which one is meant.");
    case Kind::kSeveralColumns:
      return Texts::tr(
          "Several columns of the gradebook have this heading, so it is not clear which one is meant.");
    default: return Texts::tr("This column of the gradebook cannot be filled.");
  }
}

QString StudentText(const FillPlan& plan, size_t student) {
  const QString name = LineFromUtf8(plan.subject->texts.StudentName(student)).trimmed();
  const QString identifier = LineFromUtf8(plan.subject->Identifier(student));
  return identifier.isEmpty() ? name : QStringLiteral("%1 (%2)").arg(name, identifier);
}

QString MemberText(const Gradebook& gradebook, size_t member) {
  const CourseMember& who = gradebook.members[member];
  const QString line = Texts::tr("line %1").arg(CountText(gradebook.table.LineOf(who.row)));
  const QString name = LineFromUtf8(who.name).trimmed();
  return name.isEmpty() ? line : QStringLiteral("%1 (%2)").arg(name, line);
}

QString AssignmentTitle(const FillPlan& plan, size_t assignment) {
  return LineFromUtf8(plan.subject->titles[assignment]);
}

QString ColumnText(const Gradebook& gradebook, size_t column) {
  return LineFromUtf8(std::string(gradebook.Heading(column))).trimmed();
}

QString DownloadHint(const LearningSystem* system) {
  const struct {
    std::string_view key;
    const char* text;
  } rows[] = {
      {"canvas", QT_TRANSLATE_NOOP("Texts",
                                   "In Canvas, open the course’s grades and choose Export, then the entire "
                                   "gradebook. Canvas gives you a CSV file.")},
      {"moodle",
       QT_TRANSLATE_NOOP("Texts",
                         "In Moodle, open the course’s grades and choose Export, then the plain text "
                         "file with grades of the type Real.")},
      {"sakai", QT_TRANSLATE_NOOP("Texts",
                                  "In Sakai, open the site’s gradebook, choose Import / Export and export it "
                                  "as a CSV file with the students’ ids.")},
      {"blackboard",
       QT_TRANSLATE_NOOP("Texts",
                         "In Blackboard, open the course’s grades and choose Work Offline, then "
                         "Download. Tab-delimited and CSV files are both right.")},
      {"brightspace",
       QT_TRANSLATE_NOOP("Texts",
                         "In Brightspace, open the course’s grades and choose Export, with the "
                         "points grades, the user names and the end-of-line column as CSV.")},
  };
  for (const auto& row : rows) {
    if (system != nullptr && row.key == system->key) return Texts::tr(row.text);
  }
  return Texts::tr(
             "Download the gradebook from your course, as a file for spreadsheets. It can come from %1.")
      .arg(_SystemNames());
}

GradebookFaultText TextOfFault(const GradebookRead& read) {
  const QString name = QFileInfo(read.path).fileName();
  const TableFault& fault = read.fault;
  if (fault.unreadable) {
    return {
        Texts::tr("The file “%1” could not be opened.").arg(name),
        Texts::tr("%1\n\nCheck that the file is still there and that you may read it.").arg(_Reason(fault))};
  }
  if (read.kind == FileKind::kClass) {
    return {Texts::tr("“%1” is a class file, no gradebook.").arg(name),
            Texts::tr("Choose the gradebook that you downloaded from your course.")};
  }
  const bool isTable = read.kind == FileKind::kTable || read.kind == FileKind::kDownload;
  if (const QString seeming = SeemingText(read.kind); !isTable && !seeming.isEmpty()) {
    return {Texts::tr("“%1” is no gradebook.").arg(name),
            seeming + QLatin1String("\n\n") +
                Texts::tr("Choose the gradebook that you downloaded from your course.")};
  }
  if (fault.foreign) return _ForeignText(read, name);
  return {_Place(fault, name),
          Texts::tr("The reader says: %1.\n\nDownload the gradebook once more, and do not "
                    "save it from a spreadsheet in between.")
              .arg(_Reason(fault))};
}

}  // namespace host

#include "Host/Findings/BeforeDialog.h"

#include <QMessageBox>
#include <QPushButton>
#include <QStringList>
#include <numeric>
#include <optional>
#include <string_view>
#include <utility>
#include <vector>

#include "Export/IdentifierCheck.h"
#include "Host/App/Texts.h"
#include "Host/ClassView/RomanText.h"
#include "Host/Findings/FieldAdvice.h"
#include "Host/Findings/FindingsModel.h"
#include "Host/Findings/NameList.h"
#include "Systems/LearningSystem.h"

namespace host {

namespace {

constexpr size_t kMaxNamedGroups = 3;  // of students with one identifier that are named

struct Warning {
  QString heading;    // what the export window will do
  QString paragraph;  // why, who, and what to do
  bool canOpen = true;
};

// The file as the window makes it at first, of all assignments: it lists and cuts them all.
ExportSubject _SubjectOf(const OpenClass& openClass, const FormatRow& format) {
  std::vector<size_t> all(openClass.record.assignments.size());
  std::iota(all.begin(), all.end(), size_t{0});
  ExportSubject subject = MakeExportSubject(format, openClass.Texts(), format.defaultUserIDField,
                                            Dialect::kClassic, std::move(all));
  subject.throughDialog = true;
  return subject;
}

// The finding's sentences and the titles that it is about; empty when it is not found.
QString _TitleParagraph(const Findings& findings, std::string_view code, const ExportSubject& subject) {
  for (const Finding& finding : findings) {
    if (finding.code != code) continue;
    QStringList titles;
    for (const FindingPlace& place : finding.places) {
      titles.append(Texts::tr("“%1”").arg(LineFromUtf8(subject.texts.AssignmentName(place.assignment))));
    }
    const FindingText text = DescribeFinding(finding, subject, FindingLanguage());
    return QStringList{LineFromUtf8(text.what), NameList(titles), LineFromUtf8(text.advice),
                       Texts::tr("An export from here takes titles of any length.")}
        .join(u'\n');
  }
  return {};
}

// Who shares an identifier, or has none.
QString _GroupLine(const std::vector<size_t>& group, const ExportSubject& subject) {
  const std::string& identifier =
      subject.texts.Record().students[group.front()].GetUserID(subject.identifier);
  const QString names = StudentNames(group, subject.texts);
  return identifier.empty() ? Texts::tr("Without: %1").arg(names)
                            : Texts::tr("“%1”: %2").arg(LineFromRoman(identifier), names);
}

// Empty when there is none.
QString _BetterFieldLine(const ExportSubject& subject) {
  const std::vector<FieldJudgement> fields = JudgeFields(subject.texts);
  const FieldJudgement* const better = BetterField(fields, subject.identifier);
  if (better == nullptr) return {};
  return DescribeBetterField(*better) + u' ' + Texts::tr("Choose it there.");
}

// The window compares the identifiers of all students, and empty ones are equal to it.
std::optional<Warning> _JudgeIdentifiers(const ExportSubject& subject) {
  const IdentifierCheck check = CheckIdentifiers(subject.texts.Record(), subject.identifier);
  if (check.studentCount == 0) {
    return Warning{Texts::tr("The export window will not export anything."),
                   Texts::tr("The class has no students.")};
  }
  if (!check.AllEmpty() && !check.HasDuplicates()) return {};
  const qz::StudentField& field = qz::FindStudentField(subject.identifier);
  const QString title = LineFromUtf8(DescribeField(field, subject.texts, FindingLanguage()));
  QStringList lines;
  if (check.AllEmpty()) {
    lines.append(Texts::tr("It will propose “%1”, which nobody has.").arg(title));
  } else {
    lines.append(Texts::tr("It will propose “%1”, which does not tell everybody apart.").arg(title));
    const size_t groups = check.duplicates.size();
    const size_t named = groups > kMaxNamedGroups + 1 ? kMaxNamedGroups : groups;
    for (size_t i = 0; i < named; ++i) lines.append(_GroupLine(check.duplicates[i], subject));
    if (named < groups) lines.append(Texts::tr("and %L1 more").arg(groups - named));
  }
  lines.append(_BetterFieldLine(subject));
  return Warning{check.AllEmpty() ? Texts::tr("The export window will not export anything.")
                                  : Texts::tr("OK in the export window will do nothing."),
                 lines.join(u'\n').trimmed()};
}

// Worst first. A window that does not open does nothing else.
std::vector<Warning> _Judge(const ExportSubject& subject) {
  const Findings findings = CheckExport(subject);
  const QString impossible = _TitleParagraph(findings, "dialog-title-length", subject);
  if (!impossible.isEmpty()) {
    return {
        {.heading = Texts::tr("The export window cannot open."), .paragraph = impossible, .canOpen = false}};
  }
  std::vector<Warning> warnings;
  if (auto identifiers = _JudgeIdentifiers(subject)) warnings.push_back(*std::move(identifiers));
  const QString equal = _TitleParagraph(findings, "dialog-title-equal", subject);
  if (!equal.isEmpty()) {
    warnings.push_back({Texts::tr("The export window will cut titles so that they become equal."), equal});
  }
  return warnings;
}

QMessageBox* _MakeBox(QWidget* parent, const std::vector<Warning>& warnings) {
  auto* const box = new QMessageBox(parent);
  box->setObjectName(QStringLiteral("beforeDialog"));
  box->setAttribute(Qt::WA_DeleteOnClose);
  box->setIcon(warnings.front().canOpen ? QMessageBox::Warning : QMessageBox::Critical);
  box->setWindowTitle(Texts::tr("Before the Export"));
  box->setTextFormat(Qt::PlainText);
  box->setText(warnings.front().heading);
  QStringList paragraphs(warnings.front().paragraph);
  for (size_t i = 1; i < warnings.size(); ++i) paragraphs.append(warnings[i].paragraph);
  box->setInformativeText(paragraphs.join(QLatin1String("\n\n")));
  box->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  return box;
}

}  // namespace

void TellBeforeDialog(QWidget* parent, const OpenClass& openClass, const FormatRow& format,
                      BeforeDialogHandlers handlers) {
  if (format.IsReport()) return handlers.openDialog();  // a dialog of another kind
  const std::vector<Warning> warnings = _Judge(_SubjectOf(openClass, format));
  if (warnings.empty()) return handlers.openDialog();

  QMessageBox* const box = _MakeBox(parent, warnings);
  const QPushButton* const here = box->addButton(Texts::tr("Export from &Here…"), QMessageBox::AcceptRole);
  const QPushButton* const open =
      warnings.front().canOpen ? box->addButton(Texts::tr("&Open Anyway"), QMessageBox::ActionRole) : nullptr;
  box->setEscapeButton(box->addButton(Texts::tr("Cancel"), QMessageBox::RejectRole));
  QObject::connect(box, &QMessageBox::finished, box, [box, here, open, handlers = std::move(handlers)] {
    const QAbstractButton* const clicked = box->clickedButton();
    if (clicked == here) handlers.exportHere();
    if (clicked != nullptr && clicked == open) handlers.openDialog();
  });
  box->open();
}

}  // namespace host

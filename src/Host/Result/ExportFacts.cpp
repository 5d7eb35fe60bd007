#include "Host/Result/ExportFacts.h"

#include <QFileInfo>
#include <algorithm>
#include <functional>

#include "Host/App/Numbers.h"
#include "Host/App/Texts.h"
#include "Host/ClassView/RomanText.h"
#include "Host/Export/FileNames.h"
#include "Host/Findings/FindingsModel.h"
#include "Systems/FindingTexts.h"
#include "Systems/LearningSystem.h"

namespace host {

namespace {

constexpr size_t kMaxNames = 5;

// "Ana, Ben and 3 more"
QString _List(const std::vector<size_t>& positions, const std::function<std::string(size_t)>& name) {
  // A single one would take no more room than its count.
  const size_t shown = positions.size() <= kMaxNames + 1 ? positions.size() : kMaxNames;
  QStringList names;
  for (size_t i = 0; i < shown; ++i) names.append(LineFromUtf8(name(positions[i])));
  QString list = names.join(QLatin1String(", "));
  if (shown == positions.size()) return list;
  return Texts::tr("%1 and %2 more").arg(list, CountText(positions.size() - shown));
}

// "3 (Ana, Ben, Cleo)"
QString _Counted(const std::vector<size_t>& positions, const std::function<std::string(size_t)>& name) {
  return QStringLiteral("%1 (%2)").arg(CountText(positions.size()), _List(positions, name));
}

class FactWriter {
 public:
  explicit FactWriter(const ExportedFile& file) : m_file(file), m_subject(SubjectOf(file)) {}

  std::vector<ExportFact> Facts() {
    AddKind();
    if (m_subject && m_file.dialect != Dialect::kFilled) AddProblems();
    AddAssignments();
    AddStudents();
    if (m_subject && m_file.dialect != Dialect::kFilled) AddIdentifier();
    AddWithoutIdentifier();
    if (m_subject) AddWithoutResults();
    if (m_file.replacedCharacters > 0) AddReplaced();
    if (m_file.format != nullptr) AddVariant();
    return std::move(m_facts);
  }

 private:
  void Add(const char* key, const char* title, const QString& text, bool isMissing = false) {
    m_facts.push_back({key, Texts::tr(title), text, isMissing});
  }

  QString KindText() const {
    switch (m_file.dialect) {
      case Dialect::kCurrent: return Texts::tr("%1, current file");
      case Dialect::kFilled: return Texts::tr("%1, its own gradebook with your results filled in");
      case Dialect::kClassic: break;
    }
    return Texts::tr("%1, classic file");
  }

  // The classic file is that of one version.
  QString NameInKind() const {
    const bool isVersion = m_file.dialect == Dialect::kClassic && !m_file.format->IsReport();
    return isVersion ? ShortFormatName(QString::fromUtf8(m_file.format->name)) : SystemNameOf(m_file);
  }

  void AddKind() {
    if (m_file.format != nullptr) {
      Add("kind", QT_TRANSLATE_NOOP("Texts", "For:"), KindText().arg(NameInKind()));
    }
    if (m_file.dialect != Dialect::kFilled) return;
    Add("download", QT_TRANSLATE_NOOP("Texts", "Download:"), QFileInfo(m_file.gradebookPath).fileName());
    Add("cells", QT_TRANSLATE_NOOP("Texts", "Cells filled:"), CountText(m_file.filledCells));
  }

  void AddProblems() {
    const Findings findings = CheckExport(*m_subject);  // worst first
    const auto problems = std::ranges::count_if(
        findings, [](const Finding& finding) { return IsTrouble(finding.consequence); });
    if (problems == 0) return;
    const std::string worst = DescribeConsequence(findings.front().consequence, FindingLanguage());
    Add("problems", QT_TRANSLATE_NOOP("Texts", "Problems:"),
        QStringLiteral("%1 (%2)").arg(CountText(static_cast<size_t>(problems)),
                                      QString::fromStdString(worst)),
        true);
  }

  void AddAssignments() {
    constexpr const char* kTitle = QT_TRANSLATE_NOOP("Texts", "Assignments:");
    if (m_subject) {
      Add("assignments", kTitle, _Counted(m_subject->assignments, [this](size_t position) {
            return m_subject->texts.AssignmentName(position);
          }));
    } else if (m_file.assignmentCount > 0) {
      Add("assignments", kTitle, CountText(m_file.assignmentCount));
    }
  }

  // Whose rows a filled gradebook has depends on the download.
  void AddStudents() {
    if (m_file.dialect == Dialect::kFilled) return;
    constexpr const char* kTitle = QT_TRANSLATE_NOOP("Texts", "Students:");
    if (!m_subject) {
      if (m_file.studentCount > 0) Add("students", kTitle, CountText(m_file.studentCount));
      return;
    }
    const size_t all = m_subject->texts.Record().students.size();
    const QString rows = CountText(m_subject->students.size());
    Add("students", kTitle,
        m_subject->students.size() == all ? rows : Texts::tr("%1 of %2").arg(rows, CountText(all)));
  }

  void AddIdentifier() {
    if (m_file.format->idName == nullptr) return;
    const qz::StudentField& field = qz::FindStudentField(m_file.identifier);
    Add("identifier", QT_TRANSLATE_NOOP("Texts", "Student field:"),
        LineFromUtf8(DescribeField(field, m_subject->texts, FindingLanguage())));
  }

  QString Students(const std::vector<size_t>& students) const {
    return _Counted(students, [this](size_t student) { return m_subject->texts.StudentName(student); });
  }

  // Names only where the class has as many of them as was told.
  void AddWithoutIdentifier() {
    const size_t told = m_file.studentsWithoutIdentifier;
    if (told == 0) return;
    std::vector<size_t> students;
    if (m_subject) {
      const qz::StudentField& field = qz::FindStudentField(m_file.identifier);
      const auto& records = m_subject->texts.Record().students;
      for (size_t i = 0; i < records.size(); ++i) {
        if (field.Value(records[i]).empty()) students.push_back(i);
      }
    }
    const QString who = students.size() == told ? Students(students) : CountText(told);
    Add("withoutIdentifier", QT_TRANSLATE_NOOP("Texts", "Without an identifier:"),
        m_file.dialect == Dialect::kCurrent ? Texts::tr("%1, left out").arg(who) : who, true);
  }

  void AddWithoutResults() {
    std::vector<size_t> students;
    size_t scores = 0;
    for (const size_t student : m_subject->students) {
      const size_t count = m_subject->scores.ScoresOf(student).size();
      scores += count;
      if (count == 0) students.push_back(student);
    }
    const size_t cells = m_subject->students.size() * m_subject->assignments.size();
    if (m_file.dialect != Dialect::kFilled) {
      Add("results", QT_TRANSLATE_NOOP("Texts", "Results:"),
          Texts::tr("%1 of %2").arg(CountText(scores), CountText(cells)));
    }
    if (!students.empty()) {
      Add("withoutResults", QT_TRANSLATE_NOOP("Texts", "Without any result:"), Students(students), true);
    }
  }

  void AddReplaced() {
    Add("replaced", QT_TRANSLATE_NOOP("Texts", "Replaced characters:"),
        Texts::tr("%1 of the class became “?”, because the file cannot hold them")
            .arg(CountText(m_file.replacedCharacters)),
        true);
  }

  // The preview below tells of the encoding.
  void AddVariant() {
    if (m_file.delimiter == ';') {
      Add("separator", QT_TRANSLATE_NOOP("Texts", "Separator:"), Texts::tr("semicolon"));
    }
    if (m_file.dialect == Dialect::kClassic && m_file.format->hasUnquotedVariant && !m_file.useQuotes) {
      Add("quotes", QT_TRANSLATE_NOOP("Texts", "Quotation marks:"), Texts::tr("none"));
    }
  }

  const ExportedFile& m_file;
  const std::optional<ExportSubject> m_subject;
  std::vector<ExportFact> m_facts;
};

}  // namespace

std::optional<ExportSubject> SubjectOf(const ExportedFile& file) {
  if (file.openClass == nullptr || file.format == nullptr || file.assignments.empty()) return std::nullopt;
  ExportSubject subject = MakeExportSubject(*file.format, file.openClass->Texts(), file.identifier,
                                            file.dialect, file.assignments);
  subject.delimiter = file.delimiter;
  subject.useQuotes = file.useQuotes;
  subject.throughDialog = file.throughDialog;
  return subject;
}

std::vector<ExportFact> ExportFactsOf(const ExportedFile& file) {
  return FactWriter(file).Facts();
}

QString SystemNameOf(const ExportedFile& file) {
  if (file.format == nullptr) return {};
  return file.format->IsReport() ? Texts::tr("Detailed results")
                                 : QString::fromUtf8(SystemOf(*file.format).name);
}

}  // namespace host

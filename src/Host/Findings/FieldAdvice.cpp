#include "Host/Findings/FieldAdvice.h"

#include <algorithm>

#include "Host/App/Texts.h"
#include "Host/ClassView/RomanText.h"
#include "Host/Findings/FindingsModel.h"
#include "Systems/LearningSystem.h"

namespace host {

namespace {

bool _IsName(const qz::StudentField& field) {
  return field.userIDField == qz::kUserIDFirstName || field.userIDField == qz::kUserIDLastName;
}

// How far the field tells the students apart, as a sentence about "it".
QString _State(const FieldJudgement& judgement) {
  if (judgement.IsEmpty()) return Texts::tr("Nobody has one.");
  if (judgement.TellsEverybodyApart()) return Texts::tr("It tells everybody apart.");
  const IdentifierQuality& quality = judgement.quality;
  const auto filled = [&quality](const QString& text) {
    return text.arg(quality.Filled()).arg(quality.students);
  };
  if (quality.duplicates.empty()) {
    return filled(Texts::tr("It is filled in for %L1 of %L2 students, all different."));
  }
  if (quality.duplicates.size() > 1) {
    return filled(
               Texts::tr("It is filled in for %L1 of %L2 students, and %L3 share theirs with another one."))
        .arg(judgement.Shared());
  }
  return filled(Texts::tr("It is filled in for %L1 of %L2 students, and %L3 share “%4”."))
      .arg(judgement.Shared())
      .arg(judgement.ValueOf(quality.duplicates.front().front()));
}

}  // namespace

size_t FieldJudgement::Shared() const {
  size_t shared = 0;
  for (const std::vector<size_t>& group : quality.duplicates) shared += group.size();
  return shared;
}

QString FieldJudgement::ValueOf(size_t student) const {
  return LineFromUtf8(texts.Student(student, *field));
}

std::vector<FieldJudgement> JudgeFields(const qz::ClassTexts& texts) {
  std::vector<FieldJudgement> all;
  for (const qz::StudentField& field : qz::kStudentFields) {
    if (!field.CanIdentify()) continue;
    all.push_back({.texts = texts,
                   .field = &field,
                   .title = LineFromUtf8(DescribeField(field, texts, FindingLanguage())),
                   .quality = JudgeIdentifiers(texts, field.userIDField)});
  }
  return all;
}

const FieldJudgement& JudgementOf(const std::vector<FieldJudgement>& all, qz::UserIDField field) {
  return *std::ranges::find(all, &qz::FindStudentField(field), &FieldJudgement::field);
}

const FieldJudgement* BetterField(const std::vector<FieldJudgement>& all, qz::UserIDField field) {
  const FieldJudgement* better = nullptr;
  size_t concerned = JudgementOf(all, field).Concerned();
  for (const FieldJudgement& judgement : all) {
    if (_IsName(*judgement.field) || judgement.Concerned() >= concerned) continue;
    better = &judgement;
    concerned = judgement.Concerned();
  }
  return better;
}

QString DescribeBetterField(const FieldJudgement& better) {
  if (better.TellsEverybodyApart()) return Texts::tr("“%1” tells everybody apart.").arg(better.title);
  return Texts::tr("“%1” is better.").arg(better.title) + u' ' + _State(better);
}

QString DescribeProposal(const std::vector<FieldJudgement>& all, const FormatRow& format) {
  const FieldJudgement& proposed = JudgementOf(all, format.defaultUserIDField);
  if (proposed.quality.students == 0) return Texts::tr("The class has no students.");
  const QString system = QString::fromUtf8(SystemOf(format).name);
  QStringList sentences(Texts::tr("The export window for %1 will propose “%2”.").arg(system, proposed.title));
  sentences.append(_State(proposed));
  if (proposed.TellsEverybodyApart()) {
    sentences.append(Texts::tr("It is right if %1 knows these identifiers.").arg(system));
  } else if (const FieldJudgement* const better = BetterField(all, format.defaultUserIDField)) {
    sentences.append(DescribeBetterField(*better));
  } else {
    sentences.append(Texts::tr("No other field is better."));
  }
  return sentences.join(u' ');
}

}  // namespace host

// Which student field tells the students of a class apart, in sentences.
#ifndef GRADIX_FIELDADVICE_H
#define GRADIX_FIELDADVICE_H

#include <QString>
#include <vector>

#include "Common/QZData/ClassTexts.h"
#include "Filters/GX_StdCsv/FormatTable.h"
#include "Systems/IdentifierQuality.h"

namespace host {

// Of a class that outlives it.
struct FieldJudgement {
  qz::ClassTexts texts;
  const qz::StudentField* field;
  QString title;  // in the current language; of a custom field, the class's label
  IdentifierQuality quality;

  bool IsEmpty() const { return quality.Filled() == 0; }
  bool TellsEverybodyApart() const {
    return quality.students > 0 && quality.empty.empty() && quality.duplicates.empty();
  }
  size_t Shared() const;  // students who have the identifier of another one
  size_t Concerned() const { return quality.empty.size() + Shared(); }
  QString ValueOf(size_t student) const;  // on one line
};

// Of all fields that can be the identifier, in their order.
std::vector<FieldJudgement> JudgeFields(const qz::ClassTexts& texts);

const FieldJudgement& JudgementOf(const std::vector<FieldJudgement>& all, qz::UserIDField field);

// The field that tells more students apart than this one does, the best of them; null: none does. First and
// last names are never it: they tell nobody apart in a system.
const FieldJudgement* BetterField(const std::vector<FieldJudgement>& all, qz::UserIDField field);

// What the export window will propose for the format, whether that is right in this class, and which field is
// better. Says nothing of whether the system knows the identifiers.
QString DescribeProposal(const std::vector<FieldJudgement>& all, const FormatRow& format);

// "“Student alias” tells everybody apart.", or how far it does.
QString DescribeBetterField(const FieldJudgement& better);

}  // namespace host

#endif  // GRADIX_FIELDADVICE_H

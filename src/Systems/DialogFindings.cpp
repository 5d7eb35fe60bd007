#include <algorithm>

#include "Systems/CommonFindings.h"

namespace {

using Places = std::vector<FindingPlace>;

bool _Has(const Places& places, const FindingPlace& wanted) {
  return std::ranges::find(places, wanted.assignment, &FindingPlace::assignment) != places.end();
}

// Different titles that the file has as one.
Places _EqualByCut(const ExportCheck& check) {
  std::vector<std::string> whole;
  for (const size_t assignment : check.subject.assignments) {
    whole.push_back(check.Record().assignments[assignment].name);
  }
  const Places before = EqualTitles(check, whole);
  Places equal = EqualTitles(check, check.texts.titles);
  std::erase_if(equal, [&](const FindingPlace& place) { return _Has(before, place); });
  return equal;
}

}  // namespace

void FindDialogFaults(ExportCheck* check) {
  if (!check->subject.throughDialog || check->subject.format->IsReport()) return;
  const std::vector<qz::AssignmentRecord>& all = check->Record().assignments;
  Places impossible;
  for (size_t i = 0; i < all.size(); ++i) {
    // The dialog lists all assignments, selected or not.
    if (all[i].name.size() == kDialogTitleSize - 1) impossible.push_back({.assignment = i});
  }
  check->Add("dialog-title-length", Consequence::kRefused, std::move(impossible));

  Places cut;
  for (const size_t assignment : check->subject.assignments) {
    if (all[assignment].name.size() > kDialogTitleSize) cut.push_back({.assignment = assignment});
  }
  check->Add("dialog-title-equal", Consequence::kWrong, _EqualByCut(*check));
  check->Add("dialog-title-cut", Consequence::kChanged, std::move(cut));
}

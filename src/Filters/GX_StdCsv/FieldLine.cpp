#include "Filters/GX_StdCsv/FieldLine.h"

#include <memory>
#include <optional>
#include <string>
#include <utility>

#include "Common/Language.h"
#include "Filters/GX_StdCsv/DialogSession.h"
#include "Filters/GX_StdCsv/FieldText.h"
#include "Filters/GX_StdCsv/FormatTable.h"
#include "Platform/Core/CFString.h"
#include "Platform/Ui/Events.h"
#include "Toolkit/DLGItems.h"
#include "Toolkit/ItemControls.h"

namespace {

using Titles = std::vector<std::string>;

// What the item's data points to; ends with the item.
struct FieldLine {
  DLGRecord* dialog;
  int32_t item;
  FieldLineSource choices;
  TextLanguage language;
  Titles titles;  // of the class's assignments, before the dialog cut them
  std::optional<FieldLineChoices> shown = {};
  EventLoopTimerRef timer = nullptr;  // while the line is to be shown soon

  ~FieldLine() { RemoveEventLoopTimer(timer); }
};

// A plain text, neither pressed nor focused.
intptr_t _FieldLineProc(DLGRecord* dialog, int32_t item, int32_t message, intptr_t param1, intptr_t param2) {
  switch (message) {
    case kDLGDispose:
      delete reinterpret_cast<FieldLine*>(GetIRefCon(dialog, item));
      SetIRefCon(dialog, item, 0);
      return 0;
    case kDLGGetControl:
    case kDLGGetText:
    case kDLGSetText:
    case kDLGFocusLeaves: return ControlItemProc(dialog, item, message, param1, param2);
    default: return 0;
  }
}

FieldLine* _LineOf(DLGRecord* dialog, int32_t item) {
  const DLGItem* const found = DLGFindItem(dialog, item);
  const bool isStarted = found != nullptr && found->procedure == _FieldLineProc;
  return isStarted ? reinterpret_cast<FieldLine*>(found->data) : nullptr;
}

// While one exists, the class has the titles that it was read with.
class WholeTitles {
 public:
  WholeTitles(qz::ClassRecord* record, Titles* titles) : m_record(record), m_titles(titles) { Swap(); }
  ~WholeTitles() { Swap(); }
  WholeTitles(const WholeTitles&) = delete;
  WholeTitles& operator=(const WholeTitles&) = delete;

 private:
  void Swap() {
    for (size_t i = 0; i < m_titles->size(); ++i) std::swap(m_record->assignments[i].name, (*m_titles)[i]);
  }

  qz::ClassRecord* m_record;
  Titles* m_titles;
};

std::string _Describe(FieldLine* line, Session* session, const FieldLineChoices& choices) {
  const WholeTitles whole(session->GetClass(), &line->titles);
  ExportSubject subject =
      MakeExportSubject(*FindFormat(session->GetExportInfo().formatIndex), session->Texts(), choices.field,
                        Dialect::kClassic, choices.assignments);
  subject.useQuotes = choices.useQuotes;
  subject.throughDialog = true;
  return DescribeChosenField(subject, line->language);
}

void _ShowNow(void* data) {
  auto* const line = static_cast<FieldLine*>(data);
  RemoveEventLoopTimer(std::exchange(line->timer, nullptr));
  ShowFieldLine(line->dialog, line->item);
}

}  // namespace

void StartFieldLine(DLGRecord* dialog, int32_t item, FieldLineSource choices) {
  const Session* const session = SessionOfDialog(dialog);
  if (session == nullptr || DLGFindItem(dialog, item) == nullptr) return;
  const TextLanguage language = IsSpanish() ? TextLanguage::kSpanish : TextLanguage::kEnglish;
  std::unique_ptr<FieldLine> line(new FieldLine{dialog, item, choices, language, {}});
  for (const qz::AssignmentRecord& assignment : session->Class().assignments) {
    line->titles.push_back(assignment.name);
  }
  SetItemProc(dialog, item, _FieldLineProc);
  SetIRefCon(dialog, item, reinterpret_cast<intptr_t>(line.release()));
}

void ShowFieldLine(DLGRecord* dialog, int32_t item) {
  FieldLine* const line = _LineOf(dialog, item);
  Session* const session = SessionOfDialog(dialog);
  if (line == nullptr || session == nullptr) return;
  try {
    const FieldLineChoices choices = line->choices(dialog);
    if (line->shown == choices) return;  // rows were selected, which changes no file
    SetText(dialog, item, UTF8ToMacRoman(_Describe(line, session, choices)).c_str(), true);
    line->shown = choices;
  } catch (...) {
    return;  // the line is no part of the export
  }
}

void ShowFieldLineSoon(DLGRecord* dialog, int32_t item) {
  FieldLine* const line = _LineOf(dialog, item);
  if (line != nullptr && line->timer == nullptr) line->timer = InstallEventLoopTimer(0, _ShowNow, line);
}

#include "CommandLine/Findings/FindingReport.h"

#include <algorithm>

#include "CommandLine/TerminalText.h"
#include "Systems/FindingTexts.h"
#include "Systems/LearningSystem.h"

namespace {

constexpr size_t kWidth = 77;  // leaves two for a list of blocks

// The words in lines, each after the indentation.
std::string _Wrapped(const std::string& text, size_t indentation) {
  std::string lines;
  for (const std::string& line : WrapText(text, kWidth - indentation)) {
    lines.append(lines.empty() ? "" : "\n").append(indentation, ' ').append(line);
  }
  return lines;
}

std::string _Places(const Finding& finding, const ExportSubject& subject) {
  return CutList(finding.places.size(), "; ",
                 [&](size_t i) { return PrintableUtf8(DescribePlace(finding.places[i], subject)); });
}

}  // namespace

const Finding* FindFinding(const Findings& findings, std::string_view code) {
  const auto found = std::find_if(findings.begin(), findings.end(),
                                  [code](const Finding& finding) { return code == finding.code; });
  return found == findings.end() ? nullptr : &*found;
}

std::string FindingBlock(const Finding& finding, const ExportSubject& subject) {
  const FindingText text = DescribeFinding(finding, subject, TextLanguage::kEnglish);
  std::string block = PrintableUtf8(text.what);
  if (!finding.places.empty()) block.append("\n").append(_Wrapped(_Places(finding, subject), 2));
  if (!text.advice.empty())
    block.append("\n").append(_Wrapped("What to do: " + PrintableUtf8(text.advice), 2));
  return block;
}

std::string FindingGroups(const Findings& findings, const ExportSubject& subject) {
  std::string text;
  const Finding* last = nullptr;
  for (const Finding& finding : findings) {
    if (last == nullptr || last->consequence != finding.consequence) {
      text += DescribeConsequence(finding.consequence, TextLanguage::kEnglish) + ":\n";
    }
    last = &finding;
    const std::vector<std::string> lines = Split(FindingBlock(finding, subject), '\n');
    text.append("  - ").append(_Wrapped(lines.front(), 4).erase(0, 4)).append("\n");
    for (size_t i = 1; i < lines.size(); ++i) text.append("  ").append(lines[i]).append("\n");
  }
  return text;
}

std::string CurrentFileHint(const Findings& findings, const ExportSubject& subject) {
  const bool hasOther = subject.dialect == Dialect::kClassic && FindCurrentFile(*subject.format) != nullptr;
  return hasOther && HasTrouble(findings) ? "--dialect current makes the current file." : "";
}

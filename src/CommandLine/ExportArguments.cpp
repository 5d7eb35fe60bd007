#include "CommandLine/ExportArguments.h"

#include <charconv>
#include <string_view>
#include <system_error>

#include "CommandLine/CommandError.h"
#include "CommandLine/TerminalText.h"
#include "Common/QZData/StudentFields.h"

namespace {

[[noreturn]] void _Fail(const std::string& text) {
  throw CommandError(kExitUsage, PrintableUtf8(text));
}

template <typename Number>
std::optional<Number> _ParseNumber(std::string_view text) {
  Number number{};
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (error != std::errc() || end != text.data() + text.size()) return std::nullopt;
  return number;
}

const FormatRow& _ParseFormat(const std::string& text) {
  const std::optional<uint32_t> index = _ParseNumber<uint32_t>(text);
  const FormatRow* format = index ? FindFormat(*index) : FindFormat(std::string_view(text));
  if (format == nullptr) _Fail("unknown format '" + text + "'; the formats are " + FormatKeys());
  return *format;
}

qz::UserIDField _ParseIdentifier(const std::string& text) {
  const qz::StudentField* field = qz::FindStudentField(text);
  if (field == nullptr || !field->CanIdentify()) {
    _Fail("unknown student field '" + text + "' for -u; the fields are " + IdentifierKeys());
  }
  return field->userIDField;
}

std::vector<int32_t> _ParseAssignments(const std::vector<std::string>& texts) {
  std::vector<int32_t> ids;
  for (const std::string& text : texts) {
    const std::optional<int32_t> id = _ParseNumber<int32_t>(text);
    if (!id) _Fail("'" + text + "' is no assignment id; -a takes a number");
    ids.push_back(*id);
  }
  return ids;
}

uint32_t _ParseReportField(std::string_view key) {
  const qz::StudentField* field = qz::FindStudentField(key);
  if (field != nullptr) return field->reportBit;
  _Fail("unknown student field '" + std::string(key) + "' for --fields; the fields are " + ReportFieldKeys() +
        "; or it is one of the words all and none");
}

uint32_t _ParseReportFields(std::string_view list) {
  uint32_t mask = 0;
  if (list == "none") return mask;
  if (list == "all") {
    for (const qz::StudentField& field : qz::kStudentFields) mask |= field.reportBit;
    return mask;
  }
  for (;;) {
    const size_t comma = list.find(',');
    mask |= _ParseReportField(list.substr(0, comma));
    if (comma == std::string_view::npos) return mask;
    list.remove_prefix(comma + 1);
  }
}

struct ReportColumns {
  const char* key;
  bool responses;
  bool points;
};
constexpr ReportColumns kReportColumns[] = {
    {"responses", true, false}, {"points", false, true}, {"both", true, true}};

const ReportColumns& _ParseReportColumns(const std::string& text) {
  for (const ReportColumns& columns : kReportColumns) {
    if (columns.key == text) return columns;
  }
  _Fail("unknown value '" + text + "' for --columns; it takes responses, points or both");
}

ReportChoices _MakeReportChoices(const ExportArguments& arguments) {
  const ReportColumns& columns = _ParseReportColumns(arguments.columns);
  if (arguments.answerKey && !columns.responses) {
    Warn("--answer-key has no effect without the responses; see --columns");
  }
  if (arguments.pointsPossible && !columns.points) {
    Warn("--points-possible has no effect without the points; see --columns");
  }
  ReportChoices report;
  report.fields = _ParseReportFields(arguments.fields);
  report.options[qz::kReportResponses] = columns.responses;
  report.options[qz::kReportPointsEarned] = columns.points;
  report.options[qz::kReportAnswerKey] = arguments.answerKey;
  report.options[qz::kReportPointsPossible] = arguments.pointsPossible;
  report.options[qz::kReportAsterisks] = columns.responses && !arguments.noAsterisks;
  return report;
}

// Refuses the report's options with other formats; only warns of general ones that a format has no use for.
void _CheckApplicability(const ExportArguments& arguments, const FormatRow& format) {
  if (!format.IsReport() && !arguments.reportOptions.empty()) {
    _Fail(arguments.reportOptions.front() + " applies to the format " +
          FindFormat(kDetailedResultsFormat)->key + " only");
  }
  if (format.IsReport() && arguments.identifier) {
    Warn("-u has no effect on the detailed report, which has no user identifier; see --fields");
  }
  if (arguments.noQuotes && !format.hasUnquotedVariant) {
    Warn(std::string("--no-quotes has no effect on ") + format.key +
         "; the formats that can do without quotes are " + UnquotedFormatKeys());
  }
}

// The keys of the rows that are `wanted`.
template <typename Rows, typename Wanted>
std::string _JoinKeys(const Rows& rows, std::string_view separator, Wanted wanted) {
  std::vector<std::string> keys;
  for (const auto& row : rows) {
    if (wanted(row)) keys.emplace_back(row.key);
  }
  return Join(keys, separator);
}

template <typename Row>
bool _Any(const Row& /*row*/) {
  return true;
}

constexpr const char* kListed = ", ";

}  // namespace

ExportOptions MakeExportOptions(const ExportArguments& arguments) {
  ExportOptions options;
  ExportChoices& choices = options.choices;
  choices.format = &_ParseFormat(arguments.format);
  _CheckApplicability(arguments, *choices.format);
  if (arguments.output.empty()) _Fail("-o needs the name of a file");
  options.classFiles = {arguments.classFile};
  options.outputFile = arguments.output;
  options.force = arguments.force;
  choices.assignmentIDs = _ParseAssignments(arguments.assignments);
  choices.identifier =
      arguments.identifier ? _ParseIdentifier(*arguments.identifier) : choices.format->defaultUserIDField;
  choices.useQuotes = !arguments.noQuotes;
  choices.report = _MakeReportChoices(arguments);
  return options;
}

std::string FormatKeys() {
  return _JoinKeys(FormatTable(), kListed, _Any<FormatRow>);
}

std::string UnquotedFormatKeys() {
  return _JoinKeys(FormatTable(), kListed, [](const FormatRow& row) { return row.hasUnquotedVariant; });
}

std::string IdentifierKeys() {
  return _JoinKeys(qz::kStudentFields, kListed,
                   [](const qz::StudentField& row) { return row.CanIdentify(); });
}

std::string ReportFieldKeys() {
  return _JoinKeys(qz::kStudentFields, kListed, _Any<qz::StudentField>);
}

std::string DefaultReportFields() {
  return _JoinKeys(qz::kStudentFields, ",", [](const qz::StudentField& row) {
    return (row.reportBit & qz::kDefaultReportFields) != 0;
  });
}

std::string DefaultReportColumns() {
  const auto& options = qz::kDefaultReportOptions;
  return _JoinKeys(kReportColumns, kListed, [&options](const ReportColumns& row) {
    return row.responses == options[qz::kReportResponses] && row.points == options[qz::kReportPointsEarned];
  });
}

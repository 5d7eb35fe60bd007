#include "CommandLine/ExportArguments.h"

#include <charconv>
#include <string_view>
#include <system_error>

#include "CommandLine/CommandError.h"
#include "CommandLine/TextOut.h"
#include "CommandLine/UserIDFields.h"
#include "Filters/GX_StdCsv/ReportColumns.h"

const char* const kDefaultReportFields = "first-name,last-name,student-id";
const char* const kDefaultReportColumns = "responses";

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

qz::UserIDField _ParseUserIDField(const std::string& text) {
  const std::optional<qz::UserIDField> field = FindUserIDField(text);
  if (!field) _Fail("unknown student field '" + text + "' for -u; the fields are " + UserIDFieldKeys());
  return *field;
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
  for (const ReportColumn& column : ReportColumns()) {
    if (column.key == key) return column.mask;
  }
  _Fail("unknown student field '" + std::string(key) + "' for --fields; the fields are " + ReportFieldKeys() +
        "; or it is one of the words all and none");
}

uint32_t _ParseReportFields(std::string_view list) {
  uint32_t mask = 0;
  if (list == "none") return mask;
  if (list == "all") {
    for (const ReportColumn& column : ReportColumns()) mask |= column.mask;
    return mask;
  }
  for (;;) {
    const size_t comma = list.find(',');
    mask |= _ParseReportField(list.substr(0, comma));
    if (comma == std::string_view::npos) return mask;
    list.remove_prefix(comma + 1);
  }
}

void _ParseReportColumns(const std::string& text, ReportOptions* report) {
  report->responses = text == "responses" || text == "both";
  report->pointsEarned = text == "points" || text == "both";
  if (report->responses || report->pointsEarned) return;
  _Fail("unknown value '" + text + "' for --columns; it takes responses, points or both");
}

ReportOptions _MakeReportOptions(const ExportArguments& arguments) {
  ReportOptions report;
  _ParseReportColumns(arguments.columns, &report);
  if (arguments.answerKey && !report.responses) {
    Warn("--answer-key has no effect without the responses; see --columns");
  }
  if (arguments.pointsPossible && !report.pointsEarned) {
    Warn("--points-possible has no effect without the points; see --columns");
  }
  report.fieldMask = _ParseReportFields(arguments.fields);
  report.answerKey = arguments.answerKey;
  report.pointsPossible = arguments.pointsPossible;
  report.asterisks = report.responses && !arguments.noAsterisks;
  return report;
}

// Refuses the report's options with other formats; only warns of general ones that a format has no use for.
void _CheckApplicability(const ExportArguments& arguments, const FormatRow& format) {
  const bool isDetailed = format.index == kDetailedResultsFormat;
  if (!isDetailed && !arguments.reportOptions.empty()) {
    _Fail(arguments.reportOptions.front() + " applies to the format " +
          FindFormat(kDetailedResultsFormat)->key + " only");
  }
  if (isDetailed && arguments.userIDField) {
    Warn("-u has no effect on the detailed report, which has no user identifier; see --fields");
  }
  if (arguments.noQuotes && !format.hasUnquotedVariant) {
    Warn(std::string("--no-quotes has no effect on ") + format.key +
         "; the formats that can do without quotes are " + UnquotedFormatKeys());
  }
}

template <typename Rows, typename KeyOf>
std::string _JoinKeys(const Rows& rows, KeyOf keyOf) {
  std::vector<std::string> keys;
  keys.reserve(rows.size());
  for (const auto& row : rows) keys.emplace_back(keyOf(row));
  return Join(keys, ", ");
}

}  // namespace

ExportOptions MakeExportOptions(const ExportArguments& arguments) {
  ExportOptions options;
  options.format = &_ParseFormat(arguments.format);
  _CheckApplicability(arguments, *options.format);
  if (arguments.output.empty()) _Fail("-o needs the name of a file");
  options.classFile = arguments.classFile;
  options.outputFile = arguments.output;
  options.assignmentIDs = _ParseAssignments(arguments.assignments);
  options.userIDField =
      arguments.userIDField ? _ParseUserIDField(*arguments.userIDField) : options.format->defaultUserIDField;
  options.useQuotes = !arguments.noQuotes;
  options.force = arguments.force;
  options.report = _MakeReportOptions(arguments);
  return options;
}

std::string FormatKeys() {
  return _JoinKeys(FormatTable(), [](const FormatRow& row) { return row.key; });
}

std::string UnquotedFormatKeys() {
  std::vector<FormatRow> rows;
  for (const FormatRow& row : FormatTable()) {
    if (row.hasUnquotedVariant) rows.push_back(row);
  }
  return _JoinKeys(rows, [](const FormatRow& row) { return row.key; });
}

std::string UserIDFieldKeys() {
  return _JoinKeys(UserIDFields(), [](const NamedUserIDField& row) { return row.column->key; });
}

std::string ReportFieldKeys() {
  return _JoinKeys(ReportColumns(), [](const ReportColumn& column) { return column.key; });
}

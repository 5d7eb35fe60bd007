#include "Systems/Download.h"

#include <algorithm>
#include <exception>
#include <new>
#include <unordered_set>

#include "Common/SeededHash.h"
#include "Common/asciicase.h"
#include "Common/number.h"
#include "Systems/DownloadText.h"
#include "Systems/LearningSystem.h"

namespace {

constexpr size_t kShownCells = 4;
constexpr size_t kShownBytes = 40;

// The part of a heading that a message shows, on one line.
std::string _Shown(std::string_view cell) {
  size_t size = std::min(cell.size(), kShownBytes);
  while (size < cell.size() && size > 0 && (static_cast<uint8_t>(cell[size]) & 0xC0U) == 0x80) --size;
  std::string shown(cell.substr(0, size));
  for (char& character : shown) {
    if (static_cast<uint8_t>(character) < ' ' || character == '\x7F') character = ' ';
  }
  if (size < cell.size()) shown += "...";
  return '"' + shown + '"';
}

std::string _ShownHeadings(const DelimitedTable& table) {
  std::string list;
  const size_t count = std::min(table.ColumnCount(), kShownCells);
  for (size_t i = 0; i < count; ++i) list.append(i == 0 ? "" : ", ").append(_Shown(table.Text(0, i)));
  return count < table.ColumnCount() ? list + ", ..." : list;
}

const LearningSystem* _Recognize(const DelimitedTable& table) {
  for (const LearningSystem* system : LearningSystems()) {
    if (system->download != nullptr && system->download->matches(table, false)) return system;
  }
  return nullptr;
}

// Of what the headings do not fit.
TextEncoding _OwnEncoding(const DelimitedTable& headings, const LearningSystem* chosen) {
  const LearningSystem* const system = chosen != nullptr ? chosen : _Recognize(headings);
  // Latin-1 takes every byte, so that what is wrong with the headings can be told.
  return system != nullptr ? system->download->ownEncoding : TextEncoding::kLatin1;
}

TableFault _ForeignTable(const DelimitedTable& table, const LearningSystem* chosen) {
  std::string expected;
  for (const LearningSystem* system : LearningSystems()) {
    if (system->download == nullptr || (chosen != nullptr && chosen != system)) continue;
    expected.append(expected.empty() ? "" : "; ").append(system->name);
    expected.append(": ").append(system->download->expected);
  }
  std::string reason = chosen != nullptr ? "not a gradebook downloaded from " + std::string(chosen->name)
                                         : "unknown gradebook";
  reason += "; expected the headings of " + expected + "; found " + _ShownHeadings(table);
  const LearningSystem* const other = chosen != nullptr ? _Recognize(table) : nullptr;
  if (other != nullptr) reason.append(", as in a gradebook of ").append(other->name);
  return {.foreign = true, .line = table.LineOf(0), .reason = reason};
}

DownloadColumn _Describe(std::string_view heading, const DownloadLayout& layout) {
  for (const FixedColumn& fixed : layout.columns) {
    if (!IsHeading(heading, fixed.heading)) continue;
    return {.role = fixed.role, .namePart = fixed.namePart, .title = fixed.heading};
  }
  DownloadColumn column = layout.describe(heading);
  if (column.title.empty()) column.title = TrimBlanks(heading);
  return column;
}

// Goes into the upload and tells whose row it is.
bool _IsIdentifying(const DownloadColumn& column) {
  return column.role == ColumnRole::kIdentifier || column.role == ColumnRole::kName ||
         column.role == ColumnRole::kIdentity;
}

TableFault _CheckHeadings(const Gradebook& gradebook) {
  std::unordered_set<std::string, SeededHash> seen;
  for (size_t i = 0; i < gradebook.columns.size(); ++i) {
    if (!_IsIdentifying(gradebook.columns[i])) continue;
    std::string heading(TrimBlanks(gradebook.Heading(i)));
    std::transform(heading.begin(), heading.end(), heading.begin(), AsciiLower);
    if (seen.insert(std::move(heading)).second) continue;
    return {.line = gradebook.table.LineOf(0),
            .reason = "the heading " + _Shown(TrimBlanks(gradebook.Heading(i))) + " stands there twice"};
  }
  return {};
}

// Programs leave out empty cells at the end of a row. A row that lacks more was cut.
TableFault _CheckRows(const Gradebook& gradebook) {
  size_t least = 0;
  for (size_t i = 0; i < gradebook.columns.size(); ++i) {
    if (_IsIdentifying(gradebook.columns[i])) least = i + 1;
  }
  const size_t most = gradebook.columns.size();
  for (size_t row = 1; row < gradebook.table.RowCount(); ++row) {
    const size_t count = gradebook.table.CellCount(row);
    if (count >= least && count <= most) continue;
    return {.line = gradebook.table.LineOf(row),
            .reason = "the row has " + std::to_string(count) + (count == 1 ? " cell" : " cells") +
                      "; expected " + std::to_string(most) + " as in the headings"};
  }
  return {};
}

std::string _PlainText(const Gradebook& gradebook, size_t row, size_t column) {
  const std::string_view cell = gradebook.table.Text(row, column);
  const auto plain = gradebook.system->download->plainText;
  return plain != nullptr ? plain(cell) : std::string(cell);
}

std::string _NameAt(const Gradebook& gradebook, size_t row) {
  std::string first;
  std::string last;
  for (size_t i = 0; i < gradebook.table.CellCount(row); ++i) {
    if (gradebook.columns[i].namePart == NamePart::kNone) continue;
    const std::string text = _PlainText(gradebook, row, i);
    const std::string_view cell = TrimBlanks(text);
    switch (gradebook.columns[i].namePart) {
      case NamePart::kNone: break;
      case NamePart::kFirst: first = cell; break;
      case NamePart::kLast: last = cell; break;
      case NamePart::kSorted: return NameInOrder(cell);
    }
  }
  return first + (first.empty() || last.empty() ? "" : " ") + last;
}

bool _HasIdentifier(const Gradebook& gradebook, size_t row) {
  for (size_t i = 0; i < gradebook.table.CellCount(row); ++i) {
    if (gradebook.columns[i].role != ColumnRole::kIdentifier) continue;
    if (!TrimBlanks(gradebook.table.Text(row, i)).empty()) return true;
  }
  return false;
}

TableFault _FindMembers(Gradebook* gradebook) {
  for (size_t row = gradebook->headerRows.back() + 1; row < gradebook->table.RowCount(); ++row) {
    std::string name = _NameAt(*gradebook, row);
    // Other rows are nobody's: sums, remarks.
    if (name.empty() && !_HasIdentifier(*gradebook, row)) continue;
    gradebook->members.push_back({row, std::move(name)});
  }
  if (!gradebook->members.empty()) return {};
  return {.reason = "the gradebook has headings, but no students"};
}

// What most scores show.
bool _FindDecimalCommas(const Gradebook& gradebook) {
  size_t commas = 0;
  size_t points = 0;
  for (const CourseMember& member : gradebook.members) {
    for (size_t i = 0; i < gradebook.table.CellCount(member.row); ++i) {
      const ColumnRole role = gradebook.columns[i].role;
      if (role != ColumnRole::kItem && role != ColumnRole::kReadOnly) continue;
      const std::string_view cell = gradebook.table.Text(member.row, i);
      const size_t mark = cell.find_first_of(".,");
      if (mark == std::string_view::npos || !ParseCellNumber(cell)) continue;
      ++(cell[mark] == ',' ? commas : points);
    }
  }
  if (commas != points) return commas > points;
  return gradebook.system->download->hasDecimalCommas && gradebook.table.style.separator == ';';
}

TableFault _Understand(const LearningSystem* chosen, Gradebook* gradebook) {
  const DelimitedTable& table = gradebook->table;
  if (chosen == nullptr) {
    gradebook->system = _Recognize(table);
  } else if (chosen->download->matches(table, true)) {
    gradebook->system = chosen;
  }
  if (gradebook->system == nullptr) return _ForeignTable(table, chosen);

  const DownloadLayout& layout = *gradebook->system->download;
  gradebook->headerRows = {0};
  for (size_t i = 0; i < table.ColumnCount(); ++i) {
    gradebook->columns.push_back(_Describe(gradebook->Heading(i), layout));
  }
  TableFault fault = layout.complete != nullptr ? layout.complete(gradebook) : TableFault{};
  if (!fault.IsFault()) fault = _CheckHeadings(*gradebook);
  if (!fault.IsFault()) fault = _CheckRows(*gradebook);
  if (!fault.IsFault()) fault = _FindMembers(gradebook);
  if (!fault.IsFault()) gradebook->decimalCommas = _FindDecimalCommas(*gradebook);
  return fault;
}

// `read` makes the table.
template <typename Read>
TableFault _Make(const LearningSystem* chosen, Gradebook* gradebook, Read read) {
  TableFault fault;
  try {
    *gradebook = {};
    if (chosen != nullptr && chosen->download == nullptr) {
      return {.reason = "gradebooks downloaded from " + std::string(chosen->name) + " cannot be read"};
    }
    const auto ownEncoding = [chosen](const DelimitedTable& headings) {
      return _OwnEncoding(headings, chosen);
    };
    fault = read(ownEncoding, &gradebook->table);
    if (!fault.IsFault()) fault = _Understand(chosen, gradebook);
  } catch (const std::bad_alloc&) {
    fault = {.reason = "out of memory"};
  } catch (const std::exception& exception) {
    fault = {.reason = exception.what()};
  }
  if (fault.IsFault()) *gradebook = {};
  return fault;
}

}  // namespace

size_t Gradebook::FindHeading(std::string_view heading) const {
  for (size_t column = 0; column < columns.size(); ++column) {
    if (IsHeading(Heading(column), heading)) return column;
  }
  return kNone;
}

std::string Gradebook::Identifier(const CourseMember& member, size_t column) const {
  return _PlainText(*this, member.row, column);
}

std::optional<double> Gradebook::Score(size_t row, size_t column) const {
  return ParseCellNumber(table.Text(row, column), decimalCommas ? ',' : '.');
}

bool Gradebook::HasScore(size_t row, size_t column) const {
  return !IsNoScore(table.Text(row, column));
}

std::string Gradebook::ScoreText(double score) const {
  std::string text = PlainNumber(score, system->download->maxDecimals);
  if (decimalCommas) std::replace(text.begin(), text.end(), '.', ',');
  return text;
}

TableFault ReadGradebook(const std::string& path, const LearningSystem* system, Gradebook* gradebook) {
  return _Make(system, gradebook,
               [&](const EncodingOf& own, DelimitedTable* table) { return ReadTable(path, own, table); });
}

TableFault ParseGradebook(std::string_view bytes, const LearningSystem* system, Gradebook* gradebook) {
  return _Make(system, gradebook,
               [&](const EncodingOf& own, DelimitedTable* table) { return ParseTable(bytes, own, table); });
}

// Documents made to take more than linear time, or memory that no record needs: each is read at three sizes,
// and what it takes may not grow faster than the document.
#include <gtest/gtest.h>
#include <malloc.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <ctime>
#include <istream>
#include <streambuf>
#include <string>

#include "Common/QZXMLParse/QZClassParse.h"
#include "tests/support/Exported.h"
#if defined(__SANITIZE_ADDRESS__)
extern "C" size_t __sanitizer_get_current_allocated_bytes();
#endif

namespace {

size_t _LiveBytes() {
#if defined(__SANITIZE_ADDRESS__)
  return __sanitizer_get_current_allocated_bytes();
#else
  const struct mallinfo2 info = mallinfo2();
  return info.uordblks + info.hblkhd;
#endif
}

// A document, written while it is read, so that it takes no memory itself: what is in braces comes `count`
// times, each "$" being the number of the repetition. Notes the most memory in use.
class Document : public std::streambuf {
 public:
  Document(const std::string& text, size_t count) : m_text(text), m_count(count) {}

  size_t PeakBytes() const { return m_peakBytes; }

 protected:
  int_type underflow() override {
    constexpr size_t kBlockSize = 65536;
    m_peakBytes = std::max(m_peakBytes, _LiveBytes());
    m_block.clear();
    while (m_block.size() < kBlockSize && m_next < m_text.size()) Append(m_text[m_next++]);
    setg(m_block.data(), m_block.data(), m_block.data() + m_block.size());
    return m_block.empty() ? traits_type::eof() : traits_type::to_int_type(m_block[0]);
  }

 private:
  void Append(char character) {
    if (character == '{') {
      m_start = m_next;
      m_index = 0;
    } else if (character == '}') {
      if (++m_index < m_count) m_next = m_start;
    } else if (character == '$') {
      m_block += std::to_string(m_index);
    } else {
      m_block += character;
    }
  }

  const std::string& m_text;
  size_t m_count;
  size_t m_next = 0;
  size_t m_start = 0;
  size_t m_index = 0;
  size_t m_peakBytes = 0;
  std::string m_block;
};

enum Memory { kFlat, kLinear };  // linear: records, or a single token, of the document's size

struct Shape {
  const char* what;
  size_t count;
  Memory memory;
  std::string document;
  const char* reason = nullptr;
};

std::string _Declared(int count) {
  std::string text = "<!DOCTYPE class [<!ATTLIST student";
  for (int i = 0; i < count; ++i) text += " a" + std::to_string(i) + " CDATA 'x'";
  return text + ">]>";
}

const std::string kStudents = "<class><student-list>";
const std::string kEnd = "</student-list></class>";

const Shape kShapes[] = {
    {"students", 5000, kLinear, kStudents + "{<student id='$'><alias>a$</alias></student>}" + kEnd},
    {"students of lost letters", 5000, kLinear,
     kStudents + "{<student><alias>語$</alias><race>Ł</race></student>}" + kEnd},
    {"assignments", 10000, kLinear, "<class><assignment-list>{<assignment/>}</assignment-list></class>"},
    {"attributes of a student, and its texts again and again", 20000, kLinear,
     kStudents + "<student{ a$=''}>{<alias>x</alias>}</student>" + kEnd},
    {"attributes that are not read", 20000, kLinear, "<class{ a$=''}/>"},
    {"one attribute in many namespaces", 10000, kLinear,
     kStudents + "<student{ xmlns:p$='u$' p$:id='$'}/>" + kEnd},
    {"attributes by default", 5000, kLinear, _Declared(100) + kStudents + "{<student/>}" + kEnd},
    {"more of them", 5000, kFlat,
     "<!DOCTYPE class [{<!ATTLIST student a$ CDATA #IMPLIED>}]>" + kStudents + "{<student/>}" + kEnd,
     "too many attribute declarations"},
    {"a long attribute by default", 100000, kLinear,
     "<!DOCTYPE class [<!ATTLIST student id CDATA '{x}'>]>" + kStudents + "{<student/>}" + kEnd,
     "the default value of an attribute is too long"},
    {"a long attribute", 250000, kLinear, "<class><student-list x='{x}'/></class>"},
    {"elements of a long namespace", 20000, kFlat,
     "<p:class xmlns:p='" + std::string(1000, 'u') + "'>{<p:student-list/>}</p:class>"},
    {"elements of a longer one", 100000, kLinear, "<p:class xmlns:p='{u}'>{<p:x/>}</p:class>",
     "the name of a namespace is too long"},
    {"lists of a class", 10000, kFlat, "<class>{<student-list/><preferences/><assignment-list/>}</class>"},
    {"lists of an assignment", 5000, kFlat,
     "<class><assignment-list><assignment>"
     "{<results-list><results><response-list><response><text>x</text></response></response-list></results>"
     "</results-list><question-list><question/></question-list>}</assignment></assignment-list></class>"},
    {"pieces of a text", 25000, kFlat, kStudents + "<student><alias>{&#65;&amp;\n}</alias></student>" + kEnd},
    {"texts of a student, outside its elements", 50000, kFlat,
     kStudents + "<student>{x<b/>}</student>" + kEnd},
    {"elements in one another", 60000, kLinear, "<class>{<d>}{</d>}</class>"},
    {"element names", 20000, kLinear, "<class>{<e$/>}</class>"},
    {"a comment", 250000, kLinear, "<class><!--{x}--></class>"},
};

struct Cost {
  double seconds;
  double bytes;
};

Cost _CostOfReading(const Shape& shape, size_t factor) {
  const size_t before = _LiveBytes();
  Document document(shape.document, factor * shape.count);
  std::istream stream(&document);
  qz::ClassRecord record;
  QZClassParseReport report;
  qz::OriginalTexts originals;
  report.originals = &originals;
  const std::clock_t start = std::clock();  // of this process only
  QZClassParse(&record, stream, &report);
  const std::clock_t end = std::clock();
  EXPECT_STREQ(report.reason, shape.reason) << shape.what;
  return {static_cast<double>(end - start) / CLOCKS_PER_SEC,
          static_cast<double>(std::max(document.PeakBytes(), _LiveBytes()) - before)};
}

constexpr std::array<size_t, 3> kFactors = {1, 2, 4};
constexpr double kLeastSeconds = 0.002;  // below this the clock says little
using Costs = std::array<Cost, kFactors.size()>;

bool _GrowsWithTheDocument(const Costs& costs, size_t i) {
  return costs[i].seconds <
         2.5 * static_cast<double>(kFactors[i]) * std::max(costs[0].seconds, kLeastSeconds);
}

// The least of several rounds. Others at work on the machine only ever add to a round, so one that looks too
// long is measured again.
Costs _LeastCosts(const Shape& shape) {
  constexpr int kEnoughRounds = 2;
  constexpr int kMostRounds = 12;
  Costs costs{};
  for (int round = 0; round < kMostRounds; ++round) {
    for (size_t i = 0; i < costs.size(); ++i) {
      const Cost cost = _CostOfReading(shape, kFactors[i]);
      const double seconds = round == 0 ? cost.seconds : std::min(costs[i].seconds, cost.seconds);
      costs[i] = {seconds, round == 0 ? cost.bytes : costs[i].bytes};
    }
    const bool linear = _GrowsWithTheDocument(costs, 1) && _GrowsWithTheDocument(costs, 2);
    if (linear && round + 1 >= kEnoughRounds) break;
  }
  return costs;
}

TEST(Growth, NeverFasterThanTheDocument) {
  constexpr double kSlack = 65536;
  for (const Shape& shape : kShapes) {
    const Costs costs = _LeastCosts(shape);
    for (const size_t i : {1U, 2U}) {
      const auto factor = static_cast<double>(kFactors[i]);
      EXPECT_TRUE(_GrowsWithTheDocument(costs, i))
          << shape.what << ", times " << factor << ": " << costs[0].seconds << " s, then " << costs[i].seconds
          << " s";
      const double bytes = shape.memory == kFlat ? costs[0].bytes : 1.5 * factor * costs[0].bytes;
      EXPECT_LT(costs[i].bytes, bytes + kSlack) << shape.what << ", times " << factor;
    }
  }
}

// The most that writing a class of `n` students holds: `n` assignments, `n` results and `n` questions, but a
// cell for every student on every assignment.
size_t _PeakOfWriting(const FormatRow& format, size_t n) {
  const auto session = NewSession(format);
  qz::ClassRecord* record = session->GetClass();
  record->students.resize(n);
  record->assignments.resize(n);
  record->assignments[0].questions.resize(n);
  for (size_t i = 0; i < n; ++i) {
    record->students[i].id = static_cast<int32_t>(i);
    record->assignments[i].selected = true;
    record->assignments[i].results.resize(1);
    record->assignments[i].results[0].studentID = record->students[i].id;
  }
  size_t peak = 0;
  const auto note = [](void* seen, const char*, size_t size) {
    *static_cast<size_t*>(seen) = std::max(*static_cast<size_t*>(seen), _LiveBytes());
    return static_cast<ssize_t>(size);
  };
  std::FILE* sink =
      fopencookie(&peak, "wb", {.read = nullptr, .write = note, .seek = nullptr, .close = nullptr});
  std::setvbuf(sink, nullptr, _IONBF, 0);
  const size_t before = _LiveBytes();
  session->ExportTo(sink);
  std::fclose(sink);
  return peak - before;
}

TEST(Growth, OfAnExportFollowsStudentsAndResults) {
  for (const FormatRow& format : FormatTable()) {
    constexpr size_t kSmall = 150;
    const auto small = static_cast<double>(_PeakOfWriting(format, kSmall));
    for (const size_t times : {2U, 4U}) {
      const auto peak = static_cast<double>(_PeakOfWriting(format, times * kSmall));
      EXPECT_LT(peak / small, 1.5 * static_cast<double>(times)) << format.key;
    }
  }
}

}  // namespace

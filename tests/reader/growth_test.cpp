// Documents made to take more than linear time, or memory that no record needs: each is read at three sizes,
// and what it takes may not grow faster than the document.
#include <gtest/gtest.h>
#include <malloc.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <istream>
#include <streambuf>
#include <string>
#include <vector>

#include "Common/QZXMLParse/QZClassParse.h"
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

// Text that stands in the document once, or many times, each "$" being the number of the repetition.
struct Part {
  std::string text;
  bool repeated = false;
};
Part _Many(const std::string& text) {
  return {text, true};
}

// A document, written while it is read, so that it takes no memory itself. Notes the most memory in use.
class Document : public std::streambuf {
 public:
  Document(const std::vector<Part>& parts, size_t count) : m_parts(parts), m_count(count) {}

  size_t PeakBytes() const { return m_peakBytes; }

 protected:
  int_type underflow() override {
    constexpr size_t kBlockSize = 65536;
    m_peakBytes = std::max(m_peakBytes, _LiveBytes());
    m_block.clear();
    while (m_block.size() < kBlockSize && m_part < m_parts.size()) AppendNext();
    setg(m_block.data(), m_block.data(), m_block.data() + m_block.size());
    return m_block.empty() ? traits_type::eof() : traits_type::to_int_type(m_block[0]);
  }

 private:
  void AppendNext() {
    const Part& part = m_parts[m_part];
    for (const char character : part.text) {
      if (character == '$' && part.repeated) {
        m_block += std::to_string(m_index);
      } else {
        m_block += character;
      }
    }
    if (part.repeated && ++m_index < m_count) return;
    ++m_part;
    m_index = 0;
  }

  const std::vector<Part>& m_parts;
  size_t m_count;
  size_t m_part = 0;
  size_t m_index = 0;
  size_t m_peakBytes = 0;
  std::string m_block;
};

struct Cost {
  double seconds;
  double bytes;
};

Cost _CostOfReading(const std::vector<Part>& parts, size_t count, const char* expectedReason) {
  const size_t before = _LiveBytes();
  Document document(parts, count);
  std::istream stream(&document);
  qz::ClassRecord record;
  QZClassParseReport report;
  const std::clock_t start = std::clock();  // of this process only
  QZClassParse(&record, stream, &report);
  const std::clock_t end = std::clock();
  EXPECT_STREQ(report.reason, expectedReason);
  return {static_cast<double>(end - start) / CLOCKS_PER_SEC,
          static_cast<double>(std::max(document.PeakBytes(), _LiveBytes()) - before)};
}

enum Memory { kFlat, kLinear };  // linear: records, or a single token, of the document's size

struct Shape {
  const char* what;
  size_t count;
  Memory memory;
  std::vector<Part> parts;
  const char* reason = nullptr;
};

std::string _Declared(int count) {
  std::string text = "<!DOCTYPE class [<!ATTLIST student";
  for (int i = 0; i < count; ++i) text += " a" + std::to_string(i) + " CDATA 'x'";
  return text + ">]>";
}

const Part kStudents = {"<class><student-list>"};
const Part kNoMoreStudents = {"</student-list></class>"};
const Part kResults = {"<class><assignment-list><assignment>"};
const Part kNoMoreResults = {"</assignment></assignment-list></class>"};
const std::string kLongName(1000, 'u');

const Shape kShapes[] = {
    {"students",
     5000,
     kLinear,
     {kStudents, _Many("<student id='$'><alias>a$</alias></student>"), kNoMoreStudents}},
    {"assignments",
     10000,
     kLinear,
     {{"<class><assignment-list>"}, _Many("<assignment/>"), {"</assignment-list></class>"}}},
    {"attributes of a student, and its texts again and again",
     20000,
     kLinear,
     {kStudents,
      {"<student"},
      _Many(" a$=''"),
      {">"},
      _Many("<alias>x</alias>"),
      {"</student>"},
      kNoMoreStudents}},
    {"one attribute in many namespaces",
     10000,
     kLinear,
     {kStudents, {"<student"}, _Many(" xmlns:p$='u$' p$:id='$'"), {"/>"}, kNoMoreStudents}},
    {"attributes by default",
     5000,
     kLinear,
     {{_Declared(100)}, kStudents, _Many("<student/>"), kNoMoreStudents}},
    {"more of them",
     5000,
     kFlat,
     {{"<!DOCTYPE class ["},
      _Many("<!ATTLIST student a$ CDATA #IMPLIED>"),
      {"]>"},
      kStudents,
      _Many("<student/>"),
      kNoMoreStudents},
     "too many attribute declarations"},
    {"a long attribute by default",
     100000,
     kLinear,
     {{"<!DOCTYPE class [<!ATTLIST student id CDATA '"},
      _Many("x"),
      {"'>]>"},
      kStudents,
      _Many("<student/>"),
      kNoMoreStudents},
     "the default value of an attribute is too long"},
    {"elements of a long namespace",
     20000,
     kFlat,
     {{"<p:class xmlns:p='" + kLongName + "'>"}, _Many("<p:student-list/>"), {"</p:class>"}}},
    {"elements of a longer one",
     100000,
     kLinear,
     {{"<p:class xmlns:p='"}, _Many("u"), {"'>"}, _Many("<p:x/>"), {"</p:class>"}},
     "the name of a namespace is too long"},
    {"lists of a class",
     40000,
     kFlat,
     {{"<class>"}, _Many("<student-list/><assignment-list/>"), {"</class>"}}},
    {"lists of an assignment",
     20000,
     kFlat,
     {kResults,
      _Many("<results-list><results><response-list><response><text>x</text></response>"
            "</response-list></results></results-list><question-list><question/></question-list>"),
      kNoMoreResults}},
    {"pieces of a text",
     100000,
     kFlat,
     {kStudents, {"<student><alias>"}, _Many("&#65;&amp;"), {"</alias></student>"}, kNoMoreStudents}},
    {"texts of a student, outside its elements",
     50000,
     kFlat,
     {kStudents, {"<student>"}, _Many("x<b/>"), {"</student>"}, kNoMoreStudents}},
    {"elements in one another", 50000, kLinear, {{"<class>"}, _Many("<d>"), _Many("</d>"), {"</class>"}}},
    {"element names", 20000, kLinear, {{"<class>"}, _Many("<e$/>"), {"</class>"}}},
    {"a comment", 1000000, kLinear, {{"<class><!--"}, _Many("x"), {"--></class>"}}},
};

TEST(Growth, NeverFasterThanTheDocument) {
  constexpr size_t kFactors[] = {1, 2, 4};
  constexpr double kLeastSeconds = 0.002;  // below this the clock says little
  constexpr double kSlack = 65536;
  for (const Shape& shape : kShapes) {
    std::array<Cost, 3> costs{};
    for (size_t i = 0; i < costs.size(); ++i) {
      costs[i] = _CostOfReading(shape.parts, kFactors[i] * shape.count, shape.reason);
      for (int again = 0; again < 2; ++again) {
        const Cost cost = _CostOfReading(shape.parts, kFactors[i] * shape.count, shape.reason);
        costs[i].seconds = std::min(costs[i].seconds, cost.seconds);
      }
    }
    for (const size_t i : {1, 2}) {
      const auto factor = static_cast<double>(kFactors[i]);
      const double seconds = std::max(costs[0].seconds, kLeastSeconds);
      EXPECT_LT(costs[i].seconds, 2.5 * factor * seconds) << shape.what << ", times " << factor;
      const double bytes = shape.memory == kFlat ? costs[0].bytes : 1.5 * factor * costs[0].bytes;
      EXPECT_LT(costs[i].bytes, bytes + kSlack) << shape.what << ", times " << factor;
    }
    if (std::getenv("GRADIX_SHOW_GROWTH") != nullptr) {
      for (const Cost& cost : costs) std::printf("%8.2f ms %8.0f KB  ", cost.seconds * 1e3, cost.bytes / 1e3);
      std::printf("%s\n", shape.what);
    }
  }
}

}  // namespace

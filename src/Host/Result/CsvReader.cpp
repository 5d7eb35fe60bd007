#include "Host/Result/CsvReader.h"

#include <algorithm>

namespace host {

namespace {

class CsvScanner {
 public:
  explicit CsvScanner(std::string_view text) : m_text(text) {}

  std::vector<CsvRow> Rows() {
    std::vector<CsvRow> rows;
    while (!AtEnd()) rows.push_back(Row());
    return rows;
  }

 private:
  bool AtEnd() const { return m_position == m_text.size(); }

  // Steps over the character if it is the next one.
  bool Take(char character) {
    if (AtEnd() || m_text[m_position] != character) return false;
    ++m_position;
    return true;
  }

  bool TakeLineEnd() {
    const bool carriageReturn = Take('\r');
    return Take('\n') || carriageReturn;
  }

  CsvRow Row() {
    CsvRow row;
    do {
      row.push_back(Value());
    } while (Take(','));
    TakeLineEnd();
    return row;
  }

  std::string Value() {
    std::string value;
    if (Take('"')) value = QuotedPart();
    const size_t end = std::min(m_text.find_first_of(",\r\n", m_position), m_text.size());
    value.append(m_text.substr(m_position, end - m_position));
    m_position = end;
    return value;
  }

  std::string QuotedPart() {
    std::string part;
    while (!AtEnd()) {
      const size_t quote = std::min(m_text.find('"', m_position), m_text.size());
      part.append(m_text.substr(m_position, quote - m_position));
      m_position = quote;
      Take('"');
      if (!Take('"')) break;
      part.push_back('"');
    }
    return part;
  }

  std::string_view m_text;
  size_t m_position = 0;
};

}  // namespace

std::vector<CsvRow> ReadCsv(std::string_view text) {
  return CsvScanner(text).Rows();
}

}  // namespace host

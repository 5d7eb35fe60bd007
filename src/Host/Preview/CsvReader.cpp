#include "Host/Preview/CsvReader.h"

#include <algorithm>

namespace host {

namespace {

class CsvScanner {
 public:
  CsvScanner(std::string_view text, char delimiter)
      : m_text(text), m_delimiter(delimiter), m_valueEnds{delimiter, '\r', '\n'} {}

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
    } while (Take(m_delimiter));
    TakeLineEnd();
    return row;
  }

  std::string Value() {
    std::string value;
    if (Take('"')) value = QuotedPart();
    const size_t end = std::min(m_text.find_first_of(m_valueEnds, m_position), m_text.size());
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
  char m_delimiter;
  std::string m_valueEnds;  // without quotes
  size_t m_position = 0;
};

}  // namespace

std::vector<CsvRow> ReadCsv(std::string_view text, char delimiter) {
  return CsvScanner(text, delimiter).Rows();
}

}  // namespace host

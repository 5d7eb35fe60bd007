#include "Filters/GX_StdCsv/CommaSeparatedLine.h"

#include "Filters/GX_StdCsv/Session.h"

void CommaSeparatedLine::InsertComma() {
  if (!m_startOfLine) std::fputc(',', m_file);
  m_startOfLine = false;
}

void CommaSeparatedLine::InsertMaskedItem(const char* text, uint32_t mask) {
  if ((m_enabledItems & mask) != mask) return;
  InsertComma();
  if (text == nullptr || *text == '\0') return;
  std::fputc('"', m_file);
  Session::WriteSafeCSVString(m_file, text);
  std::fputc('"', m_file);
}

void CommaSeparatedLine::InsertNewLine() {
  m_startOfLine = true;
  std::fputc('\n', m_file);
}

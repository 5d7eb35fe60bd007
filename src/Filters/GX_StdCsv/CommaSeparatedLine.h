// Writes comma-separated rows whose items are switched on or off by a bit mask.
#ifndef GRADIX_COMMASEPARATEDLINE_H
#define GRADIX_COMMASEPARATEDLINE_H

#include <cstdint>
#include <cstdio>

class CommaSeparatedLine {
 public:
  // `file` is not owned and has to outlive the line writer.
  CommaSeparatedLine(std::FILE* file, uint32_t enabledItems) : m_file(file), m_enabledItems(enabledItems) {}
  virtual ~CommaSeparatedLine() = default;
  CommaSeparatedLine(const CommaSeparatedLine&) = delete;
  CommaSeparatedLine& operator=(const CommaSeparatedLine&) = delete;

  // Separates the item that follows from the one before it; writes nothing at the start of a line.
  void InsertComma();

  // Writes the text in double quotes as the next item, or leaves the item empty when there is no text. An
  // item of which any mask bit is off is left out, separator and all.
  void InsertMaskedItem(const char* text, uint32_t mask);

  void InsertNewLine();

 private:
  std::FILE* m_file;
  uint32_t m_enabledItems;
  bool m_startOfLine = true;
};

#endif  // GRADIX_COMMASEPARATEDLINE_H

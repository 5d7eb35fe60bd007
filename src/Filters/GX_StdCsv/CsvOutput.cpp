#include "Filters/GX_StdCsv/CsvOutput.h"

#include <array>
#include <cerrno>
#include <charconv>

#include "Common/number.h"

int StreamError() {
  return errno != 0 ? errno : EIO;
}

void WriteInteger(std::FILE* file, int32_t value) {
  std::array<char, 12> text;
  const auto result = std::to_chars(text.begin(), text.end(), value);
  std::fwrite(text.data(), 1, static_cast<size_t>(result.ptr - text.begin()), file);
}

void WriteNumber(std::FILE* file, double value) {
  char text[32];
  std::fwrite(text, 1, FormatGeneral(text, value), file);
}

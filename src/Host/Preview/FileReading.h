// How the bytes of an exported file are to be read.
#ifndef GRADIX_FILEREADING_H
#define GRADIX_FILEREADING_H

#include <cstdint>
#include <string>
#include <string_view>

#include "Filters/GX_StdCsv/FormatTable.h"
#include "Systems/ExportSubject.h"
#include "Tables/TextEncoding.h"

namespace host {

struct FileReading {
  TextEncoding encoding = TextEncoding::kMacRoman;  // the classic file's
  char delimiter = ',';
};

// Of the format's file in a dialect. A filled gradebook is as its download was, which its bytes tell.
FileReading ReadingOf(const FormatRow& format, Dialect dialect, char delimiter, std::string_view bytes);

// In UTF-8, without a byte-order mark. Bytes that are not of the encoding become U+FFFD.
std::string DecodeForReading(std::string_view bytes, TextEncoding encoding);

enum class LineEnds : uint8_t { kNone, kLf, kCrLf, kCr, kMixed };

LineEnds LineEndsOf(std::string_view text);

}  // namespace host

#endif  // GRADIX_FILEREADING_H

// The floor of reading a class file: expat over the whole file with handlers that only count.
//
//   expat_pass CLASSFILE

#include <expat.h>

#include <cstdint>
#include <cstdio>
#include <memory>

namespace {

struct Counts {
  uint64_t elements = 0;
  uint64_t ends = 0;
  uint64_t bytes = 0;
};

void XMLCALL _CountStart(void* counts, const XML_Char*, const XML_Char**) {
  ++static_cast<Counts*>(counts)->elements;
}
void XMLCALL _CountEnd(void* counts, const XML_Char*) {
  ++static_cast<Counts*>(counts)->ends;
}
void XMLCALL _CountText(void* counts, const XML_Char*, int length) {
  static_cast<Counts*>(counts)->bytes += static_cast<uint64_t>(length);
}

bool _Parse(std::FILE* file, XML_Parser parser) {
  constexpr int kBufferSize = 4096;
  for (;;) {
    void* buffer = XML_GetBuffer(parser, kBufferSize);
    if (buffer == nullptr) return false;
    const auto length = static_cast<int>(std::fread(buffer, 1, kBufferSize - 1, file));
    const bool final = length < kBufferSize - 1;
    if (XML_ParseBuffer(parser, length, final ? XML_TRUE : XML_FALSE) != XML_STATUS_OK) return false;
    if (final) return true;
  }
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) {
    std::fputs("usage: expat_pass CLASSFILE\n", stderr);
    return 2;
  }
  const std::unique_ptr<std::FILE, int (*)(std::FILE*)> file(std::fopen(argv[1], "rb"), std::fclose);
  const std::unique_ptr<XML_ParserStruct, void (*)(XML_Parser)> parser(XML_ParserCreateNS(nullptr, '#'),
                                                                       XML_ParserFree);
  if (file == nullptr || parser == nullptr) return 1;
  Counts counts;
  XML_SetUserData(parser.get(), &counts);
  XML_SetElementHandler(parser.get(), _CountStart, _CountEnd);
  XML_SetCharacterDataHandler(parser.get(), _CountText);
  if (!_Parse(file.get(), parser.get())) {
    std::fputs("expat_pass: the file does not parse\n", stderr);
    return 1;
  }
  std::printf("%llu elements, %llu bytes of text\n", static_cast<unsigned long long>(counts.elements),
              static_cast<unsigned long long>(counts.bytes));
  return 0;
}

#include "rescomp/StringsCompiler.h"

#include <cstddef>
#include <cstdint>

ByteWriter StringListBytes(const std::vector<std::string>& texts) {
  ByteWriter bytes;
  bytes.U16(static_cast<uint16_t>(texts.size()));
  for (const std::string& text : texts) bytes.Pascal(text);
  return bytes;
}

void CompileStringList(const Node& source, ForkWriter* file) {
  constexpr size_t kMaximumCount = INT16_MAX;
  source.AllowKeys({{"id", "strings"}});
  const Node id = source.At("id");
  const Node strings = source.At("strings");
  std::vector<std::string> texts;
  for (const Node& text : strings.Elements()) texts.push_back(text.Roman());
  if (texts.size() > kMaximumCount) strings.Fail("is longer than " + std::to_string(kMaximumCount));
  file->Add("STR#", id.ResourceId(), StringListBytes(texts), id);
}

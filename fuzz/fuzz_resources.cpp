// Reads arbitrary bytes as a resource fork, touches what it holds and takes its string lists apart.

#include <cstdint>
#include <string_view>

#include "Platform/Core/BigEndian.h"
#include "Platform/Core/ResourceFork.h"

namespace {

constexpr ResType kStringList = FourCharCode("STR#");
constexpr size_t kByteBudget = size_t{1} << 20;  // resources may overlap: no input takes long

void _Require(bool condition) {
  if (!condition) __builtin_trap();
}

uint32_t _Sum(std::string_view bytes) {
  uint32_t sum = 0;
  for (const char byte : bytes) sum += static_cast<uint8_t>(byte);
  return sum;
}

uint32_t _SumStrings(std::span<const char> list) {
  BigEndianReader reader(list);
  uint16_t count = 0;
  reader.Read16(&count);
  uint32_t sum = 0;
  for (; count > 0 && !reader.failed(); --count) sum += _Sum(reader.TakePascalString());
  _Require(reader.position() <= list.size());
  return sum;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  const std::span<const char> fork(reinterpret_cast<const char*>(data), size);
  const auto entries = ReadResourceFork(fork);
  if (!entries) return 0;
  _Require(entries->size() <= 65536);
  size_t budget = kByteBudget;
  for (const ResourceEntry& entry : *entries) {
    _Require(entry.name.size() <= 255);
    if (!entry.data.empty()) {
      _Require(entry.data.data() >= fork.data());
      _Require(entry.data.data() + entry.data.size() <= fork.data() + fork.size());
    }
    if (entry.data.size() > budget) break;
    budget -= entry.data.size();
    // A byte sums up to 255 at most; nothing may be counted twice.
    _Require(_Sum({entry.data.data(), entry.data.size()}) <= 255 * entry.data.size());
    _Require(_Sum(entry.name) <= 255 * entry.name.size());
    if (entry.type == kStringList) _Require(_SumStrings(entry.data) <= 255 * entry.data.size());
  }
  return 0;
}

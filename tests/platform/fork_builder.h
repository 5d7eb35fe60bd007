// Writes resource forks for the tests.
#ifndef GRADIX_FORK_BUILDER_H
#define GRADIX_FORK_BUILDER_H

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

struct TestResource {
  int16_t id;
  std::string data;
  std::string name = {};
  uint8_t attributes = 0;
  bool operator==(const TestResource&) const = default;
};

using TestTypes = std::vector<std::pair<std::string, std::vector<TestResource>>>;

inline std::string BigEndian(uint32_t value, int bytes) {
  std::string text;
  while (bytes > 0) text += static_cast<char>(value >> (8 * --bytes));
  return text;
}

inline std::string PascalString(const std::string& text) {
  return static_cast<char>(text.size()) + text;
}

// The data of a 'STR#' resource.
inline std::string StringList(const std::vector<std::string>& strings) {
  std::string list = BigEndian(static_cast<uint32_t>(strings.size()), 2);
  for (const std::string& text : strings) list += PascalString(text);
  return list;
}

inline std::string BuildFork(const TestTypes& types) {
  std::string data, references, names;
  std::string typeList = BigEndian(static_cast<uint32_t>(types.size() - 1) & 0xFFFF, 2);
  const size_t typeListSize = 2 + 8 * types.size();
  for (const auto& [type, resources] : types) {
    typeList += type + BigEndian(static_cast<uint32_t>(resources.size() - 1) & 0xFFFF, 2);
    typeList += BigEndian(static_cast<uint32_t>(typeListSize + references.size()), 2);
    for (const TestResource& resource : resources) {
      const bool named = !resource.name.empty();
      references += BigEndian(static_cast<uint16_t>(resource.id), 2);
      references += BigEndian(named ? static_cast<uint32_t>(names.size()) : 0xFFFF, 2);
      references += BigEndian(resource.attributes, 1) + BigEndian(static_cast<uint32_t>(data.size()), 3);
      references += BigEndian(0, 4);
      if (named) names += PascalString(resource.name);
      data += BigEndian(static_cast<uint32_t>(resource.data.size()), 4) + resource.data;
    }
  }
  constexpr uint32_t kHeaderSize = 16, kMapHeaderSize = 28;
  const std::string lists = typeList + references + names;
  const auto dataSize = static_cast<uint32_t>(data.size());
  const std::string header = BigEndian(kHeaderSize, 4) + BigEndian(kHeaderSize + dataSize, 4) +
                             BigEndian(dataSize, 4) +
                             BigEndian(kMapHeaderSize + static_cast<uint32_t>(lists.size()), 4);
  return header + data + header + std::string(8, '\0') + BigEndian(kMapHeaderSize, 2) +
         BigEndian(kMapHeaderSize + static_cast<uint32_t>(typeList.size() + references.size()), 2) + lists;
}

#endif  // GRADIX_FORK_BUILDER_H

#include "Platform/Core/ResourceFork.h"

#include <gtest/gtest.h>

#include <optional>
#include <vector>

#include "tests/platform/fork_builder.h"

namespace {

// Reads a copy of exactly the fork's size on the heap, so that a sanitizer build catches a read past its end,
// and touches every byte of the entries. Nothing when the fork is refused.
std::optional<TestTypes> _Read(const std::string& fork) {
  const std::vector<char> bytes(fork.begin(), fork.end());
  const auto read = ReadResourceFork({bytes.data(), bytes.size()});
  if (!read) return std::nullopt;
  TestTypes types;
  for (const ResourceEntry& entry : *read) {
    const std::string type = BigEndian(entry.type, 4);
    if (types.empty() || types.back().first != type) types.push_back({type, {}});
    types.back().second.push_back(
        {entry.id, std::string(entry.data.begin(), entry.data.end()), entry.name, entry.attributes});
  }
  return types;
}

const TestTypes kTypes = {
    {"STR#", {{128, StringList({"one", "two"}), "Words"}, {-5, "", {}, 0x20}}},
    {"icon", {{0, std::string(300, 'x'), "Picture"}}},
};

// Offsets in the fork of kTypes.
const size_t kMapOffset = 16 + (4 + 10) + 4 + (4 + 300);
const size_t kTypeList = kMapOffset + 28;
const size_t kReferences = kTypeList + 2 + size_t{2} * 8;
const size_t kNames = kReferences + size_t{3} * 12;

void _Put(std::string* fork, size_t offset, const std::string& bytes) {
  ASSERT_LE(offset + bytes.size(), fork->size());
  fork->replace(offset, bytes.size(), bytes);
}

TEST(ResourceFork, ReadsEveryEntryInOrder) {
  EXPECT_EQ(_Read(BuildFork(kTypes)), kTypes);
  EXPECT_EQ(_Read(BuildFork({})), TestTypes());
  const TestTypes some = {{"some", {{1, "a"}}}};
  EXPECT_EQ(_Read(BuildFork({{"none", {}}, some.front()})), some);
}

TEST(ResourceFork, RefusesEveryTruncation) {
  const std::string fork = BuildFork(kTypes);
  for (size_t size = 0; size < fork.size(); ++size) {
    EXPECT_FALSE(_Read(fork.substr(0, size))) << size << " bytes";
  }
}

// What a field says may be wrong, but never leads outside of the fork.
TEST(ResourceFork, SurvivesExtremeFields) {
  const std::string valid = BuildFork(kTypes);
  for (size_t offset = 0; offset < valid.size(); ++offset) {
    for (const uint32_t value :
         {0U, 1U, 0x7FFFU, 0x8000U, 0xFFFEU, 0xFFFFU, 0x7FFFFFFFU, 0x80000000U, 0xFFFFFFFFU}) {
      for (const int width : {2, 4}) {
        std::string fork = valid;
        if (offset + static_cast<size_t>(width) > fork.size()) continue;
        _Put(&fork, offset, BigEndian(value, width));
        for (const auto& [type, resources] : _Read(fork).value_or(TestTypes())) {
          for (const TestResource& entry : resources) EXPECT_LE(entry.data.size(), fork.size());
        }
      }
    }
  }
}

TEST(ResourceFork, RefusesWhatPointsOutside) {
  const struct {
    const char* name;
    size_t offset;
    std::string bytes;
  } rows[] = {
      {"data behind the file", 0, BigEndian(0xFFFFFFF0, 4)},
      {"data length", 8, BigEndian(static_cast<uint32_t>(kMapOffset) + 200, 4)},
      {"data shorter than its resources", 8, BigEndian(20, 4)},
      {"map behind the file", 4, BigEndian(0x7FFFFFFF, 4)},
      {"map too short for its header", 12, BigEndian(27, 4)},
      {"map too short for its lists", 12, BigEndian(60, 4)},
      {"type list", kMapOffset + 24, BigEndian(0xFFFF, 2)},
      {"name list", kMapOffset + 26, BigEndian(0xFFFF, 2)},
      {"types", kTypeList, BigEndian(40, 2)},
      {"references", kTypeList + 2 + 4, BigEndian(8, 2)},
      {"reference list", kTypeList + 2 + 6, BigEndian(0xFFF0, 2)},
      {"name", kReferences + 2, BigEndian(0xFFFE, 2)},
      {"name's length", kNames, "\xFF"},
      {"data offset", kReferences + 5, BigEndian(0xFFFFFF, 3)},
      {"data offset inside the last length", kReferences + 5,
       BigEndian(static_cast<uint32_t>(kMapOffset) - 16 - 3, 3)},
      {"resource's length", 16, BigEndian(0xFFFFFFFF, 4)},
  };
  for (const auto& row : rows) {
    std::string fork = BuildFork(kTypes);
    _Put(&fork, row.offset, row.bytes);
    EXPECT_FALSE(_Read(fork)) << row.name;
  }
}

// Many types that share one reference list: the count explodes, not the work.
TEST(ResourceFork, BoundsOverlappingLists) {
  const auto build = [](size_t types, uint32_t references) {
    TestTypes list(types, {"same", {}});
    list.back().second.assign(references, {1, ""});
    std::string fork = BuildFork(list);
    const size_t typeList = 16 + 4 * references + 28;
    for (size_t i = 0; i + 1 < types; ++i) {
      fork.replace(typeList + 2 + 8 * i + 4, 4, fork, typeList + 2 + 8 * (types - 1) + 4, 4);
    }
    return fork;
  };
  const auto read = _Read(build(16, 4096));
  ASSERT_TRUE(read);
  EXPECT_EQ(read->front().second.size(), 65536U);
  EXPECT_FALSE(_Read(build(17, 4096)));
  EXPECT_FALSE(_Read(build(4000, 4096)));
}

}  // namespace

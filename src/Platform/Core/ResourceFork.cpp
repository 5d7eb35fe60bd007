#include "Platform/Core/ResourceFork.h"

#include "Platform/Core/BigEndian.h"

namespace {

constexpr size_t kMapHeaderSize = 24;  // copy of the file's header, two reserved fields, the attributes
constexpr uint16_t kNoName = 0xFFFF;
constexpr size_t kGreatestCount = 65536;

using Bytes = std::span<const char>;

class ForkReader {
 public:
  bool Read(Bytes fork);
  std::vector<ResourceEntry> entries;

 private:
  bool ReadParts(Bytes fork);
  bool ReadTypes();
  bool ReadReferences(ResType type, uint32_t count, size_t offset);
  bool ReadEntry(BigEndianReader* reference, ResourceEntry* entry) const;
  bool ReadName(uint16_t offset, ResourceEntry* entry) const;
  bool ReadData(uint32_t offset, ResourceEntry* entry) const;

  Bytes m_data;
  Bytes m_map;
  Bytes m_types;  // from the type list to the end of the map
  Bytes m_names;  // from the name list to the end of the map
};

// A list's counter field holds one less than the count; 0xFFFF is none.
uint32_t _CountOf(uint16_t field) {
  return static_cast<uint16_t>(field + 1);
}

// `length` bytes at `offset`; false when they are not all there.
bool _Part(Bytes bytes, size_t offset, size_t length, Bytes* part) {
  BigEndianReader reader(bytes);
  reader.Seek(offset);
  *part = reader.Take(length);
  return !reader.failed();
}

// All bytes from `offset` on.
bool _Tail(Bytes bytes, size_t offset, Bytes* tail) {
  return offset <= bytes.size() && _Part(bytes, offset, bytes.size() - offset, tail);
}

}  // namespace

bool ForkReader::Read(Bytes fork) {
  return ReadParts(fork) && ReadTypes();
}

bool ForkReader::ReadParts(Bytes fork) {
  BigEndianReader header(fork);
  uint32_t dataOffset = 0;
  uint32_t mapOffset = 0;
  uint32_t dataLength = 0;
  uint32_t mapLength = 0;
  header.Read32(&dataOffset);
  header.Read32(&mapOffset);
  header.Read32(&dataLength);
  header.Read32(&mapLength);
  if (header.failed() || !_Part(fork, dataOffset, dataLength, &m_data) ||
      !_Part(fork, mapOffset, mapLength, &m_map)) {
    return false;
  }
  BigEndianReader map(m_map);
  uint16_t typeList = 0;
  uint16_t nameList = 0;
  map.Skip(kMapHeaderSize);
  map.Read16(&typeList);
  map.Read16(&nameList);
  return !map.failed() && _Tail(m_map, typeList, &m_types) && _Tail(m_map, nameList, &m_names);
}

bool ForkReader::ReadTypes() {
  BigEndianReader list(m_types);
  uint16_t counter = 0;
  if (!list.Read16(&counter)) return false;
  for (uint32_t rest = _CountOf(counter); rest > 0; --rest) {
    ResType type = 0;
    uint16_t offset = 0;
    list.Read32(&type);
    list.Read16(&counter);
    list.Read16(&offset);
    if (list.failed() || !ReadReferences(type, _CountOf(counter), offset)) return false;
  }
  return true;
}

bool ForkReader::ReadReferences(ResType type, uint32_t count, size_t offset) {
  // Reference lists may overlap, so the file's size alone does not bound the sum of their counts.
  if (count > kGreatestCount - entries.size()) return false;
  BigEndianReader list(m_types);
  list.Seek(offset);
  for (; count > 0; --count) {
    ResourceEntry entry;
    entry.type = type;
    if (!ReadEntry(&list, &entry)) return false;
    entries.push_back(std::move(entry));
  }
  return !list.failed();
}

bool ForkReader::ReadEntry(BigEndianReader* reference, ResourceEntry* entry) const {
  uint16_t nameOffset = 0;
  uint32_t dataOffset = 0;
  reference->ReadI16(&entry->id);
  reference->Read16(&nameOffset);
  reference->Read8(&entry->attributes);
  reference->Read24(&dataOffset);
  reference->Skip(4);  // a handle, in memory
  return !reference->failed() && ReadName(nameOffset, entry) && ReadData(dataOffset, entry);
}

bool ForkReader::ReadName(uint16_t offset, ResourceEntry* entry) const {
  if (offset == kNoName) return true;
  BigEndianReader names(m_names);
  names.Seek(offset);
  entry->name = names.TakePascalString();
  return !names.failed();
}

bool ForkReader::ReadData(uint32_t offset, ResourceEntry* entry) const {
  BigEndianReader data(m_data);
  uint32_t length = 0;
  data.Seek(offset);
  data.Read32(&length);
  entry->data = data.Take(length);
  return !data.failed();
}

std::optional<std::vector<ResourceEntry>> ReadResourceFork(std::span<const char> fork) {
  ForkReader reader;
  if (!reader.Read(fork)) return std::nullopt;
  return std::move(reader.entries);
}

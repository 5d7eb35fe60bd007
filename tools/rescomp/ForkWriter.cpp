#include "rescomp/ForkWriter.h"

#include <cstddef>

namespace {

constexpr size_t kHeaderSize = 16;
constexpr size_t kDataOffset = 256;
constexpr size_t kMapHeaderSize = 28;  // up to the type list
constexpr size_t kTypeSize = 8;        // of an entry of the type list
constexpr size_t kReferenceSize = 12;  // of an entry of a reference list
constexpr uint16_t kNoName = 0xFFFF;
constexpr size_t kMaximumData = 0xFFFFFF;
constexpr size_t kMaximumMap = 0xFFFF;

std::string _Header(size_t dataSize, size_t mapSize) {
  ByteWriter header;
  header.U32(kDataOffset)
      .U32(static_cast<uint32_t>(kDataOffset + dataSize))
      .U32(static_cast<uint32_t>(dataSize))
      .U32(static_cast<uint32_t>(mapSize));
  return header.Bytes();
}

}  // namespace

void ForkWriter::Add(const std::string& type, int16_t id, const ByteWriter& bytes, const Node& source) {
  const auto [entry, added] = m_resources.try_emplace({type, id}, Resource{bytes.Bytes(), source.Place(), 0});
  if (!added) {
    source.Fail("'" + type + "' " + std::to_string(id) + " is already defined by " + entry->second.place);
  }
}

void ForkWriter::AddOfDialog(int16_t dialog, const std::string& type, int16_t id, const ByteWriter& bytes,
                             const Node& source) {
  const auto found = m_resources.find({type, id});
  if (found != m_resources.end() && found->second.dialog != 0) {
    source.Fail("the dialogs " + std::to_string(dialog) + " and " + std::to_string(found->second.dialog) +
                " are too near: both have a control with the id " + std::to_string(id) +
                ", the other being " + found->second.place);
  }
  Add(type, id, bytes, source);
  m_resources[{type, id}].dialog = dialog;
}

std::string ForkWriter::Serialize() const {
  std::map<std::string, uint16_t> counts;
  for (const auto& [key, resource] : m_resources) ++counts[key.first];

  ByteWriter data;
  ByteWriter references;
  for (const auto& [key, resource] : m_resources) {
    references.I16(key.second)
        .U16(kNoName)
        .U8(0)
        .Number(static_cast<uint32_t>(data.Bytes().size()), 3)
        .U32(0);
    data.U32(static_cast<uint32_t>(resource.bytes.size())).Raw(resource.bytes);
  }

  ByteWriter types;
  types.U16(static_cast<uint16_t>(counts.size() - 1));
  size_t listOffset = 2 + counts.size() * kTypeSize;
  for (const auto& [type, count] : counts) {
    types.Raw(type).U16(static_cast<uint16_t>(count - 1)).U16(static_cast<uint16_t>(listOffset));
    listOffset += count * kReferenceSize;
  }

  const size_t mapSize = kMapHeaderSize + types.Bytes().size() + references.Bytes().size();
  if (data.Bytes().size() > kMaximumData || mapSize > kMaximumMap) {
    throw SourceError("the resources exceed the limits of a resource file");
  }
  const std::string header = _Header(data.Bytes().size(), mapSize);
  ByteWriter file;
  file.Raw(header).Zeros(kDataOffset - kHeaderSize).Raw(data.Bytes());
  file.Raw(header).U32(0).U16(0).U16(0).U16(kMapHeaderSize).U16(static_cast<uint16_t>(mapSize));
  file.Raw(types.Bytes()).Raw(references.Bytes());
  return file.Bytes();
}

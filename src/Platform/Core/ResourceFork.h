// The published resource-fork format, read from bytes: header, resource data, resource map. Knows no files.
#ifndef GRADIX_RESOURCEFORK_H
#define GRADIX_RESOURCEFORK_H

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "Platform/Core/MacTypes.h"

struct ResourceEntry {
  ResType type = 0;
  int16_t id = 0;
  uint8_t attributes = 0;
  std::string name;            // Mac OS Roman, often empty
  std::span<const char> data;  // inside the fork's bytes
};

// All resources in the order of the map, at most 65,536; of two with the same type and id the first counts.
// nullopt when there are more, and when any offset, length or count points outside its part, so that a cut or
// lying file is refused as a whole. The entries point into `fork`.
std::optional<std::vector<ResourceEntry>> ReadResourceFork(std::span<const char> fork);

#endif  // GRADIX_RESOURCEFORK_H

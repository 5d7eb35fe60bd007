// A resource file in the making.
#ifndef GRADIX_FORKWRITER_H
#define GRADIX_FORKWRITER_H

#include <cstdint>
#include <map>
#include <string>
#include <utility>

#include "rescomp/ByteWriter.h"
#include "rescomp/Source.h"

class ForkWriter {
 public:
  // Adds a resource, its type being four characters. Throws SourceError at `source` when there is one of this
  // type and id.
  void Add(const std::string& type, int16_t id, const ByteWriter& bytes, const Node& source);
  // The same for one whose id is counted from that of its dialog: the message tells that two are too near.
  void AddOfDialog(int16_t dialog, const std::string& type, int16_t id, const ByteWriter& bytes,
                   const Node& source);

  // The whole file, by type and id. The same resources give the same bytes. Throws SourceError when they
  // exceed what the format can hold.
  std::string Serialize() const;

 private:
  struct Resource {
    std::string bytes;
    std::string place;
    int16_t dialog = 0;  // 0: of none
  };

  std::map<std::pair<std::string, int16_t>, Resource> m_resources;
};

#endif  // GRADIX_FORKWRITER_H

// Numbers distinct keys 0, 1, 2, ... in the order in which they are first added.
#ifndef GRADIX_KEYINDEX_H
#define GRADIX_KEYINDEX_H

#include <cstddef>
#include <limits>
#include <unordered_map>

#include "Common/SeededHash.h"

// `Key` is uint64_t, or std::string_view of texts that outlive the index.
template <typename Key>
class KeyIndex {
 public:
  static constexpr size_t kNone = std::numeric_limits<size_t>::max();

  explicit KeyIndex(size_t expectedKeys) { m_numbers.reserve(expectedKeys); }

  // The key's number, a new one when the key is new.
  size_t Add(const Key& key) { return m_numbers.try_emplace(key, m_numbers.size()).first->second; }

  // The key's number, or kNone.
  size_t Find(const Key& key) const {
    const auto found = m_numbers.find(key);
    return found == m_numbers.end() ? kNone : found->second;
  }

  size_t Count() const { return m_numbers.size(); }

 private:
  std::unordered_map<Key, size_t, SeededHash> m_numbers;
};

#endif  // GRADIX_KEYINDEX_H

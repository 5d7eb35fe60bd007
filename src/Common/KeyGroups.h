// Finds which of many texts are equal.
#ifndef GRADIX_KEYGROUPS_H
#define GRADIX_KEYGROUPS_H

#include <cstddef>
#include <string_view>
#include <utility>
#include <vector>

#include "Common/KeyIndex.h"

// The texts outlive it. Whose a text is, is the caller's number.
class KeyGroups {
 public:
  explicit KeyGroups(size_t expectedKeys) : m_keys(expectedKeys) {}

  // True when the key is new.
  bool Add(std::string_view key, size_t owner) {
    const size_t number = m_keys.Add(key);
    if (number == m_of.size()) {
      m_of.push_back({owner, kNoGroup});
      return true;
    }
    Key& known = m_of[number];
    if (known.group == kNoGroup) {
      known.group = m_shared.size();
      m_shared.push_back({known.firstOwner});
    }
    m_shared[known.group].push_back(owner);
    return false;
  }

  // The owners of each key that several have.
  std::vector<std::vector<size_t>> Shared() && { return std::move(m_shared); }

 private:
  static constexpr size_t kNoGroup = KeyIndex<std::string_view>::kNone;

  struct Key {
    size_t firstOwner;
    size_t group;  // kNoGroup while it is the only one
  };

  KeyIndex<std::string_view> m_keys;
  std::vector<Key> m_of;  // by number of the key
  std::vector<std::vector<size_t>> m_shared;
};

#endif  // GRADIX_KEYGROUPS_H

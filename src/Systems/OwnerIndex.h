// Finding whose a text is, when it is one's alone.
#ifndef GRADIX_SYSTEMS_OWNERINDEX_H
#define GRADIX_SYSTEMS_OWNERINDEX_H

#include <cstddef>
#include <limits>
#include <string>
#include <string_view>
#include <vector>

#include "Common/KeyIndex.h"

using Texts = std::vector<std::string>;

// Finds the one owner of a text. An empty text is nobody's.
class OwnerIndex {
 public:
  static constexpr size_t kNone = std::numeric_limits<size_t>::max();
  static constexpr size_t kSeveral = kNone - 1;

  explicit OwnerIndex(size_t expectedTexts) : m_texts(expectedTexts) { m_owners.reserve(expectedTexts); }

  // Owners are the positions in the texts, which outlive the index.
  explicit OwnerIndex(const Texts& texts) : OwnerIndex(texts.size()) {
    for (size_t owner = 0; owner < texts.size(); ++owner) Add(texts[owner], owner);
  }

  void Add(std::string_view text, size_t owner) {
    if (text.empty()) return;
    const size_t number = m_texts.Add(text);
    if (number == m_owners.size()) {
      m_owners.push_back(owner);
    } else if (m_owners[number] != owner) {
      m_owners[number] = kSeveral;
    }
  }

  // kNone: nobody, kSeveral: more than one.
  size_t Find(std::string_view text) const {
    const size_t number = text.empty() ? KeyIndex<std::string_view>::kNone : m_texts.Find(text);
    return number == KeyIndex<std::string_view>::kNone ? kNone : m_owners[number];
  }

 private:
  KeyIndex<std::string_view> m_texts;
  std::vector<size_t> m_owners;
};

// The texts, changed one by one.
template <typename Text>
Texts EachText(const Texts& texts, Text text) {
  Texts changed;
  changed.reserve(texts.size());
  for (const std::string& each : texts) changed.push_back(text(each));
  return changed;
}

#endif  // GRADIX_SYSTEMS_OWNERINDEX_H

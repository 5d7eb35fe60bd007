// JSON sources whose every value knows its place, for messages.
#ifndef GRADIX_SOURCE_H
#define GRADIX_SOURCE_H

#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <memory>
#include <nlohmann/json_fwd.hpp>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "rescomp/ByteWriter.h"

// What is wrong with a source, with its file and place in front.
class SourceError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// The longest text of a resource, in bytes.
inline constexpr size_t kMaximumTextSize = 255;

// A value of a source. Reading anything that is not what the caller asks for throws SourceError. Copies share
// the source, which lives as long as any of them.
class Node {
 public:
  // Reads a whole file: an object, comments allowed, no key twice.
  static Node ReadFile(const std::string& path);

  // The file and the value's place in it, such as "en/options.json: dialogs[0].items[3]".
  std::string Place() const;
  [[noreturn]] void Fail(const std::string& text) const;

  // Objects.
  void AllowKeys(std::initializer_list<std::vector<std::string_view>> lists) const;
  Node At(std::string_view key) const;
  std::optional<Node> Find(std::string_view key) const;
  int32_t IntegerOr(std::string_view key, int32_t otherwise, int32_t least, int32_t greatest) const;
  bool FlagOr(std::string_view key, bool otherwise) const;
  std::string RomanOr(std::string_view key, const std::string& otherwise) const;

  // Lists.
  std::vector<Node> Elements() const;
  // [left, top, width, height], width and height positive, all within 16 bits.
  Rectangle Rect() const;

  // Single values.
  bool IsInteger() const;
  int32_t Integer(int32_t least, int32_t greatest) const;
  int16_t ResourceId() const { return static_cast<int16_t>(Integer(1, INT16_MAX)); }
  // The text in Mac OS Roman; line feeds are the only control characters.
  std::string Roman() const;
  // The index of the text among the names.
  size_t Choice(const std::vector<std::string_view>& names) const;

 private:
  struct Document;

  Node(std::shared_ptr<const Document> document, const nlohmann::json* value, std::string path);
  Node Child(const nlohmann::json& value, const std::string& step) const;
  const std::string& Text() const;

  std::shared_ptr<const Document> m_document;
  const nlohmann::json* m_value;
  std::string m_path;
};

#endif  // GRADIX_SOURCE_H

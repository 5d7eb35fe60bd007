#include "rescomp/Source.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <nlohmann/json.hpp>
#include <set>
#include <sstream>
#include <utility>

#include "Common/xmlcharmaps.h"
#include "Common/xmlutil.h"

using nlohmann::json;

struct Node::Document {
  explicit Document(const std::string& path) : file(path) {}

  std::string file;
  json root;
};

namespace {

std::string _ReadText(const std::string& path) {
  errno = 0;
  const std::ifstream stream(path, std::ios::binary);
  std::ostringstream text;
  if (stream.is_open()) text << stream.rdbuf();
  if (!stream.is_open() || text.bad()) {
    throw SourceError(path + ": " + std::strerror(errno != 0 ? errno : EIO));
  }
  return text.str();
}

// ":line:column" of a byte, both counted from 1 and columns in characters.
std::string _LineAndColumn(const std::string& text, size_t offset) {
  const std::string_view before = std::string_view(text).substr(0, offset);
  const auto lines = std::count(before.begin(), before.end(), '\n');
  const std::string_view line = before.substr(before.rfind('\n') + 1);  // from 0 where there is none
  const auto columns =
      std::count_if(line.begin(), line.end(), [](char byte) { return (byte & 0xC0) != 0x80; });
  std::ostringstream place;
  place << ':' << lines + 1 << ':' << columns + 1;
  return place.str();
}

// The parser's message without the prefix that repeats its place.
std::string _PlainMessage(const char* message) {
  const char* const place = std::strstr(message, "column ");
  const char* const text = std::strstr(place != nullptr ? place : message, ": ");
  return text != nullptr ? text + 2 : message;
}

// Parsing keeps the last of two equal keys, so they are looked for while it goes on.
class KeyWatch {
 public:
  explicit KeyWatch(const std::string& file) : m_file(file) {}

  void See(json::parse_event_t event, const json& parsed) {
    if (event == json::parse_event_t::object_start) m_open.emplace_back();
    if (event == json::parse_event_t::object_end) m_open.pop_back();
    if (event != json::parse_event_t::key) return;
    const auto& key = parsed.get_ref<const std::string&>();
    if (!m_open.back().insert(key).second) {
      throw SourceError(m_file + ": key \"" + key + "\" appears twice in one object");
    }
  }

 private:
  const std::string& m_file;
  std::vector<std::set<std::string>> m_open;
};

json _Parse(const std::string& file, const std::string& text) {
  KeyWatch watch(file);
  try {
    return json::parse(
        text,
        [&watch](int, json::parse_event_t event, json& parsed) {
          watch.See(event, parsed);
          return true;
        },
        true, true);
  } catch (const json::parse_error& error) {
    const size_t offset = error.byte > 0 ? error.byte - 1 : 0;
    throw SourceError(file + _LineAndColumn(text, offset) +
                      ": not valid JSON: " + _PlainMessage(error.what()));
  } catch (const json::exception& error) {
    throw SourceError(file + ": " + error.what());
  }
}

std::string _Joined(const std::vector<std::string_view>& names) {
  std::string list;
  for (const std::string_view name : names) {
    if (!list.empty()) list += ", ";
    list += name;
  }
  return list;
}

std::string _Quoted(std::string_view text) {
  std::ostringstream quoted;
  quoted << '"' << text << '"';
  return quoted.str();
}

std::string _CodePointName(int32_t codePoint) {
  char name[16];
  std::snprintf(name, sizeof name, "U+%04X", static_cast<unsigned>(codePoint));
  return name;
}

}  // namespace

Node::Node(std::shared_ptr<const Document> document, const json* value, std::string path)
    : m_document(std::move(document)), m_value(value), m_path(std::move(path)) {}

Node Node::ReadFile(const std::string& path) {
  auto document = std::make_shared<Document>(path);
  document->root = _Parse(path, _ReadText(path));
  const json* const root = &document->root;
  Node node(std::move(document), root, "");
  if (!root->is_object()) node.Fail("must be an object");
  return node;
}

std::string Node::Place() const {
  return m_path.empty() ? m_document->file : m_document->file + ": " + m_path;
}

void Node::Fail(const std::string& text) const {
  throw SourceError(Place() + ": " + text);
}

Node Node::Child(const json& value, const std::string& step) const {
  return {m_document, &value, m_path + step};
}

void Node::AllowKeys(std::initializer_list<std::vector<std::string_view>> lists) const {
  if (!m_value->is_object()) Fail("must be an object");
  for (const auto& entry : m_value->items()) {
    const bool known = std::any_of(lists.begin(), lists.end(), [&entry](const auto& list) {
      return std::find(list.begin(), list.end(), entry.key()) != list.end();
    });
    if (!known) Fail("unknown key " + _Quoted(entry.key()));
  }
}

std::optional<Node> Node::Find(std::string_view key) const {
  if (!m_value->is_object()) Fail("must be an object");
  const auto found = m_value->find(key);
  if (found == m_value->end()) return std::nullopt;
  std::string step = m_path.empty() ? "" : ".";
  return Child(*found, step.append(key));
}

Node Node::At(std::string_view key) const {
  std::optional<Node> found = Find(key);
  if (!found) Fail(_Quoted(key) + " is missing");
  return *std::move(found);
}

int32_t Node::IntegerOr(std::string_view key, int32_t otherwise, int32_t least, int32_t greatest) const {
  const std::optional<Node> found = Find(key);
  return found ? found->Integer(least, greatest) : otherwise;
}

bool Node::FlagOr(std::string_view key, bool otherwise) const {
  const std::optional<Node> found = Find(key);
  if (!found) return otherwise;
  if (!found->m_value->is_boolean()) found->Fail("must be true or false");
  return found->m_value->get<bool>();
}

std::string Node::RomanOr(std::string_view key, const std::string& otherwise) const {
  const std::optional<Node> found = Find(key);
  return found ? found->Roman() : otherwise;
}

std::vector<Node> Node::Elements() const {
  if (!m_value->is_array()) Fail("must be a list");
  std::vector<Node> elements;
  for (const json& value : *m_value) {
    std::ostringstream step;
    step << '[' << elements.size() << ']';
    elements.push_back(Child(value, step.str()));
  }
  return elements;
}

Rectangle Node::Rect() const {
  const std::vector<Node> numbers = Elements();
  if (numbers.size() != 4) Fail("must be [left, top, width, height]");
  int32_t values[4];
  for (size_t i = 0; i < 4; ++i) values[i] = numbers[i].Integer(INT16_MIN, INT16_MAX);
  const auto [left, top, width, height] = values;
  if (width < 0) Fail("right edge lies left of the left edge");
  if (height < 0) Fail("bottom edge lies above the top edge");
  if (width == 0 || height == 0) Fail("is empty");
  if (left + width > INT16_MAX || top + height > INT16_MAX) Fail("reaches beyond 32767");
  return {static_cast<int16_t>(left), static_cast<int16_t>(top), static_cast<int16_t>(left + width),
          static_cast<int16_t>(top + height)};
}

bool Node::IsInteger() const {
  return m_value->is_number_integer();
}

int32_t Node::Integer(int32_t least, int32_t greatest) const {
  if (!IsInteger()) Fail("must be a whole number");
  // A number beyond 63 bits is stored unsigned and would turn negative.
  const bool huge = m_value->is_number_unsigned() && m_value->get<uint64_t>() > INT32_MAX;
  const auto value = m_value->get<int64_t>();
  if (huge || value < least || value > greatest) {
    Fail("must be from " + std::to_string(least) + " to " + std::to_string(greatest));
  }
  return static_cast<int32_t>(value);
}

const std::string& Node::Text() const {
  if (!m_value->is_string()) Fail("must be a text");
  return m_value->get_ref<const std::string&>();
}

std::string Node::Roman() const {
  const std::string& text = Text();
  std::string roman;
  // The parser has accepted nothing but well-formed UTF-8.
  for (size_t at = 0; at < text.size();) {
    int32_t codePoint = 0;
    at += static_cast<size_t>(XmlUtf8DecodeChar(&codePoint, text.c_str() + at));
    if ((codePoint < 0x20 && codePoint != '\n') || codePoint == 0x7F) {
      Fail("contains the control character " + _CodePointName(codePoint));
    }
    const uint8_t code = XmlMapFromUnicodeChar(codePoint);
    if (code == 0) Fail("contains " + _CodePointName(codePoint) + ", which Mac OS Roman lacks");
    roman += static_cast<char>(code);
  }
  if (roman.size() > kMaximumTextSize) {
    Fail("is " + std::to_string(roman.size()) + " characters long, " + std::to_string(kMaximumTextSize) +
         " are allowed");
  }
  return roman;
}

size_t Node::Choice(const std::vector<std::string_view>& names) const {
  const std::string& text = Text();
  const auto found = std::find(names.begin(), names.end(), text);
  if (found == names.end()) Fail(_Quoted(text) + " is none of " + _Joined(names));
  return static_cast<size_t>(found - names.begin());
}

#include "CommandLine/Json.h"

#include <nlohmann/json.hpp>
#include <utility>

using nlohmann::ordered_json;

namespace {

std::string _Dump(const ordered_json& value, int indentation) {
  return value.dump(indentation, ' ', false, ordered_json::error_handler_t::replace);
}

}  // namespace

Json::Json(std::nullptr_t) : m_value(std::make_unique<ordered_json>()) {}
Json::Json(bool value) : m_value(std::make_unique<ordered_json>(value)) {}
Json::Json(int64_t value) : m_value(std::make_unique<ordered_json>(value)) {}
Json::Json(uint64_t value) : m_value(std::make_unique<ordered_json>(value)) {}
Json::Json(double value) : m_value(std::make_unique<ordered_json>(value)) {}
Json::Json(const char* text) : m_value(std::make_unique<ordered_json>(text)) {}
Json::Json(std::string text) : m_value(std::make_unique<ordered_json>(std::move(text))) {}
Json::Json(const std::vector<std::string>& texts) : m_value(std::make_unique<ordered_json>(texts)) {}

Json::Json(std::initializer_list<Member> members)
    : m_value(std::make_unique<ordered_json>(ordered_json::object())) {
  for (const Member& member : members) Set(member.key, std::move(member.value));
}

Json::~Json() = default;
Json::Json(Json&& other) noexcept = default;
Json& Json::operator=(Json&& other) noexcept = default;

Json Json::List() {
  Json list;
  *list.m_value = ordered_json::array();
  return list;
}

void Json::Add(Json element) {
  m_value->push_back(std::move(*element.m_value));
}

void Json::Set(std::string_view key, Json value) {
  (*m_value)[std::string(key)] = std::move(*value.m_value);
}

std::string Json::Line() const {
  return _Dump(*m_value, -1);
}

std::string Json::Text() const {
  return _Dump(*m_value, 2) + "\n";
}

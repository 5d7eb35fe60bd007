// Values as JSON has them: what the commands tell programs.
#ifndef GRADIX_JSON_H
#define GRADIX_JSON_H

#include <concepts>
#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <memory>
#include <nlohmann/json_fwd.hpp>
#include <string>
#include <string_view>
#include <vector>

// null, a truth value, a number, a text in UTF-8, a list, or an object that keeps the order of its members.
// All other code leaves the library behind it alone, whose header takes seconds to compile.
class Json {
 public:
  struct Member;

  Json(std::nullptr_t = nullptr);
  Json(bool value);
  Json(int64_t value);
  Json(uint64_t value);
  Json(double value);
  Json(const char* text);
  Json(std::string text);
  Json(const std::vector<std::string>& texts);
  Json(std::initializer_list<Member> members);  // an object; takes the values
  template <std::signed_integral Number>
  Json(Number value) : Json(int64_t{value}) {}
  template <std::unsigned_integral Number>
  requires(!std::same_as<Number, bool>) Json(Number value) : Json(uint64_t{value}) {}
  ~Json();
  Json(Json&& other) noexcept;
  Json& operator=(Json&& other) noexcept;

  static Json List();

  // To a list, at its end.
  void Add(Json element);
  // Of an object, which null becomes: a new member at its end, or another value for an old one.
  void Set(std::string_view key, Json value);

  // Without line feeds, and with one after each value. Bytes that are no UTF-8 become U+FFFD.
  std::string Line() const;
  std::string Text() const;

 private:
  std::unique_ptr<nlohmann::ordered_json> m_value;
};

struct Json::Member {
  std::string_view key;
  mutable Json value;
};

#endif  // GRADIX_JSON_H

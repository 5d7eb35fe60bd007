// Numbered alerts. Their texts are strings of the resources that InitAlert names ('STR#', counted from 1),
// with printf-style places for the arguments.
#ifndef GRADIX_ALERT_H
#define GRADIX_ALERT_H

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <variant>

// Text in UTF-8; other texts are Mac OS Roman.
struct Utf8Text {
  std::string text;
};

using AlertArgument = std::variant<int64_t, std::string, Utf8Text>;

// Remembers the string-resource instance and the ids of the error, caution and information strings.
void InitAlert(void* instance, int16_t errorID, int16_t cautionID, int16_t informationID);

// Puts the arguments into the format, in order, and gives UTF-8. "%d", "%u", "%i" take a number, with "l" or
// without, "%s" takes either, "%%" is a percent sign; anything else, a place of the wrong kind and a place
// without an argument stand as they are. Arguments are data: nothing in them is a place.
std::string ExpandAlertText(std::string_view format, std::span<const AlertArgument> arguments);

enum class AlertStrings { error, information };

// Shows the alert and waits for its answer. Without such a string it shows the arguments' texts, without
// those it only beeps.
void ShowNumberedAlert(AlertStrings strings, int16_t number, std::span<const AlertArgument> arguments);

template <typename... Arguments>
void ErrorAlert(int16_t number, Arguments... arguments) {
  const AlertArgument list[] = {AlertArgument(arguments)..., AlertArgument()};
  ShowNumberedAlert(AlertStrings::error, number, std::span(list, sizeof...(arguments)));
}

template <typename... Arguments>
void InfoAlert(int16_t number, Arguments... arguments) {
  const AlertArgument list[] = {AlertArgument(arguments)..., AlertArgument()};
  ShowNumberedAlert(AlertStrings::information, number, std::span(list, sizeof...(arguments)));
}

inline constexpr uint32_t kAlertMapSize = 23;
extern int32_t mapTable[kAlertMapSize];

// Stores the value; an index outside of the table is ignored.
void SetAlertMap(uint32_t index, int32_t value);

#endif  // GRADIX_ALERT_H

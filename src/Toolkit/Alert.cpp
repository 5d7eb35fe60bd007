#include "Toolkit/Alert.h"

#include "Platform/Core/CFOwned.h"
#include "Platform/Core/CFString.h"
#include "Platform/Core/Resources.h"
#include "Platform/Ui/Alerts.h"
#include "Platform/Ui/Events.h"

namespace {

constexpr int16_t kBeepDuration = 12;

struct AlertResources {
  void* instance = nullptr;
  int16_t error = 0;
  int16_t caution = 0;
  int16_t information = 0;
};

AlertResources gResources;

}  // namespace

int32_t mapTable[kAlertMapSize];

void SetAlertMap(uint32_t index, int32_t value) {
  if (index < kAlertMapSize) mapTable[index] = value;
}

void InitAlert(void* instance, int16_t errorID, int16_t cautionID, int16_t informationID) {
  gResources = {instance, errorID, cautionID, informationID};
}

namespace {

std::string _TextOf(const AlertArgument& argument) {
  if (const auto* number = std::get_if<int64_t>(&argument)) return std::to_string(*number);
  if (const auto* utf8 = std::get_if<Utf8Text>(&argument)) return utf8->text;
  return MacRomanToUTF8(std::get<std::string>(argument));
}

// A place for an argument at the front of a text, or "%%".
struct Place {
  size_t length = 0;  // 0: no place
  char conversion = '\0';
};

Place _PlaceAt(std::string_view text) {
  const size_t end = text.find_first_not_of('l', 1);
  if (end > 3) return {};  // also when there is nothing but those
  const char conversion = text[end];
  const std::string_view known = end == 1 ? "dius%" : "diu";
  return known.find(conversion) == std::string_view::npos ? Place{} : Place{end + 1, conversion};
}

}  // namespace

std::string ExpandAlertText(std::string_view format, std::span<const AlertArgument> arguments) {
  std::string roman;  // what was copied from the format so far and not yet converted
  std::string result;
  const auto flush = [&] {
    result += MacRomanToUTF8(roman);
    roman.clear();
  };
  while (!format.empty()) {
    const Place place = format.front() == '%' ? _PlaceAt(format) : Place{};
    const bool percent = place.conversion == '%';
    const bool fits = place.length > 0 && !percent && !arguments.empty() &&
                      (place.conversion == 's' || std::holds_alternative<int64_t>(arguments.front()));
    if (fits) {
      flush();
      result += _TextOf(arguments.front());
      arguments = arguments.subspan(1);
    } else {
      roman += format.front();
    }
    format.remove_prefix(fits || percent ? place.length : 1);
  }
  flush();
  return result;
}

namespace {

// The arguments' texts, for an alert whose string is missing.
std::string _JoinArguments(std::span<const AlertArgument> arguments) {
  std::string text;
  for (const AlertArgument& argument : arguments) {
    if (!text.empty()) text += ' ';
    text += _TextOf(argument);
  }
  return text;
}

}  // namespace

void ShowNumberedAlert(AlertStrings strings, int16_t number, std::span<const AlertArgument> arguments) {
  const bool isError = strings == AlertStrings::error;
  const int16_t id = isError ? gResources.error : gResources.information;
  const AlertType type = isError ? kAlertStopAlert : kAlertNoteAlert;
  const std::string format = GetIndString(id, number);
  const std::string text = format.empty() ? _JoinArguments(arguments) : ExpandAlertText(format, arguments);
  if (text.empty() || !InitApplication()) {
    SysBeep(kBeepDuration);
    return;
  }
  const CFStringRef message = CFStringCreateWithReplacedUTF8(text);  // file names are bytes of any kind
  StandardAlert(type, message, nullptr, {});
  CFRelease(message);
}

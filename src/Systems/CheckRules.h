// What a learning system makes of that which the file of any format may hold.
#ifndef GRADIX_SYSTEMS_CHECKRULES_H
#define GRADIX_SYSTEMS_CHECKRULES_H

#include <optional>
#include <span>
#include <string_view>

#include "Systems/Finding.h"

// As it stands, that of a system of which nothing is known.
struct CheckRules {
  Consequence noAssignments = Consequence::kNote;
  Consequence extraSeparator = Consequence::kWrong;  // a comma in a cell without quotes

  // Of identifiers. What is lost or wrong without a result concerned is a note only.
  Consequence idMissing = Consequence::kLost;
  Consequence idDuplicate = Consequence::kWrong;
  Consequence idReplaced = Consequence::kWrong;  // a letter became "?", a quote an apostrophe

  // Of letters beyond ASCII in the classic file; nothing: they do no harm there.
  std::optional<Consequence> accents = Consequence::kNote;  // anywhere in the file
  std::optional<Consequence> titleAccents = {};
  std::optional<Consequence> idAccents = {};

  Consequence nameReplaced = Consequence::kChanged;
  Consequence nameQuote = Consequence::kNote;
  Consequence titleEqual = Consequence::kNote;
  Consequence titleEmpty = Consequence::kNote;
  Consequence titleHeading = Consequence::kNote;  // equal to a heading of the file, or to one of these
  std::span<const std::string_view> headings = {};
  std::string_view (*plainTitle)(std::string_view title) = nullptr;  // the part that it goes by; null: all

  Consequence scoreAbovePoints = Consequence::kNote;
  Consequence scoreNoNumber = Consequence::kLost;
  bool tellsMissingResults = false;
};

#endif  // GRADIX_SYSTEMS_CHECKRULES_H

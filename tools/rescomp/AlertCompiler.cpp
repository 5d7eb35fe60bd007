#include "rescomp/AlertCompiler.h"

#include <algorithm>
#include <cstdint>
#include <string>

#include "rescomp/ByteWriter.h"
#include "rescomp/ItemList.h"

namespace {

constexpr int kMargin = 20;
constexpr int kTextLeft = 80;  // beside the icon
constexpr int kButtonWidth = 88;
constexpr int kButtonHeight = 30;
constexpr int kLineHeight = 18;
constexpr int kCharacterWidth = 8;  // an upper estimate of the mean
constexpr uint16_t kStages = 0x5555;

Rectangle _Rect(int left, int top, int right, int bottom) {
  return {static_cast<int16_t>(left), static_cast<int16_t>(top), static_cast<int16_t>(right),
          static_cast<int16_t>(bottom)};
}

// The height of a text that wraps between the two edges.
int _TextHeight(const std::string& text, int left, int right) {
  const int columns = std::max((right - left) / kCharacterWidth, 1);
  return (static_cast<int>(text.size()) + columns - 1) / columns * kLineHeight;
}

ItemList _LayOut(const Node& source, const Rectangle& bounds) {
  const std::string text = source.At("text").Roman();
  const std::string explanation = source.RomanOr("explanation", "");
  const std::string button = source.At("button").Roman();
  const int right = bounds.right - bounds.left - kMargin;
  const int bottom = bounds.bottom - bounds.top - kMargin;
  const int buttonWidth = std::max(kButtonWidth, static_cast<int>(button.size() + 4) * kCharacterWidth);
  const int textBottom = kMargin + _TextHeight(text, kTextLeft, right);
  const int explanationBottom = textBottom + _TextHeight(explanation, kTextLeft, right);
  const int buttonTop = bottom - kButtonHeight;
  if (right - buttonWidth < kMargin) source.At("bounds").Fail("is too narrow for the button");
  if (explanationBottom > buttonTop - kMargin) {
    source.At("bounds").Fail("is too low for the texts: the height must be " +
                             std::to_string(explanationBottom + 2 * kMargin + kButtonHeight) + " or more");
  }
  ItemList items;
  items.AddTitled(_Rect(right - buttonWidth, buttonTop, right, bottom), kButtonItem, button);
  items.AddTitled(_Rect(kTextLeft, kMargin, right, textBottom), kStaticTextItem, text);
  if (!explanation.empty()) {
    items.AddTitled(_Rect(kTextLeft, textBottom, right, explanationBottom), kStaticTextItem, explanation);
  }
  return items;
}

}  // namespace

void CompileAlert(const Node& source, ForkWriter* file) {
  source.AllowKeys({{"id", "kind", "bounds", "text", "explanation", "button"}});
  const Node idSource = source.At("id");
  const int16_t id = idSource.ResourceId();
  // The program that shows an alert names its kind; here it is for whoever reads the source.
  source.At("kind").Choice({"stop", "note", "caution"});
  const Rectangle bounds = source.At("bounds").Rect();
  const ItemList items = _LayOut(source, bounds);
  ByteWriter alert;
  alert.Rect(bounds).I16(id).U16(kStages);
  file->Add("ALRT", id, alert, idSource);
  file->Add("DITL", id, items.Bytes(), idSource);
}

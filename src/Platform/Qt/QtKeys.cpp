#include "Platform/Qt/QtKeys.h"

#include <string>

#include "Platform/Qt/QtText.h"
#include "Platform/Ui/Events.h"

namespace ui {

namespace {

struct KeyName {
  int key;
  uint16_t character;
};

constexpr KeyName kKeyNames[] = {
    {Qt::Key_Return, kReturnChar},    {Qt::Key_Enter, kEnterChar},         {Qt::Key_Tab, kTabChar},
    {Qt::Key_Backtab, kTabChar},      {Qt::Key_Escape, kEscapeChar},       {Qt::Key_Left, kLeftArrowChar},
    {Qt::Key_Right, kRightArrowChar}, {Qt::Key_Up, kUpArrowChar},          {Qt::Key_Down, kDownArrowChar},
    {Qt::Key_PageUp, kPageUpChar},    {Qt::Key_PageDown, kPageDownChar},   {Qt::Key_Home, kHomeChar},
    {Qt::Key_End, kEndChar},          {Qt::Key_Backspace, kBackspaceChar}, {Qt::Key_Delete, kDeleteChar},
};

struct ModifierName {
  Qt::KeyboardModifier modifier;
  uint16_t bit;
};

constexpr ModifierName kModifierNames[] = {
    {Qt::ControlModifier, cmdKey},
    {Qt::ShiftModifier, shiftKey},
    {Qt::AltModifier, optionKey},
    {Qt::MetaModifier, controlKey},
};

}  // namespace

uint16_t ModifiersOf(Qt::KeyboardModifiers modifiers) {
  uint16_t bits = 0;
  for (const ModifierName& name : kModifierNames) {
    if (modifiers.testFlag(name.modifier)) bits = static_cast<uint16_t>(bits | name.bit);
  }
  return bits;
}

namespace {

// The letter on the key, where a modifier keeps it from being typed.
uint16_t _PlainCharacter(const QKeyEvent& event, uint16_t modifiers) {
  const int key = event.key();
  if (key < 0x20 || key > 0x7E) return 0;
  const bool lower = key >= 'A' && key <= 'Z' && (modifiers & shiftKey) == 0;
  return static_cast<uint16_t>(lower ? key - 'A' + 'a' : key);
}

uint16_t _TypedCharacter(const QKeyEvent& event) {
  const QString text = event.text();
  if (text.isEmpty() || text.front().category() == QChar::Other_Control) return 0;
  const std::string roman = ToMacRoman(text);
  return roman.size() == 1 ? static_cast<uint8_t>(roman.front()) : uint16_t{'?'};
}

}  // namespace

std::optional<KeyStroke> KeyStrokeOf(const QKeyEvent& event) {
  uint16_t modifiers = ModifiersOf(event.modifiers());
  if (event.key() == Qt::Key_Backtab) modifiers |= shiftKey;
  for (const KeyName& name : kKeyNames) {
    if (event.key() == name.key) return KeyStroke{name.character, modifiers};
  }
  uint16_t character = 0;
  if ((modifiers & ~shiftKey) != 0) character = _PlainCharacter(event, modifiers);
  if (character == 0) character = _TypedCharacter(event);
  if (character == 0) return std::nullopt;
  return KeyStroke{character, modifiers};
}

QKeyEvent MakeKeyEvent(QEvent::Type type, KeyStroke stroke) {
  Qt::KeyboardModifiers modifiers;
  for (const ModifierName& name : kModifierNames) {
    if ((stroke.modifiers & name.bit) != 0) modifiers |= name.modifier;
  }
  for (const KeyName& name : kKeyNames) {
    if (name.character == stroke.character) return {type, name.key, modifiers};
  }
  const bool typed = (stroke.modifiers & (cmdKey | optionKey | controlKey)) == 0;
  const QString text = FromMacRoman(std::string(1, static_cast<char>(stroke.character)));
  const int key = text.isEmpty() ? 0 : text.front().toUpper().unicode();
  return {type, key, modifiers, typed ? text : QString()};
}

}  // namespace ui

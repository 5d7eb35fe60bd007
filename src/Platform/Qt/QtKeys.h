// Key events as characters and back.
#ifndef GRADIX_QTKEYS_H
#define GRADIX_QTKEYS_H

#include <QKeyEvent>
#include <cstdint>
#include <optional>

namespace ui {

struct KeyStroke {
  uint16_t character = 0;
  uint16_t modifiers = 0;
  bool operator==(const KeyStroke&) const = default;
};

uint16_t ModifiersOf(Qt::KeyboardModifiers modifiers);

// nullopt for keys without a character: modifiers, function keys. "?" for what Mac OS Roman lacks.
std::optional<KeyStroke> KeyStrokeOf(const QKeyEvent& event);

QKeyEvent MakeKeyEvent(QEvent::Type type, KeyStroke stroke);

}  // namespace ui

#endif  // GRADIX_QTKEYS_H

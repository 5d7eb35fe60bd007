// Texts of actions, in which "&" marks the letter that chooses.
#ifndef GRADIX_MNEMONICS_H
#define GRADIX_MNEMONICS_H

#include <QString>

namespace host {

// The text as the action shows it, with each "&" of its own.
inline QString EscapeMnemonics(QString text) {
  return text.replace(QLatin1String("&"), QLatin1String("&&"));
}

}  // namespace host

#endif  // GRADIX_MNEMONICS_H

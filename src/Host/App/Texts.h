// The host's own texts. They stand in English where they are shown, and are translated by Qt Linguist's files
// in src/Host/translations.
#ifndef GRADIX_TEXTS_H
#define GRADIX_TEXTS_H

#include <QCoreApplication>
#include <QString>

namespace host {

// Texts::tr("Open"): the text in the current language. A text that is looked up later, from a table, is
// marked there by QT_TRANSLATE_NOOP("Texts", "Open").
struct Texts {
  Q_DECLARE_TR_FUNCTIONS(Texts)
};

}  // namespace host

#endif  // GRADIX_TEXTS_H

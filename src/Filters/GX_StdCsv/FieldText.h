// What there is to say of the field that was chosen as identifier, before OK is pressed.
#ifndef GRADIX_FIELDTEXT_H
#define GRADIX_FIELDTEXT_H

#include <string>

#include "Systems/ExportSubject.h"
#include "Systems/FindingTexts.h"

// Who has the field and who shares it, whether the dialog's OK goes on, and the worst that the learning
// system will do. One paragraph, UTF-8, in linear time.
std::string DescribeChosenField(const ExportSubject& subject, TextLanguage language);

#endif  // GRADIX_FIELDTEXT_H

// What is told of a class file that could not be read.
#ifndef GRADIX_READFAULTTEXT_H
#define GRADIX_READFAULTTEXT_H

#include <QString>

#include "Host/ClassView/ClassReader.h"

namespace host {

struct FaultText {
  QString what;
  QString advice;
};

// In the current language; the result must have a fault. Of a download, it tells to open a class first.
FaultText TextOfFault(const ReadResult& result);

// What a file that was meant to be another seems to be, in a sentence; empty where nothing is known.
QString SeemingText(FileKind kind);

}  // namespace host

#endif  // GRADIX_READFAULTTEXT_H

// What is said before the filter's dialog opens, because the dialog itself will not say it.
#ifndef GRADIX_BEFOREDIALOG_H
#define GRADIX_BEFOREDIALOG_H

#include <functional>

#include "Filters/GX_StdCsv/FormatTable.h"
#include "Host/ClassView/ClassReader.h"

class QWidget;

namespace host {

struct BeforeDialogHandlers {
  std::function<void()> openDialog;  // there is nothing to say, or the user goes on all the same
  std::function<void()> exportHere;  // the user wants this program's own export
};

// Says that the dialog will do nothing (identifiers that students share in the field that it proposes), that
// it cannot open (a title of exactly 30 characters), or that it cuts titles so that they become equal. Calls
// at most one handler, perhaps before it returns.
void TellBeforeDialog(QWidget* parent, const OpenClass& openClass, const FormatRow& format,
                      BeforeDialogHandlers handlers);

}  // namespace host

#endif  // GRADIX_BEFOREDIALOG_H

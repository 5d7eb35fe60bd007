#include "Host/Findings/BeforeDialog.h"

namespace host {

void TellBeforeDialog(QWidget* /*parent*/, const OpenClass& /*openClass*/, const FormatRow& /*format*/,
                      BeforeDialogHandlers handlers) {
  handlers.openDialog();
}

}  // namespace host

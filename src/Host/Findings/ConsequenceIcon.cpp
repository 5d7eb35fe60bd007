#include "Host/Findings/ConsequenceIcon.h"

#include <QApplication>
#include <QStyle>

namespace host {

QIcon ConsequenceIcon(Consequence consequence) {
  QStyle::StandardPixmap icon = QStyle::SP_MessageBoxWarning;
  if (consequence == Consequence::kRefused) icon = QStyle::SP_MessageBoxCritical;
  if (consequence == Consequence::kNote) icon = QStyle::SP_MessageBoxInformation;
  return QApplication::style()->standardIcon(icon);
}

}  // namespace host

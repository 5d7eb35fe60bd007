#include "Host/App/CloseKeys.h"

#include <QShortcut>
#include <QWidget>

namespace host {

void CloseByKeys(QWidget* window) {
  for (const QKeySequence& keys : {QKeySequence(QKeySequence::Close), QKeySequence(Qt::Key_Escape)}) {
    QObject::connect(new QShortcut(keys, window), &QShortcut::activated, window, &QWidget::close);
  }
}

}  // namespace host

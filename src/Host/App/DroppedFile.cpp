#include "Host/App/DroppedFile.h"

#include <QList>
#include <QMimeData>
#include <QUrl>

namespace host {

QString DroppedFile(const QMimeData* data) {
  const QList<QUrl> urls = data->urls();
  return urls.size() == 1 ? urls.front().toLocalFile() : QString();
}

}  // namespace host

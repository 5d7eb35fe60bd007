#include "Platform/Ui/Launch.h"

#include <QDesktopServices>
#include <QUrl>

#include "Platform/Ui/Events.h"

bool ExecuteURL(WindowRef /*parent*/, const char* url) {
  if (url == nullptr || *url == '\0' || !InitApplication()) return false;
  const QUrl parsed(QString::fromUtf8(url));
  return parsed.isValid() && !parsed.scheme().isEmpty() && QDesktopServices::openUrl(parsed);
}

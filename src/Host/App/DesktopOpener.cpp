#include "Host/App/DesktopOpener.h"

#include <QDesktopServices>
#include <QProcess>
#include <QStandardPaths>
#include <QUrl>
#include <utility>

namespace host {

namespace {

// QDesktopServices takes the start of the desktop's opener for success. Its exit status tells whether there
// is, say, a browser at all. It may last as long as what it has opened.
void _Run(const QString& opener, const QString& path, std::function<void()> failed) {
  auto* const process = new QProcess;
  const auto end = [process, failed = std::move(failed)](bool opened) {
    process->deleteLater();
    if (!opened) failed();
  };
  QObject::connect(process, &QProcess::finished, process, [end](int code, QProcess::ExitStatus status) {
    end(status == QProcess::NormalExit && code == 0);
  });
  QObject::connect(process, &QProcess::errorOccurred, process, [end](QProcess::ProcessError error) {
    if (error == QProcess::FailedToStart) end(false);
  });
  process->setStandardOutputFile(QProcess::nullDevice());
  process->setStandardErrorFile(QProcess::nullDevice());
  process->start(opener, {path});
}

}  // namespace

void OpenOnDesktop(const QString& path, std::function<void()> failed) {
  const QString opener = QStandardPaths::findExecutable(QStringLiteral("xdg-open"));
  if (!opener.isEmpty()) {
    _Run(opener, path, std::move(failed));
  } else if (!QDesktopServices::openUrl(QUrl::fromLocalFile(path))) {
    failed();
  }
}

}  // namespace host

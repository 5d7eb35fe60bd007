#include "Host/Export/NotWritten.h"

#include <QDir>
#include <QFileInfo>
#include <cerrno>
#include <cstring>

#include "Host/App/Messages.h"
#include "Host/App/Texts.h"

namespace host {

void ShowNotWritten(QWidget* parent, const QString& path, int error, bool incomplete) {
  const bool isFull = error == ENOSPC || error == EDQUOT;
  const QString reason = error == 0 ? QString() : QString::fromLocal8Bit(std::strerror(error));
  const QString what = incomplete ? Texts::tr(
                                        "Only a part of the file “%1” could be written. It took the "
                                        "place of the earlier one; do not use it.")
                                  : Texts::tr("The file “%1” could not be written.");
  QString advice = isFull ? Texts::tr(
                                "The disk is full (%1).\n\nMake room on it, or choose a folder on "
                                "another disk, and export again.")
                          : Texts::tr(
                                "%1\n\nCheck that the folder exists, that you may write to it and that "
                                "the disk is not full. Then export again, perhaps to another folder.");
  advice = advice.arg(reason).trimmed();
  const bool isEarlierThere = !incomplete && QFileInfo::exists(path);
  if (isEarlierThere) {
    advice.prepend(Texts::tr("The earlier file of this name is still there, unchanged.") +
                   QLatin1String("\n\n"));
  }
  ShowMessage(parent, what.arg(QDir::toNativeSeparators(path)), advice);
}

}  // namespace host

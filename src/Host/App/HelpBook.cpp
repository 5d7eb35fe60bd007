#include "Host/App/HelpBook.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QPointer>
#include <QShortcut>
#include <QWidget>
#include <utility>

#include "Host/App/DesktopOpener.h"
#include "Host/App/Language.h"
#include "Host/App/Messages.h"
#include "Host/App/Texts.h"

namespace host {

namespace {

// The folder of the bundle of resources, beside which the book lies.
QString _ShareFolder() {
  const QString bundle = qEnvironmentVariable("GRADIX_BUNDLE");
  if (!bundle.isEmpty()) return QFileInfo(QDir(bundle).absolutePath()).path();
  return QDir::cleanPath(QCoreApplication::applicationDirPath() + QLatin1String("/../share/gradix"));
}

// Where the page is when the book is installed.
QString _PlaceOf(int32_t topic) {
  const QString language =
      CurrentLanguage() == HostLanguage::kSpanish ? QStringLiteral("es") : QStringLiteral("en");
  const QString page = topic == 0 ? QStringLiteral("qzmanage.htm")
                                  : QStringLiteral("qzmanage/qzm_%1.htm").arg(topic, 3, 10, QLatin1Char('0'));
  return QStringLiteral("%1/Quizonne Help/%2/Quizonne Gradix/%3").arg(_ShareFolder(), language, page);
}

}  // namespace

QString HelpPage(int32_t topic) {
  const QString page = _PlaceOf(topic);
  return QFileInfo(page).isFile() ? page : QString();
}

void ShowHelp(QWidget* parent, int32_t topic) {
  const QString page = HelpPage(topic);
  if (page.isEmpty()) {
    ShowMessage(parent, Texts::tr("The help book is not installed."),
                Texts::tr("This page was looked for:\n%1\n\nInstall Gradix again.")
                    .arg(QDir::toNativeSeparators(_PlaceOf(topic))));
    return;
  }
  OpenOnDesktop(page, [window = QPointer<QWidget>(parent), page] {
    ShowMessage(
        window, Texts::tr("No browser could be opened for the help page."),
        Texts::tr("The page is this file:\n%1\n\nOpen it by hand in a browser, here or on another computer.")
            .arg(QDir::toNativeSeparators(page)));
  });
}

void OfferHelp(QWidget* window, std::function<int32_t()> topic) {
  auto* const key = new QShortcut(QKeySequence::HelpContents, window);
  QObject::connect(key, &QShortcut::activated, window,
                   [window, topic = std::move(topic)] { ShowHelp(window, topic()); });
}

}  // namespace host

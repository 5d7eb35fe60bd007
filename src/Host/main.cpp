#include <QApplication>
#include <QCommandLineParser>
#include <QIcon>
#include <QTimer>
#include <algorithm>
#include <iterator>
#include <memory>
#include <string_view>

#include "Host/App/AccessibleRoles.h"
#include "Host/App/Language.h"
#include "Host/App/Texts.h"
#include "Host/Window/MainWindow.h"

namespace {

// Whether only a text is asked for, which needs no display.
bool _IsAskedForText(int argc, char** argv) {
  constexpr std::string_view kOptions[] = {"-h", "--help", "-v", "--version"};
  return std::any_of(argv + 1, argv + argc, [&kOptions](const char* argument) {
    return std::find(std::begin(kOptions), std::end(kOptions), argument) != std::end(kOptions);
  });
}

void _ParseArguments(QCommandLineParser* parser, const QCoreApplication& application) {
  parser->setApplicationDescription(
      host::Texts::tr("Shows a class and exports its results to a gradebook file."));
  parser->addHelpOption();
  parser->addVersionOption();
  parser->addPositionalArgument(QStringLiteral("file"), host::Texts::tr("Class file to open (XML)."),
                                QStringLiteral("[file]"));
  parser->process(application);
}

}  // namespace

int main(int argc, char** argv) {
  QCoreApplication::setOrganizationName(QStringLiteral("Gradix"));
  QCoreApplication::setApplicationName(QStringLiteral("gxhost"));
  QCoreApplication::setApplicationVersion(QStringLiteral(GRADIX_VERSION));
  QCommandLineParser parser;
  if (argc > 1 && _IsAskedForText(argc, argv)) {
    const QCoreApplication application(argc, argv);
    host::RestoreLanguage();
    _ParseArguments(&parser, application);
  }
  const QApplication application(argc, argv);
  host::RestoreLanguage();
  _ParseArguments(&parser, application);
  QGuiApplication::setDesktopFileName(QStringLiteral("gradix"));
  QGuiApplication::setWindowIcon(QIcon::fromTheme(QStringLiteral("gradix")));
  host::InstallAccessibleRoles();
  host::MainWindow window;
  window.show();
  QTimer start;
  start.setSingleShot(true);
  QObject::connect(&start, &QTimer::timeout, &window, [&window, &parser] {
    window.LoadFilter();
    const QString file = parser.positionalArguments().value(0);
    if (!file.isEmpty()) window.OpenFile(file);
  });
  start.start();
  return QApplication::exec();
}

#include "Host/App/LanguageSetting.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QSettings>
#include <QTranslator>

namespace host {

namespace {

constexpr const char* kLanguageKey = "language";

// Qt's own texts, such as the columns of a file dialog, where their translation is installed.
void _TranslateQt(HostLanguage language) {
  static QTranslator translator;
  QCoreApplication::removeTranslator(&translator);
  if (language == HostLanguage::kSpanish &&
      translator.load(QStringLiteral("qtbase_es"), QLibraryInfo::path(QLibraryInfo::TranslationsPath))) {
    QCoreApplication::installTranslator(&translator);
  }
}

void _Apply(HostLanguage language) {
  SetCurrentLanguage(language);
  _TranslateQt(language);
}

}  // namespace

void RestoreLanguage() {
  const QString system =
      QLocale::system().language() == QLocale::Spanish ? QStringLiteral("es") : QStringLiteral("en");
  const QString name = QSettings().value(QLatin1String(kLanguageKey), system).toString();
  _Apply(name == QLatin1String("es") ? HostLanguage::kSpanish : HostLanguage::kEnglish);
}

void ChangeLanguage(HostLanguage language) {
  _Apply(language);
  const bool spanish = language == HostLanguage::kSpanish;
  QSettings().setValue(QLatin1String(kLanguageKey), spanish ? QStringLiteral("es") : QStringLiteral("en"));
}

}  // namespace host

#include "Host/App/Language.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QSettings>
#include <QTranslator>

namespace host {

namespace {

constexpr const char* kLanguageKey = "language";

HostLanguage gLanguage = HostLanguage::kEnglish;

QString _Code(HostLanguage language) {
  return language == HostLanguage::kSpanish ? QStringLiteral("es") : QStringLiteral("en");
}

// The system's own way of writing numbers where it speaks the language, too.
QLocale _LocaleOf(HostLanguage language) {
  const QLocale locale(language == HostLanguage::kSpanish ? QLocale::Spanish : QLocale::English);
  const QLocale system = QLocale::system();
  return system.language() == locale.language() ? system : locale;
}

void _Install(QTranslator* translator, const QString& name, const QString& folder) {
  QCoreApplication::removeTranslator(translator);
  if (translator->load(name, folder)) QCoreApplication::installTranslator(translator);
}

}  // namespace

HostLanguage CurrentLanguage() {
  return gLanguage;
}

void SetCurrentLanguage(HostLanguage language) {
  static QTranslator qtTexts;  // such as the columns of a file dialog, where their translation is installed
  static QTranslator hostTexts;
  gLanguage = language;
  QLocale::setDefault(_LocaleOf(language));
  _Install(&qtTexts, QStringLiteral("qtbase_") + _Code(language),
           QLibraryInfo::path(QLibraryInfo::TranslationsPath));
  _Install(&hostTexts, QStringLiteral("gxhost_") + _Code(language), QStringLiteral(":/translations"));
}

void RestoreLanguage() {
  const QString system = _Code(QLocale::system().language() == QLocale::Spanish ? HostLanguage::kSpanish
                                                                                : HostLanguage::kEnglish);
  const QString code = QSettings().value(QLatin1String(kLanguageKey), system).toString();
  SetCurrentLanguage(code == _Code(HostLanguage::kSpanish) ? HostLanguage::kSpanish : HostLanguage::kEnglish);
}

void ChangeLanguage(HostLanguage language) {
  SetCurrentLanguage(language);
  QSettings().setValue(QLatin1String(kLanguageKey), _Code(language));
}

}  // namespace host

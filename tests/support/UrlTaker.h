// Stands for the desktop's browser while it lives: keeps the URLs that it is asked to open.
#ifndef GRADIX_TESTS_URLTAKER_H
#define GRADIX_TESTS_URLTAKER_H

#include <QDesktopServices>
#include <QObject>
#include <QStringList>
#include <QUrl>
#include <string>
#include <utility>
#include <vector>

class UrlTaker : public QObject {
  Q_OBJECT
 public:
  explicit UrlTaker(QStringList schemes) : m_schemes(std::move(schemes)) {
    for (const QString& scheme : m_schemes) QDesktopServices::setUrlHandler(scheme, this, "Open");
  }
  ~UrlTaker() override {
    for (const QString& scheme : m_schemes) QDesktopServices::unsetUrlHandler(scheme);
  }

  std::vector<std::string> Take() { return std::exchange(m_urls, {}); }  // as they are sent, percent-encoded

  Q_SLOT void Open(const QUrl& url) { m_urls.push_back(url.toEncoded().toStdString()); }

 private:
  QStringList m_schemes;
  std::vector<std::string> m_urls;
};

#endif  // GRADIX_TESTS_URLTAKER_H

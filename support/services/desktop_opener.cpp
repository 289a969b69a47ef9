#include "desktop_opener.h"

#include <QDesktopServices>
#include <QUrl>

#include "mail_link.h"

bool isWebAddress(const QString& address) {
  const QUrl url(address);
  const QString scheme = url.scheme();
  return url.isValid() && !url.host().isEmpty() &&
         (scheme == QStringLiteral("http") || scheme == QStringLiteral("https"));
}

bool DesktopServices::openWeb(const QString& address) {
  return isWebAddress(address) && QDesktopServices::openUrl(QUrl(address));
}

bool DesktopServices::openMail(const QString& mailLink) {
  return QDesktopServices::openUrl(encodedMailLink(mailLink));
}

bool DesktopServices::openFile(const QString& path) {
  return QDesktopServices::openUrl(QUrl::fromLocalFile(path));
}

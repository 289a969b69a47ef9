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

QString fullWebAddress(const QString& address) {
  if (isWebAddress(address)) return address;
  const QString full = QStringLiteral("https://") + address;
  const bool isHost =
      !address.isEmpty() && address.front().isLetterOrNumber() && QUrl(address).scheme().isEmpty();
  return isHost && QUrl(full).host().contains(u'.') && isWebAddress(full) ? full : QString();
}

bool DesktopServices::openWeb(const QString& address) {
  const QString full = fullWebAddress(address);
  return !full.isEmpty() && QDesktopServices::openUrl(QUrl(full));
}

bool DesktopServices::openMail(const QString& mailLink) {
  return QDesktopServices::openUrl(encodedMailLink(mailLink));
}

bool DesktopServices::openFile(const QString& path) {
  return QDesktopServices::openUrl(QUrl::fromLocalFile(path));
}

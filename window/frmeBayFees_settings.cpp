#include <QRegularExpression>

#include "frmeBayFees.h"

namespace {

constexpr int kFirstSite = CAuctionSite::eBayUS;

/// The whole number at the start of a stored text; 0 if there is none, or none that fits.
int leadingNumber(const QString& text) {
  static const QRegularExpression number(QStringLiteral("^\\s*([+-]?[0-9]+)"));
  return number.match(text).captured(1).toInt();
}

}  // namespace

void frmeBayFees::writeFirstRunDefaults() {
  SaveAppSetting(QStringLiteral("Site"), QString::number(kFirstSite));
}

void frmeBayFees::restoreSettings() {
  const QString site = GetAppSetting(QStringLiteral("Site"));
  SelectSite(site.isEmpty() ? kFirstSite : leadingNumber(site));
  choosePriceLabel();
}

QString frmeBayFees::GetAppSetting(const QString& key) { return m_surroundings.settings.read(key); }

void frmeBayFees::SaveAppSetting(const QString& key, const QString& value) {
  m_surroundings.settings.write(key, value);
}

#include "frmeBayFees.h"

namespace {

constexpr int kFirstSite = CAuctionSite::eBayUS;

/// The whole number at the start of a stored text; 0 if there is none, or none that fits.
int leadingNumber(const QString& text) {
  const QString trimmed = text.trimmed();
  const qsizetype sign = trimmed.startsWith(u'-') || trimmed.startsWith(u'+') ? 1 : 0;
  qsizetype end = sign;
  while (end < trimmed.size() && trimmed[end] >= u'0' && trimmed[end] <= u'9') ++end;
  return QStringView(trimmed).first(end).toInt();
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

#include "frmeBayFees.h"

namespace {

constexpr int kFirstSite = CAuctionSite::eBayUS;

}  // namespace

void frmeBayFees::writeFirstRunDefaults() {
  SaveAppSetting(QStringLiteral("Site"), QString::number(kFirstSite));
}

void frmeBayFees::restoreSettings() {
  m_site->Site(kFirstSite);
  m_regularAuction->Site(*m_site);
  SetRealEstateAvailable(true);
  RefreshWindow();
  choosePriceLabel();
  recalculateSingleItemTab();
}

void frmeBayFees::SaveAppSetting(const QString& key, const QString& value) {
  m_surroundings.settings.write(key, value);
}

void frmeBayFees::SaveConversionRate() {
  const QString rate = m_payment.txtConversion->text();
  if (rate.isEmpty()) return;
  switch (currentSite()) {
    case CAuctionSite::eBayUK:
      return SaveAppSetting(QStringLiteral("PayPalUKRate"), rate);
    case CAuctionSite::eBayCanada:
      return SaveAppSetting(QStringLiteral("PayPalCanadaRate"), rate);
    case CAuctionSite::eBayGermany:
      return SaveAppSetting(QStringLiteral("PayPalGermanyRate"), rate);
    default:
      return;  // eBay.com has nothing to convert
  }
}

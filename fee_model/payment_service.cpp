#include "payment_service.h"

#include "amount_text.h"

namespace {

constexpr double kMerchantShare = 0.022;
constexpr double kStandardShare = 0.029;
constexpr double kInternationalShare = 0.01;

}  // namespace

CAuctionSite& CPaymentService::schedule() { return m_site != nullptr ? *m_site : m_noSite; }

float CPaymentService::ConversionRateFromText(std::string_view text) {
  // On eBay.com nothing is converted: what another site left in the hidden box has no effect.
  const bool isUsed = schedule().Site() != CAuctionSite::eBayUS && isNumeric(text, m_locale);
  return isUsed ? toSingle(text, m_locale) : schedule().DefaultConversionRate();
}

std::string CPaymentService::withInternationalSurcharge(std::string_view fee, double amount) const {
  return plainText(toDouble(fee, m_locale) + amount * kInternationalShare, m_locale);
}

std::string CPaymentService::PayPalFee(std::string_view Amount, bool IsMerchantRate, bool IsCreditCard,
                                       std::string_view RateText, bool IsInternational) {
  CAuctionSite& site = schedule();
  site.ConversionRate(ConversionRateFromText(RateText));
  const double amount = toDouble(Amount, m_locale);
  const double share = IsMerchantRate ? kMerchantShare : kStandardShare;
  std::string fee = plainText(amount * share + static_cast<double>(site.PayPalFlatFee()), m_locale);
  if (!IsCreditCard) {
    const float cap = site.PayPalMaxFeeNonCC();
    if (toSingle(fee, m_locale) > cap) fee = plainText(cap, m_locale);
  }
  if (IsInternational) fee = withInternationalSurcharge(fee, amount);
  return fee;
}

std::string CPaymentService::BillpointFee(std::string_view Amount, bool IsDiscounted, bool IsCreditCard,
                                          bool IsInternational, std::string_view RateText) {
  CAuctionSite& site = schedule();
  const double amount = toDouble(Amount, m_locale);
  site.ConversionRate(ConversionRateFromText(RateText));
  const float flatFee = site.BillpointFlatFee();
  // Compared like the bounds, in single precision: an amount at a converted bound is not above it.
  const auto compared = static_cast<float>(amount);
  std::string fee;
  if (compared <= site.BillpointThreshold()) {
    fee = plainText(flatFee, m_locale);
  } else if (compared > site.BillpointMax(IsDiscounted, IsCreditCard)) {
    fee = "N/A";
  } else {
    const float rate =
        IsCreditCard ? site.BillpointCCRate(IsDiscounted) : site.BillpointEcheckRate(IsDiscounted);
    fee = plainText(storedAsSingle(static_cast<double>(rate) * amount + static_cast<double>(flatFee)),
                    m_locale);
  }
  if (IsInternational && isNumeric(fee, m_locale)) fee = withInternationalSurcharge(fee, amount);
  return fee;
}

#include "payment_service.h"

#include "amount_text.h"

CAuctionSite& CPaymentService::schedule() { return m_site != nullptr ? *m_site : m_noSite; }

float CPaymentService::ConversionRateFromText(std::string_view text) {
  // On eBay.com nothing is converted: what another site left in the hidden box has no effect.
  const bool isUsed = schedule().Site() != CAuctionSite::eBayUS && isNumeric(text, m_locale);
  return isUsed ? toSingle(text, m_locale) : schedule().DefaultConversionRate();
}

void CPaymentService::addInternationalSurcharge(PaymentFee& fee, double amount) const {
  const double surcharge = amount * kInternationalShare;
  fee.text = plainText(toDouble(fee.text, m_locale) + surcharge, m_locale);
  fee.surcharge = surcharge;
}

PaymentFee CPaymentService::PayPal(std::string_view Amount, bool IsMerchantRate, bool IsCreditCard,
                                   std::string_view RateText, bool IsInternational) {
  CAuctionSite& site = schedule();
  PaymentFee fee;
  fee.rate = ConversionRateFromText(RateText);
  site.ConversionRate(fee.rate);
  const double amount = toDouble(Amount, m_locale);
  fee.share = IsMerchantRate ? kMerchantShare : kStandardShare;
  fee.flatFee = site.PayPalFlatFee();
  fee.shareOfAmount = amount * fee.share;
  fee.text = plainText(fee.shareOfAmount + static_cast<double>(fee.flatFee), m_locale);
  if (!IsCreditCard) {
    const float cap = site.PayPalMaxFeeNonCC();
    if (toSingle(fee.text, m_locale) > cap) {
      fee.text = plainText(cap, m_locale);
      fee.cap = cap;
    }
  }
  if (IsInternational) addInternationalSurcharge(fee, amount);
  return fee;
}

PaymentFee CPaymentService::Billpoint(std::string_view Amount, bool IsDiscounted, bool IsCreditCard,
                                      bool IsInternational, std::string_view RateText) {
  CAuctionSite& site = schedule();
  const double amount = toDouble(Amount, m_locale);
  PaymentFee fee;
  fee.rate = ConversionRateFromText(RateText);
  site.ConversionRate(fee.rate);
  fee.flatFee = site.BillpointFlatFee();
  // Compared like the bounds, in single precision: an amount at a converted bound is not above it.
  const auto compared = static_cast<float>(amount);
  if (compared <= site.BillpointThreshold()) {
    fee.text = plainText(fee.flatFee, m_locale);
  } else if (const float limit = site.BillpointMax(IsDiscounted, IsCreditCard); compared > limit) {
    fee.text = "N/A";
    fee.limit = limit;
  } else {
    fee.share = static_cast<double>(IsCreditCard ? site.BillpointCCRate(IsDiscounted)
                                                 : site.BillpointEcheckRate(IsDiscounted));
    fee.shareOfAmount = fee.share * amount;
    fee.text = plainText(storedAsSingle(fee.shareOfAmount + static_cast<double>(fee.flatFee)), m_locale);
  }
  if (IsInternational && isNumeric(fee.text, m_locale)) addInternationalSurcharge(fee, amount);
  return fee;
}

std::string CPaymentService::PayPalFee(std::string_view Amount, bool IsMerchantRate, bool IsCreditCard,
                                       std::string_view RateText, bool IsInternational) {
  return PayPal(Amount, IsMerchantRate, IsCreditCard, RateText, IsInternational).text;
}

std::string CPaymentService::BillpointFee(std::string_view Amount, bool IsDiscounted, bool IsCreditCard,
                                          bool IsInternational, std::string_view RateText) {
  return Billpoint(Amount, IsDiscounted, IsCreditCard, IsInternational, RateText).text;
}

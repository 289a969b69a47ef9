#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <utility>

#include "auction_site.h"
#include "number_locale.h"

/// A payment fee and how it came about: a share of the amount and the flat fee, then the cap, then the
/// surcharge for international payments.
struct PaymentFee {
  std::string text;            ///< the fee in plain number text, or "N/A"
  float rate = 0.0F;           ///< the exchange rate that was calculated with
  double share = 0.0;          ///< the fraction of the amount; 0 where the flat fee is all
  double shareOfAmount = 0.0;  ///< that fraction of the amount
  float flatFee = 0.0F;
  std::optional<float> cap;         ///< what the two were cut to, if they were
  std::optional<double> surcharge;  ///< if there is one
  std::optional<float> limit;       ///< the largest amount that can be paid so, if this one is above it
};

/// What a payment service takes from an amount that a seller receives. The percentages of PayPal are the same
/// on all sites and stand here; flat fees, caps and all of Billpoint's figures are the schedule's.
///
/// `RateText` is the exchange rate as the user typed it, in local currency units per US dollar; a text that
/// is empty or no number means the site's default. Every calculation writes the rate to the schedule. An
/// amount that is no number throws ConversionError, one too large OverflowError.
class CPaymentService {
 public:
  static constexpr double kMerchantShare = 0.022;
  static constexpr double kStandardShare = 0.029;
  static constexpr double kInternationalShare = 0.01;

  explicit CPaymentService(NumberLocale locale) : m_locale(std::move(locale)) {}

  /// The schedule to ask and to tell the rate. It must outlive this object.
  void Site(CAuctionSite& site) { m_site = &site; }

  /// The fee in plain number text. The cap for payments that are no credit card's comes before the
  /// surcharge for international ones, which can so exceed it.
  [[nodiscard]] std::string PayPalFee(std::string_view Amount, bool IsMerchantRate, bool IsCreditCard,
                                      std::string_view RateText, bool IsInternational);

  /// The fee in plain number text, or "N/A" above the largest amount that can be paid so.
  [[nodiscard]] std::string BillpointFee(std::string_view Amount, bool IsDiscounted, bool IsCreditCard,
                                         bool IsInternational, std::string_view RateText);

  /// The same two fees with the steps that lead to them.
  [[nodiscard]] PaymentFee PayPal(std::string_view Amount, bool IsMerchantRate, bool IsCreditCard,
                                  std::string_view RateText, bool IsInternational);
  [[nodiscard]] PaymentFee Billpoint(std::string_view Amount, bool IsDiscounted, bool IsCreditCard,
                                     bool IsInternational, std::string_view RateText);

 private:
  [[nodiscard]] CAuctionSite& schedule();
  [[nodiscard]] float ConversionRateFromText(std::string_view text);
  void addInternationalSurcharge(PaymentFee& fee, double amount) const;

  NumberLocale m_locale;
  CAuctionSite m_noSite;
  CAuctionSite* m_site = nullptr;
};

#pragma once

#include <stdexcept>
#include <string>

#include "currency.h"
#include "listing.h"

/// What a listing costs, as texts with two decimals; "" where there is no such fee.
struct Fees {
  std::string insertion;   ///< without the reserve fee
  std::string reserve;     ///< of a reserve that was not met
  std::string extras;      ///< of all extra features
  std::string finalValue;  ///< "" if nothing was sold
  std::string total;
  std::string payment;  ///< what the payment service keeps
  std::string net;      ///< what the seller keeps of the sale, or of the payment
};

/// The boxes of the three tabs as the window would show them, and the text of the older payment service.
struct ShownBoxes {
  SingleItemBoxes single;
  MultipleItemsBoxes multiple;
  PaymentBoxes payment;
  std::string billpoint;
};

/// A listing that cannot be priced although all its texts are amounts. Its text says why.
class PricingError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// Prices listings with the calculations of the tabs. It holds a schedule and the calculators, and keeps
/// nothing from one listing to the next. Not for several threads at once.
class Pricer {
 public:
  explicit Pricer(NumberLocale locale);
  Pricer(const Pricer&) = delete;
  Pricer& operator=(const Pricer&) = delete;

  /// Recalculates the listing's tab. Throws AmountError like the tab; `boxes` then holds what the steps
  /// before the error had written. The other tabs' boxes are left alone.
  void recalculate(const Listing& listing, ShownBoxes& boxes);

  /// The fees of a listing whose entries are complete. Throws AmountError for a text that is no amount or too
  /// large a one, and PricingError for a payment that the service does not take.
  Fees price(const Listing& listing);

  [[nodiscard]] const NumberLocale& locale() const { return m_locale; }
  /// "$", "GBP", "C$" or "EUR".
  [[nodiscard]] static std::string currencyOf(const Listing& listing);

 private:
  void recalculateBillpoint(const Listing& listing, std::string& fee);
  Fees singleFees(const Listing& listing);
  Fees multipleFees(const Listing& listing);
  Fees paymentFees(const Listing& listing);
  [[nodiscard]] Currency number(const std::string& text) const;

  NumberLocale m_locale;
  CAuctionSite m_site;
  CRegularAuction m_regularAuction;
  CDutchAuction m_dutchAuction;
  CPaymentService m_paymentService;
  ShownBoxes m_boxes;
};

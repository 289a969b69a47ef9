#pragma once

#include <array>
#include <stdexcept>
#include <string>

#include "currency.h"
#include "listing.h"

/// Throws OverflowError if the difference is out of range.
Currency operator-(Currency left, Currency right);

/// How many items were sold, and for what, as the tab settled it.
struct SoldItems {
  int offered = 1;
  int count = 0;
  std::string price;         ///< of each: the text of the price that counted, "" for nothing
  bool isAtOpening = false;  ///< it is the opening price: items were left over, or no bid reached it
};

/// What a listing costs, as texts with two decimals; "" where there is no such fee.
struct Fees {
  std::string insertion;   ///< without the reserve fee
  std::string reserve;     ///< of a reserve that was not met
  std::string extras;      ///< of all extra features
  std::string finalValue;  ///< "" if nothing was sold
  std::string total;
  std::string payment;  ///< what the payment service keeps
  std::string net;      ///< what the seller keeps of the sale, or of the payment
  std::string sales;    ///< of several items: what all that were sold bring
  std::string perItem;  ///< of several items: the total for each that was sold, or `kNotAvailable`
  SoldItems sold;       ///< of listings
};

/// What stands for the fees per item where none was sold.
inline constexpr const char* kNotAvailable = "N/A";

/// One fee of a listing as a row or a column of an answer.
struct FeeColumn {
  const char* key;
  const char* heading;
  std::string Fees::*fee;
};

/// Those of all kinds of listings and payments, in the order in which they are shown.
inline constexpr std::array<FeeColumn, 7> kFeeColumns{
    {{"insertion_fee", "Listing fee", &Fees::insertion},
     {"reserve_fee", "Reserve fee", &Fees::reserve},
     {"extra_features", "Extra features", &Fees::extras},
     {"final_value_fee", "Final value fee", &Fees::finalValue},
     {"total_fees", "Total fees", &Fees::total},
     {"payment_fee", "Payment fee", &Fees::payment},
     {"net", "Net", &Fees::net}}};

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
  /// large a one, and PricingError for an entry that is missing, a payment that the service does not take,
  /// and entries from which too large an amount results.
  Fees price(const Listing& listing);

  [[nodiscard]] const NumberLocale& locale() const { return m_locale; }
  /// "$", "GBP", "C$" or "EUR".
  [[nodiscard]] static std::string currencyOf(const Listing& listing);

 private:
  SingleItemFigures recalculateSingle(const Listing& listing, SingleItemBoxes& boxes);
  MultipleItemsFigures recalculateMultiple(const Listing& listing, MultipleItemsBoxes& boxes);
  void recalculatePayPal(const Listing& listing, PaymentBoxes& boxes);
  PaymentFee billpoint(const Listing& listing);
  Fees feesOf(const Listing& listing);
  Fees singleFees(const Listing& listing);
  Fees multipleFees(const Listing& listing);
  Fees paymentFees(const Listing& listing);
  std::string payPalFee(const Listing& listing);
  std::string billpointFee(const Listing& listing);
  [[nodiscard]] Currency number(const std::string& text) const;

  NumberLocale m_locale;
  CAuctionSite m_site;
  CRegularAuction m_regularAuction;
  CDutchAuction m_dutchAuction;
  CPaymentService m_paymentService;
  ShownBoxes m_boxes;
};

#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "pricing.h"

/// An amount in whole cents, or pennies.
using Cents = std::int64_t;

/// With an amount of the service's, in the terms of the site's currency.
enum class PaymentService : std::uint8_t { None, PayPal, Billpoint };

/// A single item that sells, but for its price.
struct Sale {
  Listing listing;           ///< its closing price does not count; nor its opening price if it moves
  bool opensAtPrice = true;  ///< the opening price is the price itself, as of a fixed price
  PaymentService payment = PaymentService::None;
  Cents shippingCharged = 0;  ///< what the buyer pays on top of the price
};

/// What a sale at one price brings. The services take their fees of price and shipping, eBay of the price.
struct SaleResult {
  Cents price = 0;
  Cents listingFees = 0;  ///< all that eBay charges
  Cents paymentFee = 0;
  Cents net = 0;  ///< price and shipping charged, less all fees

  [[nodiscard]] Cents totalFees() const { return listingFees + paymentFee; }
};

struct PriceRange {
  Cents first = 0;
  Cents last = 0;  ///< belongs to it; below `first` if there is no price at all
};

/// A sale as a function of its price, cent by cent, as Pricer prices it. It also knows at which prices a fee
/// can jump, from the schedule: from each of `pieces()` to the next no fee falls as the price rises. That is
/// what searches rely on. Not for several threads at once.
class PriceFunction {
 public:
  /// From here on fees in single precision are no longer exact to the cent.
  static constexpr Cents largestPrice = 100'000'000;

  PriceFunction(Sale sale, const NumberLocale& locale);

  /// The price must be in the range.
  SaleResult at(Cents price);
  Cents totalFees(Cents price) { return at(price).totalFees(); }

  /// The prices at which it can sell: from the opening price, or the lowest that the site takes, up to the
  /// largest that the payment service takes.
  [[nodiscard]] PriceRange range() const { return m_range; }

  /// Where the pieces begin, rising; the first begins with the range. Empty if the range is.
  [[nodiscard]] std::span<const Cents> pieces() const { return m_pieces; }

  [[nodiscard]] const Sale& sale() const { return m_sale; }
  [[nodiscard]] bool isLimitedByPayment() const { return m_isLimitedByPayment; }
  [[nodiscard]] const NumberLocale& locale() const { return m_pricer.locale(); }

 private:
  void setRange(const CAuctionSite& schedule);
  void setPieces(const CAuctionSite& schedule);

  Sale m_sale;
  Pricer m_pricer;
  Listing m_payment;
  PriceRange m_range;
  std::vector<Cents> m_pieces;
  bool m_isLimitedByPayment = false;
};

/// "12.34" with the decimal sign of the locale.
[[nodiscard]] std::string textOf(Cents amount, const NumberLocale& locale);

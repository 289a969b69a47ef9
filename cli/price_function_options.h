#pragma once

#include <string>

#include "listing_options.h"
#include "price_function.h"
#include "session.h"

/// The options of a command that say what is sold and how it is paid, all but its price: those of a single
/// item, which price moves, and the payment service with its own.
class SaleOptions {
 public:
  void addTo(CLI::App& command);

  /// The sale they make, checked. Throws OptionError.
  [[nodiscard]] Sale sale(const Session& session) const;

 private:
  [[nodiscard]] bool opensAtPrice(const Listing& listing) const;

  ListingOptions m_listing;
  std::string m_vary;
  std::string m_payment;
  std::string m_shippingCharged;
};

/// An option of a command that is an amount: "--net AMOUNT". Its help says how large it may be.
void addAmountOption(CLI::App& command, const std::string& name, std::string& value, const std::string& help);

/// An amount that was given to an option, 0 if none was. Throws OptionError for what is no amount, ambiguous,
/// below zero, above the largest price, or has parts of a cent.
[[nodiscard]] Cents amountOf(const std::string& option, const std::string& text, const Session& session);

/// A price that was given to an option. Throws OptionError, also above what the sale can bring.
[[nodiscard]] Cents priceOf(const std::string& option, const std::string& text, const PriceFunction& sale,
                            const Session& session);

/// Throws OptionError if there is no price at which it can sell.
void checkSells(const PriceFunction& sale);

/// "$ 12.34".
[[nodiscard]] std::string priced(const PriceFunction& sale, Cents amount);

/// The largest price of a sale, and whose it is.
[[nodiscard]] std::string largestOf(const PriceFunction& sale);

#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>

#include "auction_site.h"
#include "number_locale.h"

/// The fees of a multiple-item listing: several items in one listing, all sold at the lowest successful bid.
/// It holds no fee number and no state between calls. Vehicle and real-estate rules do not apply here. Texts
/// are in the user's locale; what is no number throws ConversionError, what is too large OverflowError.
class CDutchAuction {
 public:
  explicit CDutchAuction(NumberLocale locale) : m_locale(std::move(locale)) {}

  /// The schedule to ask, on every call anew. It must outlive this object. Without one all fees are 0.
  void Site(const CAuctionSite& site) { m_site = &site; }

  /// What all items are worth at the opening price, in single precision: the price that the ladder is asked.
  [[nodiscard]] float ListingValue(std::string_view OpeningPrice, std::int16_t ItemsOffered) const;

  /// The fee for listing all items, in plain number text. "" when price times count stands on no step of the
  /// ladder; doubling that for two categories throws ConversionError, like an empty price.
  [[nodiscard]] std::string InsertionFee(std::string_view OpeningPrice, std::int16_t ItemsOffered,
                                         bool IsTwoCategories) const;

  /// The final value fee of all sold items, "0.00". An empty bid or count is 0.
  [[nodiscard]] std::string FVF(std::string_view LowestBid, std::string_view ItemsSold) const;

 private:
  [[nodiscard]] const CAuctionSite& schedule() const;

  NumberLocale m_locale;
  const CAuctionSite* m_site = nullptr;
};

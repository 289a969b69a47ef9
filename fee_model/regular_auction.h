#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <utility>

#include "auction_site.h"
#include "fee_total.h"
#include "number_locale.h"

/// The choices that ExtraFeaturesFee charges for, in the order of the tab's controls.
struct ListingFeatures {
  bool IsTwoCategories = false;
  bool IsFeaturedPlus = false;
  bool IsHomePageFeatured = false;
  bool IsGallery = false;
  bool IsGalleryFeatured = false;
  bool IsMotors = false;
  bool IsVehicle = false;
  bool IsMotorcycle = false;
  bool IsRealEstateType = false;  ///< passed on, and ignored by every fee
  bool IsHighlight = false;
  bool IsGiftIcon = false;
  bool IsBIN = false;
  bool IsTenDayAuction = false;
  bool IsBold = false;
  bool HasExtraPhotos = false;
  int PhotoChoice = 0;  ///< as in CAuctionSite::PhotosFee
  bool IsSupersize = false;
  bool IsSlideshow = false;
  bool IsScheduled = false;
  bool IsListingDesigner = false;
  bool IsSubtitle = false;
};

/// The fees of a single-item listing, from the texts and choices of its tab. It holds no fee number: every
/// figure is the schedule's. Prices are texts in the user's locale; a text that is no number throws
/// ConversionError, one too large OverflowError. How the fees are put together is single_item_tab.h's.
class CRegularAuction {
 public:
  explicit CRegularAuction(NumberLocale locale) : m_locale(std::move(locale)) {}

  /// The schedule to ask, on every call anew. It must outlive this object. Without one all fees are 0.
  void Site(const CAuctionSite& site) { m_site = &site; }

  /// The fee for listing, "0.00". An empty price counts as 0. `RealEstateFormat` as in CAuctionSite.
  [[nodiscard]] std::string InsertionFee(std::string_view StartingPrice, bool IsTwoCategories,
                                         bool IsRealEstate, bool IsVehicle, bool IsMotorcycle,
                                         bool IsTimeshareLand, int RealEstateFormat) const;

  /// The final value fee, "0.00". An empty bid counts as 0; the second text does not matter.
  [[nodiscard]] std::string FVF(std::string_view HighBidText, std::string_view ignored, bool IsRealEstate,
                                bool IsVehicle, bool DidNotSell, bool IsMotorcycle);

  /// " 0" once an unsold item was asked for its final value fee, before that "".
  [[nodiscard]] const std::string& HighBid() const { return m_highBid; }

  /// The fee for setting a reserve, in plain number text. All three texts must be numbers, though only the
  /// first matters.
  [[nodiscard]] std::string ReserveFee(std::string_view ReservePrice, std::string_view fees,
                                       std::string_view insertionFee, bool IsTwoCategories, bool IsVehicle,
                                       bool IsRealEstateAd) const;

  /// The total of the extra features, "0.00".
  [[nodiscard]] std::string ExtraFeaturesFee(const ListingFeatures& chosen) const;

 private:
  [[nodiscard]] const CAuctionSite& schedule() const;

  NumberLocale m_locale;
  const CAuctionSite* m_site = nullptr;
  std::string m_highBid;
};

/// The listing fee that the site's ladder gives for a price, and whether the price stands on a step at all:
/// below one cent, or between a bound and one cent above it, it does not.
struct LadderStep {
  bool isOnLadder = false;
  float fee = 0.0F;
  int tier = 0;        ///< 1 to 7
  float lower = 0.0F;  ///< the lowest price of the tier; of the seventh, the bound that it lies above
  float upper = 0.0F;  ///< the highest; the seventh has none
};
LadderStep listingFeeStep(const CAuctionSite& site, float price);

/// What the features of a single item add up to, in single precision, with every addition noted in `record`.
float extraFeatures(const ListingFeatures& chosen, const CAuctionSite& site, FeeRecord* record = nullptr);

/// How a reserve fee is made: a flat figure, a share of the price, or the cap that the share would exceed.
enum class ReserveRule : std::uint8_t { Flat, Share, Capped };

/// The reserve fee of one category, and where in the schedule it comes from.
struct ReserveStep {
  int tier = 1;  ///< 1 to 3
  float fee = 0.0F;
  ReserveRule rule = ReserveRule::Flat;
  double share = 0.0;  ///< a fraction; of no meaning for a flat fee
};
ReserveStep reserveStep(const CAuctionSite& site, float reserve, bool IsVehicle, bool IsRealEstateAd);

/// The final value fee of one sold item tier by tier, each a share of the part of the bid that lies in it.
class FinalValueParts {
 public:
  struct Part {
    double share = 0.0;  ///< a fraction
    double base = 0.0;   ///< the part of the bid
    double above = 0.0;  ///< what lies below the tier
    double upTo = 0.0;   ///< where the tier ends; 0 for the last
    [[nodiscard]] double amount() const { return base * share; }
  };

  FinalValueParts(const CAuctionSite& site, float bid);

  [[nodiscard]] std::span<const Part> parts() const { return std::span(m_parts).first(m_count); }
  /// The sum of the parts, made in double and stored in single precision.
  [[nodiscard]] float fee() const;

 private:
  std::array<Part, 3> m_parts;
  std::size_t m_count = 0;
};

/// The three-tier final value fee of one sold item, in single precision.
float tieredFinalValueFee(const CAuctionSite& site, float bid);

#include "regular_auction.h"

#include <array>

#include "amount_text.h"
#include "fee_total.h"

namespace {

constexpr double kCent = 0.01;

struct Tier {
  float upper;
  float fee;
};

float priceOrZero(std::string_view text, const NumberLocale& locale) {
  return text.empty() ? 0.0F : toSingle(text, locale);
}

}  // namespace

LadderStep listingFeeStep(const CAuctionSite& site, float price) {
  const std::array<Tier, 6> tiers{{
      {site.ListingFeeFirstTierUpper(), site.ListingFeeFirstTier()},
      {site.ListingFeeSecondTierUpper(), site.ListingFeeSecondTier()},
      {site.ListingFeeThirdTierUpper(), site.ListingFeeThirdTier()},
      {site.ListingFeeFourthTierUpper(), site.ListingFeeFourthTier()},
      {site.ListingFeeFifthTierUpper(), site.ListingFeeFifthTier()},
      {site.ListingFeeSixthTierUpper(), site.ListingFeeSixthTier()},
  }};
  // A bound is compared in single precision like the price: 0.01 as double would lie above the price 0.01.
  auto lower = static_cast<float>(kCent);
  for (const Tier& tier : tiers) {
    if (lower <= price && price <= tier.upper) return {true, tier.fee};
    lower = storedAsSingle(static_cast<double>(tier.upper) + kCent);
  }
  if (price > tiers.back().upper) return {true, site.ListingFeeSeventhTier()};
  return {};
}

float tieredFinalValueFee(const CAuctionSite& site, float bid) {
  const double price = static_cast<double>(bid);
  const double secondLower = static_cast<double>(site.FVFSecondTierLower());
  const double thirdLower = static_cast<double>(site.FVFThirdTierLower());
  const double firstRate = static_cast<double>(site.FVFFirstTier());
  const double secondRate = static_cast<double>(site.FVFSecondTier());
  const double thirdRate = static_cast<double>(site.FVFThirdTier());
  // The first tier ends one cent below the second's bound; the third starts at its bound itself.
  const double firstUpper = secondLower - kCent;
  if (price < secondLower) return storedAsSingle(firstRate * price);
  const double firstPart = firstUpper * firstRate;
  if (price <= thirdLower) return storedAsSingle(firstPart + (price - firstUpper) * secondRate);
  return storedAsSingle(firstPart + (thirdLower - firstUpper) * secondRate +
                        (price - thirdLower) * thirdRate);
}

const CAuctionSite& CRegularAuction::schedule() const {
  static const CAuctionSite noSite;
  return m_site != nullptr ? *m_site : noSite;
}

std::string CRegularAuction::InsertionFee(std::string_view StartingPrice, bool IsTwoCategories,
                                          bool IsRealEstate, bool IsVehicle, bool IsMotorcycle,
                                          bool IsTimeshareLand, int RealEstateFormat) const {
  const float price = priceOrZero(StartingPrice, m_locale);
  float fee = 0.0F;
  if (IsRealEstate) {
    fee = schedule().RealEstateInsertionFee(IsTimeshareLand, RealEstateFormat);
  } else if (IsVehicle) {
    fee = schedule().VehicleInsertionFee(IsMotorcycle);
  } else {
    fee = listingFeeStep(schedule(), price).fee;
  }
  const float charged = storedAsSingle(static_cast<double>(fee) * (IsTwoCategories ? 2.0 : 1.0));
  return twoDecimals(Currency::fromNumber(static_cast<double>(charged)), m_locale);
}

std::string CRegularAuction::FVF(std::string_view HighBidText, std::string_view /*ignored*/,
                                 bool IsRealEstate, bool IsVehicle, bool DidNotSell, bool IsMotorcycle) {
  const float bid = priceOrZero(HighBidText, m_locale);
  float fee = 0.0F;
  if (IsRealEstate) {
    // Real estate carries no final value fee, sold or not.
  } else if (DidNotSell) {
    m_highBid = plainText(0.0F, m_locale);
  } else if (IsVehicle) {
    fee = schedule().VehicleFVF(IsMotorcycle, bid);
  } else {
    fee = tieredFinalValueFee(schedule(), bid);
  }
  return twoDecimals(fee, m_locale);
}

std::string CRegularAuction::ReserveFee(std::string_view ReservePrice, std::string_view fees,
                                        std::string_view insertionFee, bool IsTwoCategories, bool IsVehicle,
                                        bool IsRealEstateAd) const {
  constexpr bool isReducedReserve = false;  // no control offers it
  const float reserve = toSingle(ReservePrice, m_locale);
  toSingle(fees, m_locale);
  toSingle(insertionFee, m_locale);
  const CAuctionSite& site = schedule();
  float fee = 0.0F;
  if (reserve < site.ReserveSecondTierLower()) {
    fee = site.ReserveFirstTier(reserve, IsVehicle, isReducedReserve);
  } else if (reserve < site.ReserveThirdTierLower(IsVehicle, IsRealEstateAd)) {
    fee = site.ReserveSecondTier(reserve, IsVehicle, isReducedReserve);
  } else {
    fee = site.ReserveThirdTier(reserve, IsVehicle, isReducedReserve);
  }
  if (IsTwoCategories) fee = storedAsSingle(static_cast<double>(fee) + static_cast<double>(fee));
  return plainText(fee, m_locale);
}

std::string CRegularAuction::ExtraFeaturesFee(const ListingFeatures& chosen) const {
  const CAuctionSite& site = schedule();
  constexpr bool isMultipleItem = false;
  FeeTotal fees(chosen.IsTwoCategories);
  if (chosen.IsFeaturedPlus)
    fees.addDoubledForTwoCategories(site.FeaturedPlusFee(chosen.IsMotors, isMultipleItem));
  if (chosen.IsHomePageFeatured) fees.add(site.HomePageFeaturedFee(1));
  // Gallery featured includes the gallery.
  if (chosen.IsGallery && !chosen.IsGalleryFeatured) {
    fees.addDoubledForTwoCategories(
        site.GalleryFee(chosen.IsVehicle, chosen.HasExtraPhotos, chosen.PhotoChoice));
  }
  if (chosen.IsGalleryFeatured) {
    fees.addDoubledForTwoCategories(site.GalleryFeaturedFee(chosen.IsMotors, chosen.IsVehicle));
  }
  if (chosen.IsBold) fees.addDoubledForTwoCategories(site.BoldFee(chosen.IsVehicle, chosen.IsRealEstateType));
  if (chosen.IsHighlight) fees.addDoubledForTwoCategories(site.HighlightFee());
  if (chosen.IsGiftIcon) fees.addDoubledForTwoCategories(site.GiftIconFee(chosen.IsVehicle));
  if (chosen.IsTenDayAuction) fees.addDoubledForTwoCategories(site.TenDayAuctionFee(chosen.IsVehicle));
  if (chosen.IsBIN) fees.addDoubledForTwoCategories(site.BINFee(chosen.IsVehicle, chosen.IsMotorcycle));
  if (chosen.IsScheduled) fees.add(site.ScheduledListingFee(chosen.IsVehicle));
  if (chosen.IsListingDesigner) fees.addDoubledForTwoCategories(site.ListingDesignerFee());
  if (chosen.IsSubtitle) fees.addDoubledForTwoCategories(site.SubtitleFee());
  fees.addDoubledForTwoCategories(site.PhotosFee(chosen.HasExtraPhotos, chosen.PhotoChoice,
                                                 chosen.IsSupersize, chosen.IsSlideshow, chosen.IsVehicle));
  return twoDecimals(fees.total(), m_locale);
}

#include "regular_auction.h"

#include <array>

#include "amount_text.h"

namespace {

constexpr double kCent = 0.01;

struct Tier {
  float upper;
  float fee;
};

float priceOrZero(std::string_view text, const NumberLocale& locale) {
  return text.empty() ? 0.0F : toSingle(text, locale);
}

/// The step of a tier that may take a share of the price. Whether it does shows in what it asks for nothing.
ReserveStep shareStep(int tier, float fee, float feeOfNothing, double share, float reserve) {
  if (fee <= feeOfNothing) return {.tier = tier, .fee = fee};
  const bool isCapped = fee < storedAsSingle(static_cast<double>(reserve) * share);
  return {
      .tier = tier, .fee = fee, .rule = isCapped ? ReserveRule::Capped : ReserveRule::Share, .share = share};
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
  int number = 1;
  for (const Tier& tier : tiers) {
    if (lower <= price && price <= tier.upper) return {true, tier.fee, number, lower, tier.upper};
    lower = storedAsSingle(static_cast<double>(tier.upper) + kCent);
    ++number;
  }
  const float last = tiers.back().upper;
  if (price > last) return {true, site.ListingFeeSeventhTier(), number, last, last};
  return {};
}

FinalValueParts::FinalValueParts(const CAuctionSite& site, float bid) {
  const double price = static_cast<double>(bid);
  const double secondLower = static_cast<double>(site.FVFSecondTierLower());
  const double thirdLower = static_cast<double>(site.FVFThirdTierLower());
  const double firstRate = static_cast<double>(site.FVFFirstTier());
  const double secondRate = static_cast<double>(site.FVFSecondTier());
  const double thirdRate = static_cast<double>(site.FVFThirdTier());
  // The first tier ends one cent below the second's bound; the third starts at its bound itself.
  const double firstUpper = secondLower - kCent;
  const auto add = [this](double share, double base, double above, double upTo) {
    m_parts[m_count++] = {share, base, above, upTo};
  };
  if (price < secondLower) {
    add(firstRate, price, 0.0, firstUpper);
    return;
  }
  add(firstRate, firstUpper, 0.0, firstUpper);
  add(secondRate, (price <= thirdLower ? price : thirdLower) - firstUpper, firstUpper, thirdLower);
  if (price > thirdLower) add(thirdRate, price - thirdLower, thirdLower, 0.0);
}

float FinalValueParts::fee() const {
  double sum = 0.0;
  for (const Part& part : parts()) sum += part.amount();
  return storedAsSingle(sum);
}

float tieredFinalValueFee(const CAuctionSite& site, float bid) { return FinalValueParts(site, bid).fee(); }

ReserveStep reserveStep(const CAuctionSite& site, float reserve, bool IsVehicle, bool IsRealEstateAd) {
  constexpr bool isReducedReserve = false;  // no control offers it
  if (reserve < site.ReserveSecondTierLower())
    return {.tier = 1, .fee = site.ReserveFirstTier(reserve, IsVehicle, isReducedReserve)};
  if (reserve < site.ReserveThirdTierLower(IsVehicle, IsRealEstateAd)) {
    return shareStep(2, site.ReserveSecondTier(reserve, IsVehicle, isReducedReserve),
                     site.ReserveSecondTier(0.0F, IsVehicle, isReducedReserve),
                     site.share(Figure::ReserveSecondTierShare), reserve);
  }
  return shareStep(3, site.ReserveThirdTier(reserve, IsVehicle, isReducedReserve),
                   site.ReserveThirdTier(0.0F, IsVehicle, isReducedReserve),
                   site.share(Figure::ReserveThirdTierShare), reserve);
}

float extraFeatures(const ListingFeatures& chosen, const CAuctionSite& site, FeeRecord* record) {
  using enum ExtraFeature;
  constexpr bool isMultipleItem = false;
  const FeeCause vehicle = chosen.IsVehicle ? FeeCause::Vehicle : FeeCause::None;
  FeeTotal fees(chosen.IsTwoCategories, record);
  const auto add = [&fees](ExtraFeature feature, float fee, FeeCause cause = FeeCause::None) {
    fees.addDoubledForTwoCategories(feature, fee, cause);
  };
  if (chosen.IsFeaturedPlus) add(FeaturedPlus, site.FeaturedPlusFee(chosen.IsMotors, isMultipleItem));
  if (chosen.IsHomePageFeatured) fees.add(HomePageFeatured, site.HomePageFeaturedFee(1));
  // Gallery featured includes the gallery.
  if (chosen.IsGallery && chosen.IsGalleryFeatured) {
    add(Gallery, 0.0F, FeeCause::GalleryFeatured);
  } else if (chosen.IsGallery) {
    add(Gallery, site.GalleryFee(chosen.IsVehicle, chosen.HasExtraPhotos, chosen.PhotoChoice),
        galleryCause(chosen.IsVehicle, chosen.HasExtraPhotos, chosen.PhotoChoice));
  }
  if (chosen.IsGalleryFeatured) {
    add(GalleryFeatured, site.GalleryFeaturedFee(chosen.IsMotors, chosen.IsVehicle),
        galleryFeaturedCause(chosen.IsMotors, chosen.IsVehicle));
  }
  if (chosen.IsBold) add(Bold, site.BoldFee(chosen.IsVehicle, chosen.IsRealEstateType), vehicle);
  if (chosen.IsHighlight) add(Highlight, site.HighlightFee());
  if (chosen.IsGiftIcon) add(GiftIcon, site.GiftIconFee(chosen.IsVehicle), vehicle);
  if (chosen.IsTenDayAuction) add(TenDayAuction, site.TenDayAuctionFee(chosen.IsVehicle), vehicle);
  if (chosen.IsBIN) add(BuyItNow, site.BINFee(chosen.IsVehicle, chosen.IsMotorcycle), vehicle);
  if (chosen.IsScheduled) fees.add(Scheduled, site.ScheduledListingFee(chosen.IsVehicle), vehicle);
  if (chosen.IsListingDesigner) add(ListingDesigner, site.ListingDesignerFee());
  if (chosen.IsSubtitle) add(Subtitle, site.SubtitleFee());
  add(Pictures, site.PhotosFee(chosen.HasExtraPhotos, chosen.PhotoChoice, chosen.IsSupersize,
                               chosen.IsSlideshow, chosen.IsVehicle));
  return fees.total();
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
  const float reserve = toSingle(ReservePrice, m_locale);
  toSingle(fees, m_locale);
  toSingle(insertionFee, m_locale);
  float fee = reserveStep(schedule(), reserve, IsVehicle, IsRealEstateAd).fee;
  if (IsTwoCategories) fee = storedAsSingle(static_cast<double>(fee) + static_cast<double>(fee));
  return plainText(fee, m_locale);
}

std::string CRegularAuction::ExtraFeaturesFee(const ListingFeatures& chosen) const {
  return twoDecimals(extraFeatures(chosen, schedule()), m_locale);
}

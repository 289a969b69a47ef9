#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

/// Every fixed number of the fee rules. A member of CAuctionSite whose answer depends on a choice of the
/// listing has one figure for each choice.
enum class Figure : std::uint8_t {
  ListingFeeFirstTierUpper,
  ListingFeeSecondTierUpper,
  ListingFeeThirdTierUpper,
  ListingFeeFourthTierUpper,
  ListingFeeFifthTierUpper,
  ListingFeeSixthTierUpper,
  ListingFeeFirstTier,
  ListingFeeSecondTier,
  ListingFeeThirdTier,
  ListingFeeFourthTier,
  ListingFeeFifthTier,
  ListingFeeSixthTier,
  ListingFeeSeventhTier,
  RealEstateTimeshareThreeToTenDayAuction,
  RealEstateTimeshareThirtyDayAuction,
  RealEstateTimeshareThirtyDayAd,
  RealEstateTimeshareNinetyDayAd,
  RealEstateOtherThreeToTenDayAuction,
  RealEstateOtherThirtyDayAuction,
  RealEstateOtherThirtyDayAd,
  RealEstateOtherNinetyDayAd,
  RealEstateUnknownFormat,
  VehicleInsertionMotorcycle,
  VehicleInsertionOther,
  VehicleSaleMotorcycle,
  VehicleSaleLowest,
  VehicleSaleShare,
  VehicleSaleShareFrom,
  VehicleSaleHighestFrom,
  VehicleSaleHighest,
  ReserveSecondTierLower,
  ReserveThirdTierLower,
  ReserveFirstTierVehicle,
  ReserveFirstTierReduced,
  ReserveFirstTierOther,
  ReserveSecondTierVehicle,
  ReserveSecondTierReduced,
  ReserveSecondTierOther,
  ReserveSecondTierShare,
  ReserveThirdTierShare,
  ReserveThirdTierCap,
  ReserveFeeCap,
  FeaturedPlusSingle,
  FeaturedPlusMultiple,
  HomePageFeaturedOne,
  HomePageFeaturedSeveral,
  Highlight,
  BoldVehicle,
  BoldOther,
  TenDayAuctionVehicle,
  TenDayAuctionOther,
  BuyItNowVehicle,
  BuyItNowOther,
  ExtraPhoto,
  PicturePack,
  Supersize,
  Slideshow,
  GiftIconVehicle,
  GiftIconOther,
  ScheduledVehicle,
  ScheduledOther,
  Subtitle,
  GalleryVehicle,
  GalleryOther,
  GalleryFeaturedWithoutMotors,
  GalleryFeaturedMotorsVehicle,
  GalleryFeaturedMotorsOther,
  ListingDesigner,
  FVFSecondTierLower,
  FVFThirdTierLower,
  FVFFirstTier,
  FVFSecondTier,
  FVFThirdTier,
  FVFVehicleMotorcycle,
  FVFVehicleOther,
  BillpointThreshold,
  BillpointFlatFee,
  BillpointEcheckRateDiscounted,
  BillpointEcheckRateStandard,
  BillpointCCRateDiscounted,
  BillpointCCRateStandard,
  BillpointMaxEcheckDiscounted,
  BillpointMaxEcheckStandard,
  BillpointMaxCCDiscounted,
  BillpointMaxCCStandard,
  DefaultConversionRate,
  PayPalFlatFee,
  PayPalMaxFeeNonCC,
  Count
};

/// One site's value of a figure.
struct FeeCell {
  double value = 0.0;           ///< in the site's currency, or a fraction for a rate or share
  bool followsTheRate = false;  ///< kept in US dollars, converted with the user's rate when it is read

  // Implicit, because a table of plain numbers is what one compares with a printed schedule.
  // NOLINTNEXTLINE(google-explicit-constructor)
  constexpr FeeCell(double figure) : value(figure) {}
  constexpr FeeCell(double figure, bool isInDollars) : value(figure), followsTheRate(isInDollars) {}
};

constexpr std::size_t kSiteCount = 4;

/// One row of the schedule: eBay.com, UK, Canada, Germany.
struct FeeRow {
  Figure figure;
  std::array<FeeCell, kSiteCount> sites;
};

constexpr std::size_t kFigureCount = static_cast<std::size_t>(Figure::Count);

/// The built-in schedule, one row per figure, in the order of `Figure`.
extern const std::array<FeeRow, kFigureCount> kFeeSchedule;

/// A site's value of a figure. `site` is 1 to 4, in the order of the columns.
[[nodiscard]] inline const FeeCell& cellOf(Figure figure, std::int32_t site) {
  return kFeeSchedule[static_cast<std::size_t>(figure)].sites[static_cast<std::size_t>(site - 1)];
}

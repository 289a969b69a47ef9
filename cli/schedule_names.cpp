#include "schedule_names.h"

namespace {

// clang-format off
constexpr std::array<FigureName, kFigureCount> kNames{{
    {Figure::ListingFeeFirstTierUpper, "Listing fee, tier 1 up to", FigureUnit::Bound, FigureZero::Absent},
    {Figure::ListingFeeSecondTierUpper, "Listing fee, tier 2 up to", FigureUnit::Bound, FigureZero::Absent},
    {Figure::ListingFeeThirdTierUpper, "Listing fee, tier 3 up to", FigureUnit::Bound, FigureZero::Absent},
    {Figure::ListingFeeFourthTierUpper, "Listing fee, tier 4 up to", FigureUnit::Bound, FigureZero::Absent},
    {Figure::ListingFeeFifthTierUpper, "Listing fee, tier 5 up to", FigureUnit::Bound, FigureZero::Absent},
    {Figure::ListingFeeSixthTierUpper, "Listing fee, tier 6 up to", FigureUnit::Bound, FigureZero::Absent},
    {Figure::ListingFeeFirstTier, "Listing fee, tier 1", FigureUnit::Amount, FigureZero::Absent},
    {Figure::ListingFeeSecondTier, "Listing fee, tier 2", FigureUnit::Amount, FigureZero::Absent},
    {Figure::ListingFeeThirdTier, "Listing fee, tier 3", FigureUnit::Amount, FigureZero::Absent},
    {Figure::ListingFeeFourthTier, "Listing fee, tier 4", FigureUnit::Amount, FigureZero::Absent},
    {Figure::ListingFeeFifthTier, "Listing fee, tier 5", FigureUnit::Amount, FigureZero::Absent},
    {Figure::ListingFeeSixthTier, "Listing fee, tier 6", FigureUnit::Amount, FigureZero::Absent},
    {Figure::ListingFeeSeventhTier, "Listing fee, tier 7", FigureUnit::Amount, FigureZero::Absent},
    {Figure::RealEstateTimeshareThreeToTenDayAuction, "Listing fee, real estate, timeshare or land, 3-10 day auction", FigureUnit::Amount, FigureZero::Absent},
    {Figure::RealEstateTimeshareThirtyDayAuction, "Listing fee, real estate, timeshare or land, 30-day auction", FigureUnit::Amount, FigureZero::Absent},
    {Figure::RealEstateTimeshareThirtyDayAd, "Listing fee, real estate, timeshare or land, 30-day ad", FigureUnit::Amount, FigureZero::Absent},
    {Figure::RealEstateTimeshareNinetyDayAd, "Listing fee, real estate, timeshare or land, 90-day ad", FigureUnit::Amount, FigureZero::Absent},
    {Figure::RealEstateOtherThreeToTenDayAuction, "Listing fee, real estate, other, 3-10 day auction", FigureUnit::Amount, FigureZero::Absent},
    {Figure::RealEstateOtherThirtyDayAuction, "Listing fee, real estate, other, 30-day auction", FigureUnit::Amount, FigureZero::Absent},
    {Figure::RealEstateOtherThirtyDayAd, "Listing fee, real estate, other, 30-day ad", FigureUnit::Amount, FigureZero::Absent},
    {Figure::RealEstateOtherNinetyDayAd, "Listing fee, real estate, other, 90-day ad", FigureUnit::Amount, FigureZero::Absent},
    {Figure::RealEstateUnknownFormat, "", FigureUnit::Amount, FigureZero::NeverAsked},
    {Figure::VehicleInsertionMotorcycle, "Listing fee, motorcycle", FigureUnit::Amount, FigureZero::Absent},
    {Figure::VehicleInsertionOther, "Listing fee, other vehicle", FigureUnit::Amount, FigureZero::Absent},
    {Figure::VehicleSaleMotorcycle, "Sale of a motorcycle", FigureUnit::Amount, FigureZero::Absent},
    {Figure::VehicleSaleLowest, "Sale of a vehicle, lowest or only fee", FigureUnit::Amount, FigureZero::Absent},
    {Figure::VehicleSaleShare, "Sale of a vehicle, share of the price", FigureUnit::Rate, FigureZero::Absent},
    {Figure::VehicleSaleShareFrom, "Sale of a vehicle, the share from", FigureUnit::Bound, FigureZero::Absent},
    {Figure::VehicleSaleHighestFrom, "Sale of a vehicle, highest fee from", FigureUnit::Bound, FigureZero::Absent},
    {Figure::VehicleSaleHighest, "Sale of a vehicle, highest fee", FigureUnit::Amount, FigureZero::Absent},
    {Figure::ReserveSecondTierLower, "Reserve fee, tier 2 from", FigureUnit::Bound, FigureZero::Absent},
    {Figure::ReserveThirdTierLower, "Reserve fee, tier 3 from", FigureUnit::Bound, FigureZero::Absent},
    {Figure::ReserveFirstTierVehicle, "Reserve fee, tier 1, vehicle", FigureUnit::Amount, FigureZero::Absent},
    {Figure::ReserveFirstTierReduced, "", FigureUnit::Amount, FigureZero::NeverAsked},
    {Figure::ReserveFirstTierOther, "Reserve fee, tier 1", FigureUnit::Amount, FigureZero::Absent},
    {Figure::ReserveSecondTierVehicle, "Reserve fee, tier 2, vehicle", FigureUnit::Amount, FigureZero::Absent},
    {Figure::ReserveSecondTierReduced, "", FigureUnit::Amount, FigureZero::NeverAsked},
    {Figure::ReserveSecondTierOther, "Reserve fee, tier 2", FigureUnit::Amount, FigureZero::Absent},
    {Figure::ReserveSecondTierShare, "Reserve fee, tier 2, share of the reserve", FigureUnit::Rate, FigureZero::Absent},
    {Figure::ReserveThirdTierShare, "Reserve fee, tier 3, share of the reserve", FigureUnit::Rate, FigureZero::FreeBesideReserve},
    {Figure::ReserveThirdTierCap, "Reserve fee, tier 3, cap", FigureUnit::Bound, FigureZero::Absent},
    {Figure::ReserveFeeCap, "", FigureUnit::Amount, FigureZero::NeverAsked},
    {Figure::FeaturedPlusSingle, "Featured Plus, single item", FigureUnit::Amount, FigureZero::Free},
    {Figure::FeaturedPlusMultiple, "Featured Plus, several items", FigureUnit::Amount, FigureZero::Free},
    {Figure::HomePageFeaturedOne, "Home page, one item", FigureUnit::Amount, FigureZero::Free},
    {Figure::HomePageFeaturedSeveral, "Home page, several items", FigureUnit::Amount, FigureZero::Free},
    {Figure::Highlight, "Highlight", FigureUnit::Amount, FigureZero::Free},
    {Figure::BoldVehicle, "Bold, vehicle", FigureUnit::Amount, FigureZero::Free},
    {Figure::BoldOther, "Bold", FigureUnit::Amount, FigureZero::Free},
    {Figure::TenDayAuctionVehicle, "Ten days, vehicle", FigureUnit::Amount, FigureZero::Free},
    {Figure::TenDayAuctionOther, "Ten days", FigureUnit::Amount, FigureZero::Free},
    {Figure::BuyItNowVehicle, "Buy it Now, vehicle", FigureUnit::Amount, FigureZero::Free},
    {Figure::BuyItNowOther, "Buy it Now", FigureUnit::Amount, FigureZero::Free},
    {Figure::ExtraPhoto, "Extra picture, each", FigureUnit::Amount, FigureZero::Free},
    {Figure::PicturePack, "Picture pack", FigureUnit::Amount, FigureZero::Free},
    {Figure::Supersize, "Supersized pictures", FigureUnit::Amount, FigureZero::Free},
    {Figure::Slideshow, "Slide show", FigureUnit::Amount, FigureZero::Free},
    {Figure::GiftIconVehicle, "Listing icon, vehicle", FigureUnit::Amount, FigureZero::Absent},
    {Figure::GiftIconOther, "Gift services", FigureUnit::Amount, FigureZero::Absent},
    {Figure::ScheduledVehicle, "Scheduled listing, vehicle", FigureUnit::Amount, FigureZero::Free},
    {Figure::ScheduledOther, "Scheduled listing", FigureUnit::Amount, FigureZero::Free},
    {Figure::Subtitle, "Subtitle", FigureUnit::Amount, FigureZero::Free},
    {Figure::GalleryVehicle, "Gallery, vehicle", FigureUnit::Amount, FigureZero::Free},
    {Figure::GalleryOther, "Gallery", FigureUnit::Amount, FigureZero::Free},
    {Figure::GalleryFeaturedWithoutMotors, "Gallery Featured", FigureUnit::Amount, FigureZero::Free},
    {Figure::GalleryFeaturedMotorsVehicle, "Gallery Featured, eBay Motors, vehicle", FigureUnit::Amount, FigureZero::Free},
    {Figure::GalleryFeaturedMotorsOther, "Gallery Featured, eBay Motors, no vehicle", FigureUnit::Amount, FigureZero::Free},
    {Figure::ListingDesigner, "Listing Designer", FigureUnit::Amount, FigureZero::Absent},
    {Figure::FVFSecondTierLower, "Final value fee, tier 2 from", FigureUnit::Bound, FigureZero::Absent},
    {Figure::FVFThirdTierLower, "Final value fee, tier 3 above", FigureUnit::Bound, FigureZero::Absent},
    {Figure::FVFFirstTier, "Final value fee, tier 1", FigureUnit::Rate, FigureZero::Absent},
    {Figure::FVFSecondTier, "Final value fee, tier 2", FigureUnit::Rate, FigureZero::Absent},
    {Figure::FVFThirdTier, "Final value fee, tier 3", FigureUnit::Rate, FigureZero::Absent},
    {Figure::FVFVehicleMotorcycle, "", FigureUnit::Amount, FigureZero::NeverAsked},
    {Figure::FVFVehicleOther, "", FigureUnit::Amount, FigureZero::NeverAsked},
    {Figure::BillpointThreshold, "eBay Payments, flat fee alone up to", FigureUnit::Bound, FigureZero::Absent},
    {Figure::BillpointFlatFee, "eBay Payments, flat fee", FigureUnit::Amount, FigureZero::Absent},
    {Figure::BillpointEcheckRateDiscounted, "eBay Payments, eCheck, discounted", FigureUnit::Rate, FigureZero::Absent},
    {Figure::BillpointEcheckRateStandard, "eBay Payments, eCheck", FigureUnit::Rate, FigureZero::Absent},
    {Figure::BillpointCCRateDiscounted, "eBay Payments, credit card, discounted", FigureUnit::Rate, FigureZero::Absent},
    {Figure::BillpointCCRateStandard, "eBay Payments, credit card", FigureUnit::Rate, FigureZero::Absent},
    {Figure::BillpointMaxEcheckDiscounted, "eBay Payments, largest eCheck, discounted", FigureUnit::Bound, FigureZero::Absent},
    {Figure::BillpointMaxEcheckStandard, "eBay Payments, largest eCheck", FigureUnit::Bound, FigureZero::Absent},
    {Figure::BillpointMaxCCDiscounted, "eBay Payments, largest credit card payment, discounted", FigureUnit::Bound, FigureZero::Absent},
    {Figure::BillpointMaxCCStandard, "eBay Payments, largest credit card payment", FigureUnit::Bound, FigureZero::Absent},
    {Figure::DefaultConversionRate, "Exchange rate where none is entered", FigureUnit::ExchangeRate, FigureZero::Absent},
    {Figure::PayPalFlatFee, "PayPal, flat fee", FigureUnit::Amount, FigureZero::Absent},
    {Figure::PayPalMaxFeeNonCC, "PayPal, cap of an eCheck", FigureUnit::Bound, FigureZero::Absent},
}};
// clang-format on

constexpr bool namesStandInTheOrderOfTheFigures() {
  for (std::size_t at = 0; at < kFigureCount; ++at) {
    if (kNames[at].figure != static_cast<Figure>(at)) return false;
  }
  return true;
}

static_assert(namesStandInTheOrderOfTheFigures(), "a name is looked up by its place: keep the rows in order");

}  // namespace

std::span<const FigureName, kFigureCount> figureNames() { return kNames; }

#include "schedule_names.h"

namespace {

// clang-format off
constexpr std::array<FigureName, kFigureCount> kNames{{
    {Figure::ListingFeeFirstTierUpper, "Listing fee, tier 1 up to", FigureUnit::Bound, FigureZero::NoRule},
    {Figure::ListingFeeSecondTierUpper, "Listing fee, tier 2 up to", FigureUnit::Bound, FigureZero::NoRule},
    {Figure::ListingFeeThirdTierUpper, "Listing fee, tier 3 up to", FigureUnit::Bound, FigureZero::NoRule},
    {Figure::ListingFeeFourthTierUpper, "Listing fee, tier 4 up to", FigureUnit::Bound, FigureZero::NoRule},
    {Figure::ListingFeeFifthTierUpper, "Listing fee, tier 5 up to", FigureUnit::Bound, FigureZero::NoRule},
    {Figure::ListingFeeSixthTierUpper, "Listing fee, tier 6 up to", FigureUnit::Bound, FigureZero::NoRule},
    {Figure::ListingFeeFirstTier, "Listing fee, tier 1", FigureUnit::Amount, FigureZero::NoRule},
    {Figure::ListingFeeSecondTier, "Listing fee, tier 2", FigureUnit::Amount, FigureZero::NoRule},
    {Figure::ListingFeeThirdTier, "Listing fee, tier 3", FigureUnit::Amount, FigureZero::NoRule},
    {Figure::ListingFeeFourthTier, "Listing fee, tier 4", FigureUnit::Amount, FigureZero::NoRule},
    {Figure::ListingFeeFifthTier, "Listing fee, tier 5", FigureUnit::Amount, FigureZero::NoRule},
    {Figure::ListingFeeSixthTier, "Listing fee, tier 6", FigureUnit::Amount, FigureZero::NoRule},
    {Figure::ListingFeeSeventhTier, "Listing fee, tier 7", FigureUnit::Amount, FigureZero::NoRule},
    {Figure::RealEstateTimeshareThreeToTenDayAuction, "Listing fee, real estate, timeshare or land, 3-10 day auction", FigureUnit::Amount, FigureZero::NoRule},
    {Figure::RealEstateTimeshareThirtyDayAuction, "Listing fee, real estate, timeshare or land, 30-day auction", FigureUnit::Amount, FigureZero::NoRule},
    {Figure::RealEstateTimeshareThirtyDayAd, "Listing fee, real estate, timeshare or land, 30-day ad", FigureUnit::Amount, FigureZero::NoRule},
    {Figure::RealEstateTimeshareNinetyDayAd, "Listing fee, real estate, timeshare or land, 90-day ad", FigureUnit::Amount, FigureZero::NoRule},
    {Figure::RealEstateOtherThreeToTenDayAuction, "Listing fee, real estate, other, 3-10 day auction", FigureUnit::Amount, FigureZero::NoRule},
    {Figure::RealEstateOtherThirtyDayAuction, "Listing fee, real estate, other, 30-day auction", FigureUnit::Amount, FigureZero::NoRule},
    {Figure::RealEstateOtherThirtyDayAd, "Listing fee, real estate, other, 30-day ad", FigureUnit::Amount, FigureZero::NoRule},
    {Figure::RealEstateOtherNinetyDayAd, "Listing fee, real estate, other, 90-day ad", FigureUnit::Amount, FigureZero::NoRule},
    {Figure::RealEstateUnknownFormat, "", FigureUnit::Amount, FigureZero::NeverAsked},
    {Figure::VehicleInsertionMotorcycle, "Listing fee, motorcycle", FigureUnit::Amount, FigureZero::NoRule},
    {Figure::VehicleInsertionOther, "Listing fee, other vehicle", FigureUnit::Amount, FigureZero::NoRule},
    {Figure::VehicleSaleMotorcycle, "Sale of a motorcycle", FigureUnit::Amount, FigureZero::NoRule},
    {Figure::VehicleSaleLowest, "Sale of a vehicle, lowest or only fee", FigureUnit::Amount, FigureZero::NoRule},
    {Figure::VehicleSaleShare, "Sale of a vehicle, share of the price", FigureUnit::Rate, FigureZero::NoRule},
    {Figure::VehicleSaleShareFrom, "Sale of a vehicle, the share from", FigureUnit::Bound, FigureZero::NoRule},
    {Figure::VehicleSaleHighestFrom, "Sale of a vehicle, highest fee from", FigureUnit::Bound, FigureZero::NoRule},
    {Figure::VehicleSaleHighest, "Sale of a vehicle, highest fee", FigureUnit::Amount, FigureZero::NoRule},
    {Figure::ReserveSecondTierLower, "Reserve fee, tier 2 from", FigureUnit::Bound, FigureZero::NoRule},
    {Figure::ReserveThirdTierLower, "Reserve fee, tier 3 from", FigureUnit::Bound, FigureZero::NoRule},
    {Figure::ReserveFirstTierVehicle, "Reserve fee, tier 1, vehicle", FigureUnit::Amount, FigureZero::NoRule},
    {Figure::ReserveFirstTierReduced, "", FigureUnit::Amount, FigureZero::NeverAsked},
    {Figure::ReserveFirstTierOther, "Reserve fee, tier 1", FigureUnit::Amount, FigureZero::NoRule},
    {Figure::ReserveSecondTierVehicle, "Reserve fee, tier 2, vehicle", FigureUnit::Amount, FigureZero::NoRule},
    {Figure::ReserveSecondTierReduced, "", FigureUnit::Amount, FigureZero::NeverAsked},
    {Figure::ReserveSecondTierOther, "Reserve fee, tier 2", FigureUnit::Amount, FigureZero::NoRule},
    {Figure::ReserveSecondTierShare, "Reserve fee, tier 2, share of the reserve", FigureUnit::Rate, FigureZero::NoRule},
    {Figure::ReserveThirdTierShare, "Reserve fee, tier 3, share of the reserve", FigureUnit::Rate, FigureZero::FreeBesideReserve},
    {Figure::ReserveThirdTierCap, "Reserve fee, tier 3, cap", FigureUnit::Bound, FigureZero::NoRule},
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
    {Figure::GiftIconVehicle, "Listing icon, vehicle", FigureUnit::Amount, FigureZero::OnlyOnEBayCom},
    {Figure::GiftIconOther, "Gift services", FigureUnit::Amount, FigureZero::OnlyOnEBayCom},
    {Figure::ScheduledVehicle, "Scheduled listing, vehicle", FigureUnit::Amount, FigureZero::Free},
    {Figure::ScheduledOther, "Scheduled listing", FigureUnit::Amount, FigureZero::Free},
    {Figure::Subtitle, "Subtitle", FigureUnit::Amount, FigureZero::Free},
    {Figure::GalleryVehicle, "Gallery, vehicle", FigureUnit::Amount, FigureZero::Free},
    {Figure::GalleryOther, "Gallery", FigureUnit::Amount, FigureZero::Free},
    {Figure::GalleryFeaturedWithoutMotors, "Gallery Featured", FigureUnit::Amount, FigureZero::Free},
    {Figure::GalleryFeaturedMotorsVehicle, "Gallery Featured, eBay Motors, vehicle", FigureUnit::Amount, FigureZero::Free},
    {Figure::GalleryFeaturedMotorsOther, "Gallery Featured, eBay Motors, no vehicle", FigureUnit::Amount, FigureZero::Free},
    {Figure::ListingDesigner, "Listing Designer", FigureUnit::Amount, FigureZero::OnlyOnEBayCom},
    {Figure::FVFSecondTierLower, "Final value fee, tier 2 from", FigureUnit::Bound, FigureZero::NoRule},
    {Figure::FVFThirdTierLower, "Final value fee, tier 3 above", FigureUnit::Bound, FigureZero::NoRule},
    {Figure::FVFFirstTier, "Final value fee, tier 1", FigureUnit::Rate, FigureZero::NoRule},
    {Figure::FVFSecondTier, "Final value fee, tier 2", FigureUnit::Rate, FigureZero::NoRule},
    {Figure::FVFThirdTier, "Final value fee, tier 3", FigureUnit::Rate, FigureZero::NoRule},
    {Figure::FVFVehicleMotorcycle, "", FigureUnit::Amount, FigureZero::NeverAsked},
    {Figure::FVFVehicleOther, "", FigureUnit::Amount, FigureZero::NeverAsked},
    {Figure::BillpointThreshold, "eBay Payments, flat fee alone up to", FigureUnit::Bound, FigureZero::NoRule},
    {Figure::BillpointFlatFee, "eBay Payments, flat fee", FigureUnit::Amount, FigureZero::NoRule},
    {Figure::BillpointEcheckRateDiscounted, "eBay Payments, eCheck, discounted", FigureUnit::Rate, FigureZero::NoRule},
    {Figure::BillpointEcheckRateStandard, "eBay Payments, eCheck", FigureUnit::Rate, FigureZero::NoRule},
    {Figure::BillpointCCRateDiscounted, "eBay Payments, credit card, discounted", FigureUnit::Rate, FigureZero::NoRule},
    {Figure::BillpointCCRateStandard, "eBay Payments, credit card", FigureUnit::Rate, FigureZero::NoRule},
    {Figure::BillpointMaxEcheckDiscounted, "eBay Payments, largest eCheck, discounted", FigureUnit::Bound, FigureZero::NoRule},
    {Figure::BillpointMaxEcheckStandard, "eBay Payments, largest eCheck", FigureUnit::Bound, FigureZero::NoRule},
    {Figure::BillpointMaxCCDiscounted, "eBay Payments, largest credit card payment, discounted", FigureUnit::Bound, FigureZero::NoRule},
    {Figure::BillpointMaxCCStandard, "eBay Payments, largest credit card payment", FigureUnit::Bound, FigureZero::NoRule},
    {Figure::DefaultConversionRate, "Exchange rate where none is entered", FigureUnit::ExchangeRate, FigureZero::NoRule},
    {Figure::PayPalFlatFee, "PayPal, flat fee", FigureUnit::Amount, FigureZero::NoRule},
    {Figure::PayPalMaxFeeNonCC, "PayPal, cap of an eCheck", FigureUnit::Bound, FigureZero::NoRule},
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

#include <gtest/gtest.h>

#include "amount_text.h"
#include "auction_site.h"
#include "fee_schedule.h"
#include "help_page.h"

/// \file
/// The prices of the help pages, each marked with its site and the name of a figure, are those of the
/// schedule.

namespace {

using Site = const CAuctionSite&;

constexpr bool kVehicle = true;
constexpr bool kMotorcycle = true;
constexpr bool kTimeshare = true;
constexpr bool kSeveral = true;
constexpr bool kMotors = true;
constexpr float kNoPrice = 0.0F;
constexpr float kSmallPrice = 1.0F;
constexpr float kLargePrice = 1e6F;

float perCent(float rate) { return storedAsSingle(static_cast<double>(rate) * 100.0); }

/// A figure that no member of the site answers by itself: as it stands in the schedule.
float cell(Figure figure, Site site) {
  const auto column = static_cast<std::size_t>(site.Site() - 1);
  return static_cast<float>(kFeeSchedule.at(static_cast<std::size_t>(figure)).sites.at(column).value);
}

// clang-format off
const std::map<std::string, float (*)(Site)> kFigures{
    {"ListingFeeFirstTierUpper",   [](Site s) { return s.ListingFeeFirstTierUpper(); }},
    {"ListingFeeSecondTierUpper",  [](Site s) { return s.ListingFeeSecondTierUpper(); }},
    {"ListingFeeThirdTierUpper",   [](Site s) { return s.ListingFeeThirdTierUpper(); }},
    {"ListingFeeFourthTierUpper",  [](Site s) { return s.ListingFeeFourthTierUpper(); }},
    {"ListingFeeFifthTierUpper",   [](Site s) { return s.ListingFeeFifthTierUpper(); }},
    {"ListingFeeSixthTierUpper",   [](Site s) { return s.ListingFeeSixthTierUpper(); }},
    {"ListingFeeFirstTier",        [](Site s) { return s.ListingFeeFirstTier(); }},
    {"ListingFeeSecondTier",       [](Site s) { return s.ListingFeeSecondTier(); }},
    {"ListingFeeThirdTier",        [](Site s) { return s.ListingFeeThirdTier(); }},
    {"ListingFeeFourthTier",       [](Site s) { return s.ListingFeeFourthTier(); }},
    {"ListingFeeFifthTier",        [](Site s) { return s.ListingFeeFifthTier(); }},
    {"ListingFeeSixthTier",        [](Site s) { return s.ListingFeeSixthTier(); }},
    {"ListingFeeSeventhTier",      [](Site s) { return s.ListingFeeSeventhTier(); }},
    {"ReserveSecondTierLower",     [](Site s) { return s.ReserveSecondTierLower(); }},
    {"ReserveThirdTierLower",      [](Site s) { return s.ReserveThirdTierLower(!kVehicle, false); }},
    {"ReserveFirst",               [](Site s) { return s.ReserveFirstTier(kSmallPrice, !kVehicle, false); }},
    {"ReserveSecond",              [](Site s) { return s.ReserveSecondTier(kSmallPrice, !kVehicle, false); }},
    {"ReserveMost",                [](Site s) { return s.ReserveThirdTier(kLargePrice, !kVehicle, false); }},
    {"VehicleReserveFirst",        [](Site s) { return s.ReserveFirstTier(kSmallPrice, kVehicle, false); }},
    {"FVFFirstTierUpper",          [](Site s) { return storedAsSingle(static_cast<double>(s.FVFSecondTierLower()) - 0.01); }},
    {"FVFThirdTierLower",          [](Site s) { return s.FVFThirdTierLower(); }},
    {"FVFFirstTier",               [](Site s) { return perCent(s.FVFFirstTier()); }},
    {"FVFSecondTier",              [](Site s) { return perCent(s.FVFSecondTier()); }},
    {"FVFThirdTier",               [](Site s) { return perCent(s.FVFThirdTier()); }},
    {"Subtitle",                   [](Site s) { return s.SubtitleFee(); }},
    {"ListingDesigner",            [](Site s) { return s.ListingDesignerFee(); }},
    {"Scheduled",                  [](Site s) { return s.ScheduledListingFee(!kVehicle); }},
    {"Slideshow",                  [](Site s) { return s.PhotosFee(false, 0, false, true, !kVehicle); }},
    {"Supersize",                  [](Site s) { return s.PhotosFee(false, 0, true, false, !kVehicle); }},
    {"ExtraPhoto",                 [](Site s) { return s.PhotosFee(true, 0, false, false, !kVehicle); }},
    {"PicturePack",                [](Site s) { return s.PhotosFee(true, 5, true, false, !kVehicle); }},
    {"BIN",                        [](Site s) { return s.BINFee(!kVehicle, !kMotorcycle); }},
    {"TenDay",                     [](Site s) { return s.TenDayAuctionFee(!kVehicle); }},
    {"FeaturedPlus",               [](Site s) { return s.FeaturedPlusFee(!kMotors, !kSeveral); }},
    {"FeaturedPlusSeveral",        [](Site s) { return s.FeaturedPlusFee(!kMotors, kSeveral); }},
    {"HomePage",                   [](Site s) { return s.HomePageFeaturedFee(1); }},
    {"HomePageSeveral",            [](Site s) { return s.HomePageFeaturedFee(2); }},
    {"Gallery",                    [](Site s) { return s.GalleryFee(!kVehicle, false, 0); }},
    {"GalleryFeatured",            [](Site s) { return s.GalleryFeaturedFee(!kMotors, !kVehicle); }},
    {"Highlight",                  [](Site s) { return s.HighlightFee(); }},
    {"Bold",                       [](Site s) { return s.BoldFee(!kVehicle, false); }},
    {"Gift",                       [](Site s) { return s.GiftIconFee(!kVehicle); }},
    {"VehicleListingMotorcycle",   [](Site s) { return s.VehicleInsertionFee(kMotorcycle); }},
    {"VehicleListing",             [](Site s) { return s.VehicleInsertionFee(!kMotorcycle); }},
    {"VehicleBold",                [](Site s) { return s.BoldFee(kVehicle, false); }},
    {"VehicleTenDay",              [](Site s) { return s.TenDayAuctionFee(kVehicle); }},
    {"VehicleBIN",                 [](Site s) { return s.BINFee(kVehicle, !kMotorcycle); }},
    {"VehicleScheduled",           [](Site s) { return s.ScheduledListingFee(kVehicle); }},
    {"VehicleGift",                [](Site s) { return s.GiftIconFee(kVehicle); }},
    {"VehicleGallery",             [](Site s) { return s.GalleryFee(kVehicle, false, 0); }},
    {"VehicleGalleryFeatured",     [](Site s) { return s.GalleryFeaturedFee(kMotors, kVehicle); }},
    {"MotorsGalleryFeatured",      [](Site s) { return s.GalleryFeaturedFee(kMotors, !kVehicle); }},
    {"VehicleSaleMotorcycle",      [](Site s) { return s.VehicleFVF(kMotorcycle, kSmallPrice); }},
    {"VehicleSale",                [](Site s) { return s.VehicleFVF(!kMotorcycle, kNoPrice); }},
    {"VehicleSaleHigh",            [](Site s) { return s.VehicleFVF(!kMotorcycle, kLargePrice); }},
    {"VehicleSaleShare",           [](Site s) { return perCent(cell(Figure::VehicleSaleShare, s)); }},
    {"VehicleSaleShareFrom",       [](Site s) { return cell(Figure::VehicleSaleShareFrom, s); }},
    {"VehicleSaleHighestFrom",     [](Site s) { return cell(Figure::VehicleSaleHighestFrom, s); }},
    {"ReserveSecondTierShare",     [](Site s) { return perCent(cell(Figure::ReserveSecondTierShare, s)); }},
    {"ReserveThirdTierShare",      [](Site s) { return perCent(cell(Figure::ReserveThirdTierShare, s)); }},
    {"PayPalFlatFee",              [](Site s) { return s.PayPalFlatFee(); }},
    {"PayPalMaxFeeNonCC",          [](Site s) { return s.PayPalMaxFeeNonCC(); }},
    {"EstateTimeshare0",           [](Site s) { return s.RealEstateInsertionFee(kTimeshare, 0); }},
    {"EstateTimeshare1",           [](Site s) { return s.RealEstateInsertionFee(kTimeshare, 1); }},
    {"EstateTimeshare2",           [](Site s) { return s.RealEstateInsertionFee(kTimeshare, 2); }},
    {"EstateTimeshare3",           [](Site s) { return s.RealEstateInsertionFee(kTimeshare, 3); }},
    {"EstateOther0",               [](Site s) { return s.RealEstateInsertionFee(!kTimeshare, 0); }},
    {"EstateOther1",               [](Site s) { return s.RealEstateInsertionFee(!kTimeshare, 1); }},
    {"EstateOther2",               [](Site s) { return s.RealEstateInsertionFee(!kTimeshare, 2); }},
    {"EstateOther3",               [](Site s) { return s.RealEstateInsertionFee(!kTimeshare, 3); }},
    {"Rate",                       [](Site s) { return s.DefaultConversionRate(); }},
};
// clang-format on

class HelpPrices : public testing::TestWithParam<HelpPage> {};

TEST_P(HelpPrices, AreThoseOfTheSchedule) {
  const Element page = parsePage(sourceOf(GetParam()));
  const NumberLocale locale{GetParam().decimal, "", ""};
  std::map<std::string, int> shown;
  for (const Element* cell : elementsWith(page, "data-figure")) {
    const std::string name = cell->attribute("data-figure");
    ASSERT_TRUE(kFigures.contains(name)) << name;
    const std::string siteNumber = cell->attribute("data-site");
    ASSERT_EQ(siteNumber.size(), 1U) << name;
    CAuctionSite site;
    site.Site(siteNumber.front() - '0');
    EXPECT_EQ(toSingle(cell->text, locale), kFigures.at(name)(site)) << name << " on site " << siteNumber;
    ++shown[name];
  }
  for (const auto& figure : kFigures) EXPECT_GE(shown[figure.first], 1) << figure.first << " is not shown";
}

INSTANTIATE_TEST_SUITE_P(Pages, HelpPrices, testing::ValuesIn(helpPages()),
                         [](const auto& page) { return std::string(page.param.language); });

}  // namespace

#include "fee_schedule.h"

// The whole fee schedule of the program: fixed figures, as built in, not the sites' prices of today. A new
// price is a changed cell here and a changed row in tests/fee_model/auction_site_test.cpp.

namespace {

constexpr FeeCell usd(double dollars) { return {dollars, true}; }

}  // namespace

// clang-format off
constexpr std::array<FeeRow, kFigureCount> kFeeSchedule{{
  //                                                     US ($)     UK (GBP)    Canada (C$)  Germany (EUR)
  // Listing fee by opening price. The UK and German ladders repeat a bound, so their sixth fee is never
  // reached; the German ladder starts higher.
  {Figure::ListingFeeFirstTierUpper,                {{    0.99,        0.99,        0.99,        1.99   }}},
  {Figure::ListingFeeSecondTierUpper,               {{    9.99,        4.99,       14.99,        9.99   }}},
  {Figure::ListingFeeThirdTierUpper,                {{   24.99,       14.99,       34.99,       24.99   }}},
  {Figure::ListingFeeFourthTierUpper,               {{   49.99,       29.99,       69.99,       99.99   }}},
  {Figure::ListingFeeFifthTierUpper,                {{  199.99,       99.99,      299.99,      249.99   }}},
  {Figure::ListingFeeSixthTierUpper,                {{  499.99,       99.99,      699.99,      249.99   }}},
  {Figure::ListingFeeFirstTier,                     {{    0.30,        0.15,        0.35,        0.25   }}},
  {Figure::ListingFeeSecondTier,                    {{    0.35,        0.20,        0.45,        0.45   }}},
  {Figure::ListingFeeThirdTier,                     {{    0.60,        0.35,        0.85,        0.80   }}},
  {Figure::ListingFeeFourthTier,                    {{    1.20,        0.75,        1.65,        1.60   }}},
  {Figure::ListingFeeFifthTier,                     {{    2.40,        1.50,        3.30,        3.20   }}},
  {Figure::ListingFeeSixthTier,                     {{    3.60,        2.00,        5.15,        4.80   }}},
  {Figure::ListingFeeSeventhTier,                   {{    4.80,        2.00,        6.75,        4.80   }}},

  // Listing fee of real estate. "Other" is dearer than timeshare in the two auction formats of the US only;
  // the UK asks one price, whatever the format says.
  {Figure::RealEstateTimeshareThreeToTenDayAuction, {{   35,          35,          70,           0      }}},
  {Figure::RealEstateTimeshareThirtyDayAuction,     {{   50,          35,          75,           0      }}},
  {Figure::RealEstateTimeshareThirtyDayAd,          {{  150,          35,          75,           0      }}},
  {Figure::RealEstateTimeshareNinetyDayAd,          {{  300,          35,         150,           0      }}},
  {Figure::RealEstateOtherThreeToTenDayAuction,     {{  100,          35,          70,           0      }}},
  {Figure::RealEstateOtherThirtyDayAuction,         {{  150,          35,          75,           0      }}},
  {Figure::RealEstateOtherThirtyDayAd,              {{  150,          35,          75,           0      }}},
  {Figure::RealEstateOtherNinetyDayAd,              {{  300,          35,         150,           0      }}},
  {Figure::RealEstateUnknownFormat,                 {{    0,          35,           0,           0      }}},

  // Vehicles: the fee for listing, and the fee for selling, which grows with the price on two sites.
  {Figure::VehicleInsertionMotorcycle,              {{   30,           6,          35,          10      }}},
  {Figure::VehicleInsertionOther,                   {{   40,           6,          35,          10      }}},
  {Figure::VehicleSaleMotorcycle,                   {{   25,           0,          22,          15      }}},
  {Figure::VehicleSaleLowest,                       {{   40,          15,          35,          50      }}},
  {Figure::VehicleSaleShare,                        {{    0,           0.005,       0,           0.005  }}},
  {Figure::VehicleSaleShareFrom,                    {{    0,        3000,           0,           0      }}},
  {Figure::VehicleSaleHighestFrom,                  {{    0,        6000,           0,       10000      }}},
  {Figure::VehicleSaleHighest,                      {{    0,          30,           0,         100      }}},

  // Reserve fee. Germany has none. The third tier is a share with a cap; ReserveFeeCap is printed in the
  // schedule and asked for by no calculation.
  {Figure::ReserveSecondTierLower,                  {{   50,          50,          70,           0      }}},
  {Figure::ReserveThirdTierLower,                   {{  200,        5000,         300,           0      }}},
  {Figure::ReserveFirstTierVehicle,                 {{    2.00,        3.00,        1.50,        0      }}},
  {Figure::ReserveFirstTierReduced,                 {{    1.00,        2.00,        1.50,        0      }}},
  {Figure::ReserveFirstTierOther,                   {{    1.00,        1.00,        1.50,        0      }}},
  {Figure::ReserveSecondTierVehicle,                {{    2.00,        3.00,        3.00,        0      }}},
  {Figure::ReserveSecondTierReduced,                {{    2.00,        2.00,        3.00,        0      }}},
  {Figure::ReserveSecondTierOther,                  {{    2.00,        0,           3.00,        0      }}},
  {Figure::ReserveSecondTierShare,                  {{    0,           0.02,        0,           0      }}},
  {Figure::ReserveThirdTierShare,                   {{    0.01,        0,           0.01,        0      }}},
  {Figure::ReserveThirdTierCap,                     {{  100,           0,         150,           0      }}},
  {Figure::ReserveFeeCap,                           {{  100,     1000000,         150,           0      }}},

  // Extra listing features. Listing Designer is charged on two sites only.
  {Figure::FeaturedPlusSingle,                      {{   19.95,        9.95,        5.00,       14.95   }}},
  {Figure::FeaturedPlusMultiple,                    {{   19.95,        9.95,        5.00,       17.95   }}},
  {Figure::HomePageFeaturedOne,                     {{   39.95,       49.95,       49.95,       79.95   }}},
  {Figure::HomePageFeaturedSeveral,                 {{   79.95,       49.95,       99.95,      179.95   }}},
  {Figure::Highlight,                               {{    5.00,        1.50,        2.00,        1.50   }}},
  {Figure::BoldVehicle,                             {{    4.00,        0.75,        1.00,        1.50   }}},
  {Figure::BoldOther,                               {{    1.00,        0.75,        1.00,        1.50   }}},
  {Figure::TenDayAuctionVehicle,                    {{    5.00,        0,           0.30,        0      }}},
  {Figure::TenDayAuctionOther,                      {{    0.20,        0,           0.30,        0      }}},
  {Figure::BuyItNowVehicle,                         {{    1.00,        0.06,        0.05,        0.10   }}},
  {Figure::BuyItNowOther,                           {{    0.05,        0.06,        0.05,        0.10   }}},
  {Figure::ExtraPhoto,                              {{    0.15,        0.10,        0.20,        0.15   }}},
  {Figure::PicturePack,                             {{    1.00,        1.00,        1.00,        1.00   }}},
  {Figure::Supersize,                               {{    0.75,        0.50,        1.00,        0.75   }}},
  {Figure::Slideshow,                               {{    0.75,        0.50,        1.00,        0.75   }}},
  {Figure::GiftIconVehicle,                         {{    2.00,        0,           0,           0      }}},
  {Figure::GiftIconOther,                           {{    0.25,        0,           0,           0      }}},
  {Figure::ScheduledVehicle,                        {{    1.00,        0.12,        0.15,        0.10   }}},
  {Figure::ScheduledOther,                          {{    0.10,        0.12,        0.15,        0.10   }}},
  {Figure::Subtitle,                                {{    0.50,        0.50,        0.75,        0.50   }}},
  {Figure::GalleryVehicle,                          {{    0,           0.15,        0.25,        0.75   }}},
  {Figure::GalleryOther,                            {{    0.25,        0.15,        0.25,        0.75   }}},
  {Figure::GalleryFeaturedWithoutMotors,            {{   19.95,       15.95,        5.00,       12.95   }}},
  {Figure::GalleryFeaturedMotorsVehicle,            {{   99.95,       15.95,        5.00,       12.95   }}},
  {Figure::GalleryFeaturedMotorsOther,              {{   24.95,       15.95,        5.00,       12.95   }}},
  {Figure::ListingDesigner,                         {{    0.10,        0,           0,           0.10   }}},

  // Final value fee: the second tier's bound is one cent above the round figure, the third's is round.
  // FVFVehicle is printed in the schedule and asked for by no calculation.
  {Figure::FVFSecondTierLower,                      {{   25.01,       30.01,       35.01,       50.01   }}},
  {Figure::FVFThirdTierLower,                       {{ 1000,         600,        1450,         500      }}},
  {Figure::FVFFirstTier,                            {{    0.0525,      0.0525,      0.0525,      0.05   }}},
  {Figure::FVFSecondTier,                           {{    0.0275,      0.0325,      0.0275,      0.04   }}},
  {Figure::FVFThirdTier,                            {{    0.015,       0.0175,      0.015,       0.02   }}},
  {Figure::FVFVehicleMotorcycle,                    {{   25,          18,          35,          15      }}},
  {Figure::FVFVehicleOther,                         {{   40,          18,          35,          50      }}},

  // Payment services. The UK eCheck rate of 25 % is what the schedule says.
  {Figure::BillpointThreshold,                      {{   15,          10,         usd(15),       0      }}},
  {Figure::BillpointFlatFee,                        {{    0.35,        0.25,      usd(0.35),     0      }}},
  {Figure::BillpointEcheckRateDiscounted,           {{    0.0125,      0.25,        0.0125,      0      }}},
  {Figure::BillpointEcheckRateStandard,             {{    0.02,        0.25,        0.02,        0      }}},
  {Figure::BillpointCCRateDiscounted,               {{    0.0225,      0.028,       0.0225,      0      }}},
  {Figure::BillpointCCRateStandard,                 {{    0.03,        0.038,       0.03,        0      }}},
  {Figure::BillpointMaxEcheckDiscounted,            {{  200,        1350,        usd(200),       0      }}},
  {Figure::BillpointMaxEcheckStandard,              {{  200,         350,        usd(200),       0      }}},
  {Figure::BillpointMaxCCDiscounted,                {{ 2000,        1350,       usd(2000),       0      }}},
  {Figure::BillpointMaxCCStandard,                  {{  500,         350,        usd(500),       0      }}},
  {Figure::DefaultConversionRate,                   {{    0,           0.5305,      1.317,       0.7854 }}},
  {Figure::PayPalFlatFee,                           {{    0.30,     usd(0.30),    usd(0.30),   usd(0.30)}}},
  {Figure::PayPalMaxFeeNonCC,                       {{    5.00,     usd(5.00),    usd(5.00),   usd(5.00)}}},
}};
// clang-format on

namespace {

constexpr bool rowsStandInTheOrderOfTheFigures() {
  for (std::size_t row = 0; row < kFigureCount; ++row) {
    if (kFeeSchedule[row].figure != static_cast<Figure>(row)) return false;
  }
  return true;
}

static_assert(rowsStandInTheOrderOfTheFigures(),
              "a figure is looked up by its place: keep the rows in order");

}  // namespace

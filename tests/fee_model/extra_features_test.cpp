#include <gtest/gtest.h>

#include <array>

#include "regular_auction.h"
#include "test_locales.h"

/// \file
/// The extra features of one item: each option alone on every site, and every pair of them.

namespace {

using F = ListingFeatures&;

std::string extras(std::int32_t siteNumber, const ListingFeatures& chosen) {
  CAuctionSite site;
  site.Site(siteNumber);
  CRegularAuction calculator(enUS());
  calculator.Site(site);
  return calculator.ExtraFeaturesFee(chosen);
}

/// 1995 is "19.95".
std::string dollars(int cents) {
  const auto digit = [](int value) { return static_cast<char>('0' + value % 10); };
  std::string text;
  for (int whole = cents / 100; whole > 0; whole /= 10) text.insert(text.begin(), digit(whole));
  return (text.empty() ? "0" : text) + '.' + digit(cents / 10) + digit(cents);
}

struct OptionRow {
  const char* rule;
  void (*choose)(F);
  std::array<const char*, 4> fee;  ///< US, UK, Canada, Germany
  std::array<const char*, 4> feeInTwoCategories;
};

// clang-format off
const OptionRow kOptions[] = {
  //                                                                                        one category                               two categories
  {"nothing chosen",                           [](F) {},                                    {"0.00",  "0.00",  "0.00",  "0.00"},     {"0.00",  "0.00",  "0.00",  "0.00"}},
  {"featured plus",                            [](F f) { f.IsFeaturedPlus = true; },        {"19.95", "9.95",  "5.00",  "14.95"},    {"39.90", "19.90", "10.00", "29.90"}},
  {"home page is not doubled",                 [](F f) { f.IsHomePageFeatured = true; },    {"39.95", "49.95", "49.95", "79.95"},    {"39.95", "49.95", "49.95", "79.95"}},
  {"gallery",                                  [](F f) { f.IsGallery = true; },             {"0.25",  "0.15",  "0.25",  "0.75"},     {"0.50",  "0.30",  "0.50",  "1.50"}},
  {"gallery featured",                         [](F f) { f.IsGalleryFeatured = true; },     {"19.95", "15.95", "5.00",  "12.95"},    {"39.90", "31.90", "10.00", "25.90"}},
  {"motors alone cost nothing",                [](F f) { f.IsMotors = true; },              {"0.00",  "0.00",  "0.00",  "0.00"},     {"0.00",  "0.00",  "0.00",  "0.00"}},
  {"a vehicle alone costs nothing",            [](F f) { f.IsVehicle = true; },             {"0.00",  "0.00",  "0.00",  "0.00"},     {"0.00",  "0.00",  "0.00",  "0.00"}},
  {"a motorcycle alone costs nothing",         [](F f) { f.IsMotorcycle = true; },          {"0.00",  "0.00",  "0.00",  "0.00"},     {"0.00",  "0.00",  "0.00",  "0.00"}},
  {"a real estate type costs nothing",         [](F f) { f.IsRealEstateType = true; },      {"0.00",  "0.00",  "0.00",  "0.00"},     {"0.00",  "0.00",  "0.00",  "0.00"}},
  {"highlight",                                [](F f) { f.IsHighlight = true; },           {"5.00",  "1.50",  "2.00",  "1.50"},     {"10.00", "3.00",  "4.00",  "3.00"}},
  {"gift icon",                                [](F f) { f.IsGiftIcon = true; },            {"0.25",  "0.00",  "0.00",  "0.00"},     {"0.50",  "0.00",  "0.00",  "0.00"}},
  {"Buy It Now",                               [](F f) { f.IsBIN = true; },                 {"0.05",  "0.06",  "0.05",  "0.10"},     {"0.10",  "0.12",  "0.10",  "0.20"}},
  {"ten-day auction",                          [](F f) { f.IsTenDayAuction = true; },       {"0.20",  "0.00",  "0.30",  "0.00"},     {"0.40",  "0.00",  "0.60",  "0.00"}},
  {"bold",                                     [](F f) { f.IsBold = true; },                {"1.00",  "0.75",  "1.00",  "1.50"},     {"2.00",  "1.50",  "2.00",  "3.00"}},
  {"the first photo choice is one photo",      [](F f) { f.HasExtraPhotos = true; },        {"0.15",  "0.10",  "0.20",  "0.15"},     {"0.30",  "0.20",  "0.40",  "0.30"}},
  {"a photo choice alone costs nothing",       [](F f) { f.PhotoChoice = 4; },              {"0.00",  "0.00",  "0.00",  "0.00"},     {"0.00",  "0.00",  "0.00",  "0.00"}},
  {"supersize",                                [](F f) { f.IsSupersize = true; },           {"0.75",  "0.50",  "1.00",  "0.75"},     {"1.50",  "1.00",  "2.00",  "1.50"}},
  {"slide show",                               [](F f) { f.IsSlideshow = true; },           {"0.75",  "0.50",  "1.00",  "0.75"},     {"1.50",  "1.00",  "2.00",  "1.50"}},
  {"scheduled listing is not doubled",         [](F f) { f.IsScheduled = true; },           {"0.10",  "0.12",  "0.15",  "0.10"},     {"0.10",  "0.12",  "0.15",  "0.10"}},
  {"Listing Designer",                         [](F f) { f.IsListingDesigner = true; },     {"0.10",  "0.00",  "0.00",  "0.10"},     {"0.20",  "0.00",  "0.00",  "0.20"}},
  {"subtitle",                                 [](F f) { f.IsSubtitle = true; },            {"0.50",  "0.50",  "0.75",  "0.50"},     {"1.00",  "1.00",  "1.50",  "1.00"}},

  {"two photos",                [](F f) { f.HasExtraPhotos = true; f.PhotoChoice = 1; },    {"0.30",  "0.20",  "0.40",  "0.30"},     {"0.60",  "0.40",  "0.80",  "0.60"}},
  {"three photos",              [](F f) { f.HasExtraPhotos = true; f.PhotoChoice = 2; },    {"0.45",  "0.30",  "0.60",  "0.45"},     {"0.90",  "0.60",  "1.20",  "0.90"}},
  {"four photos",               [](F f) { f.HasExtraPhotos = true; f.PhotoChoice = 3; },    {"0.60",  "0.40",  "0.80",  "0.60"},     {"1.20",  "0.80",  "1.60",  "1.20"}},
  {"five photos",               [](F f) { f.HasExtraPhotos = true; f.PhotoChoice = 4; },    {"0.75",  "0.50",  "1.00",  "0.75"},     {"1.50",  "1.00",  "2.00",  "1.50"}},
  {"picture pack",              [](F f) { f.HasExtraPhotos = true; f.PhotoChoice = 5; },    {"1.00",  "1.00",  "1.00",  "1.00"},     {"2.00",  "2.00",  "2.00",  "2.00"}},
  {"no choice in the list",     [](F f) { f.HasExtraPhotos = true; f.PhotoChoice = -1; },   {"0.00",  "0.00",  "0.00",  "0.00"},     {"0.00",  "0.00",  "0.00",  "0.00"}},
  {"pack and slide show",       [](F f) { f.HasExtraPhotos = f.IsSlideshow = true; f.PhotoChoice = 5; },
                                                                                            {"1.75",  "1.50",  "2.00",  "1.75"},     {"3.50",  "3.00",  "4.00",  "3.50"}},
  {"gallery featured includes the gallery", [](F f) { f.IsGallery = f.IsGalleryFeatured = true; },
                                                                                            {"19.95", "15.95", "5.00",  "12.95"},    {"39.90", "31.90", "10.00", "25.90"}},

  {"gallery of a vehicle",           [](F f) { f.IsVehicle = f.IsGallery = true; },         {"0.00",  "0.15",  "0.25",  "0.75"},     {"0.00",  "0.30",  "0.50",  "1.50"}},
  {"gallery featured, motors",       [](F f) { f.IsMotors = f.IsGalleryFeatured = true; },  {"24.95", "15.95", "5.00",  "12.95"},    {"49.90", "31.90", "10.00", "25.90"}},
  {"gallery featured, vehicle, no motors", [](F f) { f.IsVehicle = f.IsGalleryFeatured = true; },
                                                                                            {"19.95", "15.95", "5.00",  "12.95"},    {"39.90", "31.90", "10.00", "25.90"}},
  {"gallery featured, motors and vehicle", [](F f) { f.IsMotors = f.IsVehicle = f.IsGalleryFeatured = true; },
                                                                                            {"99.95", "15.95", "5.00",  "12.95"},    {"199.90", "31.90", "10.00", "25.90"}},
  {"featured plus, motors",          [](F f) { f.IsMotors = f.IsFeaturedPlus = true; },     {"19.95", "9.95",  "5.00",  "14.95"},    {"39.90", "19.90", "10.00", "29.90"}},
  {"bold of a vehicle",              [](F f) { f.IsVehicle = f.IsBold = true; },            {"4.00",  "0.75",  "1.00",  "1.50"},     {"8.00",  "1.50",  "2.00",  "3.00"}},
  {"bold of real estate",            [](F f) { f.IsRealEstateType = f.IsBold = true; },     {"1.00",  "0.75",  "1.00",  "1.50"},     {"2.00",  "1.50",  "2.00",  "3.00"}},
  {"gift icon of a vehicle",         [](F f) { f.IsVehicle = f.IsGiftIcon = true; },        {"2.00",  "0.00",  "0.00",  "0.00"},     {"4.00",  "0.00",  "0.00",  "0.00"}},
  {"ten-day auction of a vehicle",   [](F f) { f.IsVehicle = f.IsTenDayAuction = true; },   {"5.00",  "0.00",  "0.30",  "0.00"},     {"10.00", "0.00",  "0.60",  "0.00"}},
  {"Buy It Now of a vehicle",        [](F f) { f.IsVehicle = f.IsBIN = true; },             {"1.00",  "0.06",  "0.05",  "0.10"},     {"2.00",  "0.12",  "0.10",  "0.20"}},
  {"Buy It Now, motorcycle option",  [](F f) { f.IsMotorcycle = f.IsBIN = true; },          {"0.05",  "0.06",  "0.05",  "0.10"},     {"0.10",  "0.12",  "0.10",  "0.20"}},
  {"scheduled vehicle",              [](F f) { f.IsVehicle = f.IsScheduled = true; },       {"1.00",  "0.12",  "0.15",  "0.10"},     {"1.00",  "0.12",  "0.15",  "0.10"}},
};

/// What can be charged, with the price of one category in the US in cents, typed from the schedule.
struct PricedOption {
  const char* name;
  void (*choose)(F);
  int cents;
  bool isDoubled;
  bool isPhotoChoice = false;  ///< the list of photos has one choice at a time
};

const PricedOption kPriced[] = {
  {"featured plus",    [](F f) { f.IsFeaturedPlus = true; },                         1995, true},
  {"home page",        [](F f) { f.IsHomePageFeatured = true; },                     3995, false},
  {"gallery",          [](F f) { f.IsGallery = true; },                                25, true},
  {"gallery featured", [](F f) { f.IsGalleryFeatured = true; },                      1995, true},
  {"highlight",        [](F f) { f.IsHighlight = true; },                             500, true},
  {"gift icon",        [](F f) { f.IsGiftIcon = true; },                               25, true},
  {"Buy It Now",       [](F f) { f.IsBIN = true; },                                     5, true},
  {"ten-day auction",  [](F f) { f.IsTenDayAuction = true; },                          20, true},
  {"bold",             [](F f) { f.IsBold = true; },                                  100, true},
  {"two photos",       [](F f) { f.HasExtraPhotos = true; f.PhotoChoice = 1; },        30, true, true},
  {"picture pack",     [](F f) { f.HasExtraPhotos = true; f.PhotoChoice = 5; },       100, true, true},
  {"supersize",        [](F f) { f.IsSupersize = true; },                              75, true},
  {"slide show",       [](F f) { f.IsSlideshow = true; },                              75, true},
  {"scheduled",        [](F f) { f.IsScheduled = true; },                              10, false},
  {"Listing Designer", [](F f) { f.IsListingDesigner = true; },                        10, true},
  {"subtitle",         [](F f) { f.IsSubtitle = true; },                               50, true},
};

/// Pairs that cost less than their parts, with the price in two categories.
struct IncludedOption {
  const char* first;
  const char* second;
  int cents;
};

const IncludedOption kIncluded[] = {
  {"gallery",      "gallery featured", 3990},
  {"gallery",      "picture pack",      200},
  {"picture pack", "supersize",         200},
};
// clang-format on

int pairPriceInTwoCategories(const PricedOption& first, const PricedOption& second) {
  for (const IncludedOption& included : kIncluded) {
    if (std::string_view(included.first) == first.name && std::string_view(included.second) == second.name)
      return included.cents;
  }
  return first.cents * (first.isDoubled ? 2 : 1) + second.cents * (second.isDoubled ? 2 : 1);
}

TEST(ExtraFeatures, EachOptionAloneOnEverySite) {
  for (const OptionRow& row : kOptions) {
    SCOPED_TRACE(row.rule);
    ListingFeatures chosen;
    row.choose(chosen);
    for (std::size_t i = 0; i < row.fee.size(); ++i) {
      const auto site = static_cast<std::int32_t>(i + 1);
      chosen.IsTwoCategories = false;
      EXPECT_EQ(extras(site, chosen), row.fee[i]) << "site " << site;
      chosen.IsTwoCategories = true;
      EXPECT_EQ(extras(site, chosen), row.feeInTwoCategories[i]) << "site " << site << ", two categories";
    }
  }
}

TEST(ExtraFeatures, EveryPairOfOptionsInTwoCategories) {
  int pairs = 0;
  for (const PricedOption& first : kPriced) {
    for (const PricedOption& second : kPriced) {
      if (&second <= &first || (first.isPhotoChoice && second.isPhotoChoice)) continue;
      SCOPED_TRACE(std::string(first.name) + " and " + second.name);
      ListingFeatures chosen{.IsTwoCategories = true};
      first.choose(chosen);
      second.choose(chosen);
      EXPECT_EQ(extras(1, chosen), dollars(pairPriceInTwoCategories(first, second)));
      ++pairs;
    }
  }
  EXPECT_EQ(pairs, 119);  // sixteen options make 120 pairs; the two photo choices exclude each other
}

ListingFeatures everything() {
  return {.IsFeaturedPlus = true,
          .IsHomePageFeatured = true,
          .IsGallery = true,
          .IsGalleryFeatured = true,
          .IsHighlight = true,
          .IsGiftIcon = true,
          .IsBIN = true,
          .IsTenDayAuction = true,
          .IsBold = true,
          .HasExtraPhotos = true,
          .PhotoChoice = 5,
          .IsSupersize = true,
          .IsSlideshow = true,
          .IsScheduled = true,
          .IsListingDesigner = true,
          .IsSubtitle = true};
}

TEST(ExtraFeatures, AllOptionsTogether) {
  ListingFeatures chosen = everything();
  // 19.95 + 39.95 + 19.95 + 1 + 5 + 0.25 + 0.20 + 0.05 + 0.10 + 0.10 + 0.50 + 1.75
  EXPECT_EQ(extras(1, chosen), "88.80");
  // 9.95 + 49.95 + 15.95 + 0.75 + 1.50 + 0.06 + 0.12 + 0.50 + 1.50
  EXPECT_EQ(extras(2, chosen), "80.28");
  // 5 + 49.95 + 5 + 1 + 2 + 0.30 + 0.05 + 0.15 + 0.75 + 2
  EXPECT_EQ(extras(3, chosen), "66.20");
  // 14.95 + 79.95 + 12.95 + 1.50 + 1.50 + 0.10 + 0.10 + 0.10 + 0.50 + 1.75
  EXPECT_EQ(extras(4, chosen), "113.40");
  chosen.IsTwoCategories = true;
  // All but home page and scheduled listing, 48.75, once more.
  EXPECT_EQ(extras(1, chosen), "137.55");
}

TEST(ExtraFeatures, AllOptionsOfAMotorVehicleInTwoCategories) {
  ListingFeatures chosen = everything();
  chosen.IsTwoCategories = chosen.IsMotors = chosen.IsVehicle = chosen.IsMotorcycle = true;
  // 2 x (19.95 + 99.95 + 4 + 5 + 2 + 5 + 1 + 0.10 + 0.50 + 1.75) + 39.95 + 1
  EXPECT_EQ(extras(1, chosen), "319.45");
}

TEST(ExtraFeatures, OnAnUnknownSiteCostNothing) {
  EXPECT_EQ(extras(0, everything()), "0.00");
  EXPECT_EQ(extras(5, everything()), "0.00");
}

}  // namespace

#include <gtest/gtest.h>

#include <array>

#include "amount_text.h"
#include "multiple_items_tab.h"
#include "test_locales.h"

/// \file
/// The extra features of several items: each of the twelve terms alone on every site, and all together.

namespace {

using C = MultipleItemsChoices&;

constexpr std::array<const char*, 4> kSiteNames{"US", "UK", "Canada", "Germany"};

std::string extras(std::int32_t siteNumber, const MultipleItemsChoices& choices, int itemsOffered) {
  CAuctionSite site;
  site.Site(siteNumber);
  return twoDecimals(dutchExtraFeatures(choices, site, itemsOffered), enUS());
}

struct FeatureRow {
  const char* rule;
  int itemsOffered;
  void (*choose)(C);
  std::array<const char*, 4> fee;  ///< US, UK, Canada, Germany
  std::array<const char*, 4> feeInTwoCategories;
};

// clang-format off
const FeatureRow kFeatures[] = {
  //                                                                                                          one category                              two categories
  {"nothing chosen",                           3, [](C) {},                                                   {"0.00",  "0.00",  "0.00",  "0.00"},      {"0.00",  "0.00",  "0.00",  "0.00"}},
  {"featured plus, dearer on Germany",         1, [](C c) { c.chkDutchFeaturedPlus = true; },                 {"19.95", "9.95",  "5.00",  "17.95"},     {"39.90", "19.90", "10.00", "35.90"}},
  {"motors do not change featured plus",       3, [](C c) { c.chkDutchFeaturedPlus = c.chkEBayMotorsDutch = true; },
                                                                                                              {"19.95", "9.95",  "5.00",  "17.95"},     {"39.90", "19.90", "10.00", "35.90"}},
  {"home page is not doubled",                 1, [](C c) { c.chkDutchHomePageFeatured = true; },             {"39.95", "49.95", "49.95", "79.95"},     {"39.95", "49.95", "49.95", "79.95"}},
  {"home page steps up at two, not in the UK", 2, [](C c) { c.chkDutchHomePageFeatured = true; },             {"79.95", "49.95", "99.95", "179.95"},    {"79.95", "49.95", "99.95", "179.95"}},
  {"home page of very many",               32767, [](C c) { c.chkDutchHomePageFeatured = true; },             {"79.95", "49.95", "99.95", "179.95"},    {"79.95", "49.95", "99.95", "179.95"}},
  {"home page of none",                        0, [](C c) { c.chkDutchHomePageFeatured = true; },             {"39.95", "49.95", "49.95", "79.95"},     {"39.95", "49.95", "49.95", "79.95"}},
  {"gallery",                                  3, [](C c) { c.chkDutchGallery = true; },                      {"0.25",  "0.15",  "0.25",  "0.75"},      {"0.50",  "0.30",  "0.50",  "1.50"}},
  {"gallery featured",                         3, [](C c) { c.chkDutchGalleryFeatured = true; },              {"19.95", "15.95", "5.00",  "12.95"},     {"39.90", "31.90", "10.00", "25.90"}},
  {"gallery and gallery featured are both charged", 3, [](C c) { c.chkDutchGallery = c.chkDutchGalleryFeatured = true; },
                                                                                                              {"20.20", "16.10", "5.25",  "13.70"},     {"40.40", "32.20", "10.50", "27.40"}},
  {"gallery featured, motors",                 3, [](C c) { c.chkDutchGalleryFeatured = c.chkEBayMotorsDutch = true; },
                                                                                                              {"24.95", "15.95", "5.00",  "12.95"},     {"49.90", "31.90", "10.00", "25.90"}},
  {"bold",                                     3, [](C c) { c.chkDutchBold = true; },                         {"1.00",  "0.75",  "1.00",  "1.50"},      {"2.00",  "1.50",  "2.00",  "3.00"}},
  {"highlight",                                3, [](C c) { c.chkDutchHighlight = true; },                    {"5.00",  "1.50",  "2.00",  "1.50"},      {"10.00", "3.00",  "4.00",  "3.00"}},
  {"gift icon",                                3, [](C c) { c.chkDutchGreatGift = true; },                    {"0.25",  "0.00",  "0.00",  "0.00"},      {"0.50",  "0.00",  "0.00",  "0.00"}},
  {"ten-day auction",                          3, [](C c) { c.chkDutchTenDayAuction = true; },                {"0.20",  "0.00",  "0.30",  "0.00"},      {"0.40",  "0.00",  "0.60",  "0.00"}},
  {"scheduled listing is not doubled",         3, [](C c) { c.chkDutchScheduled = true; },                    {"0.10",  "0.12",  "0.15",  "0.10"},      {"0.10",  "0.12",  "0.15",  "0.10"}},
  {"subtitle",                                 3, [](C c) { c.chkDutchSubtitle = true; },                     {"0.50",  "0.50",  "0.75",  "0.50"},      {"1.00",  "1.00",  "1.50",  "1.00"}},
  {"Listing Designer",                         3, [](C c) { c.chkDutchListingDesigner = true; },              {"0.10",  "0.00",  "0.00",  "0.10"},      {"0.20",  "0.00",  "0.00",  "0.20"}},
  {"motors alone cost nothing",                3, [](C c) { c.chkEBayMotorsDutch = true; },                   {"0.00",  "0.00",  "0.00",  "0.00"},      {"0.00",  "0.00",  "0.00",  "0.00"}},
  {"motors do not bring the prices of vehicles", 3, [](C c) { c.chkEBayMotorsDutch = c.chkDutchBold = c.chkDutchGreatGift = c.chkDutchTenDayAuction = c.chkDutchScheduled = c.chkDutchGallery = true; },
                                                                                                              {"1.80",  "1.02",  "1.70",  "2.35"},      {"3.50",  "1.92",  "3.25",  "4.60"}},

  {"one photo is not doubled",                 3, [](C c) { c.chkExtraPicturesDutch = true; },                {"0.15",  "0.10",  "0.20",  "0.15"},      {"0.15",  "0.10",  "0.20",  "0.15"}},
  {"two photos",                               3, [](C c) { c.chkExtraPicturesDutch = true; c.cboExtraPicturesDutch = 1; },
                                                                                                              {"0.30",  "0.20",  "0.40",  "0.30"},      {"0.30",  "0.20",  "0.40",  "0.30"}},
  {"five photos",                              3, [](C c) { c.chkExtraPicturesDutch = true; c.cboExtraPicturesDutch = 4; },
                                                                                                              {"0.75",  "0.50",  "1.00",  "0.75"},      {"0.75",  "0.50",  "1.00",  "0.75"}},
  {"no choice in the photo list is no photo",  3, [](C c) { c.chkExtraPicturesDutch = true; c.cboExtraPicturesDutch = -1; },
                                                                                                              {"0.00",  "0.00",  "0.00",  "0.00"},      {"0.00",  "0.00",  "0.00",  "0.00"}},
  {"a photo choice alone costs nothing",       3, [](C c) { c.cboExtraPicturesDutch = 4; },                   {"0.00",  "0.00",  "0.00",  "0.00"},      {"0.00",  "0.00",  "0.00",  "0.00"}},
  {"supersize is not doubled",                 3, [](C c) { c.chkSupersizeDutch = true; },                    {"0.75",  "0.50",  "1.00",  "0.75"},      {"0.75",  "0.50",  "1.00",  "0.75"}},
  {"slide show is not doubled",                3, [](C c) { c.chkSlideshowDutch = true; },                    {"0.75",  "0.50",  "1.00",  "0.75"},      {"0.75",  "0.50",  "1.00",  "0.75"}},
  {"the picture pack is not doubled",          3, [](C c) { c.chkExtraPicturesDutch = true; c.cboExtraPicturesDutch = 5; },
                                                                                                              {"1.00",  "1.00",  "1.00",  "1.00"},      {"1.00",  "1.00",  "1.00",  "1.00"}},
  {"the picture pack includes supersizing, not the slide show", 3, [](C c) { c.chkExtraPicturesDutch = c.chkSupersizeDutch = c.chkSlideshowDutch = true; c.cboExtraPicturesDutch = 5; },
                                                                                                              {"1.75",  "1.50",  "2.00",  "1.75"},      {"1.75",  "1.50",  "2.00",  "1.75"}},
  {"the picture pack includes the gallery",    3, [](C c) { c.chkExtraPicturesDutch = c.chkDutchGallery = true; c.cboExtraPicturesDutch = 5; },
                                                                                                              {"1.00",  "1.00",  "1.00",  "1.00"},      {"1.00",  "1.00",  "1.00",  "1.00"}},
  {"a pack that is not taken includes no gallery", 3, [](C c) { c.chkDutchGallery = true; c.cboExtraPicturesDutch = 5; },
                                                                                                              {"0.25",  "0.15",  "0.25",  "0.75"},      {"0.50",  "0.30",  "0.50",  "1.50"}},
};

struct PricedOption {
  const char* name;
  void (*choose)(C);
  int centsInTwoCategories;  ///< US, two items offered
};

const PricedOption kPriced[] = {
  {"featured plus",    [](C c) { c.chkDutchFeaturedPlus = true; },     3990},
  {"home page",        [](C c) { c.chkDutchHomePageFeatured = true; }, 7995},
  {"gallery",          [](C c) { c.chkDutchGallery = true; },            50},
  {"gallery featured", [](C c) { c.chkDutchGalleryFeatured = true; },  3990},
  {"bold",             [](C c) { c.chkDutchBold = true; },              200},
  {"highlight",        [](C c) { c.chkDutchHighlight = true; },        1000},
  {"gift icon",        [](C c) { c.chkDutchGreatGift = true; },          50},
  {"ten-day auction",  [](C c) { c.chkDutchTenDayAuction = true; },      40},
  {"scheduled",        [](C c) { c.chkDutchScheduled = true; },          10},
  {"subtitle",         [](C c) { c.chkDutchSubtitle = true; },          100},
  {"Listing Designer", [](C c) { c.chkDutchListingDesigner = true; },    20},
  {"one photo",        [](C c) { c.chkExtraPicturesDutch = true; },      15},
  {"supersize",        [](C c) { c.chkSupersizeDutch = true; },          75},
  {"slide show",       [](C c) { c.chkSlideshowDutch = true; },          75},
};
// clang-format on

TEST(DutchExtraFeatures, EachTermAloneOnEverySite) {
  for (const FeatureRow& row : kFeatures) {
    SCOPED_TRACE(row.rule);
    MultipleItemsChoices choices;
    row.choose(choices);
    for (std::size_t i = 0; i < row.fee.size(); ++i) {
      SCOPED_TRACE(kSiteNames[i]);
      const auto site = static_cast<std::int32_t>(i + 1);
      choices.chkDutchTwoCategories = false;
      EXPECT_EQ(extras(site, choices, row.itemsOffered), row.fee[i]);
      choices.chkDutchTwoCategories = true;
      EXPECT_EQ(extras(site, choices, row.itemsOffered), row.feeInTwoCategories[i]) << "two categories";
    }
  }
}

TEST(DutchExtraFeatures, EveryPairOfTermsInTwoCategories) {
  for (const PricedOption& first : kPriced) {
    for (const PricedOption& second : kPriced) {
      if (&second <= &first) continue;
      SCOPED_TRACE(std::string(first.name) + " and " + second.name);
      MultipleItemsChoices choices;
      choices.chkDutchTwoCategories = true;
      first.choose(choices);
      second.choose(choices);
      const int cents = first.centsInTwoCategories + second.centsInTwoCategories;
      EXPECT_EQ(toCurrency(extras(1, choices, 2), enUS()).tenThousandths(), 100 * cents);
    }
  }
}

MultipleItemsChoices everything() {
  MultipleItemsChoices choices;
  for (const PricedOption& option : kPriced) option.choose(choices);
  choices.cboExtraPicturesDutch = 4;
  return choices;
}

TEST(DutchExtraFeatures, AllTermsTogether) {
  MultipleItemsChoices choices = everything();
  // 19.95 + 79.95 + 0.25 + 19.95 + 1 + 5 + 0.25 + 0.20 + 0.10 + 0.50 + 0.10 + 2.25
  EXPECT_EQ(extras(1, choices, 2), "129.50");
  // 9.95 + 49.95 + 0.15 + 15.95 + 0.75 + 1.50 + 0.12 + 0.50 + 1.50
  EXPECT_EQ(extras(2, choices, 2), "80.37");
  // 5 + 99.95 + 0.25 + 5 + 1 + 2 + 0.30 + 0.15 + 0.75 + 3
  EXPECT_EQ(extras(3, choices, 2), "117.40");
  // 17.95 + 179.95 + 0.75 + 12.95 + 1.50 + 1.50 + 0.10 + 0.50 + 0.10 + 2.25
  EXPECT_EQ(extras(4, choices, 2), "217.55");
}

TEST(DutchExtraFeatures, AllTermsTogetherInTwoCategories) {
  MultipleItemsChoices choices = everything();
  choices.chkDutchTwoCategories = true;
  // All but home page, scheduled listing and photos once more: 47.20, 28.80, 14.30 and 35.25.
  EXPECT_EQ(extras(1, choices, 2), "176.70");
  EXPECT_EQ(extras(2, choices, 2), "109.17");
  EXPECT_EQ(extras(3, choices, 2), "131.70");
  EXPECT_EQ(extras(4, choices, 2), "252.80");
}

// Singles of 0.10, 0.50 and 0.10: only in this order their sum is the next single above that of 0.70.
TEST(DutchExtraFeatures, TheSubtitleIsAddedBeforeListingDesigner) {
  CAuctionSite site;
  site.Site(CAuctionSite::eBayUS);
  MultipleItemsChoices choices;
  choices.chkDutchScheduled = choices.chkDutchSubtitle = choices.chkDutchListingDesigner = true;
  EXPECT_EQ(dutchExtraFeatures(choices, site, 1), 0x1.666668p-1F);
}

TEST(DutchExtraFeatures, OnAnUnknownSiteCostNothing) {
  EXPECT_EQ(extras(0, everything(), 2), "0.00");
  EXPECT_EQ(extras(5, everything(), 2), "0.00");
}

}  // namespace

#include <gtest/gtest.h>

#include "multiple_items_tab.h"
#include "regular_auction.h"
#include "single_item_tab.h"

/// \file
/// What the fee model says about how a fee came about.

namespace {

struct ReserveRow {
  const char* rule;
  std::int32_t site;
  float reserve;
  bool isVehicle;
  int tier;
  ReserveRule made;
  double share;
};

// clang-format off
const ReserveRow kReserves[] = {
  {"the first tier is flat",                1, 40.0F,    false, 1, ReserveRule::Flat,   0.0},
  {"the US second tier too",                1, 150.0F,   false, 2, ReserveRule::Flat,   0.0},
  {"the UK second tier is a share",         2, 100.0F,   false, 2, ReserveRule::Share,  0.02},
  {"but flat for its vehicles",             2, 100.0F,   true,  2, ReserveRule::Flat,   0.0},
  {"the US third tier is a share",          1, 5000.0F,  false, 3, ReserveRule::Share,  0.01},
  {"one that makes the cap is not capped",  1, 10000.0F, false, 3, ReserveRule::Share,  0.01},
  {"above it the cap counts",               1, 10001.0F, false, 3, ReserveRule::Capped, 0.01},
  {"Canada has a cap of its own",           3, 15001.0F, false, 3, ReserveRule::Capped, 0.01},
  {"US vehicles are free there",            1, 300.0F,   true,  3, ReserveRule::Flat,   0.0},
  {"so is all of the UK",                   2, 6000.0F,  false, 3, ReserveRule::Flat,   0.0},
  {"Germany has no reserve",                4, 100.0F,   false, 3, ReserveRule::Flat,   0.0},
};
// clang-format on

TEST(ReserveStep, SaysHowItsFeeIsMade) {
  for (const ReserveRow& row : kReserves) {
    CAuctionSite site;
    site.Site(row.site);
    const ReserveStep step = reserveStep(site, row.reserve, row.isVehicle, false);
    EXPECT_EQ(step.tier, row.tier) << row.rule;
    EXPECT_EQ(step.rule, row.made) << row.rule;
    EXPECT_EQ(step.share, row.share) << row.rule;
  }
}

struct CauseRow {
  const char* rule;
  SingleItemChoices choices;
  ExtraFeature feature;
  FeeCause cause;
  float fee;
  bool isDoubled;
};

// clang-format off
const CauseRow kCauses[] = {
  {"one fee for all",                      {.chkHighlighted = true},                                   ExtraFeature::Highlight, FeeCause::None, 5.00F, false},
  {"two categories double it",             {.chkTwoCategories = true, .chkHighlighted = true},         ExtraFeature::Highlight, FeeCause::None, 5.00F, true},
  {"but not the home page",                {.chkTwoCategories = true, .chkFeatured = true},            ExtraFeature::HomePageFeatured, FeeCause::None, 39.95F, false},
  {"bold of a vehicle",                    {.chkMotors = true, .chkVehicle = true, .chkBold = true},   ExtraFeature::Bold, FeeCause::Vehicle, 4.00F, false},
  {"bold on eBay Motors is as anywhere",   {.chkMotors = true, .chkBold = true},                       ExtraFeature::Bold, FeeCause::None, 1.00F, false},
  {"the subtitle does not ask for it",     {.chkVehicle = true, .chkSubTitleSingleItem = true},        ExtraFeature::Subtitle, FeeCause::None, 0.50F, false},
  {"gallery featured on eBay Motors",      {.chkMotors = true, .chkGalleryFeatured = true},            ExtraFeature::GalleryFeatured, FeeCause::Motors, 24.95F, false},
  {"gallery featured of a vehicle",        {.chkMotors = true, .chkVehicle = true, .chkGalleryFeatured = true}, ExtraFeature::GalleryFeatured, FeeCause::Vehicle, 99.95F, false},
  {"the gallery within gallery featured",  {.chkGallery = true, .chkGalleryFeatured = true},           ExtraFeature::Gallery, FeeCause::GalleryFeatured, 0.00F, false},
  {"the gallery within the picture pack",  {.cboExtraPhotos = 5, .chkExtraPhotos = true, .chkGallery = true}, ExtraFeature::Gallery, FeeCause::PicturePack, 0.00F, false},
  {"a pack that is not taken has none",    {.cboExtraPhotos = 5, .chkGallery = true},                  ExtraFeature::Gallery, FeeCause::None, 0.25F, false},
};
// clang-format on

const FeeAddition* additionOf(const FeeRecord& record, ExtraFeature feature) {
  for (const FeeAddition& addition : record) {
    if (addition.feature == feature) return &addition;
  }
  return nullptr;
}

void expectAddition(const FeeRecord& record, const CauseRow& row) {
  const FeeAddition* addition = additionOf(record, row.feature);
  ASSERT_NE(addition, nullptr) << row.rule;
  EXPECT_EQ(addition->cause, row.cause) << row.rule;
  EXPECT_EQ(addition->fee, row.fee) << row.rule;
  EXPECT_EQ(addition->isDoubled, row.isDoubled) << row.rule;
}

TEST(FeeAddition, SaysWhatItsFeeDependsOn) {
  CAuctionSite site;
  site.Site(CAuctionSite::eBayUS);
  for (const CauseRow& row : kCauses) {
    FeeRecord record;
    extraFeatures(chosenFeatures(row.choices), site, &record);
    expectAddition(record, row);
  }
}

TEST(FeeAddition, OfSeveralItemsSaysSoOfTheHomePage) {
  CAuctionSite site;
  site.Site(CAuctionSite::eBayUS);
  for (const int items : {1, 2}) {
    FeeRecord record;
    dutchExtraFeatures({.chkDutchHomePageFeatured = true}, site, items, &record);
    const FeeAddition* home = additionOf(record, ExtraFeature::HomePageFeatured);
    ASSERT_NE(home, nullptr);
    EXPECT_EQ(home->cause, items > 1 ? FeeCause::SeveralItems : FeeCause::None);
    EXPECT_EQ(home->fee, items > 1 ? 79.95F : 39.95F);
  }
}

}  // namespace

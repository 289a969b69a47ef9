#include "single_item_tab.h"

#include <gtest/gtest.h>

#include "test_locales.h"

/// \file
/// Worked examples of the single-item tab: what a seller enters and ticks, and what all six boxes then show.
/// Each is worked out by hand from the schedule and runs for users of four ways of writing numbers.

namespace {

enum SiteNumber : std::int32_t { US = 1, UK = 2, Canada = 3, Germany = 4 };

using C = SingleItemChoices&;

struct Entered {
  const char* start;
  const char* price;
};

struct Shown {
  const char* start;
  const char* price;
  const char* insertion;
  const char* extras;
  const char* fvf;
  const char* fees;
};

struct ExampleRow {
  const char* rule;
  std::int32_t site;
  void (*choose)(C);
  Entered entered;  ///< written with points
  Shown shown;
};

// clang-format off
void nothing(C) {}
void reserve(C c) { c.cboIsReserve = 1; }
void unsold(C c) { c.chkDidNotSell = true; }
void unsoldReserve(C c) { c.cboIsReserve = 1; c.chkDidNotSell = true; }

const ExampleRow kExamples[] = {
  //                                                                       opening    closing     opening    closing    listing   extras   sale     total
  {"with nothing entered every result is zero",      US, nothing,          {"",       ""},        {"",       "0.00",    "0.00",   "0.00",  "0.00",  "0.00"}},
  {"a listing that sells",                           US, nothing,          {"9.99",   "25"},      {"9.99",   "25.00",   "0.35",   "0.00",  "1.31",  "1.66"}},
  {"half a cent of the sale fee goes up",            US, nothing,          {"9.99",   "10"},      {"9.99",   "10.00",   "0.35",   "0.00",  "0.53",  "0.88"}},
  {"an opening bid of one cent",                     US, nothing,          {"0.01",   "2"},       {"0.01",   "2.00",    "0.30",   "0.00",  "0.11",  "0.41"}},
  {"a large sale",                                   US, nothing,          {"500",    "1001"},    {"500.00", "1001.00", "4.80",   "0.00",  "28.14", "32.94"}},
  {"without a reserve a low closing bid is raised",  US, nothing,          {"10.00",  "5.00"},    {"10.00",  "10.00",   "0.60",   "0.00",  "0.53",  "1.13"}},
  {"an empty closing bid is raised",                 US, nothing,          {"10.00",  ""},        {"10.00",  "10.00",   "0.60",   "0.00",  "0.53",  "1.13"}},
  {"an empty opening bid stays empty",               US, nothing,          {"",       "10.00"},   {"",       "10.00",   "0.00",   "0.00",  "0.53",  "0.53"}},
  {"a dollar sign is read and dropped",              US, nothing,          {"$9.99",  "$25.00"},  {"9.99",   "25.00",   "0.35",   "0.00",  "1.31",  "1.66"}},
  {"a price in the gap has no listing fee",          US, nothing,          {"0.995",  ""},        {"1.00",   "1.00",    "0.00",   "0.00",  "0.05",  "0.05"}},
  {"a negative opening bid is on no step",           US, nothing,          {"-5",     "10"},      {"-5.00",  "10.00",   "0.00",   "0.00",  "0.53",  "0.53"}},

  {"a lone point as opening bid counts as empty",    US, nothing,          {".",      "10.00"},   {".",      "10.00",   "0.00",   "0.00",  "0.53",  "0.53"}},
  {"a lone point as closing bid counts as empty",    US, nothing,          {"10.00",  "."},       {"10.00",  "10.00",   "0.60",   "0.00",  "0.53",  "1.13"}},
  {"two lone points count as empty",                 US, nothing,          {".",      "."},       {".",      "0.00",    "0.00",   "0.00",  "0.00",  "0.00"}},
  {"a lone point as reserve of an unsold item",      US, unsoldReserve,    {".",      "0.00"},    {".",      "0.00",    "1.00",   "0.00",  "",      "1.00"}},
  {"a lone point in the box of an unsold item stays", US, unsold,          {"9.99",   "."},       {"9.99",   ".",       "0.35",   "0.00",  "",      "0.35"}},

  {"did not sell: no sale fee, the bid stays 0.00",  US, unsold,           {"9.99",   "0.00"},    {"9.99",   "0.00",    "0.35",   "0.00",  "",      "0.35"}},
  {"did not sell: a bid is kept and not raised",     US, unsold,           {"9.99",   "5"},       {"9.99",   "5.00",    "0.35",   "0.00",  "",      "0.35"}},
  {"did not sell: an empty bid stays empty",         US, unsold,           {"9.99",   ""},        {"9.99",   "",        "0.35",   "0.00",  "",      "0.35"}},
  {"did not sell, nothing entered",                  US, unsold,           {"",       "0.00"},    {"",       "0.00",    "0.00",   "0.00",  "",      "0.00"}},
  {"did not sell with a reserve: reserve fee",       US, unsoldReserve,    {"150",    "0.00"},    {"150.00", "0.00",    "4.40",   "0.00",  "",      "4.40"}},
  {"did not sell though the bid met the reserve",    US, unsoldReserve,    {"150",    "200"},     {"150.00", "200.00",  "4.40",   "0.00",  "",      "4.40"}},
  {"did not sell, empty reserve: lowest reserve fee", US, unsoldReserve,   {"",       "0.00"},    {"",       "0.00",    "1.00",   "0.00",  "",      "1.00"}},

  {"a reserve that was not met: reserve fee",        US, reserve,          {"150",    "50"},      {"150.00", "50.00",   "4.40",   "0.00",  "",      "4.40"}},
  {"a reserve missed by one cent",                   US, reserve,          {"150",    "149.99"},  {"150.00", "149.99",  "4.40",   "0.00",  "",      "4.40"}},
  {"a reserve that was just met: no reserve fee",    US, reserve,          {"150",    "150"},     {"150.00", "150.00",  "2.40",   "0.00",  "4.75",  "7.15"}},
  {"a reserve that was exceeded: no reserve fee",    US, reserve,          {"150",    "201"},     {"150.00", "201.00",  "2.40",   "0.00",  "6.15",  "8.55"}},
  {"a reserve and no closing bid: it reads 0.00",    US, reserve,          {"150",    ""},        {"150.00", "0.00",    "4.40",   "0.00",  "",      "4.40"}},
  {"an empty reserve is met by any bid",             US, reserve,          {"",       "10.00"},   {"",       "10.00",   "0.00",   "0.00",  "0.53",  "0.53"}},
  {"an empty reserve is met by no bid",              US, reserve,          {"",       ""},        {"",       "0.00",    "0.00",   "0.00",  "0.00",  "0.00"}},
  {"a dear reserve: the fee is capped",              US, reserve,          {"20000",  "50"},      {"20000.00", "50.00", "104.80", "0.00",  "",      "104.80"}},
  {"no choice in the reserve list is no reserve fee", US, [](C c) { c.cboIsReserve = -1; },
                                                                           {"10.00",  "5.00"},    {"10.00",  "5.00",    "0.60",   "0.00",  "0.26",  "0.86"}},

  {"two categories double listing and extras, not the sale", US, [](C c) { c.chkTwoCategories = c.chkBold = c.chkGallery = c.chkScheduled = true; },
                                                                           {"9.99",   "25.00"},   {"9.99",   "25.00",   "0.70",   "2.60",  "1.31",  "4.61"}},
  {"two categories double the capped reserve fee",   US, [](C c) { c.chkTwoCategories = true; c.cboIsReserve = 1; },
                                                                           {"20000",  "50"},      {"20000.00", "50.00", "209.60", "0.00",  "",      "209.60"}},
  {"extras of an item that did not sell",            US, [](C c) { c.chkDidNotSell = c.chkHighlighted = c.chkSubTitleSingleItem = true; },
                                                                           {"9.99",   "0.00"},    {"9.99",   "0.00",    "0.35",   "5.50",  "",      "5.85"}},
  {"reserve fee and extras",                         US, [](C c) { c.cboIsReserve = 1; c.chkFeatured = true; },
                                                                           {"150",    "50"},      {"150.00", "50.00",   "4.40",   "39.95", "",      "44.35"}},

  {"real estate has no sale fee",                    US, [](C c) { c.chkRealEstate = c.optTimeshare = c.chkTwoCategories = true; c.cboRealEstateType = 1; },
                                                                           {"100",    "5000"},    {"100.00", "5000.00", "100.00", "0.00",  "0.00",  "100.00"}},
  {"unsold real estate pays the reserve fee",        US, [](C c) { c.chkRealEstate = true; c.cboIsReserve = 1; },
                                                                           {"5000",   "10"},      {"5000.00", "10.00",  "150.00", "0.00",  "",      "150.00"}},
  {"unsold real estate ad pays the reserve fee",     US, [](C c) { c.chkRealEstate = true; c.cboIsReserve = 1; c.cboRealEstateType = 2; },
                                                                           {"5000",   "10"},      {"5000.00", "10.00",  "200.00", "0.00",  "",      "200.00"}},
  {"a sold vehicle",                                 US, [](C c) { c.chkMotors = c.chkVehicle = true; },
                                                                           {"5000",   "6000"},    {"5000.00", "6000.00", "40.00", "0.00",  "40.00", "80.00"}},
  {"a sold motorcycle with extras",                  US, [](C c) { c.chkMotors = c.chkVehicle = c.optMotorcycle = c.chkBold = true; },
                                                                           {"5000",   "6000"},    {"5000.00", "6000.00", "30.00", "4.00",  "25.00", "59.00"}},
  {"an unsold vehicle in the first reserve tier",    US, [](C c) { c.chkMotors = c.chkVehicle = true; c.cboIsReserve = 1; },
                                                                           {"40",     "10"},      {"40.00",  "10.00",   "42.00",  "0.00",  "",      "42.00"}},
  {"an unsold vehicle in the third reserve tier",    US, [](C c) { c.chkMotors = c.chkVehicle = true; c.cboIsReserve = 1; },
                                                                           {"300",    "10"},      {"300.00", "10.00",   "40.00",  "0.00",  "",      "40.00"}},
  {"a hidden motorcycle option alone is no vehicle", US, [](C c) { c.optMotorcycle = true; },
                                                                           {"9.99",   "25"},      {"9.99",   "25.00",   "0.35",   "0.00",  "1.31",  "1.66"}},

  {"UK: a listing that sells",                       UK, nothing,          {"10",     "100"},     {"10.00",  "100.00",  "0.35",   "0.00",  "3.85",  "4.20"}},
  {"UK: the top of the ladder",                      UK, nothing,          {"150",    "151"},     {"150.00", "151.00",  "2.00",   "0.00",  "5.51",  "7.51"}},
  {"UK: a reserve pays two per cent",                UK, reserve,          {"100",    "50"},      {"100.00", "50.00",   "4.00",   "0.00",  "",      "4.00"}},
  {"UK: a dear reserve is free",                     UK, reserve,          {"6000",   "50"},      {"6000.00", "50.00",  "2.00",   "0.00",  "",      "2.00"}},
  {"UK: empty reserve of an unsold item",            UK, unsoldReserve,    {"",       "0.00"},    {"",       "0.00",    "1.00",   "0.00",  "",      "1.00"}},
  {"UK: a sold vehicle pays a share",                UK, [](C c) { c.chkMotors = c.chkVehicle = true; },
                                                                           {"3000",   "4000"},    {"3000.00", "4000.00", "6.00",  "0.00",  "20.00", "26.00"}},
  {"Canada: a listing that sells",                   Canada, nothing,      {"20",     "101"},     {"20.00",  "101.00",  "0.85",   "0.00",  "3.65",  "4.50"}},
  {"Canada: a dear reserve in two categories",       Canada, [](C c) { c.chkTwoCategories = true; c.cboIsReserve = 1; },
                                                                           {"20000",  "50"},      {"20000.00", "50.00", "313.50", "0.00",  "",      "313.50"}},
  {"Canada: empty reserve of an unsold item",        Canada, unsoldReserve, {"",      "0.00"},    {"",       "0.00",    "1.50",   "0.00",  "",      "1.50"}},
  {"Canada: the hidden motorcycle option counts",    Canada, [](C c) { c.chkMotors = c.chkVehicle = c.optMotorcycle = true; },
                                                                           {"100",    "200"},     {"100.00", "200.00",  "35.00",  "0.00",  "22.00", "57.00"}},
  {"Germany: a listing that sells",                  Germany, [](C c) { c.chkGallery = true; },
                                                                           {"5",      "60"},      {"5.00",   "60.00",   "0.45",   "0.75",  "2.90",  "4.10"}},
  {"Germany: a reserve is free",                     Germany, reserve,     {"100",    "50"},      {"100.00", "50.00",   "3.20",   "0.00",  "",      "3.20"}},
  {"Germany: empty reserve of an unsold item",       Germany, unsoldReserve, {"",     "0.00"},    {"",       "0.00",    "0.00",   "0.00",  "",      "0.00"}},
  {"Germany: Listing Designer, as the choices stand", Germany, [](C c) { c.chkListingDesigner = true; },
                                                                           {"5",      "60"},      {"5.00",   "60.00",   "0.45",   "0.10",  "2.90",  "3.45"}},
  {"Germany: a sold vehicle pays a share",           Germany, [](C c) { c.chkMotors = c.chkVehicle = true; },
                                                                           {"100",    "9999"},    {"100.00", "9999.00", "10.00",  "0.00",  "100.00", "110.00"}},
};

struct ControlRow {
  const char* rule;
  void (*choose)(C);
  const char* extras;  ///< on the US site
};

const ControlRow kControls[] = {
  {"Subtitle",                 [](C c) { c.chkSubTitleSingleItem = true; },                   "0.50"},
  {"Listing Designer",         [](C c) { c.chkListingDesigner = true; },                      "0.10"},
  {"Scheduled",                [](C c) { c.chkScheduled = true; },                            "0.10"},
  {"Scheduled of a vehicle",   [](C c) { c.chkScheduled = c.chkVehicle = true; },             "1.00"},
  {"Slide show",               [](C c) { c.chkSlideshow = true; },                            "0.75"},
  {"Supersize",                [](C c) { c.chkSupersizePhotos = true; },                      "0.75"},
  {"Supersize with the pack in the list", [](C c) { c.chkSupersizePhotos = true; c.cboExtraPhotos = 5; }, "0.00"},
  {"Extra photos, one",        [](C c) { c.chkExtraPhotos = true; },                          "0.15"},
  {"Extra photos, four",       [](C c) { c.chkExtraPhotos = true; c.cboExtraPhotos = 3; },    "0.60"},
  {"Photo list alone",         [](C c) { c.cboExtraPhotos = 3; },                             "0.00"},
  {"Buy It Now",               [](C c) { c.chkBIN = true; },                                  "0.05"},
  {"Buy It Now of a vehicle",  [](C c) { c.chkBIN = c.chkVehicle = true; },                   "1.00"},
  {"Ten-day auction",          [](C c) { c.chkTenDayAuction = true; },                        "0.20"},
  {"Ten-day auction of a vehicle", [](C c) { c.chkTenDayAuction = c.chkVehicle = true; },     "5.00"},
  {"Two categories alone",     [](C c) { c.chkTwoCategories = true; },                        "0.00"},
  {"Two categories, bold",     [](C c) { c.chkTwoCategories = c.chkBold = true; },            "2.00"},
  {"Featured Plus",            [](C c) { c.chkFeaturedCategory = true; },                     "19.95"},
  {"Home Page Featured",       [](C c) { c.chkFeatured = true; },                             "39.95"},
  {"Gallery",                  [](C c) { c.chkGallery = true; },                              "0.25"},
  {"Gallery with the pack",    [](C c) { c.chkGallery = c.chkExtraPhotos = true; c.cboExtraPhotos = 5; }, "1.00"},
  {"Gallery Featured",         [](C c) { c.chkGalleryFeatured = true; },                      "19.95"},
  {"Gallery and Gallery Featured", [](C c) { c.chkGallery = c.chkGalleryFeatured = true; },   "19.95"},
  {"Gallery Featured, motors", [](C c) { c.chkGalleryFeatured = c.chkMotors = true; },        "24.95"},
  {"Gallery Featured of a motor vehicle", [](C c) { c.chkGalleryFeatured = c.chkMotors = c.chkVehicle = true; }, "99.95"},
  {"Highlighted",              [](C c) { c.chkHighlighted = true; },                          "5.00"},
  {"Bold",                     [](C c) { c.chkBold = true; },                                 "1.00"},
  {"Bold of a vehicle",        [](C c) { c.chkBold = c.chkVehicle = true; },                  "4.00"},
  {"Gift icon",                [](C c) { c.chkGiftIcon = true; },                             "0.25"},
  {"Gift icon of a vehicle",   [](C c) { c.chkGiftIcon = c.chkVehicle = true; },              "2.00"},
  {"Real estate costs no extras", [](C c) { c.chkRealEstate = c.optTimeshare = true; c.cboRealEstateType = 3; }, "0.00"},
  {"Motorcycle costs no extras", [](C c) { c.chkMotors = c.chkVehicle = c.optMotorcycle = true; }, "0.00"},
};

struct SoldRow {
  const char* rule;
  bool didNotSell;
  int reserveIndex;
  Entered entered;
  bool isSold;
};

const SoldRow kSold[] = {
  //                                                      unsold  list   opening    closing    sold
  {"a bid above the opening bid",                         false,  0,  {"10.00",  "20.00"},  true},
  {"without a reserve a low bid sells",                   false,  0,  {"10.00",  "5.00"},   true},
  {"empty boxes without a reserve",                       false,  0,  {"",       ""},       true},
  {"lone points without a reserve",                       false,  0,  {".",      "."},      true},
  {"a reserve that was not met",                          false,  1,  {"10.00",  "9.99"},   false},
  {"a reserve that was just met",                         false,  1,  {"10.00",  "10.00"},  true},
  {"a reserve that was exceeded",                         false,  1,  {"10.00",  "10.01"},  true},
  {"a reserve missed by less than a cent",                false,  1,  {"10.0001", "10.00"}, false},
  {"a reserve and no bid",                                false,  1,  {"10.00",  ""},       false},
  {"a reserve and a lone point as bid",                   false,  1,  {"10.00",  "."},      false},
  {"an empty reserve and no bid",                         false,  1,  {"",       ""},       true},
  {"a lone point as reserve",                             false,  1,  {".",      "5"},      true},
  {"a reserve of nothing",                                false,  1,  {"0.00",   "0.00"},   true},
  {"no choice in the reserve list is no reserve",         false, -1,  {"10.00",  "5.00"},   true},
  {"marked as unsold",                                    true,   0,  {"10.00",  "20.00"},  false},
  {"marked as unsold, the reserve met",                   true,   1,  {"10.00",  "20.00"},  false},
  {"marked as unsold, empty boxes",                       true,   0,  {"",       ""},       false},
};
// clang-format on

SingleItemBoxes recalculated(std::int32_t siteNumber, void (*choose)(C), const Entered& entered,
                             const NumberLocale& locale) {
  CAuctionSite site;
  site.Site(siteNumber);
  CRegularAuction calculator(locale);
  calculator.Site(site);
  SingleItemChoices choices;
  choose(choices);
  SingleItemBoxes boxes;
  boxes.txtStartingPrice = asWrittenIn(locale, entered.start);
  boxes.txtPrice = asWrittenIn(locale, entered.price);
  // What an earlier calculation left must not survive.
  boxes.txtInsertionFee = boxes.txtExtras = boxes.txtFVF = boxes.txtFees = "99";
  recalculateSingleItem(choices, &calculator, locale, boxes);
  return boxes;
}

TEST(SingleItem, WorkedExamplesForEveryUser) {
  for (const NamedLocale& locale : kTestLocales) {
    SCOPED_TRACE(locale.name);
    for (const ExampleRow& row : kExamples) {
      SCOPED_TRACE(row.rule);
      const SingleItemBoxes boxes = recalculated(row.site, row.choose, row.entered, locale.signs);
      EXPECT_EQ(boxes.txtStartingPrice, asWrittenIn(locale.signs, row.shown.start));
      EXPECT_EQ(boxes.txtPrice, asWrittenIn(locale.signs, row.shown.price));
      EXPECT_EQ(boxes.txtInsertionFee, asWrittenIn(locale.signs, row.shown.insertion));
      EXPECT_EQ(boxes.txtExtras, asWrittenIn(locale.signs, row.shown.extras));
      EXPECT_EQ(boxes.txtFVF, asWrittenIn(locale.signs, row.shown.fvf));
      EXPECT_EQ(boxes.txtFees, asWrittenIn(locale.signs, row.shown.fees));
    }
  }
}

TEST(SingleItem, EachControlChargesItsOwnFeature) {
  for (const ControlRow& row : kControls) {
    SCOPED_TRACE(row.rule);
    EXPECT_EQ(recalculated(US, row.choose, {"", ""}, enUS()).txtExtras, row.extras);
  }
}

TEST(SingleItem, ItemSold) {
  for (const NamedLocale& locale : kTestLocales) {
    SCOPED_TRACE(locale.name);
    for (const SoldRow& row : kSold) {
      SCOPED_TRACE(row.rule);
      SingleItemChoices choices;
      choices.chkDidNotSell = row.didNotSell;
      choices.cboIsReserve = row.reserveIndex;
      SingleItemBoxes boxes;
      boxes.txtStartingPrice = asWrittenIn(locale.signs, row.entered.start);
      boxes.txtPrice = asWrittenIn(locale.signs, row.entered.price);
      EXPECT_EQ(itemSold(choices, boxes, locale.signs), row.isSold);
    }
  }
}

}  // namespace

#include "multiple_items_tab.h"

#include <gtest/gtest.h>

#include "test_locales.h"

/// \file
/// The multiple-items tab in one recalculation, worked out by hand from the schedule.

namespace {

using C = MultipleItemsChoices&;

enum SiteNumber : std::int32_t { US = 1, UK = 2, Canada = 3, Germany = 4 };

constexpr const char* kNotAvailable = "none sold";
constexpr const char* kOld = "99";

struct Entered {
  const char* offered;
  const char* opening;
  const char* sold;
  const char* bid;
};

struct Results {
  const char* fees;
  const char* extras;
  const char* sales;
  const char* perItem;
};

struct ExampleRow {
  const char* rule;
  std::int32_t site;
  void (*choose)(C);
  Entered entered;
  Entered shown;
  Results results;
};

void nothing(C) {}
void twoCategories(C c) { c.chkDutchTwoCategories = true; }
void homePage(C c) { c.chkDutchHomePageFeatured = true; }

/// All results keep what an earlier calculation left; only the total sales are shown with two decimals.
constexpr Results kUntouched{kOld, kOld, "99.00", kOld};

// clang-format off
const ExampleRow kExamples[] = {
  //                                                                                       offered  opening    sold   lowest bid    offered  opening    sold   lowest bid     fees     extras   sales     per item
  {"with items left over every winner pays the opening price", US, nothing,               {"10",    "5.00",    "4",     "7.00"},   {"10",    "5.00",    "4",     "5.00"},   {"3.45",  "0.00",  "20.00",  "0.86"}},
  {"with items left over a lower bid is the opening price too", US, nothing,              {"10",    "5.00",    "4",     "2.00"},   {"10",    "5.00",    "4",     "5.00"},   {"3.45",  "0.00",  "20.00",  "0.86"}},
  {"with items left over an empty bid is filled, and the entries are complete", US, nothing,
                                                                                          {"10",    "5.00",    "4",     ""},       {"10",    "5.00",    "4",     "5.00"},   {"3.45",  "0.00",  "20.00",  "0.86"}},
  {"with items left over a bid that is no number is replaced", US, nothing,               {"10",    "5.00",    "4",     "abc"},    {"10",    "5.00",    "4",     "5.00"},   {"3.45",  "0.00",  "20.00",  "0.86"}},
  {"with items left over a lone decimal symbol is replaced", US, nothing,                 {"10",    "5.00",    "4",     "."},      {"10",    "5.00",    "4",     "5.00"},   {"3.45",  "0.00",  "20.00",  "0.86"}},
  {"no more items sell than were offered",               US, nothing,                     {"3",     "2.00",    "5",     "4.00"},   {"3",     "2.00",    "3",     "4.00"},   {"0.98",  "0.00",  "12.00",  "0.33"}},
  {"items are compared as numbers, not as texts",        US, nothing,                     {"10",    "5.00",    "9",     "7.00"},   {"10",    "5.00",    "9",     "5.00"},   {"4.76",  "0.00",  "45.00",  "0.53"}},
  {"all sold: the lowest bid counts",                    US, nothing,                     {"10",    "5.00",    "10",    "8.00"},   {"10",    "5.00",    "10",    "8.00"},   {"6.60",  "0.00",  "80.00",  "0.66"}},
  {"all sold: a bid below the opening price is raised",  US, nothing,                     {"3",     "5.00",    "3",     "2.00"},   {"3",     "5.00",    "3",     "5.00"},   {"1.39",  "0.00",  "15.00",  "0.46"}},
  {"all sold: a bid a cent below is raised",             US, nothing,                     {"3",     "5.00",    "3",     "4.99"},   {"3",     "5.00",    "3",     "5.00"},   {"1.39",  "0.00",  "15.00",  "0.46"}},
  {"all sold: a bid at the opening price",               US, nothing,                     {"3",     "5.00",    "3",     "5.00"},   {"3",     "5.00",    "3",     "5.00"},   {"1.39",  "0.00",  "15.00",  "0.46"}},
  {"all sold: a bid of nothing is raised",               US, nothing,                     {"3",     "5.00",    "3",     "0.00"},   {"3",     "5.00",    "3",     "5.00"},   {"1.39",  "0.00",  "15.00",  "0.46"}},
  {"nothing sold: no fee per item",                      US, nothing,                     {"3",     "2.00",    "0",     "4.00"},   {"3",     "2.00",    "0",     "2.00"},   {"0.35",  "0.00",  "0.00",   kNotAvailable}},
  {"nothing offered, nothing sold",                      US, nothing,                     {"0",     "5.00",    "0",     "7.00"},   {"0",     "5.00",    "0",     "7.00"},   {"0.00",  "0.00",  "0.00",   kNotAvailable}},
  {"nothing offered: nothing can sell",                  US, nothing,                     {"0",     "5.00",    "5",     "7.00"},   {"0",     "5.00",    "0",     "7.00"},   {"0.00",  "0.00",  "0.00",   kNotAvailable}},
  {"nothing offered in two categories",                  US, twoCategories,               {"0",     "5.00",    "5",     "7.00"},   {"0",     "5.00",    "0",     "7.00"},   {"0.00",  "0.00",  "0.00",   kNotAvailable}},
  {"items sold lose leading zeros",                      US, nothing,                     {"10",    "1.00",    "05",    "1.00"},   {"10",    "1.00",    "5",     "1.00"},   {"0.86",  "0.00",  "5.00",   "0.17"}},
  {"items offered keep leading zeros",                   US, nothing,                     {"01",    "9.99",    "1",     "12.00"},  {"01",    "9.99",    "1",     "12.00"},  {"0.98",  "0.00",  "12.00",  "0.98"}},
  {"items sold are cut to the number offered, not to its text", US, nothing,              {"03",    "2.00",    "5",     "4.00"},   {"03",    "2.00",    "3",     "4.00"},   {"0.98",  "0.00",  "12.00",  "0.33"}},
  {"a price of nothing",                                 US, nothing,                     {"3",     "0",       "3",     "1.00"},   {"3",     "0.00",    "3",     "1.00"},   {"0.16",  "0.00",  "3.00",   "0.05"}},
  {"a price of nothing in two categories",               US, twoCategories,               {"3",     "0",       "3",     "1.00"},   {"3",     "0.00",    "3",     "1.00"},   {"0.16",  "0.00",  "3.00",   "0.05"}},
  {"a gap of the ladder has no insertion fee",           US, nothing,                     {"3",     "0.3333",  "3",     "1.00"},   {"3",     "0.33",    "3",     "1.00"},   {"0.16",  "0.00",  "3.00",   "0.05"}},
  {"a gap of the ladder in two categories",              US, twoCategories,               {"3",     "0.3333",  "3",     "1.00"},   {"3",     "0.33",    "3",     "1.00"},   {"0.16",  "0.00",  "3.00",   "0.05"}},
  {"a gap of the ladder leaves the features",            US, [](C c) { c.chkDutchTwoCategories = c.chkDutchBold = true; },
                                                                                          {"3",     "0.3333",  "3",     "1.00"},   {"3",     "0.33",    "3",     "1.00"},   {"2.16",  "2.00",  "3.00",   "0.72"}},
  {"0.27 x 37 is no gap",                                US, nothing,                     {"37",    "0.27",    "37",    "0.27"},   {"37",    "0.27",    "37",    "0.27"},   {"0.87",  "0.00",  "9.99",   "0.02"}},
  {"the opening price counts with four decimals: 0.9999 is a gap", US, nothing,           {"1",     "0.99994", "1",     "2.00"},   {"1",     "1.00",    "1",     "2.00"},   {"0.10",  "0.00",  "2.00",   "0.10"}},
  {"the opening price counts with four decimals: 1.0000 is none", US, nothing,            {"1",     "0.99996", "1",     "2.00"},   {"1",     "1.00",    "1",     "2.00"},   {"0.45",  "0.00",  "2.00",   "0.45"}},
  {"half a ten-thousandth goes to the even one",         US, nothing,                     {"1",     "0.99005", "1",     "2.00"},   {"1",     "0.99",    "1",     "2.00"},   {"0.40",  "0.00",  "2.00",   "0.40"}},
  {"sales are of the bid with four decimals",            US, nothing,                     {"3",     "0.10",    "3",     "0.3333"}, {"3",     "0.10",    "3",     "0.33"},   {"0.35",  "0.00",  "1.00",   "0.12"}},
  {"sales are of the bid to the even ten-thousandth",    US, nothing,                     {"10000", "0.01",    "10000", "1.00005"}, {"10000", "0.01",   "10000", "1.00"},   {"527.43", "0.00", "10000.00", "0.05"}},
  {"the largest count",                                  US, nothing,                     {"32767", "0.01",    "32767", "0.01"},   {"32767", "0.01",    "32767", "0.01"},   {"20.80", "0.00",  "327.67", "0.00"}},
  {"large sales",                                        US, nothing,                     {"3",     "1000",    "3",     "1234567.89"}, {"3", "1000.00", "3",     "1234567.89"}, {"55599.73", "0.00", "3703703.67", "18533.24"}},
  {"one cent less than on paper for 3 at 10.00",         US, nothing,                     {"3",     "1.00",    "3",     "10.00"},  {"3",     "1.00",    "3",     "10.00"},  {"1.92",  "0.00",  "30.00",  "0.64"}},

  {"two categories double the insertion fee, not the sale", US, twoCategories,            {"10",    "5.00",    "10",    "8.00"},   {"10",    "5.00",    "10",    "8.00"},   {"9.00",  "0.00",  "80.00",  "0.90"}},
  {"two categories, some features doubled",              US, [](C c) { c.chkDutchTwoCategories = c.chkDutchBold = c.chkDutchScheduled = c.chkExtraPicturesDutch = true; },
                                                                                          {"10",    "5.00",    "10",    "8.00"},   {"10",    "5.00",    "10",    "8.00"},   {"11.25", "2.25",  "80.00",  "1.13"}},
  {"home page of one item",                              US, homePage,                    {"1",     "1.00",    "1",     "1.00"},   {"1",     "1.00",    "1",     "1.00"},   {"40.35", "39.95", "1.00",   "40.35"}},
  {"home page goes by the items offered, not sold",      US, homePage,                    {"2",     "1.00",    "1",     "1.00"},   {"2",     "1.00",    "1",     "1.00"},   {"80.35", "79.95", "1.00",   "80.35"}},
  {"home page of two items that did not sell",           US, homePage,                    {"2",     "1.00",    "0",     "1.00"},   {"2",     "1.00",    "0",     "1.00"},   {"80.30", "79.95", "0.00",   kNotAvailable}},
  {"gallery and gallery featured are both charged",      US, [](C c) { c.chkDutchGallery = c.chkDutchGalleryFeatured = true; },
                                                                                          {"3",     "5.00",    "3",     "5.00"},   {"3",     "5.00",    "3",     "5.00"},   {"21.59", "20.20", "15.00",  "7.20"}},

  {"UK: half a penny per item goes up",                  UK, nothing,                     {"4",     "10.00",   "4",     "20.00"},  {"4",     "10.00",   "4",     "20.00"},  {"5.70",  "0.00",  "80.00",  "1.43"}},
  {"UK: home page has one price",                        UK, homePage,                    {"4",     "10.00",   "4",     "20.00"},  {"4",     "10.00",   "4",     "20.00"},  {"55.65", "49.95", "80.00",  "13.91"}},
  {"Canada: all sold",                                   Canada, nothing,                 {"4",     "30.00",   "4",     "40.00"},  {"4",     "30.00",   "4",     "40.00"},  {"11.20", "0.00",  "160.00", "2.80"}},
  {"Canada: home page of several items",                 Canada, homePage,                {"4",     "30.00",   "4",     "40.00"},  {"4",     "30.00",   "4",     "40.00"},  {"111.15", "99.95", "160.00", "27.79"}},
  {"Germany: all sold",                                  Germany, nothing,                {"3",     "20.00",   "3",     "60.00"},  {"3",     "20.00",   "3",     "60.00"},  {"10.30", "0.00",  "180.00", "3.43"}},
  {"Germany: featured plus of several items",            Germany, [](C c) { c.chkDutchFeaturedPlus = true; },
                                                                                          {"3",     "20.00",   "3",     "60.00"},  {"3",     "20.00",   "3",     "60.00"},  {"28.25", "17.95", "180.00", "9.42"}},
  {"Germany: an opening price below one euro stands",    Germany, nothing,                {"2",     "0.50",    "2",     "1.00"},   {"2",     "0.50",    "2",     "1.00"},   {"0.35",  "0.00",  "2.00",   "0.18"}},
  {"an unknown site charges nothing",                    5, homePage,                     {"3",     "5.00",    "3",     "5.00"},   {"3",     "5.00",    "3",     "5.00"},   {"0.00",  "0.00",  "15.00",  "0.00"}},

  {"empty boxes",                                        US, nothing,                     {"",      "",        "",      ""},       {"",      "",        "",      ""},       kUntouched},
  {"no items offered entered",                           US, nothing,                     {"",      "5",       "3",     "7"},      {"",      "5.00",    "3",     "7.00"},   kUntouched},
  {"no opening price entered",                           US, nothing,                     {"3",     "",        "3",     "7"},      {"3",     "",        "3",     "7.00"},   kUntouched},
  {"no items sold entered",                              US, nothing,                     {"3",     "5",       "",      "7"},      {"3",     "5.00",    "",      "7.00"},   kUntouched},
  {"no lowest bid entered, all sold",                    US, nothing,                     {"3",     "5",       "3",     ""},       {"3",     "5.00",    "3",     ""},       kUntouched},
  {"no opening price entered, with items left over",     US, nothing,                     {"10",    "",        "4",     "7"},      {"10",    "",        "4",     "7.00"},   kUntouched},
  {"incomplete: a bid below the opening price is not raised", US, nothing,                {"",      "5",       "3",     "2"},      {"",      "5.00",    "3",     "2.00"},   kUntouched},
  {"incomplete: no more items sell than were offered",   US, nothing,                     {"3",     "",        "5",     "7"},      {"3",     "",        "3",     "7.00"},   kUntouched},
  {"incomplete: items sold become the text offered",     US, nothing,                     {"03",    "",        "5",     "7"},      {"03",    "",        "03",    "7.00"},   kUntouched},
  {"incomplete: items sold keep leading zeros",          US, nothing,                     {"",      "5",       "05",    "7"},      {"",      "5.00",    "05",    "7.00"},   kUntouched},
  {"incomplete: items offered that are no number",       US, nothing,                     {"abc",   "5",       "",      "7"},      {"abc",   "5.00",    "",      "7.00"},   kUntouched},
  {"incomplete: too many items offered",                 US, nothing,                     {"32768", "5",       "",      "7"},      {"32768", "5.00",    "",      "7.00"},   kUntouched},
  {"incomplete: prices round half away from zero",       US, nothing,                     {"",      "0.3333",  "",      "2.675"},  {"",      "0.33",    "",      "2.68"},   kUntouched},
  {"a lone decimal symbol as opening price is empty",    US, nothing,                     {"3",     ".",       "3",     "7"},      {"3",     ".",       "3",     "7.00"},   kUntouched},
  {"a lone decimal symbol as lowest bid is empty",       US, nothing,                     {"3",     "5",       "3",     "."},      {"3",     "5.00",    "3",     "."},      kUntouched},
  {"a lone decimal symbol as items sold is empty",       US, nothing,                     {"3",     "5",       ".",     "7"},      {"3",     "5.00",    ".",     "7.00"},   kUntouched},
  {"a lone decimal symbol as items offered is empty",    US, nothing,                     {".",     "5",       "3",     "7"},      {".",     "5.00",    "3",     "7.00"},   kUntouched},
};
// clang-format on

MultipleItemsBoxes recalculated(const ExampleRow& row, const NumberLocale& locale) {
  CAuctionSite site;
  site.Site(row.site);
  CDutchAuction auction(locale);
  auction.Site(site);
  MultipleItemsChoices choices;
  row.choose(choices);
  MultipleItemsBoxes boxes;
  boxes.txtDutchItemsOffered = asWrittenIn(locale, row.entered.offered);
  boxes.txtDutchOpeningPrice = asWrittenIn(locale, row.entered.opening);
  boxes.txtDutchItemsSold = asWrittenIn(locale, row.entered.sold);
  boxes.txtDutchFinalPrice = asWrittenIn(locale, row.entered.bid);
  boxes.txtDutchFees = boxes.txtExtraFeaturesDutch = kOld;
  boxes.txtTotalDutchAuctionSales = boxes.txtDutchCostPerItem = kOld;
  recalculateMultipleItems(choices, {&site, &auction}, locale, kNotAvailable, boxes);
  return boxes;
}

TEST(MultipleItems, WorkedExamplesForEveryUser) {
  for (const NamedLocale& locale : kTestLocales) {
    SCOPED_TRACE(locale.name);
    const auto text = [&](const char* pointText) { return asWrittenIn(locale.signs, pointText); };
    for (const ExampleRow& row : kExamples) {
      SCOPED_TRACE(row.rule);
      const MultipleItemsBoxes boxes = recalculated(row, locale.signs);
      EXPECT_EQ(boxes.txtDutchItemsOffered, text(row.shown.offered));
      EXPECT_EQ(boxes.txtDutchOpeningPrice, text(row.shown.opening));
      EXPECT_EQ(boxes.txtDutchItemsSold, text(row.shown.sold));
      EXPECT_EQ(boxes.txtDutchFinalPrice, text(row.shown.bid));
      EXPECT_EQ(boxes.txtDutchFees, text(row.results.fees));
      EXPECT_EQ(boxes.txtExtraFeaturesDutch, text(row.results.extras));
      EXPECT_EQ(boxes.txtTotalDutchAuctionSales, text(row.results.sales));
      EXPECT_EQ(boxes.txtDutchCostPerItem, text(row.results.perItem));
    }
  }
}

}  // namespace

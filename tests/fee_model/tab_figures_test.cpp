#include <gtest/gtest.h>

#include "amount_text.h"
#include "multiple_items_tab.h"
#include "single_item_tab.h"
#include "test_locales.h"

/// \file
/// The figures that the tabs settle besides the texts of their boxes.

namespace {

std::string shown(Currency amount) { return twoDecimals(amount, enUS()); }

struct SingleRow {
  const char* rule;
  std::int32_t site;
  SingleItemChoices choices;
  const char* opening;
  const char* closing;
  const char* insertion;
  const char* reserve;  ///< "" for none
  const char* total;
  const char* bid;
  bool isRaised;
  bool isSold;
};

// clang-format off
const SingleRow kSingle[] = {
  {"a sale",                                  1, {},                                            "9.99", "25",    "0.35", "",     "1.66", "25",  false, true},
  {"without a reserve a low bid is raised",   1, {},                                            "10",   "5",     "0.60", "",     "1.13", " 10", true,  true},
  {"the bid as it was entered",               1, {},                                            "1",    "10.005","0.35", "",     "0.88", "10.005", false, true},
  {"nothing entered sells for nothing",       1, {},                                            "",     "",      "0.00", "",     "0.00", "",    false, true},
  {"it did not sell",                         1, {.chkDidNotSell = true},                       "10",   "5",     "0.60", "",     "0.60", "",    false, false},
  {"the reserve fee stands apart",            1, {.cboIsReserve = 1},                           "150",  "50",    "2.40", "2.00", "4.40", "",    false, false},
  {"both are doubled for two categories",     1, {.cboIsReserve = 1, .chkTwoCategories = true}, "150",  "50",    "4.80", "4.00", "8.80", "",    false, false},
  {"a reserve that is free is still charged", 2, {.cboIsReserve = 1},                           "6000", "50",    "2.00", "0.00", "2.00", "",    false, false},
  {"a reserve that was met is not",           1, {.cboIsReserve = 1},                           "150",  "150",   "2.40", "",     "7.15", "150", false, true},
  {"an unsold item with a reserve",           1, {.chkDidNotSell = true, .cboIsReserve = 1},    "150",  "500",   "2.40", "2.00", "4.40", "",    false, false},
};
// clang-format on

TEST(SingleItemFigures, TellWhatTheBoxesDoNot) {
  for (const SingleRow& row : kSingle) {
    SCOPED_TRACE(row.rule);
    CAuctionSite site;
    site.Site(row.site);
    CRegularAuction calculator(enUS());
    calculator.Site(site);
    SingleItemBoxes boxes;
    boxes.txtStartingPrice = row.opening;
    boxes.txtPrice = row.closing;
    const SingleItemFigures figures = recalculateSingleItem(row.choices, &calculator, enUS(), boxes);
    EXPECT_EQ(shown(figures.insertion), row.insertion);
    EXPECT_EQ(figures.reserve ? shown(*figures.reserve) : "", row.reserve);
    EXPECT_EQ(shown(figures.total), row.total);
    EXPECT_EQ(figures.bid, row.bid);
    EXPECT_EQ(figures.isRaised, row.isRaised);
    EXPECT_EQ(figures.isSold, row.isSold);
    // The box has both fees in one.
    EXPECT_EQ(boxes.txtInsertionFee, shown(figures.insertion + figures.reserve.value_or(Currency{})));
    EXPECT_EQ(boxes.txtFees, row.total);
  }
}

TEST(SingleItemFigures, TheReserveFeeKeepsItsPartCents) {
  CAuctionSite site;
  site.Site(CAuctionSite::eBayUS);
  CRegularAuction calculator(enUS());
  calculator.Site(site);
  SingleItemBoxes boxes;
  boxes.txtStartingPrice = "333.33";
  boxes.txtPrice = "1";
  const SingleItemFigures figures = recalculateSingleItem({.cboIsReserve = 1}, &calculator, enUS(), boxes);
  // 3.60 for listing at 333.33, and 1 % of it as a single.
  EXPECT_EQ(figures.reserve->tenThousandths(), 33333);
  EXPECT_EQ(boxes.txtInsertionFee, "6.93");
}

TEST(SingleItemFigures, WithoutACalculatorTellOfNoFeeAndNoSale) {
  SingleItemBoxes boxes;
  boxes.txtStartingPrice = "10";
  boxes.txtPrice = "50";
  const SingleItemFigures figures = recalculateSingleItem({}, nullptr, enUS(), boxes);
  EXPECT_EQ(figures.total, Currency{});
  EXPECT_FALSE(figures.isSold);
}

struct MultipleRow {
  const char* rule;
  const char* offered;
  const char* opening;
  const char* sold;
  const char* bid;
  const char* insertion;
  const char* finalValue;
  const char* total;
  const char* price;
  bool isAtOpening;
  int countedOffered;
  int countedSold;
};

// clang-format off
const MultipleRow kMultiple[] = {
  {"all are sold at the lowest bid",           "10", "5", "10", "8",      "2.40", "4.20", "6.60", "8",      false, 10, 10},
  {"items left over go at the opening price",  "10", "5", "4",  "8",      "2.40", "1.05", "3.45", "5",      true,  10, 4},
  {"a bid below it is raised to it",           "10", "5", "10", "3",      "2.40", "2.62", "5.02", "5",      true,  10, 10},
  {"no more are sold than were offered",       "3",  "5", "9",  "8",      "0.60", "1.26", "1.86", "8",      false, 3,  3},
  {"none are sold",                            "3",  "5", "0",  "8",      "0.60", "0.00", "0.60", "5",      true,  3,  0},
  {"the bid as it was entered",                "1",  "5", "1",  "10.005", "0.35", "0.53", "0.88", "10.005", false, 1,  1},
  {"between two steps listing is free",        "3",  "0.3333", "3", "1",  "0.00", "0.16", "0.16", "1",      false, 3,  3},
};
// clang-format on

TEST(MultipleItemsFigures, TellWhatTheBoxesDoNot) {
  CAuctionSite site;
  site.Site(CAuctionSite::eBayUS);
  CDutchAuction auction(enUS());
  auction.Site(site);
  for (const MultipleRow& row : kMultiple) {
    SCOPED_TRACE(row.rule);
    MultipleItemsBoxes boxes;
    boxes.txtDutchItemsOffered = row.offered;
    boxes.txtDutchOpeningPrice = row.opening;
    boxes.txtDutchItemsSold = row.sold;
    boxes.txtDutchFinalPrice = row.bid;
    const MultipleItemsFigures figures =
        recalculateMultipleItems({}, {&site, &auction}, enUS(), "N/A", boxes);
    EXPECT_EQ(shown(figures.insertion), row.insertion);
    EXPECT_EQ(shown(figures.finalValue), row.finalValue);
    EXPECT_EQ(shown(figures.total), row.total);
    EXPECT_EQ(figures.price, row.price);
    EXPECT_EQ(figures.isAtOpening, row.isAtOpening);
    EXPECT_EQ(figures.offered, row.countedOffered);
    EXPECT_EQ(figures.sold, row.countedSold);
    EXPECT_EQ(boxes.txtDutchFees, row.total);
  }
}

}  // namespace

#include <gtest/gtest.h>

#include "amount_errors.h"
#include "multiple_items_tab.h"
#include "test_locales.h"

/// \file
/// The multiple-items tab over several recalculations, without calculators, and when a step fails.

namespace {

constexpr const char* kNotAvailable = "none sold";

/// The tab of one seller on eBay.com: boxes and choices that live through several recalculations.
class MultipleItemsTab : public testing::Test {
 protected:
  explicit MultipleItemsTab(const NumberLocale& locale = enUS()) : m_locale(locale), m_auction(locale) {
    site.Site(CAuctionSite::eBayUS);
    m_auction.Site(site);
  }

  void enter(const char* offered, const char* opening, const char* sold, const char* bid) {
    boxes.txtDutchItemsOffered = offered;
    boxes.txtDutchOpeningPrice = opening;
    boxes.txtDutchItemsSold = sold;
    boxes.txtDutchFinalPrice = bid;
  }

  void recalculate() { recalculateWith({&site, &m_auction}); }
  void recalculateWith(const MultipleItemsCalculators& calculators) {
    recalculateMultipleItems(choices, calculators, m_locale, kNotAvailable, boxes);
  }

  void expectEntries(const char* offered, const char* opening, const char* sold, const char* bid) const {
    EXPECT_EQ(boxes.txtDutchItemsOffered, offered);
    EXPECT_EQ(boxes.txtDutchOpeningPrice, opening);
    EXPECT_EQ(boxes.txtDutchItemsSold, sold);
    EXPECT_EQ(boxes.txtDutchFinalPrice, bid);
  }

  void expectResults(const char* fees, const char* extras, const char* sales, const char* perItem) const {
    EXPECT_EQ(boxes.txtDutchFees, fees);
    EXPECT_EQ(boxes.txtExtraFeaturesDutch, extras);
    EXPECT_EQ(boxes.txtTotalDutchAuctionSales, sales);
    EXPECT_EQ(boxes.txtDutchCostPerItem, perItem);
  }

  void showOldResults() {
    boxes.txtDutchFees = "1.5";
    boxes.txtExtraFeaturesDutch = "2.5";
    boxes.txtTotalDutchAuctionSales = "3.5";
    boxes.txtDutchCostPerItem = "4.5";
  }

  [[nodiscard]] const CDutchAuction& auction() const { return m_auction; }

  CAuctionSite site;
  MultipleItemsChoices choices;
  MultipleItemsBoxes boxes;

 private:
  NumberLocale m_locale;
  CDutchAuction m_auction;
};

TEST_F(MultipleItemsTab, AGapClosesWhenThePriceIsShownWithTwoDecimals) {
  enter("3", "0.3333", "3", "1.00");
  recalculate();
  expectEntries("3", "0.33", "3", "1.00");
  expectResults("0.16", "0.00", "3.00", "0.05");
  recalculate();
  expectEntries("3", "0.33", "3", "1.00");
  expectResults("0.46", "0.00", "3.00", "0.15");
}

TEST_F(MultipleItemsTab, AGapClosesInTwoCategoriesToo) {
  choices.chkDutchTwoCategories = true;
  enter("3", "0.3333", "3", "1.00");
  recalculate();
  expectResults("0.16", "0.00", "3.00", "0.05");
  recalculate();
  expectResults("0.76", "0.00", "3.00", "0.25");
}

TEST_F(MultipleItemsTab, ASecondRecalculationChangesNothing) {
  choices.chkDutchBold = choices.chkExtraPicturesDutch = true;
  enter("10", "5.00", "04", "7.00");
  for (int round = 1; round <= 2; ++round) {
    SCOPED_TRACE(round);
    recalculate();
    expectEntries("10", "5.00", "4", "5.00");
    expectResults("4.60", "1.15", "20.00", "1.15");
  }
}

TEST_F(MultipleItemsTab, EmptyingABoxKeepsTheFeesOfTheLastCalculation) {
  enter("10", "5.00", "10", "8.00");
  recalculate();
  expectResults("6.60", "0.00", "80.00", "0.66");
  boxes.txtDutchItemsOffered = "";
  choices.chkDutchBold = true;
  recalculate();
  expectEntries("", "5.00", "10", "8.00");
  expectResults("6.60", "0.00", "80.00", "0.66");
}

TEST_F(MultipleItemsTab, SellingTheRestLetsTheBidRiseAgain) {
  enter("10", "5.00", "4", "8.00");
  recalculate();
  expectEntries("10", "5.00", "4", "5.00");
  boxes.txtDutchItemsSold = "10";
  boxes.txtDutchFinalPrice = "8";
  recalculate();
  expectEntries("10", "5.00", "10", "8.00");
  expectResults("6.60", "0.00", "80.00", "0.66");
}

TEST_F(MultipleItemsTab, SellingOneAfterNoneReplacesTheTextForNotAvailable) {
  enter("3", "2.00", "0", "4.00");
  recalculate();
  expectResults("0.35", "0.00", "0.00", kNotAvailable);
  boxes.txtDutchItemsSold = "1";
  recalculate();
  // The single of 0.105 lies below it: a commission of 0.10.
  expectResults("0.45", "0.00", "2.00", "0.45");
}

TEST_F(MultipleItemsTab, FollowsTheSite) {
  enter("3", "20.00", "3", "60.00");
  site.Site(CAuctionSite::eBayGermany);
  recalculate();
  expectResults("10.30", "0.00", "180.00", "3.43");
  site.Site(CAuctionSite::eBayUS);
  recalculate();
  // 2.40, and three times 1.3125 + 35 x 2.75 %: the single of 2.275 lies below it.
  expectResults("9.22", "0.00", "180.00", "3.07");
}

class GermanMultipleItemsTab : public MultipleItemsTab {
 protected:
  GermanMultipleItemsTab() : MultipleItemsTab(deDE()) {}
};

TEST_F(GermanMultipleItemsTab, ReadsGroupedPrices) {
  enter("2", "1.234,50", "2", "1.300,00");
  recalculate();
  expectEntries("2", "1234,50", "2", "1300,00");
  // 4.80, and two times 28.125 + 300 x 1.5 %
  expectResults("70,05", "0,00", "2600,00", "35,03");
}

TEST_F(GermanMultipleItemsTab, CountsAPointOfTheKeypadAsEmpty) {
  showOldResults();
  enter("3", ".", "3", "7");
  recalculate();
  expectEntries("3", ".", "3", "7,00");
  expectResults("1.5", "2.5", "3,50", "4.5");
}

TEST_F(MultipleItemsTab, WithoutCalculatorsTheFeesAreNotTouched) {
  const MultipleItemsCalculators incomplete[] = {{nullptr, nullptr}, {&site, nullptr}, {nullptr, &auction()}};
  for (const MultipleItemsCalculators& calculators : incomplete) {
    showOldResults();
    enter("10", "5", "4", "7");
    recalculateWith(calculators);
    expectEntries("10", "5.00", "4", "5.00");
    expectResults("1.5", "2.5", "3.50", "4.5");
    enter("3", "5", "5", "7");
    recalculateWith(calculators);
    expectEntries("3", "5.00", "3", "7.00");
    expectResults("1.5", "2.5", "3.50", "4.5");
  }
}

struct FaultyRow {
  const char* rule;
  const char* offered;
  const char* opening;
  const char* sold;
  const char* bid;
  const char* offending;
};

// clang-format off
const FaultyRow kNoNumbers[] = {
  {"letters as items offered",                 "abc",   "5",     "3",     "7",     "abc"},
  {"letters as opening price",                 "3",     "abc",   "3",     "7",     "abc"},
  {"letters as items sold",                    "3",     "5",     "abc",   "7",     "abc"},
  {"letters as items sold, entries incomplete", "3",    "",      "abc",   "7",     "abc"},
  {"letters as lowest bid",                    "3",     "5",     "3",     "abc",   "abc"},
  {"the lowest bid is compared with the opening price, so it is read first", "3", "1e30", "3", "abc", "abc"},
  {"a blank is not an empty box",              "3",     " ",     "3",     "7",     " "},
  {"two signs",                                "3",     "--5",   "3",     "7",     "--5"},
};

const FaultyRow kTooLarge[] = {
  {"one item too many offered",                "32768", "5",     "3",     "7",     "32768"},
  {"one item too many sold",                   "3",     "5",     "32768", "7",     "32768"},
  {"one item too many offered and sold",       "32768", "5",     "32768", "7",     "32768"},
  {"items offered that would wrap to three",   "65539", "5",     "3",     "7",     "65539"},
  {"items sold that would wrap to three",      "3",     "5",     "65539", "7",     "65539"},
  {"half an item too many goes up",            "32767.5", "5",   "3",     "7",     "32767.5"},
  {"items offered beyond a double",            "1e400", "5",     "3",     "7",     "1e400"},
  {"an opening price beyond the currency",     "3",     "1e30",  "3",     "7",     "1e30"},
  {"a lowest bid beyond the currency",         "3",     "5",     "3",     "1e30",  "1e30"},
  {"an opening price beyond a double",         "3",     "1e400", "3",     "7",     "1e400"},
};
// clang-format on

class MultipleItemsFault : public MultipleItemsTab {
 protected:
  template <typename Error, std::size_t count>
  void expectFault(const FaultyRow (&rows)[count]) {
    for (const FaultyRow& row : rows) {
      SCOPED_TRACE(row.rule);
      showOldResults();
      enter(row.offered, row.opening, row.sold, row.bid);
      try {
        recalculate();
        ADD_FAILURE() << "no error";
      } catch (const Error& error) {
        EXPECT_EQ(error.offendingText(), row.offending);
      }
      expectEntries(row.offered, row.opening, row.sold, row.bid);
      expectResults("1.5", "2.5", "3.5", "4.5");
    }
  }
};

TEST_F(MultipleItemsFault, OfATextThatIsNoNumberLeavesTheBoxes) { expectFault<ConversionError>(kNoNumbers); }

TEST_F(MultipleItemsFault, OfANumberThatIsTooLargeLeavesTheBoxes) { expectFault<OverflowError>(kTooLarge); }

// 4.80 for the listing; 1.5 % of a hundred of the dearest items is more than the currency holds.
TEST_F(MultipleItemsFault, OfACommissionThatIsTooLargeKeepsTheStepsBeforeIt) {
  enter("100", "5.00", "100", "922337203685477.58");
  EXPECT_THROW(recalculate(), OverflowError);
  expectEntries("100", "5.00", "100", "922337203685477.58");
  EXPECT_EQ(boxes.txtDutchFees, "4.80");
  EXPECT_EQ(boxes.txtExtraFeaturesDutch, "0.00");
}

}  // namespace

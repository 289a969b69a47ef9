#include <gtest/gtest.h>

#include "amount_errors.h"
#include "single_item_tab.h"
#include "test_locales.h"

/// \file
/// The single-item tab over several recalculations, without a calculator, and when a step fails.

namespace {

/// The tab of one seller: boxes and choices that live through several recalculations.
class SingleItemTab : public testing::Test {
 protected:
  SingleItemTab() {
    m_site.Site(CAuctionSite::eBayUS);
    m_calculator.Site(m_site);
  }

  void enter(const char* opening, const char* closing) {
    boxes.txtStartingPrice = opening;
    boxes.txtPrice = closing;
  }

  void recalculate() { recalculateSingleItem(choices, &m_calculator, m_locale, boxes); }
  void recalculateWithoutCalculator() { recalculateSingleItem(choices, nullptr, m_locale, boxes); }

  void expectResults(const char* insertion, const char* extras, const char* fvf, const char* fees) const {
    EXPECT_EQ(boxes.txtInsertionFee, insertion);
    EXPECT_EQ(boxes.txtExtras, extras);
    EXPECT_EQ(boxes.txtFVF, fvf);
    EXPECT_EQ(boxes.txtFees, fees);
  }

  CRegularAuction& calculator() { return m_calculator; }

  SingleItemChoices choices;
  SingleItemBoxes boxes;

 private:
  NumberLocale m_locale = enUS();
  CAuctionSite m_site;
  CRegularAuction m_calculator{enUS()};
};

TEST_F(SingleItemTab, TheListingFeeIsAskedBeforeThePriceIsFormatted) {
  enter("0.995", "");
  recalculate();
  EXPECT_EQ(boxes.txtStartingPrice, "1.00");
  expectResults("0.00", "0.00", "0.05", "0.05");
  recalculate();
  EXPECT_EQ(boxes.txtStartingPrice, "1.00");
  expectResults("0.35", "0.00", "0.05", "0.40");
}

TEST_F(SingleItemTab, ASecondRecalculationChangesNothing) {
  enter("150", "50");
  choices.cboIsReserve = 1;
  choices.chkBold = true;
  recalculate();
  recalculate();
  EXPECT_EQ(boxes.txtPrice, "50.00");
  expectResults("4.40", "1.00", "", "5.40");
}

TEST_F(SingleItemTab, AReserveRaisedAboveTheClosingBidIsNotMet) {
  choices.cboIsReserve = 1;
  enter("40", "50");
  recalculate();
  expectResults("1.20", "0.00", "2.00", "3.20");
  boxes.txtStartingPrice = "150";
  recalculate();
  EXPECT_EQ(boxes.txtPrice, "50.00");
  expectResults("4.40", "0.00", "", "4.40");
  boxes.txtPrice = boxes.txtStartingPrice;  // what leaving the closing box makes of a bid below the reserve
  recalculate();
  expectResults("2.40", "0.00", "4.75", "7.15");
}

TEST_F(SingleItemTab, UntickingDidNotSellWithoutAReserveRaisesTheBid) {
  enter("9.99", "0.00");
  choices.chkDidNotSell = true;
  recalculate();
  EXPECT_EQ(boxes.txtPrice, "0.00");
  choices.chkDidNotSell = false;
  recalculate();
  EXPECT_EQ(boxes.txtPrice, "9.99");
  expectResults("0.35", "0.00", "0.52", "0.87");
}

TEST_F(SingleItemTab, UntickingDidNotSellWithAReserveIsStillNotSold) {
  enter("150", "0.00");
  choices.chkDidNotSell = true;
  choices.cboIsReserve = 1;
  recalculate();
  choices.chkDidNotSell = false;
  recalculate();
  EXPECT_EQ(boxes.txtPrice, "0.00");
  expectResults("4.40", "0.00", "", "4.40");
}

// A fixed-price listing hides the reserve list; the listing type is no choice of the calculation.
TEST_F(SingleItemTab, AReserveChosenBeforeTheListBecameHiddenStillCounts) {
  enter("150", "0.00");
  choices.cboIsReserve = 1;
  choices.chkDidNotSell = true;
  recalculate();
  expectResults("4.40", "0.00", "", "4.40");
}

TEST_F(SingleItemTab, ASoldItemLeavesTheHighBidEmpty) {
  enter("9.99", "25");
  recalculate();
  EXPECT_EQ(calculator().HighBid(), "");
  EXPECT_EQ(boxes.txtPrice, "25.00");
}

TEST_F(SingleItemTab, AnUnsoldItemIsNotAskedForItsFinalValueFee) {
  enter("9.99", "0.00");
  choices.chkDidNotSell = true;
  recalculate();
  EXPECT_EQ(calculator().HighBid(), "");
}

TEST_F(SingleItemTab, AnEarlierHighBidDoesNotReachTheClosingBox) {
  static_cast<void>(calculator().FVF("5", "", false, false, true, false));
  ASSERT_EQ(calculator().HighBid(), " 0");
  enter("9.99", "25");
  recalculate();
  EXPECT_EQ(boxes.txtPrice, "25.00");
  expectResults("0.35", "0.00", "1.31", "1.66");
}

TEST_F(SingleItemTab, WithoutACalculatorThePricesAreStillSettled) {
  expectResults("", "", "", "");
  boxes.txtInsertionFee = boxes.txtExtras = boxes.txtFVF = boxes.txtFees = "99";
  enter("10", "5");
  recalculateWithoutCalculator();
  EXPECT_EQ(boxes.txtStartingPrice, "10.00");
  EXPECT_EQ(boxes.txtPrice, "10.00");
  expectResults("", "", "", "");
}

TEST_F(SingleItemTab, WithoutACalculatorAReserveIsNotRaised) {
  enter("10", "5");
  choices.cboIsReserve = 1;
  recalculateWithoutCalculator();
  EXPECT_EQ(boxes.txtPrice, "5.00");
  expectResults("", "", "", "");
}

TEST_F(SingleItemTab, WithoutACalculatorEmptyBoxesAreTreatedAsEver) {
  recalculateWithoutCalculator();
  EXPECT_EQ(boxes.txtStartingPrice, "");
  EXPECT_EQ(boxes.txtPrice, "0.00");
  choices.chkDidNotSell = true;
  boxes.txtPrice = "";
  recalculateWithoutCalculator();
  EXPECT_EQ(boxes.txtPrice, "");
}

struct FaultyRow {
  const char* rule;
  const char* opening;
  const char* closing;
  const char* offending;
};

// clang-format off
const FaultyRow kNoNumbers[] = {
  {"letters as opening bid",             "abc",     "10",      "abc"},
  {"letters as closing bid",             "10",      "abc",     "abc"},
  {"the opening bid is read first",      "abc",     "xyz",     "abc"},
  {"two signs",                          "--5",     "10",      "--5"},
  {"a blank is not an empty box",        " ",       "10",      " "},
  {"an emoji",                           "10",      "😀",      "😀"},
};

const FaultyRow kTooLarge[] = {
  {"an opening bid beyond the currency", "922337203685477.5808",  "1",     "922337203685477.5808"},
  {"a closing bid beyond the currency",  "1",     "922337203685477.5808",  "922337203685477.5808"},
  {"a number beyond a double",           "1e400",   "1",       "1e400"},
};
// clang-format on

template <typename Error, std::size_t count>
void expectFault(const FaultyRow (&rows)[count]) {
  CAuctionSite site;
  site.Site(CAuctionSite::eBayUS);
  CRegularAuction calculator(enUS());
  calculator.Site(site);
  for (const FaultyRow& row : rows) {
    SCOPED_TRACE(row.rule);
    SingleItemBoxes boxes{row.opening, row.closing, "1", "2", "3", "4"};
    try {
      recalculateSingleItem({}, &calculator, enUS(), boxes);
      ADD_FAILURE() << "no error";
    } catch (const Error& error) {
      EXPECT_EQ(error.offendingText(), row.offending);
    }
    EXPECT_EQ(boxes.txtStartingPrice, row.opening);
    EXPECT_EQ(boxes.txtPrice, row.closing);
    EXPECT_EQ(boxes.txtInsertionFee + boxes.txtExtras + boxes.txtFVF + boxes.txtFees, "");
    EXPECT_THROW(static_cast<void>(itemSold({}, boxes, enUS())), Error);
  }
}

TEST(SingleItemFault, OfATextThatIsNoNumberLeavesTheResultsCleared) {
  expectFault<ConversionError>(kNoNumbers);
}

TEST(SingleItemFault, OfAnAmountThatIsTooLargeLeavesTheResultsCleared) {
  expectFault<OverflowError>(kTooLarge);
}

TEST(SingleItemFault, WithoutACalculatorIsRaisedAsWell) {
  SingleItemBoxes boxes{"abc", "10", "1", "2", "3", "4"};
  EXPECT_THROW(recalculateSingleItem({}, nullptr, enUS(), boxes), ConversionError);
  EXPECT_EQ(boxes.txtInsertionFee + boxes.txtExtras + boxes.txtFVF + boxes.txtFees, "");
}

// A calculator for another user's signs refuses a text that the tab itself could read.
TEST(SingleItemFault, KeepsWhatTheStepsBeforeItWrote) {
  CAuctionSite site;
  site.Site(CAuctionSite::eBayUS);
  CRegularAuction american(enUS());
  american.Site(site);
  SingleItemBoxes boxes{"1.234,50", "", "1", "2", "3", "4"};
  EXPECT_THROW(recalculateSingleItem({}, &american, deDE(), boxes), ConversionError);
  EXPECT_EQ(boxes.txtStartingPrice, "1.234,50");
  EXPECT_EQ(boxes.txtPrice, " 1234,5");
  EXPECT_EQ(boxes.txtInsertionFee + boxes.txtExtras + boxes.txtFVF + boxes.txtFees, "");
}

TEST_F(SingleItemTab, TheLargestAmountIsStillCalculated) {
  enter("", "922337203685477.5807");
  recalculate();
  EXPECT_EQ(boxes.txtPrice, "922337203685477.58");
  // 1.5 % of it is 13,835,058,055,282; a single knows seven digits of that.
  expectResults("0.00", "0.00", "13835060000000.00", "13835060000000.00");
}

}  // namespace

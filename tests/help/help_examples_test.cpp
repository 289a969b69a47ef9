#include <gtest/gtest.h>

#include <charconv>

#include "amount_text.h"
#include "arithmetic.h"
#include "help_page.h"
#include "multiple_items_tab.h"
#include "payment_tab.h"
#include "single_item_tab.h"

/// \file
/// The worked examples of the help pages: what a page says that the window shows is what the tab's own
/// function shows for the same entries, in the page's decimal sign, and every printed sum comes to what it
/// says.

namespace {

/// The boxes of a tab by the names of their controls.
using Boxes = std::map<std::string, std::string*>;
using Flags = std::map<std::string, bool*>;
using Indexes = std::map<std::string, int*>;

struct Controls {
  Boxes boxes;
  Flags flags;
  Indexes indexes;
};

NumberLocale localeOf(const HelpPage& page) {
  return page.decimal == "," ? NumberLocale{",", ".", "€"} : NumberLocale{".", ",", "$"};
}

bool isEmptyNote(const std::string& text) { return text == "(empty)" || text == "(leer)"; }

int wholeNumber(const std::string& text) {
  int number = -1;
  std::from_chars(text.data(), text.data() + text.size(), number);
  return number;
}

/// Puts the entries of an example into the controls. A name that the tab does not have is a failure.
void enter(const Element& example, const Controls& controls) {
  for (const Element* cell : elementsWith(example, "data-enter")) {
    const std::string name = cell->attribute("data-enter");
    ASSERT_TRUE(controls.boxes.contains(name)) << name;
    *controls.boxes.at(name) = cell->text;
  }
  for (const Element* cell : elementsWith(example, "data-tick")) {
    // The other option of a pair is what is left when this one is not chosen.
    const std::string name = cell->attribute("data-tick");
    if (name == "optPayPalStandard" || name == "optPayPalNonCreditCard" || name == "optOtherVehicle")
      continue;
    ASSERT_TRUE(controls.flags.contains(name)) << name;
    *controls.flags.at(name) = true;
  }
  for (const Element* cell : elementsWith(example, "data-choose")) {
    const std::string name = cell->attribute("data-choose");
    ASSERT_TRUE(controls.indexes.contains(name)) << name;
    *controls.indexes.at(name) = wholeNumber(cell->attribute("data-index"));
  }
}

void expectShown(const Element& example, const Controls& controls) {
  const auto cells = elementsWith(example, "data-box");
  EXPECT_FALSE(cells.empty());
  for (const Element* cell : cells) {
    const std::string name = cell->attribute("data-box");
    ASSERT_TRUE(controls.boxes.contains(name)) << name;
    EXPECT_EQ(isEmptyNote(cell->text) ? "" : cell->text, *controls.boxes.at(name)) << name;
  }
}

void checkSingle(const Element& example, const HelpPage& page, const CAuctionSite& site) {
  SingleItemChoices c;
  SingleItemBoxes b;
  const Controls controls{{{"txtStartingPrice", &b.txtStartingPrice},
                           {"txtPrice", &b.txtPrice},
                           {"txtInsertionFee", &b.txtInsertionFee},
                           {"txtExtras", &b.txtExtras},
                           {"txtFVF", &b.txtFVF},
                           {"txtFees", &b.txtFees}},
                          {{"chkDidNotSell", &c.chkDidNotSell},
                           {"chkRealEstate", &c.chkRealEstate},
                           {"optTimeshare", &c.optTimeshare},
                           {"chkMotors", &c.chkMotors},
                           {"chkVehicle", &c.chkVehicle},
                           {"optMotorcycle", &c.optMotorcycle},
                           {"chkSubTitleSingleItem", &c.chkSubTitleSingleItem},
                           {"chkExtraPhotos", &c.chkExtraPhotos},
                           {"chkTenDayAuction", &c.chkTenDayAuction},
                           {"chkTwoCategories", &c.chkTwoCategories},
                           {"chkGallery", &c.chkGallery},
                           {"chkBold", &c.chkBold}},
                          {{"cboIsReserve", &c.cboIsReserve},
                           {"cboRealEstateType", &c.cboRealEstateType},
                           {"cboExtraPhotos", &c.cboExtraPhotos}}};
  enter(example, controls);
  CRegularAuction calculator(localeOf(page));
  calculator.Site(site);
  recalculateSingleItem(c, &calculator, localeOf(page), b);
  expectShown(example, controls);
}

void checkMultiple(const Element& example, const HelpPage& page, const CAuctionSite& site) {
  MultipleItemsChoices c;
  MultipleItemsBoxes b;
  const Controls controls{{{"txtDutchItemsOffered", &b.txtDutchItemsOffered},
                           {"txtDutchOpeningPrice", &b.txtDutchOpeningPrice},
                           {"txtDutchItemsSold", &b.txtDutchItemsSold},
                           {"txtDutchFinalPrice", &b.txtDutchFinalPrice},
                           {"txtDutchFees", &b.txtDutchFees},
                           {"txtExtraFeaturesDutch", &b.txtExtraFeaturesDutch},
                           {"txtTotalDutchAuctionSales", &b.txtTotalDutchAuctionSales},
                           {"txtDutchCostPerItem", &b.txtDutchCostPerItem}},
                          {{"chkDutchTwoCategories", &c.chkDutchTwoCategories},
                           {"chkDutchBold", &c.chkDutchBold},
                           {"chkDutchHighlight", &c.chkDutchHighlight},
                           {"chkDutchGallery", &c.chkDutchGallery},
                           {"chkDutchFeaturedPlus", &c.chkDutchFeaturedPlus}},
                          {}};
  enter(example, controls);
  CDutchAuction auction(localeOf(page));
  auction.Site(site);
  recalculateMultipleItems(c, {&site, &auction}, localeOf(page), "N/A", b);
  expectShown(example, controls);
}

void checkPayment(const Element& example, const HelpPage& page, CAuctionSite& site) {
  PaymentChoices c;
  PaymentBoxes b;
  const Controls controls{{{"txtPaymentAmount", &b.txtPaymentAmount},
                           {"txtConversion", &c.txtConversion},
                           {"txtPayPalFee", &b.txtPayPalFee}},
                          {{"optPayPalMerchant", &c.optPayPalMerchant},
                           {"optPayPalCreditCard", &c.optPayPalCreditCard},
                           {"chkInternationalPayPal", &c.chkInternationalPayPal}},
                          {}};
  enter(example, controls);
  CPaymentService calculator(localeOf(page));
  calculator.Site(site);
  recalculatePayment(c, &calculator, localeOf(page), b);
  expectShown(example, controls);
}

class HelpExamples : public testing::TestWithParam<HelpPage> {
 protected:
  Element m_page = parsePage(sourceOf(GetParam()));
};

TEST_P(HelpExamples, ShowWhatTheProgramShows) {
  for (const Element* example : elementsWith(m_page, "data-kind")) {
    const std::string kind = example->attribute("data-kind");
    SCOPED_TRACE(example->children.front().text);
    CAuctionSite site;
    site.Site(wholeNumber(example->attribute("data-site")));
    if (kind == "single") {
      checkSingle(*example, GetParam(), site);
    } else if (kind == "multiple") {
      checkMultiple(*example, GetParam(), site);
    } else if (kind == "payment") {
      checkPayment(*example, GetParam(), site);
    } else {
      ADD_FAILURE() << "no tab is called " << kind;
    }
  }
}

TEST_P(HelpExamples, CoverEverySiteOnEveryTab) {
  std::map<std::string, int> counts;
  for (const Element* example : elementsWith(m_page, "data-kind"))
    ++counts[example->attribute("data-kind") + example->attribute("data-site")];
  for (const std::string kind : {"single", "multiple", "payment"}) {
    for (const std::string site : {"1", "2", "3", "4"}) EXPECT_GE(counts[kind + site], 1) << kind << site;
  }
}

TEST_P(HelpExamples, HaveSumsThatComeToWhatTheySay) {
  constexpr double halfCent = 0.005;
  int sums = 0;
  visit(m_page, [&](const Element& element) {
    if (element.attribute("class") != "sum") return;
    ++sums;
    PrintedSum sum;
    ASSERT_NO_THROW(sum = workOut(element.text, GetParam().decimal)) << element.text;
    EXPECT_NEAR(sum.left, toDouble(sum.result, localeOf(GetParam())), halfCent + 1e-9) << element.text;
  });
  EXPECT_GT(sums, 30);
}

// The last sum beside a result is the one that leads to it, but where the result is a limit below the sum.
TEST_P(HelpExamples, EndTheirSumsInTheFigureBesideThem) {
  visit(m_page, [](const Element& row) {
    if (row.tag != "tr") return;
    const auto figures = elementsWith(row, "data-box");
    const Element* last = nullptr;
    visit(row, [&](const Element& each) {
      if (each.attribute("class") == "sum") last = &each;
    });
    if (figures.empty() || last == nullptr) return;
    EXPECT_TRUE(last->text.ends_with(figures.front()->text)) << row.text;
  });
}

TEST(PrintedSums, AreWorkedOutWithProductsBeforeSums) {
  EXPECT_DOUBLE_EQ(workOut("1 + 2 × 3 = 7", ".").left, 7);
  EXPECT_DOUBLE_EQ(workOut("8 ÷ 2 − 50\u00a0% × 2 = 3,00", ",").left, 3);
  EXPECT_EQ(workOut("1,5 × 2 = 3,00", ",").result, "3,00");
  EXPECT_THROW(workOut("1 + = 2", "."), std::runtime_error);
  EXPECT_THROW(workOut("1 + 1", "."), std::runtime_error);
  EXPECT_THROW(workOut("1,5 = 1,5", "."), std::runtime_error);
}

INSTANTIATE_TEST_SUITE_P(Pages, HelpExamples, testing::ValuesIn(helpPages()),
                         [](const auto& page) { return std::string(page.param.language); });

}  // namespace

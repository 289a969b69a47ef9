#include "string_table.h"

#include <gtest/gtest.h>

#include <QString>
#include <utility>

namespace {

TEST(StringTable, HasEveryIdOfThePublishedRangesAndNoOther) {
  constexpr std::pair<int, int> ranges[] = {{201, 228}, {230, 377}, {382, 465},  {470, 470},
                                            {505, 505}, {601, 606}, {608, 656},  {658, 681},
                                            {685, 691}, {695, 700}, {5000, 5011}};
  std::vector<int> expected;
  for (const auto& [first, last] : ranges) {
    for (int id = first; id <= last; ++id) expected.push_back(id);
  }
  EXPECT_EQ(expected.size(), 366U);
  EXPECT_EQ(StringTable::ids(), expected);
}

TEST(StringTable, AnIdThatItLacksHasTheEmptyText) {
  for (const int id : {-1, 0, 200, 229, 378, 381, 466, 600, 607, 657, 682, 694, 701, 4999, 5012, 99999}) {
    EXPECT_TRUE(StringTable::englishText(id).isEmpty()) << id;
  }
}

TEST(StringTable, IdsThatNoWindowShowsAreKeptEmptyForTheLibraries) {
  for (const int id : {202, 210, 214, 226, 230, 437, 438, 457, 461, 602, 606, 608, 614, 658, 666, 676, 677}) {
    EXPECT_TRUE(StringTable::englishText(id).isEmpty()) << id;
  }
}

struct Text {
  const char* rule;
  int id;
  const char* text;
};

// clang-format off
constexpr Text kTexts[] = {
    {"the first text",                               201, "Check for product updates"},
    {"the product name",                            5000, "Tessaloom"},
    {"a trailing blank of a tab caption",            243, "&Shipping "},
    {"a trailing blank of a frame caption",          368, "Listing Type "},
    {"a trailing blank of a printed label",          667, "Page "},
    {"a trailing blank of the version label",        670, "Version "},
    {"two trailing blanks of a notepad heading",     638, "REGULAR AUCTION:  "},
    {"two trailing blanks of a notepad heading",     645, "DUTCH AUCTION:  "},
    {"two trailing blanks of a notepad heading",     654, "PAYMENT FEE:  "},
    {"a trailing blank of a notepad label",          634, "Reserve Price: "},
    {"a trailing blank of a notepad label",          635, "Opening Bid: "},
    {"a trailing blank of a notepad label",          639, "Item Sold?: "},
    {"a trailing blank of a notepad label",          640, "Closing Bid: "},
    {"a trailing blank of a notepad label",          641, "Listing Fee: "},
    {"a trailing blank of a notepad label",          642, "Extra Features Fees: "},
    {"a trailing blank of a notepad label",          643, "Final Value Fee: "},
    {"a trailing blank of a notepad label",          644, "TOTAL FEES: "},
    {"a trailing blank of a notepad label",          646, "Number Offered: "},
    {"a trailing blank of a notepad label",          647, "Opening Price: "},
    {"a trailing blank of a notepad label",          648, "Number Sold: "},
    {"a trailing blank of a notepad label",          649, "Sold at: "},
    {"a trailing blank of a notepad label",          650, "Total Revenue: "},
    {"a trailing blank of a notepad label",          651, "Extra Features Fees: "},
    {"a trailing blank of a notepad label",          652, "TOTAL FEES: "},
    {"a trailing blank of a notepad label",          653, "Fees Per Item: "},
    {"a trailing blank of a notepad label",          655, "Payment Amount: "},
    {"a trailing blank of a notepad label",          656, "PayPal Fee: "},
    {"a label on the window has no trailing blank",  392, "Listing Fee:"},
    {"a double blank inside a tooltip",              341, "For eBay Picture Services photos that can be enlarged to 800 x 600.  One price for all photos."},
    {"a double blank inside a tooltip",              258, "Enter the exchange rate for this currency.  Used to calculate certain payment service fees."},
    {"a double blank inside a tooltip",              268, "Note:  Standard PayPal accounts are free.  These fees only apply to PayPal Premium accounts."},
    {"a kept spelling",                              241, "&Mutiple Items"},
    {"a kept spelling",                              347, "Shows the total cost of all extra listing fetures."},
    {"a kept spelling",                              387, "Check this box if you listed this item in the Real Estate catogory."},
    {"a kept spelling",                              290, "Enter the lowest sucessful bid placed on one of the items."},
    {"a kept spelling",                              361, "You listing is highlighted yellow, to make it stand out from other listings."},
    {"a kept spelling",                              409, "Airborn Express"},
    {"a kept spelling",                              462, "Could not load the localization resources from some reason."},
    {"in the table, though the window never asks",   410, "Creighters and Freighters"},
    {"the ad of ninety days",                        633, "90-day ad"},
};
// clang-format on

TEST(StringTable, TextsStandToTheLetter) {
  for (const Text& row : kTexts) {
    EXPECT_EQ(StringTable::englishText(row.id).toString().toStdString(), row.text)
        << row.rule << ", id " << row.id;
  }
}

}  // namespace

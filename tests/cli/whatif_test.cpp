#include "whatif.h"

#include <gtest/gtest.h>

#include <random>

#include "amount_text.h"
#include "command_run.h"
#include "option_values.h"

namespace {

const NumberLocale kSigns{".", ",", "$"};

struct WhatIfRow {
  const char* rule;
  const char* line;
  const char* answer;  ///< a line of the CSV answer
};

// clang-format off
// Up to 25.00 the seller keeps 94.75 % of a rise, above it 97.25 %: 24.99 - 1.31 - 0.60 = 23.08 are left.
constexpr WhatIfRow kRows[] = {
    {"0.20 more within the first tier: 25.20 - 1.32 - 0.80",  "whatif --opening 10 --closing 24.99", "ten-day,0.20,0.21,closing,25.20,23.08,23.07,"},
    {"5.00 more in the second tier: 30.13 - 1.45 - 5.60",     "whatif --opening 10 --closing 24.99", "highlight,5.00,5.14,closing,30.13,23.08,23.07,"},
    {"what is free has paid for itself",                      "whatif --site uk --opening 10 --closing 20", "ten-day,0.00,0.00,,20.00,18.60,,"},
    {"the pack saves the gallery",                            "whatif --opening 10 --closing 20 --gallery --supersize", "pictures pack,0.00,0.00,,20.00,17.35,,"},
    {"a vehicle pays for a sale whatever it brings",          "whatif --opening 10 --closing 2000 --vehicle", "bold,4.00,4.00,closing,2004.00,1920.00,1919.99,"},
    {"nothing was sold",                                      "whatif --opening 10 --did-not-sell", "bold,1.00,,,,,,nothing was sold that could pay for it"},
    // 3 sold at 4.00: three times 0.21 are 0.63, listed for 1.50; 0.75 more, and at 4.27 three pay 0.67.
    {"of several items each brings its part",                 "whatif --kind multiple --site uk --opening 4 --offered 10 --sold 3 --closing 9", "bold,0.75,0.27,opening,4.27,9.89,9.86,"},
    // All 5 sold at 10.00: 50.00 - 2.62 - 2.40; with 0.50 more five times 0.11 bring 50.55 - 2.65 - 2.90.
    {"where all are sold it is the lowest bid that rises",    "whatif --kind multiple --opening 10 --offered 5 --sold 5 --closing 8", "subtitle,0.50,0.11,closing,10.11,45.00,44.95,"},
};
// clang-format on

TEST(WhatIf, AFeatureIsPaidForByTheSmallestCentMore) {
  for (const WhatIfRow& row : kRows) {
    const CommandRun answer = runLine(std::string(row.line) + " --format csv");
    EXPECT_EQ(answer.status, AllGood) << answer.errors;
    EXPECT_NE(answer.out.find('\n' + std::string(row.answer) + '\n'), std::string::npos)
        << row.rule << ", wanted " << row.answer << '\n'
        << answer.out;
  }
}

struct OfferRow {
  const char* rule;
  const char* line;
  const char* feature;
  bool isThere;
};

// clang-format off
constexpr OfferRow kOffers[] = {
    {"not chosen yet",                          "whatif --opening 9",                               "gallery-featured", true},
    {"chosen already",                          "whatif --opening 9 --bold",                        "bold",             false},
    {"chosen with another feature",             "whatif --opening 9 --gallery-featured",            "gallery",          false},
    {"pictures were chosen",                    "whatif --opening 9 --pictures 2",                  "pictures pack",    false},
    {"on eBay.com only",                        "whatif --opening 9 --site de",                     "gift",             false},
    {"for single items only",                   "whatif --kind multiple --opening 9 --offered 2 --sold 2 --closing 9", "buy-it-now", false},
};
// clang-format on

TEST(WhatIf, FeaturesStandThereThatAreOfferedAndNotChosen) {
  for (const OfferRow& row : kOffers) {
    const std::string csv = runLine(std::string(row.line) + " --format csv").out;
    EXPECT_EQ(csv.find('\n' + std::string(row.feature) + ',') != std::string::npos, row.isThere) << row.rule;
    EXPECT_EQ(csv.find("feature,added_fees"), 0U) << csv;
  }
}

TEST(WhatIf, TheTextSaysWhichPriceHasToRise) {
  const std::string note =
      "With items left over all are sold at the opening price: it is what must be raised.";
  const std::string line = "whatif --kind multiple --opening 10 --closing 10 --offered 5 --sold ";
  EXPECT_NE(runLine(line + "3").out.find(note), std::string::npos);
  for (const char* sold : {"0", "5"})
    EXPECT_EQ(runLine(line + sold).out.find(note), std::string::npos) << sold;
  EXPECT_EQ(runLine("whatif --opening 10 --closing 30").out.find(note), std::string::npos);
}

/// What the seller keeps of a single item that sold for so much more.
Currency netAt(Pricer& pricer, Listing listing, Currency price) {
  listing.closing = plainText(price, kSigns);
  return toCurrency(pricer.price(listing).net, kSigns);
}

TEST(WhatIf, NoSmallerRisePaysOnAnySite) {
  // NOLINTNEXTLINE(cert-msc51-cpp): the same listings on every run
  std::mt19937 random(7);
  Pricer pricer(kSigns);
  for (int count = 0; count < 200; ++count) {
    Listing listing = plainListing(ListingKind::Single);
    listing.site = static_cast<std::int32_t>(1 + random() % 4);
    listing.single.chkVehicle = listing.single.chkMotors = random() % 3 == 0;
    listing.opening = "1";
    listing.closing =
        plainText(Currency::fromTenThousandths(static_cast<std::int64_t>(random() % 700000) * 100), kSigns);
    const Currency price = std::max(toCurrency(listing.closing, kSigns), toCurrency("1", kSigns));
    const Currency before = toCurrency(pricer.price(listing).net, kSigns);
    Listing bold = listing;
    bold.single.chkBold = true;
    for (const AddedFeature& row : whatIf(pricer, listing).features) {
      if (row.feature != "bold") continue;
      ASSERT_TRUE(row.paying.has_value());
      EXPECT_GE(netAt(pricer, bold, row.paying->price), before);
      for (std::int64_t rise = 0; rise < row.paying->rise.tenThousandths(); rise += 100)
        EXPECT_LT(netAt(pricer, bold, price + Currency::fromTenThousandths(rise)), before) << listing.closing;
    }
  }
}

}  // namespace

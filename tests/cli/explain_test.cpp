#include <gtest/gtest.h>

#include "command_run.h"

/// \file
/// One row for each rule that an explanation can name, its amount worked out by hand from the schedule.

namespace {

struct ExplainRow {
  const char* rule;
  const char* line;
  const char* step;  ///< step, amount and rule of a line of the CSV answer
};

// clang-format off
constexpr ExplainRow kRows[] = {
    // Listing fee
    {"a tier with its bounds",                      "single --opening 12",                            "Opening price 12.00,0.60,\"tier 3, 10.00 to 24.99: 0.60\""},
    {"the last tier has no upper bound",            "single --opening 500",                           "Opening price 500.00,4.80,\"tier 7, above 499.99: 4.80\""},
    {"the UK ladder leaves its sixth tier out",     "single --site uk --opening 150",                 "Opening price 150.00,2.00,\"tier 7, above 99.99: 2.00\""},
    {"doubled for two categories",                  "single --opening 12 --two-categories",           "Opening price 12.00,1.20,\"tier 3, 10.00 to 24.99: 0.60; doubled for two categories\""},
    {"between two tiers there is no fee",           "single --opening 0.995",                         "Opening price 0.995,0.00,\"in no tier, so free\""},
    {"without a price there is no fee",             "single --opening 0",                             "Opening price 0.00,0.00,free: there is no price"},
    {"real estate by type and format",              "single --real-estate 30-day-auction --timeshare","Listing real estate,50.00,30-day auction of a timeshare or land: 50.00"},
    {"a motorcycle",                                "single --motorcycle",                            "Listing a vehicle,30.00,a motorcycle: 30.00"},
    {"several items by what they are worth",        "multiple --opening 0.27 --offered 37 --sold 0 --closing 0", "37 at 0.27 = 9.99,0.35,\"tier 2, 1.00 to 9.99: 0.35\""},
    {"a price as it was entered, of any size",      "single --opening 1234567.89 --closing 0 --reserve", "Opening price 1234567.89,4.80,\"tier 7, above 499.99: 4.80\""},
    // Reserve fee
    {"reserve, first tier",                         "single --opening 40 --reserve --closing 1",      "Reserve of 40.00,1.00,\"tier 1, below 50.00: 1.00\""},
    {"reserve, second tier",                        "single --opening 150 --reserve --closing 1",     "Reserve of 150.00,2.00,\"tier 2, from 50.00 to below 200.00: 2.00\""},
    {"reserve, second tier in the UK: 2 % of 100",  "single --site uk --opening 100 --reserve",       "Reserve of 100.00,2.00,\"tier 2, from 50.00 to below 5000.00: 2 % of 100.00\""},
    {"reserve, a vehicle in the UK",                "single --site uk --opening 100 --reserve --vehicle", "Reserve of 100.00,3.00,\"tier 2, from 50.00 to below 5000.00 for a vehicle: 3.00\""},
    {"reserve, third tier: 1 % of 5000",            "single --opening 5000 --reserve --closing 1",    "Reserve of 5000.00,50.00,\"tier 3, from 200.00: 1 % of 5000.00\""},
    {"reserve, third tier, capped at 100",          "single --opening 20000 --reserve --closing 1",   "Reserve of 20000.00,100.00,\"tier 3, from 200.00: 1 % of 20000.00, capped at 100.00\""},
    {"at the cap nothing is cut",                   "single --opening 10000 --reserve --closing 1",   "Reserve of 10000.00,100.00,\"tier 3, from 200.00: 1 % of 10000.00\""},
    {"a share rounded down is not capped",          "single --opening 333.33 --reserve --closing 1",  "Reserve of 333.33,3.3333,\"tier 3, from 200.00: 1 % of 333.33\""},
    {"reserve of a US vehicle is free from 200",    "single --opening 300 --reserve --vehicle",       "Reserve of 300.00,0.00,\"tier 3, from 200.00 for a vehicle: free\""},
    {"reserve in the UK is free from 5000",         "single --site uk --opening 6000 --reserve",      "Reserve of 6000.00,0.00,\"tier 3, from 5000.00: free\""},
    {"a reserve that was met is free",              "single --opening 40 --reserve --closing 41",     "Reserve fee,,none: the reserve was met"},
    // Final value fee
    {"sale, first tier: 5.25 % of 25",              "single --opening 1 --closing 25",                "\"Final value, tier 1\",1.3125,5.25 % of 25.00 (up to 25.00)"},
    {"sale, second tier: 2.75 % of 85",             "single --opening 1 --closing 110",               "\"Final value, tier 2\",2.3375,2.75 % of 85.00 (above 25.00 up to 1000.00)"},
    {"sale, third tier: 1.5 % of 200",              "single --opening 1 --closing 1200",              "\"Final value, tier 3\",3.00,1.5 % of 200.00 (above 1000.00)"},
    {"real estate pays no final value fee",         "single --opening 1 --real-estate 30-day-ad",     "Final value fee,0.00,none: real estate carries no final value fee"},
    {"an unsold item pays none",                    "single --opening 1 --did-not-sell",              "Final value fee,,none: it did not sell"},
    {"a reserve that was not met pays none",        "single --opening 40 --reserve --closing 1",      "Final value fee,,none: the reserve was not met"},
    {"a bid below the opening price is raised",     "single --opening 10 --closing 5",                "Net,8.87,\"sold for 10.00, the opening price, less the total fees\""},
    {"a US vehicle pays a flat fee",                "single --opening 1 --closing 9000 --vehicle",    "Sale of a vehicle,40.00,a vehicle other than a motorcycle: 40.00"},
    {"a UK vehicle below 3000 too",                 "single --site uk --closing 2999 --vehicle",      "Sale of a vehicle,15.00,a vehicle other than a motorcycle sold for less than 3000.00: 15.00"},
    {"a UK vehicle from 3000: 0.5 % of it",         "single --site uk --closing 5000 --vehicle",      "Share of its price,25.00,0.5 % of 5000.00"},
    {"a UK vehicle from 6000 pays 30",              "single --site uk --closing 6000 --vehicle",      "Sale of a vehicle,30.00,a vehicle other than a motorcycle sold for 6000.00 or more: 30.00"},
    {"a German vehicle pays both",                  "single --site de --closing 8000 --vehicle",      "Share of its price,40.00,0.5 % of 8000.00"},
    {"a part of the price as it was entered",       "single --opening 10 --closing 1000.01",          "\"Final value, tier 3\",0.0001,1.5 % of 0.01 (above 1000.00)"},
    {"the cents of large prices too",               "single --opening 1 --closing 1234567.89",        "\"Final value, tier 3\",18503.5183,1.5 % of 1233567.89 (above 1000.00)"},
    {"the rest of a cent is told",                  "single --opening 1 --closing 25",                "Rounded,-0.0025,to the cent"},
    {"a fee of a million has seven digits",         "single --opening 1 --closing 123456789.12",      "Rounded,0.0382,\"to the cent, in the precision of the calculation\""},
    {"0.105 as a single lies below it: 0.31",       "multiple --opening 1 --closing 2 --offered 3 --sold 3", "Rounded,-0.005,\"to the cent, in the precision of the calculation\""},
    {"prices of ten million and more",              "single --closing 16777217.01 --vehicle",         "Net,16777137.01,\"sold for 16777217.01, less the total fees\""},
    {"of several items the tiers of all",           "multiple --opening 5 --closing 7 --offered 10 --sold 4", "\"Final value, tier 1\",1.05,4 x 5.25 % of 5.00 (up to 25.00)"},
    {"of one that was sold the tiers alone",        "multiple --opening 5 --closing 7 --offered 2 --sold 1", "\"Final value, tier 1\",0.2625,5.25 % of 5.00 (up to 25.00)"},
    {"of none that was sold there is no fee",       "multiple --opening 5 --closing 7 --offered 10 --sold 0", "Final value fee,0.00,none: nothing was sold"},
    // Extra features
    {"a feature that is not doubled",               "single --opening 1 --scheduled --two-categories",            "Scheduled listing,0.10,0.10; not doubled for two categories"},
    {"gallery featured covers the gallery",         "single --opening 1 --gallery-featured",                      "Gallery,0.00,included in Gallery Featured"},
    {"of several items both are charged",           "multiple --opening 1 --offered 2 --sold 0 --closing 0 --gallery-featured", "Gallery,0.25,0.25"},
    {"the pack includes the gallery",               "single --opening 1 --gallery --pictures pack",               "Gallery,0.00,included in the picture pack"},
    {"the pack includes supersizing",               "single --opening 1 --supersize --pictures pack",             "Pictures,1.00,\"the picture pack 1.00, supersizing included in the picture pack\""},
    {"pictures by their number",                    "single --opening 1 --site uk --pictures 3 --slideshow",      "Pictures,0.80,\"3 extra at 0.10 each, a slide show 0.50\""},
    {"the home page of several items",              "multiple --opening 1 --offered 2 --sold 0 --closing 0 --home-page-featured", "Home page,79.95,79.95 for several items"},
    {"gift services",                               "single --opening 1 --gift",                                  "Gift services,0.25,0.25"},
    {"on eBay Motors they are the listing icon",    "single --opening 1 --motors --gift",                         "Listing icon,0.25,0.25"},
    {"of several items there too",                  "multiple --opening 1 --offered 2 --sold 0 --closing 0 --motors --gift", "Listing icon,0.25,0.25"},
    {"gallery featured on eBay Motors",             "single --opening 1 --motors --gallery-featured",             "Gallery Featured,24.95,24.95 on eBay Motors"},
    {"gallery featured of a vehicle",               "single --vehicle --gallery-featured",            "Gallery Featured,99.95,99.95 for a vehicle"},
    {"the gallery of a US vehicle is free",         "single --vehicle --gallery",                     "Gallery,0.00,free for a vehicle"},
    {"ten days are free in the UK",                 "single --opening 1 --site uk --ten-day",                     "Ten days,0.00,free"},
    // Payments
    {"2.9 % of 100",                                "payment --amount 100",                           "Share of the amount,2.90,\"2.9 % of 100.00, the standard rate\""},
    {"2.2 % of 100 for merchants",                  "payment --amount 100 --merchant",                "Share of the amount,2.20,\"2.2 % of 100.00, the merchant rate\""},
    {"the flat fee follows the rate",               "payment --site uk --amount 1",                   "Flat fee,0.1592,\"0.15915, 0.30 US dollars at 0.5305\""},
    {"the flat fee at the rate that was given",     "payment --site de --amount 1 --rate 0.5",        "Flat fee,0.15,\"0.15, 0.30 US dollars at 0.5\""},
    {"29.30 cut to 5.00",                           "payment --amount 1000 --echeck",                 "Cap,-24.30,\"an eCheck, capped at 5.00\""},
    {"below the cap nothing is cut",                "payment --amount 100 --echeck",                  "Cap,0.00,\"an eCheck, not above the cap of 5.00\""},
    {"the surcharge exceeds the cap",               "payment --amount 1000 --echeck --international", "International,10.00,\"1 % of 1000.00, added after the cap\""},
    {"Billpoint up to its threshold",               "billpoint --amount 15",                          "Share of the amount,0.00,none: not above 15.00"},
    {"Billpoint by discounted card: 2.25 % of 100", "billpoint --amount 100 --discounted",            "Share of the amount,2.25,\"2.25 % of 100.00, the discounted rate of credit cards\""},
    {"Billpoint by eCheck in the UK: 25 %",         "billpoint --site uk --amount 100 --echeck",      "Share of the amount,25.00,\"25 % of 100.00, the standard rate of eChecks\""},
};
// clang-format on

TEST(Explain, EachRuleIsNamedWithItsAmount) {
  for (const ExplainRow& row : kRows) {
    const CommandRun answer = runLine(std::string(row.line) + " --explain --format csv");
    EXPECT_EQ(answer.status, AllGood) << row.rule << ": " << answer.errors;
    EXPECT_NE(answer.out.find('\n' + std::string(row.step) + ','), std::string::npos)
        << row.rule << "\n  wanted " << row.step << "\n  in\n"
        << answer.out;
  }
}

struct PartRow {
  const char* rule;
  const char* line;
  const char* step;
  const char* partOf;
};

// clang-format off
constexpr PartRow kParts[] = {
    {"a tier is part of its fee",        "single --opening 12 --closing 30", "\"Final value, tier 2\"", "Final value fee"},
    {"so is what rounding adds",         "single --opening 12 --closing 25", "Rounded",                 "Final value fee"},
    {"a feature is part of the features","single --opening 12 --bold",       "Bold",                    "Extra features"},
    {"the fees are parts of the total",  "single --opening 12",              "Listing fee",             "Total fees"},
    {"the reserve fee is one",           "single --opening 12 --reserve",    "Reserve fee",             "Total fees"},
    {"of several items too",             "multiple --opening 1 --offered 2 --sold 1 --closing 1", "Final value fee", "Total fees"},
    {"the total is part of nothing",     "single --opening 12",              "Total fees",              ""},
    {"nor is the net",                   "single --opening 12",              "Net",                     ""},
    {"nor a payment fee",                "payment --amount 100",             "Payment fee",             ""},
    {"whose steps are parts of it",      "payment --amount 100",             "Flat fee",                "Payment fee"},
};
// clang-format on

TEST(Explain, EachAmountForProgramsHasTheTotalItIsPartOfAndItsCurrency) {
  for (const PartRow& row : kParts) {
    const std::string csv = runLine(std::string(row.line) + " --explain --format csv").out;
    const std::size_t start = csv.find('\n' + std::string(row.step) + ',') + 1;
    const std::string line = csv.substr(start, csv.find('\n', start) - start);
    EXPECT_TRUE(line.ends_with(std::string(",").append(row.partOf).append(",$"))) << row.rule << ": " << line;
  }
  EXPECT_EQ(runLine("single --opening 1 --site uk --explain --format csv")
                .out.find("step,amount,rule,part_of,currency\n"),
            0U);
}

}  // namespace

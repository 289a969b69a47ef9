#include <fmt/format.h>
#include <gtest/gtest.h>

#include <fstream>
#include <map>
#include <sstream>

/// \file
/// Whole answers of the commands that look for prices, compared with the files in golden/.

#include "command_run.h"
#include "folders.h"

namespace {

struct GoldenRow {
  const char* file;
  const char* line;
};

// clang-format off
constexpr GoldenRow kGolden[] = {
  {"solve_net.txt",      "solve --net 23.09"},
  {"solve_profit.txt",   "solve --site uk --profit 5 --cost 8 --shipping 3 --payment paypal --opening 0.99"},
  {"solve_margin.txt",   "solve --site de --margin 20% --cost 8 --decimal ,"},
  {"solve_margin.csv",   "solve --site de --margin 12,5% --cost 8 --format csv --decimal ,"},
  {"solve_net.json",     "solve --net 20 --payment billpoint --shipping-charged 4 --format json"},
  {"bands_us.txt",       "bands"},
  {"bands_none.txt",     "bands --opening 1"},
  {"bands_uk.csv",       "bands --site uk --payment billpoint --echeck --format csv"},
  {"bands_ca.json",      "bands --site ca --two-categories --to 40 --format json"},
  {"curve_us.csv",       "curve --from 24 --to 27 --step 0.25 --format csv"},
  {"curve_us.txt",       "curve --from 0 --to 2.50 --step 0.25"},
  {"curve_uk.json",      "curve --site uk --payment paypal --from 14.80 --to 15.40 --step 0.20 --format json"},
};

struct RefusedRow {
  const char* line;
  int status;
  const char* why;
};

constexpr RefusedRow kRefused[] = {
  {"solve",                                    WrongUse,   "one target is needed: --net, --profit or --margin"},
  {"solve --net 5 --profit 5",                 WrongUse,   "one target is needed: --net, --profit or --margin"},
  {"solve --net 5 --cost 5",                   WrongUse,   "--cost and --shipping count with --profit and --margin, not with --net"},
  {"solve --net 5.005",                        WrongUse,   "--net: \"5.005\" could mean two numbers: say --decimal . or --decimal ,"},
  {"solve --net 5.0050 --decimal .",           WrongUse,   "--net: \"5.0050\" has parts of a cent"},
  {"solve --margin 101%",                      WrongUse,   "--margin: \"101%\" is more than the whole price"},
  {"solve --margin %",                         WrongUse,   "--margin: \"%\" is no number"},
  {"solve --net 5 --merchant",                 WrongUse,   "--merchant counts with --payment paypal only"},
  {"solve --net 5 --discounted",               WrongUse,   "--discounted counts with --payment billpoint only"},
  {"solve --net 5 --echeck",                   WrongUse,   "--echeck, --international and --rate count with --payment only"},
  {"solve --net 5 --site de --payment billpoint", WrongUse, "eBay Payments takes no amount on eBay Germany"},
  {"solve --net 5 --vary closing",             WrongUse,   "--vary closing needs an --opening price"},
  {"solve --net 5 --opening 3 --fixed-price",  WrongUse,   "a fixed price opens and closes alike: leave out --opening and --vary closing"},
  {"solve --net 5 --opening 3 --vary opening-and-closing", WrongUse, "--opening does not go with --vary opening-and-closing"},
  {"solve --net 999999",                       SomeFailed, "no price up to $ 1000000.00, the largest that is calculated, brings a net of $ 999999.00"},
  {"solve --net 1000000.01",                   WrongUse,   "--net: \"1000000.01\" is above 1000000.00, the largest price that is calculated"},
  {"solve --net 1500000 --real-estate 30-day-ad", WrongUse, "--net: \"1500000\" is above 1000000.00, the largest price that is calculated"},
  {"solve --profit 5 --cost 2e6",              WrongUse,   "--cost: \"2e6\" is above 1000000.00, the largest price that is calculated"},
  {"solve --profit 5 --opening 1000000.01",    WrongUse,   "--opening: \"1000000.01\" is above 1000000.00, the largest price that is calculated"},
  {"solve --net 5 --shipping-charged 1000001", WrongUse,   "--shipping-charged: \"1000001\" is above 1000000.00, the largest price that is calculated"},
  {"solve --net 5 --payment billpoint --rate 0 --site ca", WrongUse, "it cannot sell: C$ 0.01 is its lowest price, C$ 0.00 the largest that eBay Payments takes"},
  {"bands --opening 2000000",                  WrongUse,   "--opening: \"2000000\" is above 1000000.00, the largest price that is calculated"},
  {"bands --to 2000000",                       WrongUse,   "--to: \"2000000\" is above 1000000.00, the largest price that is calculated"},
  {"bands --to 600 --payment billpoint",       WrongUse,   "--to: must not be above $ 500.00, the largest that eBay Payments takes"},
  {"bands --opening 5 --to 3",                 WrongUse,   "--to: below $ 5.00, the lowest price at which it can sell"},
  {"bands --payment billpoint --shipping-charged 600", WrongUse, "it cannot sell: $ 0.01 is its lowest price, $ 0.00 the largest that eBay Payments takes beside the shipping"},
  {"bands --opening 400 --site uk --payment billpoint", WrongUse, "it cannot sell: GBP 400.00 is its lowest price, GBP 350.00 the largest that eBay Payments takes"},
  {"bands --site ca --payment billpoint --rate 1e-30", WrongUse, "it cannot sell: C$ 0.01 is its lowest price, C$ 0.00 the largest that eBay Payments takes"},
  {"solve --net 600 --payment billpoint",      SomeFailed, "no price up to $ 500.00, the largest that eBay Payments takes, brings a net of $ 600.00"},
  {"curve --from 5 --to 4",                    WrongUse,   "--to: must be above $ 5.00"},
  {"curve --from 1000000",                     WrongUse,   "--from: must be below $ 1000000.00"},
  {"curve --to 1e12",                          WrongUse,   "--to: \"1e12\" is above 1000000.00, the largest price that is calculated"},
  {"curve --step 0.01 --to 1000.02",           WrongUse,   "--step: must be 0.02 or more: over this range that makes 100000 steps, the most"},
  {"curve --step 0",                           WrongUse,   "--step: must be above zero"},
  {"curve --svg x.svg --format csv",           WrongUse,   "--svg draws a picture: leave out --format"},
  {"curve --svg /",                            SomeFailed, "cannot write /: Is a directory"},
};
// clang-format on

std::string golden(const std::string& file) {
  std::stringstream content;
  content << std::ifstream(kSourceFolder + std::string("/tests/cli/golden/") + file).rdbuf();
  return content.str();
}

TEST(SolveGolden, AnswersAreThoseOfTheFiles) {
  for (const GoldenRow& row : kGolden) {
    const CommandRun answer = runLine(row.line);
    EXPECT_EQ(answer.out, golden(row.file)) << row.line;
    EXPECT_EQ(answer.errors, "") << row.line;
    EXPECT_EQ(answer.status, AllGood) << row.line;
  }
}

TEST(SolveGolden, WhatCannotBeAnsweredIsTold) {
  for (const RefusedRow& row : kRefused) {
    const CommandRun answer = runLine(row.line);
    EXPECT_EQ(answer.out, "") << row.line;
    EXPECT_EQ(answer.errors, "tessaloom-fees: " + std::string(row.why) + "\n") << row.line;
    EXPECT_EQ(answer.status, row.status) << row.line;
  }
}

struct FarRow {
  const char* line;
  const char* last;
};

// clang-format off
constexpr FarRow kFar[] = {
  {"bands --opening 1000000",                                "From $ 1000000.00 to $ 1000000.00, the largest that is calculated, "},
  {"bands --site ca --opening 1 --payment billpoint --rate 1e12", "From C$ 1.00 to C$ 1000000.00, the largest that is calculated, "},
  {"bands --site ca --payment billpoint --rate 2",           "From C$ 0.01 to C$ 1000.00, the largest that eBay Payments takes, "},
};
// clang-format on

TEST(SolveGolden, TheLargestPriceIsToldWithItsReason) {
  for (const FarRow& row : kFar) {
    const CommandRun answer = runLine(row.line);
    EXPECT_EQ(answer.out.find(row.last), 0U) << row.line << '\n' << answer.out << answer.errors;
    EXPECT_EQ(answer.status, AllGood) << row.line;
  }
}

/// The cells of the first row of CSV, by the names of their columns.
std::map<std::string, std::string> firstRowOf(const CommandRun& answer) {
  std::istringstream lines(answer.out);
  std::string names;
  std::string values;
  std::getline(lines, names);
  std::getline(lines, values);
  std::istringstream name(names);
  std::istringstream value(values);
  std::map<std::string, std::string> row;
  for (std::string key; std::getline(name, key, ',');) std::getline(value, row[key], ',');
  return row;
}

constexpr const char* kSold[] = {"",
                                 "--two-categories --bold --gallery",
                                 "--subtitle --pictures pack --buy-it-now",
                                 "--vehicle",
                                 "--motorcycle --bold",
                                 "--fixed-price --highlight"};

TEST(SolveGolden, FeesBearTheNamesThatTheyHaveWhereTheListingIsPriced) {
  for (const std::string site : {"us", "uk", "ca", "de"}) {
    for (const std::string sold : kSold) {
      const std::string listing = fmt::format("--site {} {} --format csv", site, sold);
      auto solved = firstRowOf(runLine("solve --net 61.37 --payment paypal --echeck " + listing));
      const std::string price = solved["price"];
      auto single =
          firstRowOf(runLine(fmt::format("single --opening {0} --closing {0} {1}", price, listing)));
      auto paid = firstRowOf(
          runLine(fmt::format("payment --echeck --site {} --format csv --amount {}", site, price)));
      EXPECT_EQ(solved["total_fees"], single["total_fees"]) << listing;
      EXPECT_EQ(solved["payment_fee"], paid["payment_fee"]) << listing;
      auto curve =
          firstRowOf(runLine(fmt::format("curve --payment paypal --echeck --from {} {}", price, listing)));
      for (const char* key : {"price", "total_fees", "payment_fee", "net"})
        EXPECT_EQ(curve[key], solved[key]) << key << listing;
    }
  }
}

}  // namespace

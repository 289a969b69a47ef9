#include <gtest/gtest.h>

#include <fstream>
#include <sstream>

/// \file
/// Whole answers of the commands that look for prices, compared with the files in golden/.

#include "command_run.h"

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
  {"solve --net 5.005",                        WrongUse,   "net: \"5.005\" could mean two numbers: say --decimal . or --decimal ,"},
  {"solve --net 5.0050 --decimal .",           WrongUse,   "net: \"5.0050\" has parts of a cent"},
  {"solve --margin 101%",                      WrongUse,   "margin: \"101%\" is more than the whole price"},
  {"solve --margin %",                         WrongUse,   "margin: \"%\" is no number"},
  {"solve --net 5 --merchant",                 WrongUse,   "--merchant counts with --payment paypal only"},
  {"solve --net 5 --discounted",               WrongUse,   "--discounted counts with --payment billpoint only"},
  {"solve --net 5 --echeck",                   WrongUse,   "--echeck, --international and --rate count with --payment only"},
  {"solve --net 5 --site de --payment billpoint", WrongUse, "eBay Payments takes no amount on eBay Germany"},
  {"solve --net 5 --vary closing",             WrongUse,   "--vary closing needs an --opening price"},
  {"solve --net 5 --opening 3 --fixed-price",  WrongUse,   "a fixed price opens and closes alike: leave out --opening and --vary closing"},
  {"solve --net 5 --opening 3 --vary opening-and-closing", WrongUse, "--opening does not go with --vary opening-and-closing"},
  {"solve --net 2000000",                      SomeFailed, "no price up to $ 1000000.00 brings a net of $ 2000000.00"},
  {"solve --net 600 --payment billpoint",      SomeFailed, "no price up to $ 500.00, the largest that eBay Payments takes, brings a net of $ 600.00"},
  {"curve --from 5 --to 4",                    WrongUse,   "to: must be above 5.00"},
  {"curve --step 0",                           WrongUse,   "step: must be above zero"},
  {"curve --svg x.svg --format csv",           WrongUse,   "--svg draws a picture: leave out --format"},
  {"curve --svg /",                            SomeFailed, "cannot write /: Is a directory"},
};
// clang-format on

std::string golden(const std::string& file) {
  std::stringstream content;
  content << std::ifstream(std::string(GOLDEN_FOLDER) + "/" + file).rdbuf();
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

}  // namespace

#include <gtest/gtest.h>

#include "command_run.h"

/// \file
/// What the commands for one listing or payment answer besides its fees, and what they refuse.

namespace {

struct AnswerRow {
  const char* rule;
  const char* line;
  const char* says;  ///< a whole line of the answer
};

// clang-format off
constexpr AnswerRow kAnswers[] = {
    // Four times 5.00, and 3.45 for four.
    {"several items bring their total sales",   "multiple --opening 5 --closing 7 --offered 10 --sold 4",              "Total sales         $  20.00"},
    {"and cost so much each",                   "multiple --opening 5 --closing 7 --offered 10 --sold 4",              "Fees per item sold  $   0.86"},
    {"where none was sold there is no share",   "multiple --opening 5 --closing 7 --offered 10 --sold 0",              "Fees per item sold       N/A"},
    {"which is an empty cell to programs",      "multiple --opening 5 --closing 7 --offered 10 --sold 0 --format csv", "2.40,,0.00,0.00,2.40,,-2.40,0.00,,$"},
    {"and no number",                           "multiple --opening 5 --closing 7 --offered 10 --sold 0 --format json","    \"fees_per_item\": null,"},
    {"explained: the sales",                    "multiple --opening 5 --closing 7 --offered 10 --sold 4 --explain --format csv", "Total sales,20.00,\"4 sold for 5.00 each, the opening price\",,$"},
    {"explained: the share",                    "multiple --opening 5 --closing 7 --offered 10 --sold 4 --explain --format csv", "Fees per item sold,0.86,\"total fees / 4 sold, rounded to the cent\",,$"},
    {"explained: no share",                     "multiple --opening 5 --closing 7 --offered 10 --sold 0 --explain --format csv", "Fees per item sold,,none: nothing was sold,,$"},
    {"a single item has neither",               "single --opening 5 --format csv",                                     "insertion_fee,reserve_fee,extra_features,final_value_fee,total_fees,payment_fee,net,currency"},
};

constexpr AnswerRow kRefusals[] = {
    {"an amount of which no fee can be told",  "payment --amount 1e37",                  "tessaloom-fees: The amount \"1e37\" is too large."},
    {"one that is too large halfway",          "payment --amount 1e300 --echeck",        "tessaloom-fees: The amount \"1e300\" is too large."},
    {"a result that nobody entered",           "payment --site uk --amount 5 --rate 1e38", "tessaloom-fees: the amounts given are too large to be calculated with"},
    {"a price that is entered is named",       "single --opening 1 --closing 1e30",              "tessaloom-fees: The amount \"1e30\" is too large."},
    {"a payment without an amount",            "payment",                                "tessaloom-fees: an amount is needed"},
    {"whatever the service",                   "billpoint",                              "tessaloom-fees: an amount is needed"},
    {"the limit of eChecks",                   "billpoint --amount 200.01 --echeck",     "tessaloom-fees: the amount is above 200.00, the largest that eBay Payments takes"},
    {"the limit of discounted cards",          "billpoint --amount 2000.01 --discounted","tessaloom-fees: the amount is above 2000.00, the largest that eBay Payments takes"},
    {"the limit at the rate that was given",   "billpoint --site ca --amount 900 --rate 1.5", "tessaloom-fees: the amount is above 750.00, the largest that eBay Payments takes"},
    {"in the user's signs",                    "billpoint --amount 501 --decimal ,",     "tessaloom-fees: the amount is above 500,00, the largest that eBay Payments takes"},
    {"a site without the service",             "billpoint --site de --amount 10",        "tessaloom-fees: eBay Germany does not have eBay Payments"},
};
// clang-format on

TEST(Price, TheAnswerHasTheLine) {
  for (const AnswerRow& row : kAnswers) {
    const CommandRun answer = runLine(row.line);
    EXPECT_EQ(answer.status, AllGood) << row.rule << ": " << answer.errors;
    EXPECT_NE(('\n' + answer.out).find('\n' + std::string(row.says) + '\n'), std::string::npos)
        << row.rule << '\n'
        << answer.out;
  }
}

TEST(Price, WhatCannotBePricedIsRefusedInTheUsersTerms) {
  for (const AnswerRow& row : kRefusals) {
    for (const char* explained : {"", " --explain"}) {
      const CommandRun answer = runLine(row.line + std::string(explained));
      EXPECT_EQ(answer.status, WrongUse) << row.rule;
      EXPECT_EQ(answer.out, "") << row.rule;
      EXPECT_EQ(answer.errors, std::string(row.says) + '\n') << row.rule;
    }
  }
}

TEST(Price, TheFinalValueFeeOfSeveralItemsIsTakenFromTheBidAsItWasEntered) {
  // 5.25 % of 10.005 is 0.5252625, a thousand times 525.26; of 10.01 it would be 525.53. They open at
  // 1000 x 0.01 = 10.00, third tier: 0.60.
  const CommandRun answer =
      runLine("multiple --opening 0.01 --offered 1000 --sold 1000 --closing 10.005 --decimal . --format csv");
  EXPECT_NE(answer.out.find("\n0.60,,0.00,525.26,525.86,"), std::string::npos) << answer.out;
}

}  // namespace

#include <gtest/gtest.h>

#include "command_run.h"

namespace {

/// The line of a CSV answer that starts so.
std::string lineOf(const std::string& csv, const std::string& start) {
  std::istringstream stream(csv);
  for (std::string line; std::getline(stream, line);) {
    if (line.starts_with(start)) return line;
  }
  return "";
}

/// The seven fees of `single`, without its currency.
std::string feesOf(const std::string& line) {
  const std::string csv = runLine(line + " --format csv").out;
  const std::string values = csv.substr(csv.find('\n') + 1);
  return values.substr(0, values.rfind(','));
}

TEST(Compare, EverySiteHasTheFeesThatSingleHasThere) {
  const std::string listing = " --opening 120 --closing 750 --bold --subtitle --two-categories --pictures 3";
  const std::string csv = runLine("compare" + listing + " --format csv").out;
  for (const std::string site : {"us,$", "uk,GBP", "ca,C$", "de,EUR"}) {
    const std::string fees = feesOf("single --site " + site.substr(0, 2) + listing);
    EXPECT_EQ(lineOf(csv, site), std::string(site).append(",").append(fees).append(",")) << csv;
  }
}

struct OutcomeRow {
  const char* rule;
  const char* outcome;
  const char* single;
};

constexpr OutcomeRow kOutcomes[] = {
    {"sold at the price aimed at", "target", "single --site uk --reserve --opening 100 --closing 250"},
    {"sold at the opening price", "opening", "single --site uk --reserve --opening 100 --closing 100"},
    {"unsold, the reserve is charged", "unsold", "single --site uk --reserve --opening 100 --did-not-sell"},
};

TEST(Compare, EveryOutcomeHasTheFeesThatSingleHasForIt) {
  const std::string csv =
      runLine("compare --by outcome --site uk --reserve --opening 100 --closing 250 --format csv").out;
  for (const OutcomeRow& row : kOutcomes)
    EXPECT_EQ(lineOf(csv, row.outcome), std::string(row.outcome) + ",GBP," + feesOf(row.single) + ',')
        << row.rule << '\n'
        << csv;
}

TEST(Compare, ASiteThatDoesNotOfferItSaysSoAndTheOthersAnswer) {
  const CommandRun answer = runLine("compare --opening 10 --closing 50 --gift --format csv");
  EXPECT_EQ(answer.status, SomeFailed);
  // 5.25 % of 25.00 and 2.75 % of 25.00 are 2.00; listed for 0.60, gift services for 0.25.
  EXPECT_EQ(lineOf(answer.out, "us"), "us,$,0.60,,0.25,2.00,2.85,,47.15,");
  for (const char* site : {"uk,GBP", "ca,C$", "de,EUR"}) {
    EXPECT_EQ(lineOf(answer.out, site),
              std::string(site) + ",,,,,,,,gift services are offered on eBay.com only");
  }
}

TEST(Compare, EveryFormatFailsWhereARowDoes) {
  for (const char* format : {"text", "csv", "json"}) {
    const std::string end = std::string(" --format ") + format;
    EXPECT_EQ(runLine("compare --opening 10 --real-estate 30-day-ad" + end).status, SomeFailed) << format;
    EXPECT_EQ(runLine("compare --opening 10 --bold" + end).status, AllGood) << format;
    EXPECT_EQ(runLine("compare --by outcome --opening 10 --closing 20 --gift" + end).status, AllGood)
        << format;
  }
}

struct HeadingRow {
  const char* rule;
  const char* line;
  const char* headings;
};

// clang-format off
constexpr HeadingRow kHeadings[] = {
    {"sold at the price aimed at",              "compare --by outcome --opening 5 --closing 7.5",             "Sold at 7.50  Sold at 5.00  Unsold"},
    {"a bid below the opening price is raised", "compare --by outcome --opening 10 --closing 5",              "Sold at 10.00  Sold at 10.00  Unsold"},
    {"a bid below the reserve wins nothing",    "compare --by outcome --opening 10 --closing 5 --reserve",    "Unsold at 5.00  Sold at 10.00  Unsold"},
    {"all items at the bid, those sold below",  "compare --by outcome --kind multiple --opening 10 --closing 30 --offered 5 --sold 3", "5 of 5 sold at 30.00  3 of 5 sold at 10.00  None sold"},
    {"all items at a bid that is raised",       "compare --by outcome --kind multiple --opening 10 --closing 3 --offered 5 --sold 3",  "5 of 5 sold at 10.00  3 of 5 sold at 10.00  None sold"},
};
// clang-format on

TEST(Compare, TheHeadingsNameWhatWasSoldAndThePriceThatCounted) {
  for (const HeadingRow& row : kHeadings) {
    const CommandRun answer = runLine(row.line);
    const std::string first = answer.out.substr(0, answer.out.find('\n'));
    EXPECT_TRUE(first.ends_with(std::string("  ") + row.headings))
        << row.rule << ": " << first << answer.errors;
  }
}

constexpr OutcomeRow kMultipleOutcomes[] = {
    {"all offered are sold at the lowest bid", "target",
     "multiple --opening 10 --closing 30 --offered 5 --sold 5"},
    {"as many as were sold at the opening", "opening",
     "multiple --opening 10 --closing 10 --offered 5 --sold 3"},
    {"none are sold", "unsold", "multiple --opening 10 --closing 10 --offered 5 --sold 0"},
};

TEST(Compare, EveryOutcomeOfSeveralItemsHasTheFeesThatMultipleHasForIt) {
  const std::string csv =
      runLine(
          "compare --by outcome --kind multiple --opening 10 --closing 30 --offered 5 --sold 3 --format csv")
          .out;
  for (const OutcomeRow& row : kMultipleOutcomes) {
    // Without the total sales and the fees per item, which end the line of `multiple`.
    std::string fees = feesOf(row.single);
    for (int left = 2; left > 0; --left) fees.erase(fees.rfind(','));
    EXPECT_EQ(lineOf(csv, row.outcome), std::string(row.outcome) + ",$," + fees + ',') << row.rule << '\n'
                                                                                       << csv;
  }
}

TEST(Compare, TheTextSaysThatNothingIsConverted) {
  EXPECT_EQ(runLine("compare --opening 10").out.find("Each site in its own currency; nothing is converted."),
            0U);
}

struct WrongRow {
  const char* rule;
  const char* line;
  const char* says;
};

// clang-format off
constexpr WrongRow kWrong[] = {
    {"all sites are shown, so none is chosen",   "compare --opening 10 --site uk",                       "--site is for --by outcome"},
    {"the outcomes need a price aimed at",       "compare --by outcome --opening 10",                    "needs --closing"},
    {"and one that it can be sold for",          "compare --by outcome --closing 10 --vehicle",          "needs --opening"},
    {"an outcome is not asked for by itself",    "compare --by outcome --did-not-sell --closing 1",      "one of the outcomes"},
    {"an option of the other kind",              "compare --kind multiple --vehicle",                    "--vehicle is not for"},
    {"what no site offers",                      "compare --opening 1 --reserve --fixed-price",          "no reserve"},
    {"counts are missing",                       "compare --kind multiple --opening 1",                  "needed: --offered, --sold"},
    {"an unknown kind",                          "compare --kind payment",                               "--kind"},
};
// clang-format on

TEST(Compare, WrongUseIsRefused) {
  for (const WrongRow& row : kWrong) {
    const CommandRun answer = runLine(row.line);
    EXPECT_EQ(answer.status, WrongUse) << row.rule;
    EXPECT_EQ(answer.out, "") << row.rule;
    EXPECT_NE(answer.errors.find(row.says), std::string::npos) << row.rule << ": " << answer.errors;
  }
}

}  // namespace

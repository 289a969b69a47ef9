#include <gtest/gtest.h>

#include <set>

#include "command_run.h"
#include "explain_words.h"
#include "schedule_names.h"

namespace {

const char* const kSource = "\"built in, not eBay's prices of today\"";

struct ScheduleRow {
  const char* rule;
  const char* site;
  const char* line;  ///< of the CSV answer, up to its source
  bool isThere;
};

// clang-format off
constexpr ScheduleRow kRows[] = {
    {"a bound",                                     "us", "\"Listing fee, tier 3 up to\",24.99,bound in $",                                true},
    {"an amount",                                   "uk", "Highlight,1.50,amount in GBP",                                                  true},
    {"a rate in per cent",                          "de", "\"Final value fee, tier 1\",5,per cent",                                        true},
    {"kept in US dollars",                          "ca", R"("PayPal, flat fee",0.30,"amount in US dollars, follows the rate")",          true},
    {"eBay.com has nothing to convert",             "us", "\"PayPal, flat fee\",0.30,amount in $",                                         true},
    {"the exchange rate",                           "uk", "Exchange rate where none is entered,0.5305,GBP for one US dollar",              true},
    {"what is offered free is there",               "uk", "Ten days,0.00,amount in GBP",                                                   true},
    {"the payment service's own share",             "de", "\"PayPal, share of the amount\",2.9,per cent",                                  true},
    {"no real estate in Germany",                   "de", "\"Listing fee, real estate",                                                    false},
    {"no reserve in Germany",                       "de", "\"Reserve fee",                                                                 false},
    {"no Listing Designer in Germany",              "de", "Listing Designer",                                                              false},
    {"no exchange rate on eBay.com",                "us", "Exchange rate",                                                                 false},
};
// clang-format on

TEST(Schedule, EachSiteHasTheRowsThatMatterThere) {
  for (const ScheduleRow& row : kRows) {
    const CommandRun answer = run({"schedule", "--site", row.site, "--format", "csv"});
    const std::string wanted =
        '\n' + std::string(row.line) + (row.isThere ? "," + std::string(kSource) + '\n' : "");
    EXPECT_EQ(answer.out.find(wanted) != std::string::npos, row.isThere) << row.rule << '\n' << answer.out;
  }
}

TEST(Schedule, EveryFormatSaysThatItIsBuiltIn) {
  const std::string words = "built in, not eBay's prices of today";
  for (const std::string site : {"us", "uk", "ca", "de"}) {
    const std::string title = std::string("Fee schedule, site ").append(site).append(": ").append(words);
    EXPECT_EQ(run({"schedule", "--site", site}).out.find(title), 0U);
    std::istringstream csv(run({"schedule", "--site", site, "--format", "csv"}).out);
    std::string line;
    std::getline(csv, line);
    EXPECT_EQ(line, "figure,value,unit,source");
    while (std::getline(csv, line)) EXPECT_NE(line.find(words), std::string::npos) << line;
    const std::string json = run({"schedule", "--site", site, "--format", "json"}).out;
    EXPECT_NE(json.find("\"source\": \"" + words + '"'), std::string::npos);
  }
}

TEST(Schedule, NoTwoFiguresBearOneName) {
  std::set<std::string_view> seen;
  for (const FigureName& name : figureNames()) {
    if (name.zero == FigureZero::NeverAsked) continue;
    EXPECT_FALSE(name.name.empty());
    EXPECT_TRUE(seen.insert(name.name).second) << name.name;
  }
}

TEST(Schedule, AnUnknownSiteIsWrongUse) {
  const CommandRun answer = runLine("schedule --site fr");
  EXPECT_EQ(answer.status, WrongUse);
  EXPECT_NE(answer.errors.find("none of us, uk, ca, de"), std::string::npos) << answer.errors;
}

}  // namespace

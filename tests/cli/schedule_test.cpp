#include <gtest/gtest.h>

#include <algorithm>
#include <nlohmann/json.hpp>
#include <set>

#include "auction_site.h"
#include "command_run.h"
#include "option_values.h"
#include "schedule_names.h"

namespace {

const std::string kBuiltIn = "built in, not eBay's prices of today";

struct ScheduleRow {
  const char* rule;
  const char* site;
  const char* line;  ///< of the CSV answer, without its site and its schedule
};

// clang-format off
constexpr ScheduleRow kRows[] = {
    {"a bound",                                     "us", "\"Listing fee, tier 3 up to\",24.99,bound in $,"},
    {"an amount",                                   "uk", "Highlight,1.50,amount in GBP,"},
    {"a rate in per cent",                          "de", "\"Final value fee, tier 1\",5,per cent,"},
    {"kept in US dollars",                          "ca", R"("PayPal, flat fee",0.30,"amount in US dollars, follows the rate",)"},
    {"eBay.com has nothing to convert",             "us", "\"PayPal, flat fee\",0.30,amount in $,"},
    {"the exchange rate",                           "uk", "Exchange rate where none is entered,0.5305,GBP for one US dollar,"},
    {"what is offered free is there",               "uk", "Ten days,0.00,amount in GBP,"},
    {"free beside other reserve fees",              "uk", "\"Reserve fee, tier 3, share of the reserve\",0,per cent,"},
    {"the payment service's own share",             "de", "\"PayPal, share of the amount\",2.9,per cent,"},
    {"charged though the window does not offer it", "de", "Listing Designer,0.10,amount in EUR,\"charged, but not offered by the window\""},
    {"Listing Designer is not for the UK",          "uk", "Listing Designer,,amount in GBP,not on this site"},
    {"no gift services in Canada",                  "ca", "Gift services,,amount in C$,not on this site"},
    {"no real estate in Germany",                   "de", "\"Listing fee, real estate, other, 30-day ad\",,amount in EUR,not on this site"},
    {"no reserve in Germany",                       "de", "\"Reserve fee, tier 3, share of the reserve\",,per cent,not on this site"},
    {"no eBay Payments in Germany",                 "de", "\"eBay Payments, flat fee\",,amount in EUR,not on this site"},
    {"no exchange rate on eBay.com",                "us", "Exchange rate where none is entered,,$ for one US dollar,not on this site"},
    {"a motorcycle is a vehicle in the UK",         "uk", "Sale of a motorcycle,,amount in GBP,as any vehicle"},
    {"an American vehicle pays no third tier",      "us", "\"Reserve fee, tier 3, share of the reserve\",1,per cent,of a vehicle nothing"},
};
// clang-format on

TEST(Schedule, EachSiteHasTheFiguresOfItsSchedule) {
  for (const ScheduleRow& row : kRows) {
    const CommandRun answer = run({"schedule", "--site", row.site, "--format", "csv"});
    const std::string wanted = '\n' + std::string(row.site) + ',' + row.line + ",\"" + kBuiltIn + "\"\n";
    EXPECT_NE(answer.out.find(wanted), std::string::npos) << row.rule << '\n' << answer.out;
  }
}

struct TitleRow {
  const char* site;
  const char* name;
  const char* absent;
};

constexpr TitleRow kTitles[] = {
    {"us", "eBay.com", "conversion of dollars"},
    {"uk", "eBay UK", "gift services, Listing Designer"},
    {"ca", "eBay Canada", "gift services, Listing Designer"},
    {"de", "eBay Germany", "real estate, reserves, gift services, eBay Payments"},
};

TEST(Schedule, ATextSaysWhoseItIsAndWhatTheSiteDoesNotHave) {
  for (const TitleRow& row : kTitles) {
    const std::string title = "Fee schedule of " + std::string(row.name) + ", " + kBuiltIn +
                              ".\nNot on this site: " + row.absent + ".\n\n";
    const std::string text = run({"schedule", "--site", row.site}).out;
    EXPECT_EQ(text.find(title), 0U) << text;
    EXPECT_EQ(text.find("  not on this site"), std::string::npos) << "no rows besides\n" << text;
  }
}

/// Site, figure and schedule of every row.
TEST(Schedule, ProgramsGetTheSameRowsOfEverySiteEachWithItsSource) {
  std::set<std::string> figures;
  for (const std::string site : {"us", "uk", "ca", "de"}) {
    const auto rows = nlohmann::json::parse(run({"schedule", "--site", site, "--format", "json"}).out);
    std::set<std::string> ofSite;
    for (const auto& row : rows) {
      EXPECT_EQ(row.at("site"), site);
      EXPECT_EQ(row.at("schedule"), kBuiltIn);
      EXPECT_TRUE(row.at("value").is_number() || !row.at("remark").get<std::string>().empty()) << row;
      ofSite.insert(row.at("figure").get<std::string>());
    }
    EXPECT_EQ(ofSite.size(), rows.size()) << site;
    if (site == "us") figures = ofSite;
    EXPECT_EQ(ofSite, figures) << site;
  }
}

/// Whatever is no nought in the schedule of a site is listed there, as what some listing is charged.
TEST(Schedule, NothingThatASiteChargesIsLeftOut) {
  for (std::int32_t site = CAuctionSite::eBayUS; site <= CAuctionSite::eBayGermany; ++site) {
    const std::string code(nameOfSite(site));
    const auto rows = nlohmann::json::parse(run({"schedule", "--site", code, "--format", "json"}).out);
    for (const FigureName& name : figureNames()) {
      const double value = cellOf(name.figure, site).value;
      if (name.zero == FigureZero::NeverAsked || value <= 0.0) continue;
      const auto row = std::find_if(rows.begin(), rows.end(),
                                    [&](const auto& each) { return each.at("figure") == name.name; });
      ASSERT_NE(row, rows.end()) << code << ": " << name.name;
      const double factor = name.unit == FigureUnit::Rate ? 100.0 : 1.0;
      EXPECT_NEAR(row->at("value").template get<double>(), value * factor, 1e-6) << code << ": " << name.name;
    }
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

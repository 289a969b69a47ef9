#include <gtest/gtest.h>

#include <fstream>

#include "command_run.h"
#include "folders.h"

/// \file
/// Whole answers, compared with files: each command line in text, CSV and JSON.

namespace {

struct GoldenRow {
  const char* file;
  const char* line;
  int status = AllGood;
};

// clang-format off
constexpr GoldenRow kRows[] = {
    {"single_us",                "single --opening 9.99 --closing 25 --gallery"},
    {"single_de_comma",          "single --site de --opening 9,99 --closing 1200,50 --bold --decimal ,"},
    {"single_uk_reserve_unmet",  "single --site uk --opening 150 --reserve --closing 20"},
    {"multiple_us",              "multiple --opening 0.50 --offered 10 --sold 10 --closing 3"},
    {"payment_uk",               "payment --site uk --amount 100 --rate 0.5"},
    {"billpoint_us",             "billpoint --amount 100 --discounted"},
    {"explain_uk_real_estate",   "single --site uk --opening 1000 --closing 2000 --real-estate 30-day-ad --timeshare --two-categories --bold --explain"},
    {"explain_us_vehicle",       "single --opening 500 --closing 8000 --vehicle --gallery-featured --bold --ten-day --gift --explain"},
    {"explain_de_comma",         "single --site de --opening 9,99 --closing 1200,50 --bold --gallery --decimal , --explain"},
    {"explain_picture_pack",     "single --opening 12 --closing 30 --gallery --pictures pack --supersize --slideshow --explain"},
    {"explain_reserve_unmet",    "single --opening 20000 --reserve --closing 150 --two-categories --explain"},
    {"explain_reserve_free",     "single --site uk --opening 6000 --reserve --closing 150 --explain"},
    {"explain_two_categories",   "single --site ca --opening 20 --closing 1500 --two-categories --scheduled --subtitle --home-page-featured --explain"},
    {"explain_uk_vehicle",       "single --site uk --opening 100 --closing 5000 --vehicle --explain"},
    {"explain_de_vehicle",       "single --site de --opening 100 --closing 8000.50 --vehicle --explain"},
    {"explain_multiple",         "multiple --opening 0.50 --offered 10 --sold 10 --closing 35.55 --two-categories --home-page-featured --pictures 3 --gallery-featured --explain"},
    {"explain_multiple_left",    "multiple --site uk --opening 4 --offered 10 --sold 3 --closing 9 --explain"},
    {"explain_echeck_capped",    "payment --amount 1000 --echeck --explain"},
    {"explain_above_the_cap",    "payment --site uk --amount 1000 --echeck --international --explain"},
    {"explain_merchant",         "payment --site ca --amount 100 --merchant --rate 1.3 --explain"},
    {"explain_billpoint",        "billpoint --site ca --amount 100 --international --explain"},
    {"explain_billpoint_flat",   "billpoint --site uk --amount 10 --explain"},
    {"schedule_us",              "schedule"},
    {"schedule_uk",              "schedule --site uk"},
    {"schedule_ca",              "schedule --site ca"},
    {"schedule_de_comma",        "schedule --site de --decimal ,"},
    {"compare_sites",            "compare --opening 10 --closing 50 --bold --subtitle"},
    {"compare_not_offered",      "compare --opening 10 --closing 50 --real-estate 30-day-ad", SomeFailed},
    {"compare_outcomes",         "compare --by outcome --site uk --opening 100 --closing 250 --reserve --bold"},
    {"compare_multiple",         "compare --kind multiple --by outcome --opening 5 --offered 10 --sold 10 --closing 7.50"},
    {"whatif_us",                "whatif --opening 10 --closing 24.99"},
    {"whatif_uk_multiple",       "whatif --kind multiple --site uk --opening 4 --offered 10 --sold 3 --closing 9 --pictures 2"},
    {"whatif_unsold",            "whatif --site ca --opening 10 --did-not-sell"},
};
// clang-format on

std::string contentOf(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  std::ostringstream content;
  content << file.rdbuf();
  return content.str();
}

TEST(Golden, EveryAnswerIsAsItsFileHasIt) {
  for (const GoldenRow& row : kRows) {
    for (const std::string format : {"text", "csv", "json"}) {
      const std::string path = kSourceFolder + std::string("/tests/cli/golden/") + row.file + '.' + format;
      const CommandRun answer = runLine(std::string(row.line) + " --format " + format);
      EXPECT_EQ(answer.status, row.status) << row.line << ": " << answer.errors;
      EXPECT_EQ(answer.out, contentOf(path)) << path << ", from " << row.line;
    }
  }
}

}  // namespace

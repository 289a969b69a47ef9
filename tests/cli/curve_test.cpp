#include "curve.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <sstream>

#include "command_run.h"
#include "curve_file.h"
#include "curve_picture.h"
#include "folders.h"
#include "price_function_sales.h"

namespace {

constexpr std::int32_t US = 1;

std::vector<Cents> pricesOf(const Curve& curve) {
  std::vector<Cents> prices;
  for (const SaleResult& point : curve.points) prices.push_back(point.price);
  return prices;
}

struct StepsRow {
  const char* rule;
  CurveSteps steps;
  std::vector<Cents> prices;
};

TEST(Curve, HasAPointAtEveryStepAndAtItsEnds) {
  // clang-format off
  const StepsRow rows[] = {
    {"counted from the first price",         {.range = {.first = 2490, .last = 2570}, .origin = 2490, .step = 20},  {2490, 2510, 2530, 2550, 2570}},
    {"counted from where it cannot sell",    {.range = {.first = 1, .last = 100},     .origin = 0,    .step = 25},  {1, 25, 50, 75, 100}},
    {"the last is there beside the steps",   {.range = {.first = 990, .last = 1040},  .origin = 990,  .step = 30},  {990, 1020, 1040}},
    {"the first is a step",                  {.range = {.first = 100, .last = 300},   .origin = 0,    .step = 100}, {100, 200, 300}},
    {"a step beyond the range",              {.range = {.first = 100, .last = 300},   .origin = 0,    .step = 900}, {100, 300}},
    {"a range of one price",                 {.range = {.first = 100, .last = 100},   .origin = 0,    .step = 10},  {100}},
  };
  // clang-format on
  for (const StepsRow& row : rows) {
    PriceFunction sale(plainSale(US), pointLocale());
    EXPECT_EQ(pricesOf(curveAtSteps(sale, row.steps)), row.prices) << row.rule;
  }
}

TEST(Curve, KnowsWhatIsDead) {
  PriceFunction sale(plainSale(US), pointLocale());
  const Curve curve = curveAtSteps(sale, {.range = {.first = 2490, .last = 2570}, .origin = 0, .step = 20});
  EXPECT_FALSE(isDead(curve, 2499));
  EXPECT_TRUE(isDead(curve, 2500));
  EXPECT_TRUE(isDead(curve, 2560));
  EXPECT_FALSE(isDead(curve, 2561));
}

TEST(Curve, StepsAreRound) {
  EXPECT_EQ(roundStep(400, 400), 1);
  EXPECT_EQ(roundStep(401, 400), 2);
  EXPECT_EQ(roundStep(1000, 400), 5);
  EXPECT_EQ(roundStep(9'999, 400), 50);
  EXPECT_EQ(roundStep(PriceFunction::largestPrice, 400), 500'000);
  EXPECT_EQ(roundedUp(101, 50), 150);
  EXPECT_EQ(roundedUp(100, 50), 100);
  EXPECT_EQ(roundedDown(-101, 50), -150);
  EXPECT_EQ(roundedUp(-101, 50), -100);
}

TEST(Curve, APictureHasBothSidesOfAJump) {
  PriceFunction sale(plainSale(US), pointLocale());
  const Curve curve =
      curveForPicture(sale, {.range = {.first = 1, .last = 10'000}, .origin = 0, .step = 1000});
  const std::vector<Cents> prices = pricesOf(curve);
  for (const Cents price : {2499, 2500, 2560, 2561, 10'000})
    EXPECT_TRUE(std::binary_search(prices.begin(), prices.end(), price)) << price;
}

std::string pictureFrom(const Sale& sale, PriceRange range, Cents step) {
  PriceFunction function(sale, pointLocale());
  return pictureOf(curveForPicture(function, {.range = range, .origin = range.first, .step = step}),
                   function);
}

/// Whether every element that is opened is closed again in its order, and no value holds a raw sign of XML.
bool isWellFormed(const std::string& text) {
  std::vector<std::string> open;
  for (std::size_t at = text.find('<'); at != std::string::npos; at = text.find('<', at + 1)) {
    const std::size_t end = text.find('>', at);
    if (end == std::string::npos) return false;
    const std::string tag = text.substr(at + 1, end - at - 1);
    if (std::count(tag.begin(), tag.end(), '"') % 2 != 0) return false;
    const std::string name = tag.substr(0, tag.find_first_of(" \n/", 1));
    if (tag.front() == '/') {
      if (open.empty() || "/" + open.back() != tag) return false;
      open.pop_back();
    } else if (tag.back() != '/') {
      open.push_back(name);
    }
  }
  return open.empty() && text.find('&') == std::string::npos;
}

TEST(Curve, ThePictureIsWellFormedAndSaysWhatItShows) {
  for (const NamedSale& row : allSales()) {
    const PriceRange range = PriceFunction(row.sale, pointLocale()).range();
    const Cents last = std::min<Cents>(range.last, 20'000);
    const std::string svg = pictureFrom(row.sale, {.first = range.first, .last = last}, 100);
    EXPECT_TRUE(isWellFormed(svg)) << row.name;
    for (const char* part : {"role=\"img\"", "aria-labelledby=\"curve-title curve-desc\"",
                             "<title id=\"curve-title\">What a sale leaves",
                             "<desc id=\"curve-desc\">Net goes", "prefers-color-scheme:dark", ">Price ("})
      EXPECT_NE(svg.find(part), std::string::npos) << row.name << ": " << part;
    EXPECT_EQ(svg.find("href"), std::string::npos) << "nothing is fetched";
    EXPECT_EQ(svg.find("nan"), std::string::npos) << row.name;
  }
}

TEST(Curve, ThePictureTellsOfTheDeadBands) {
  const std::string svg = pictureFrom(plainSale(US), {.first = 1, .last = 3000}, 100);
  EXPECT_NE(svg.find("25.00 to 25.60, up to 0.59 less."), std::string::npos) << svg;
  EXPECT_EQ(svg.find("50.00 to"), std::string::npos) << "beyond its end";
}

struct AxisRow {
  const char* rule;
  Sale sale;
  PriceRange range;
  const char* net;
  const char* fees;
};

TEST(Curve, AnAxisBeginsAtZeroUnlessThatWouldFlattenWhatItShows) {
  const Sale house = [] {
    Sale sale = plainSale(US);
    sale.listing.single.chkRealEstate = true;
    return sale;
  }();
  // clang-format off
  const AxisRow rows[] = {
    {"a wide range",           plainSale(US), {.first = 1, .last = 10'000},    ">Net ($)<",                 ">All fees ($)<"},
    {"around one band",        plainSale(US), {.first = 990, .last = 1'040},   ">Net ($), axis from 8.80<", ">All fees ($), axis from 0.80<"},
    {"net is far below zero",  house,         {.first = 1, .last = 2'000},     ">Net ($), axis from -100<", ">All fees ($)<"},
    {"a fee that never moves", house,         {.first = 9'000, .last = 20'000}, ">Net ($)<",                ">All fees ($)<"},
  };
  // clang-format on
  for (const AxisRow& row : rows) {
    const std::string svg = pictureFrom(row.sale, row.range, 100);
    EXPECT_NE(svg.find(row.net), std::string::npos) << row.rule << '\n' << svg;
    EXPECT_NE(svg.find(row.fees), std::string::npos) << row.rule << '\n' << svg;
  }
}

std::string contentOf(const std::filesystem::path& file) {
  std::stringstream content;
  content << std::ifstream(file).rdbuf();
  return content.str();
}

TEST(CurveFile, IsWrittenWholeAndLeavesNothingBeside) {
  const auto folder = std::filesystem::path(testing::TempDir()) / "tessaloom_curve_file";
  std::filesystem::remove_all(folder);
  std::filesystem::create_directory(folder);
  const auto file = folder / "out.svg";
  writeWholeFile(file.string(), "first");
  writeWholeFile(file.string(), "second");
  EXPECT_EQ(contentOf(file), "second");
  EXPECT_THROW(writeWholeFile(folder.string(), "a folder"), FileError);
  EXPECT_THROW(writeWholeFile((folder / "none" / "out.svg").string(), "no folder"), FileError);
  const auto files = std::distance(std::filesystem::directory_iterator(folder), {});
  EXPECT_EQ(files, 1);
  std::filesystem::remove_all(folder);
}

struct PictureRow {
  const char* golden;
  const char* line;
};

constexpr PictureRow kPictures[] = {
    {"curve_us.svg", "curve"},
    {"curve_one_band.svg", "curve --from 9.90 --to 10.40"},
    {"curve_uk_comma.svg", "curve --site uk --payment billpoint --from 9 --to 40 --decimal ,"},
};

TEST(CurveFile, ThePictureIsThatOfTheFileAndTheSameOnTheOutput) {
  const auto file = std::filesystem::path(testing::TempDir()) / "tessaloom_curve.svg";
  for (const PictureRow& row : kPictures) {
    std::vector<std::string> arguments = words(row.line);
    arguments.insert(arguments.end(), {"--svg", file.string()});
    const CommandRun answer = run(arguments);
    EXPECT_EQ(answer.status, AllGood) << answer.errors;
    EXPECT_EQ(answer.out + answer.errors, "") << row.line;
    EXPECT_EQ(contentOf(file),
              contentOf(std::filesystem::path(kSourceFolder) / "tests/cli/golden" / row.golden))
        << row.line;
    arguments.back() = "-";
    EXPECT_EQ(run(arguments).out, contentOf(file)) << row.line;
  }
  std::filesystem::remove(file);
}

TEST(CurveFile, WhatCannotBeWrittenIsToldWithTheReason) {
  const CommandRun nameless = run({"curve", "--svg", ""});
  EXPECT_EQ(nameless.status, WrongUse);
  EXPECT_EQ(nameless.out, "");
  EXPECT_EQ(nameless.errors, "tessaloom-fees: --svg: the name of a file is needed, or -\n");
  const CommandRun nowhere = run({"curve", "--svg", "/no-such-folder/out.svg"});
  EXPECT_EQ(nowhere.status, SomeFailed);
  EXPECT_EQ(nowhere.errors,
            "tessaloom-fees: cannot write /no-such-folder/out.svg: No such file or directory\n");
}

TEST(CurveFile, AFullDeviceIsAnErrorAndStaysADevice) {
  EXPECT_THROW(writeWholeFile("/dev/full", "much"), FileError);
  EXPECT_TRUE(std::filesystem::is_character_file("/dev/full"));
}

}  // namespace

#include "curve.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <sstream>

#include "curve_file.h"
#include "curve_picture.h"
#include "price_function_sales.h"

namespace {

constexpr std::int32_t US = 1;

TEST(Curve, HasAPointAtEveryStep) {
  PriceFunction sale(plainSale(US), pointLocale());
  const Curve curve = curveAtSteps(sale, {.first = 2490, .last = 2570}, 20);
  ASSERT_EQ(curve.points.size(), 5U);
  EXPECT_EQ(curve.points.front().price, 2490);
  EXPECT_EQ(curve.points.back().price, 2570);
  EXPECT_FALSE(isDead(curve, 2499));
  EXPECT_TRUE(isDead(curve, 2500));
  EXPECT_TRUE(isDead(curve, 2560));
  EXPECT_FALSE(isDead(curve, 2561));
}

TEST(Curve, APictureHasBothSidesOfAJump) {
  PriceFunction sale(plainSale(US), pointLocale());
  const Curve curve = curveForPicture(sale, {.first = 1, .last = 10'000}, 1000);
  const auto has = [&](Cents price) {
    return std::any_of(curve.points.begin(), curve.points.end(),
                       [price](const SaleResult& point) { return point.price == price; });
  };
  for (const Cents price : {2499, 2500, 2560, 2561, 10'000}) EXPECT_TRUE(has(price)) << price;
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
    PriceFunction sale(row.sale, pointLocale());
    const Cents last = std::min<Cents>(sale.range().last, 20'000);
    const std::string svg =
        pictureOf(curveForPicture(sale, {.first = sale.range().first, .last = last}, 100), sale);
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
  PriceFunction sale(plainSale(US), pointLocale());
  const std::string svg = pictureOf(curveForPicture(sale, {.first = 1, .last = 3000}, 100), sale);
  EXPECT_NE(svg.find("25.00 to 25.60, up to 0.59 less."), std::string::npos) << svg;
  EXPECT_EQ(svg.find("50.00 to"), std::string::npos) << "beyond its end";
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

TEST(CurveFile, AFullDeviceIsAnErrorAndStaysADevice) {
  EXPECT_THROW(writeWholeFile("/dev/full", "much"), FileError);
  EXPECT_TRUE(std::filesystem::is_character_file("/dev/full"));
}

}  // namespace

#include "nearest_name.h"

#include <gtest/gtest.h>

/// \file
/// What a name that does not exist was probably meant to be.

namespace {

struct NearestRow {
  const char* rule;
  const char* typed;
  const char* meant;
};

// clang-format off
constexpr NearestRow kRows[] = {
    {"a letter is missing",                    "galery",           "gallery"},
    {"a letter is too much",                   "boold",            "bold"},
    {"a letter is wrong",                      "bald",             "bold"},
    {"two neighbours are swapped",             "bodl",             "bold"},
    {"the first two are swapped",              "obld",             "bold"},
    {"a swap is one mistake",                  "stie",             "site"},
    {"two mistakes in a longer name",          "galery-featurd",   "gallery-featured"},
    {"no third one",                           "galery-faturd",    ""},
    {"the nearest of several",                 "galleryy",         "gallery"},
    {"the first of those that are as near",    "bolt-on",          "bolt-in"},
    {"two mistakes in a short name are far",   "rate",             ""},
    {"another word",                           "reserve",          ""},
    {"a name of two letters is near to none",     "tp",               ""},
    {"of three letters one may be wrong",      "nat",              "net"},
    {"nothing",                                "",                 ""},
    {"a name of nothing but blanks",           "   ",              ""},
};
// clang-format on

TEST(NearestName, IsSuggestedIfItIsNear) {
  const std::vector<std::string> names{"site", "bold", "gallery-featured", "gallery", "bolt-in", "bolt-an",
                                       "to",   "net"};
  for (const NearestRow& row : kRows) EXPECT_EQ(nearestName(row.typed, names), row.meant) << row.rule;
}

TEST(NearestName, OfNoneIsNone) { EXPECT_EQ(nearestName("gallery", {}), ""); }

}  // namespace

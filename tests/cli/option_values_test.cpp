#include "option_values.h"

#include <gtest/gtest.h>

namespace {

struct AmbiguousRow {
  const char* rule;
  const char* text;
  bool isAmbiguous;
};

// clang-format off
constexpr AmbiguousRow kAmbiguous[] = {
    {"three digits behind a point",              "1.234",     true},
    {"three digits behind a comma",              "12,345",    true},
    {"three digits before the sign at most",     "1234.567",  false},
    {"two digits behind it are decimals",        "1.23",      false},
    {"four digits behind it are decimals",       "1.2345",    false},
    {"nothing is grouped behind a nought",       "0.785",     false},
    {"both signs tell which is which",           "1.234,50",  false},
    {"no sign at all",                           "1234",      false},
    {"no digit before it",                       ".234",      false},
};
// clang-format on

TEST(OptionValues, ANumberIsAmbiguousIfItsSignCouldGroupOrSplit) {
  for (const AmbiguousRow& row : kAmbiguous) EXPECT_EQ(isAmbiguous(row.text), row.isAmbiguous) << row.rule;
}

}  // namespace

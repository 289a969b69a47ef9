#pragma once

#include <array>
#include <string>
#include <string_view>

#include "number_locale.h"

/// The four ways of writing numbers that every amount rule is tested in: a point and a comma as decimal
/// symbol, each with a second group sign that is no ASCII character.
struct NamedLocale {
  const char* name;
  NumberLocale signs;
};

inline const std::array<NamedLocale, 4> kTestLocales{{
    {"en-US", {".", ",", "$"}},
    {"de-DE", {",", ".", "€"}},
    {"de-CH", {".", "\u2019", "CHF"}},
    {"fr-FR", {",", "\u202F", "€"}},
}};

inline const NumberLocale& enUS() { return kTestLocales[0].signs; }
inline const NumberLocale& deDE() { return kTestLocales[1].signs; }
inline const NumberLocale& deCH() { return kTestLocales[2].signs; }
inline const NumberLocale& frFR() { return kTestLocales[3].signs; }

/// A text of a test row, written with points, as a user of `locale` would write it.
inline std::string asWrittenIn(const NumberLocale& locale, std::string_view pointText) {
  std::string text;
  for (const char c : pointText) {
    if (c == '.') {
      text += locale.decimal;
    } else {
      text += c;
    }
  }
  return text;
}

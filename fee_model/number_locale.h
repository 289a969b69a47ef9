#pragma once

#include <string>

/// The signs with which a user writes numbers, as UTF-8. It is a value that is handed in: nothing in the
/// fee model asks the C or C++ locale, which a GUI toolkit may change behind its back.
struct NumberLocale {
  std::string decimal = ".";   ///< decimal symbol
  std::string group = ",";     ///< thousands sign; empty if the user has none
  std::string currency = "$";  ///< currency sign; "$" is understood besides, always

  /// True where a comma is the decimal symbol. There a stored or typed point needs a rule of its own.
  [[nodiscard]] bool isCommaDecimal() const { return decimal == ","; }
};

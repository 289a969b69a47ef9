#pragma once

#include <string>
#include <string_view>

#include "currency.h"
#include "number_locale.h"

/// Amounts as an explanation words them, in the signs of the user. Nothing is rounded to cents here: what is
/// added to a fee may be a fraction of one.
class ExplainWords {
 public:
  explicit ExplainWords(NumberLocale locale);

  /// At least two decimals: "0.60", "1.3125".
  [[nodiscard]] std::string money(float figure) const;
  [[nodiscard]] std::string money(double amount) const;
  [[nodiscard]] std::string money(Currency amount) const;
  /// A price as it was entered, to four decimals: "5" is "5.00". None is "0.00".
  [[nodiscard]] std::string price(std::string_view text) const;
  /// A fraction in per cent: "5.25 %".
  [[nodiscard]] std::string percent(double share) const;
  /// A number as it is: "0.5305".
  [[nodiscard]] std::string number(float value) const;

  [[nodiscard]] const NumberLocale& locale() const { return m_locale; }

 private:
  [[nodiscard]] std::string withTwoDecimals(std::string_view plain) const;

  NumberLocale m_locale;
};

/// The amount of a price that was entered; none is nothing.
[[nodiscard]] Currency amountOf(std::string_view price, const NumberLocale& locale);

/// The fraction of an amount, to four decimals. Of the fraction itself as many digits count as are worded.
[[nodiscard]] Currency shareOf(double share, double amount);

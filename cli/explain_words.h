#pragma once

#include <string>
#include <string_view>

#include "number_locale.h"

/// Amounts as an explanation words them, in the signs of the user. Nothing is rounded to cents here: what is
/// added to a fee may be a fraction of one.
class ExplainWords {
 public:
  explicit ExplainWords(NumberLocale locale);

  /// At least two decimals: "0.60", "1.3125".
  [[nodiscard]] std::string money(float amount) const;
  [[nodiscard]] std::string money(double amount) const;
  /// A fraction in per cent: "5.25 %".
  [[nodiscard]] std::string percent(double share) const;
  /// A number as it is: "0.5305".
  [[nodiscard]] std::string number(float value) const;

  [[nodiscard]] const NumberLocale& locale() const { return m_locale; }

 private:
  [[nodiscard]] std::string withTwoDecimals(std::string_view plain) const;

  NumberLocale m_locale;
};

#include "explain_words.h"

#include <cmath>
#include <utility>

#include "amount_text.h"

namespace {

std::string withoutBlank(std::string text) {
  if (!text.empty() && text.front() == ' ') text.erase(0, 1);
  return text;
}

}  // namespace

ExplainWords::ExplainWords(NumberLocale locale) : m_locale(std::move(locale)) {}

std::string ExplainWords::money(float figure) const { return withTwoDecimals(plainText(figure, m_locale)); }

std::string ExplainWords::money(double amount) const { return withTwoDecimals(plainText(amount, m_locale)); }

std::string ExplainWords::money(Currency amount) const {
  return withTwoDecimals(plainText(amount, m_locale));
}

std::string ExplainWords::price(std::string_view text) const { return money(amountOf(text, m_locale)); }

std::string ExplainWords::percent(double share) const {
  constexpr double hundred = 100.0;
  return number(static_cast<float>(share * hundred)) + " %";
}

std::string ExplainWords::number(float value) const { return withoutBlank(plainText(value, m_locale)); }

std::string ExplainWords::withTwoDecimals(std::string_view plain) const {
  constexpr std::size_t decimals = 2;
  std::string text = withoutBlank(std::string(plain));
  if (text.find('E') != std::string::npos) return text;
  if (text.find(m_locale.decimal) == std::string::npos) text += m_locale.decimal;
  const std::size_t behind = text.size() - text.find(m_locale.decimal) - m_locale.decimal.size();
  return text.append(behind < decimals ? decimals - behind : 0, '0');
}

Currency amountOf(std::string_view price, const NumberLocale& locale) {
  return price.empty() ? Currency{} : toCurrency(price, locale);
}

Currency shareOf(double share, double amount) {
  // A share that was stored in single precision is off by what large amounts would bring to light.
  constexpr double digits = 1e7;
  return Currency::fromNumber(std::round(share * digits) / digits * amount);
}

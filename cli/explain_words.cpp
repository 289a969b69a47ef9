#include "explain_words.h"

#include <utility>

#include "amount_text.h"

namespace {

std::string withoutBlank(std::string text) {
  if (!text.empty() && text.front() == ' ') text.erase(0, 1);
  return text;
}

}  // namespace

ExplainWords::ExplainWords(NumberLocale locale) : m_locale(std::move(locale)) {}

std::string ExplainWords::money(float amount) const { return withTwoDecimals(plainText(amount, m_locale)); }

std::string ExplainWords::money(double amount) const { return withTwoDecimals(plainText(amount, m_locale)); }

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

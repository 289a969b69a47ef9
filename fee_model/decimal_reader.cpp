#include <algorithm>
#include <initializer_list>

#include "decimal.h"

namespace {

// Far beyond the exponents that any type holds, and far from wrapping when digits are added to it.
constexpr std::int64_t kExponentLimit = 1'000'000'000;

bool isDigit(char c) { return c >= '0' && c <= '9'; }

/// Reads one text from left to right; each `take` either consumes what it names or leaves the rest alone.
class AmountReader {
 public:
  AmountReader(std::string_view text, const NumberLocale& locale) : m_rest(text), m_locale(locale) {}

  std::optional<Decimal> read() {
    takeBlanks();
    takePrefix();
    if (!takeMantissa()) return std::nullopt;
    takeExponent();
    takeSuffix();
    takeBlanks();
    if (!m_rest.empty() || m_parenthesis == Parenthesis::Open) return std::nullopt;
    dropOuterZeros(m_number);
    m_number.isNegative = m_isMinus && !m_number.isZero();
    return m_number;
  }

 private:
  enum class Parenthesis { None, Open, Closed };

  // Most amounts are bare digits: nothing to look for at their ends.
  [[nodiscard]] bool isAtDigitOrEnd() const { return m_rest.empty() || isDigit(m_rest.front()); }

  bool take(std::string_view piece) {
    if (piece.empty() || !m_rest.starts_with(piece)) return false;
    m_rest.remove_prefix(piece.size());
    return true;
  }

  bool takeAnyOf(std::initializer_list<std::string_view> pieces) {
    return std::any_of(pieces.begin(), pieces.end(), [this](std::string_view piece) { return take(piece); });
  }

  // The no-break spaces are what locales put between a number and its currency sign.
  bool takeBlanks() {
    if (isAtDigitOrEnd()) return false;
    bool any = false;
    while (takeAnyOf({" ", "\t", "\u00A0", "\u202F"})) any = true;
    return any;
  }

  bool takeSign() {
    if (m_hasSign || m_parenthesis != Parenthesis::None || m_rest.empty()) return false;
    if (m_rest.front() != '-' && m_rest.front() != '+') return false;
    m_isMinus = m_rest.front() == '-';
    m_hasSign = true;
    m_rest.remove_prefix(1);
    return true;
  }

  bool takeCurrency() {
    if (m_hasCurrency || !(take(m_locale.currency) || take("$"))) return false;
    m_hasCurrency = true;
    return true;
  }

  bool takeOpening() {
    if (m_hasSign || m_parenthesis != Parenthesis::None || !take("(")) return false;
    m_parenthesis = Parenthesis::Open;
    m_isMinus = true;
    return true;
  }

  bool takeClosing() {
    if (m_parenthesis != Parenthesis::Open || !take(")")) return false;
    m_parenthesis = Parenthesis::Closed;
    return true;
  }

  void takePrefix() {
    while (!isAtDigitOrEnd()) {
      if (takeCurrency()) {
        takeBlanks();
      } else if (!takeSign() && !takeOpening()) {
        return;
      }
    }
  }

  void takeSuffix() {
    while (!m_rest.empty()) {
      if (takeSign() || takeClosing() || takeCurrency()) continue;
      const std::string_view beforeBlanks = m_rest;
      if (takeBlanks() && takeCurrency()) continue;
      m_rest = beforeBlanks;
      return;
    }
  }

  // Locale data and keyboards disagree on which apostrophe and which no-break space groups thousands.
  bool takeGroupSign() {
    const std::string& group = m_locale.group;
    if (group == "'" || group == "\u2019") return takeAnyOf({"'", "\u2019"});
    if (group == "\u00A0" || group == "\u202F") return takeAnyOf({"\u00A0", "\u202F"});
    return take(group);
  }

  // "1.5" in a comma locale is one and a half; "1.234" stays what its group sign makes of it.
  [[nodiscard]] bool pointIsDecimal() const {
    if (!m_locale.isCommaDecimal() || m_rest.find(',') != std::string_view::npos) return false;
    const std::size_t point = m_rest.find('.');
    if (point == std::string_view::npos || m_rest.find('.', point + 1) != std::string_view::npos)
      return false;
    const auto notDigit =
        std::find_if_not(m_rest.begin() + static_cast<std::ptrdiff_t>(point) + 1, m_rest.end(), isDigit);
    const auto behind = notDigit - m_rest.begin() - static_cast<std::ptrdiff_t>(point) - 1;
    const bool onlyDigitsBefore =
        std::all_of(m_rest.begin(), m_rest.begin() + static_cast<std::ptrdiff_t>(point), isDigit);
    return !(onlyDigitsBefore && point >= 1 && point <= 3 && behind == 3);
  }

  std::size_t takeDigits() {
    const auto end = std::find_if_not(m_rest.begin(), m_rest.end(), isDigit);
    const auto count = static_cast<std::size_t>(end - m_rest.begin());
    m_number.digits.append(m_rest.substr(0, count));
    m_rest.remove_prefix(count);
    return count;
  }

  bool takeMantissa() {
    const std::string_view decimal =
        pointIsDecimal() ? std::string_view(".") : std::string_view(m_locale.decimal);
    takeDigits();
    while (!m_number.digits.empty() && !m_rest.starts_with(decimal) && takeGroupSign()) takeDigits();
    m_number.point = static_cast<std::int64_t>(m_number.digits.size());
    if (take(decimal)) takeDigits();
    return !m_number.digits.empty();
  }

  void takeExponent() {
    if (m_rest.empty() || (m_rest.front() != 'e' && m_rest.front() != 'E')) return;
    std::string_view tail = m_rest.substr(1);
    const bool isMinus = tail.starts_with('-');
    if (isMinus || tail.starts_with('+')) tail.remove_prefix(1);
    if (tail.empty() || !isDigit(tail.front())) return;
    std::int64_t exponent = 0;
    for (; !tail.empty() && isDigit(tail.front()); tail.remove_prefix(1)) {
      exponent = std::min(exponent * 10 + (tail.front() - '0'), kExponentLimit);
    }
    m_number.point += isMinus ? -exponent : exponent;
    m_rest = tail;
  }

  std::string_view m_rest;
  const NumberLocale& m_locale;
  Decimal m_number;
  bool m_hasSign = false;
  bool m_isMinus = false;
  bool m_hasCurrency = false;
  Parenthesis m_parenthesis = Parenthesis::None;
};

}  // namespace

std::optional<Decimal> parseDecimal(std::string_view text, const NumberLocale& locale) {
  return AmountReader(text, locale).read();
}

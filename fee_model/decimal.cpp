#include "decimal.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <limits>

namespace {

// Far beyond the exponents that any type holds, and far from wrapping when digits are added to it.
constexpr std::int64_t kExponentLimit = 1'000'000'000;

bool isDigit(char c) { return c >= '0' && c <= '9'; }

void dropOuterZeros(Decimal& number) {
  const std::size_t first = number.digits.find_first_not_of('0');
  if (first == std::string::npos) {
    number = Decimal{};
    return;
  }
  number.digits.erase(number.digits.find_last_not_of('0') + 1);
  number.digits.erase(0, first);
  number.point -= static_cast<std::int64_t>(first);
}

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
    for (;;) {
      if (takeCurrency()) {
        takeBlanks();
      } else if (!takeSign() && !takeOpening()) {
        return;
      }
    }
  }

  void takeSuffix() {
    for (;;) {
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

/// Keeps `count` digits, one more if `roundUp`; the carry may lengthen the number: 9.99 becomes 10.
void keepDigits(Decimal& number, std::size_t count, bool roundUp) {
  number.digits.erase(count);
  if (roundUp) {
    std::size_t at = count;
    while (at > 0 && number.digits[at - 1] == '9') --at;
    number.digits.erase(at);
    if (at == 0) {
      number.digits = "1";
      ++number.point;
    } else {
      ++number.digits[at - 1];
    }
  }
  dropOuterZeros(number);
}

/// Digits and point of `value` printed with `count` significant digits, ties to even at the last one.
Decimal printedDigits(double value, int count) {
  // Sign, point, exponent and the longest exact expansion of a double, 767 digits.
  std::array<char, 800> buffer;
  const auto written = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value,
                                     std::chars_format::scientific, count - 1);
  const std::string_view text(buffer.data(), static_cast<std::size_t>(written.ptr - buffer.data()));
  const std::size_t exponentMark = text.find('e');
  Decimal number;
  number.isNegative = text.front() == '-';
  for (const char c : text.substr(0, exponentMark)) {
    if (isDigit(c)) number.digits.push_back(c);
  }
  int exponent = 0;
  const char* exponentText = text.data() + exponentMark + 1;
  if (*exponentText == '+') ++exponentText;
  std::from_chars(exponentText, written.ptr, exponent);
  number.point = exponent + 1;
  return number;
}

/// The common case of `nearestDouble`: up to 15 digits and a power of ten up to 22 are both exact as double,
/// so that one multiplication or division rounds only once.
std::optional<double> exactlyScaled(const Decimal& number, std::int64_t exponent) {
  constexpr std::array<double, 23> powersOfTen{1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,
                                               1e8,  1e9,  1e10, 1e11, 1e12, 1e13, 1e14, 1e15,
                                               1e16, 1e17, 1e18, 1e19, 1e20, 1e21, 1e22};
  constexpr std::size_t exactDigits = 15;
  const auto power = static_cast<std::size_t>(exponent < 0 ? -exponent : exponent);
  if (number.digits.size() > exactDigits || power >= powersOfTen.size()) return std::nullopt;
  std::int64_t digits = 0;
  std::from_chars(number.digits.data(), number.digits.data() + number.digits.size(), digits);
  const auto whole = static_cast<double>(number.isNegative ? -digits : digits);
  return exponent < 0 ? whole / powersOfTen[power] : whole * powersOfTen[power];
}

}  // namespace

std::optional<Decimal> parseDecimal(std::string_view text, const NumberLocale& locale) {
  return AmountReader(text, locale).read();
}

Decimal significantDigits(double value, int count) {
  if (value == 0.0) return {};
  constexpr int guardDigits = 3;
  constexpr int allDigits = 767;
  const auto kept = static_cast<std::size_t>(count);
  Decimal number = printedDigits(value, count + guardDigits);
  // A tail of exactly one half may be a rounded one: only then look at every digit of the number.
  if (number.digits[kept] == '5' && number.digits.find_first_not_of('0', kept + 1) == std::string::npos) {
    number = printedDigits(value, allDigits);
  }
  keepDigits(number, kept, number.digits[kept] >= '5');
  return number;
}

Decimal scaledDecimal(std::int64_t units, int decimals) {
  Decimal number;
  number.isNegative = units < 0;
  const auto magnitude = number.isNegative ? std::uint64_t{0} - static_cast<std::uint64_t>(units)
                                           : static_cast<std::uint64_t>(units);
  std::array<char, 20> buffer;
  const auto written = std::to_chars(buffer.data(), buffer.data() + buffer.size(), magnitude);
  number.digits.assign(buffer.data(), written.ptr);
  number.point = static_cast<std::int64_t>(number.digits.size()) - decimals;
  dropOuterZeros(number);
  return number;
}

void roundHalfAway(Decimal& number, int decimals) {
  const std::int64_t kept = number.point + decimals;
  if (kept >= static_cast<std::int64_t>(number.digits.size())) return;
  if (kept < 0) {
    number = Decimal{};
    return;
  }
  const auto count = static_cast<std::size_t>(kept);
  keepDigits(number, count, number.digits[count] >= '5');
}

std::optional<std::int64_t> scaledHalfEven(const Decimal& number, int decimals) {
  constexpr std::int64_t mostDigits = std::numeric_limits<std::int64_t>::digits10 + 1;
  const std::int64_t wholeDigits = number.point + decimals;
  if (number.isZero() || wholeDigits < 0) return 0;
  if (wholeDigits > mostDigits) return std::nullopt;
  const auto kept = static_cast<std::size_t>(wholeDigits);
  std::string whole = number.digits.substr(0, kept);
  whole.resize(kept, '0');
  std::uint64_t units = 0;
  std::from_chars(whole.data(), whole.data() + whole.size(), units);
  if (kept < number.digits.size()) {
    const bool isHalf = number.digits[kept] == '5' && kept + 1 == number.digits.size();
    if (isHalf ? units % 2 == 1 : number.digits[kept] >= '5') ++units;
  }
  const std::uint64_t limit =
      std::uint64_t{std::numeric_limits<std::int64_t>::max()} + (number.isNegative ? 1 : 0);
  if (units > limit) return std::nullopt;
  return static_cast<std::int64_t>(number.isNegative ? std::uint64_t{0} - units : units);
}

std::optional<double> nearestDouble(const Decimal& number) {
  constexpr std::int64_t beyondLargest = std::numeric_limits<double>::max_exponent10 + 2;
  constexpr std::int64_t belowSmallest = -400;
  if (number.isZero() || number.point < belowSmallest) return 0.0;
  if (number.point > beyondLargest) return std::nullopt;
  const std::int64_t exponent = number.point - static_cast<std::int64_t>(number.digits.size());
  if (const auto exact = exactlyScaled(number, exponent)) return exact;
  std::array<char, 24> exponentText;
  const auto written =
      std::to_chars(exponentText.data(), exponentText.data() + exponentText.size(), exponent);
  std::string text = (number.isNegative ? "-" : "") + number.digits + "e";
  text.append(exponentText.data(), written.ptr);
  double value = 0.0;
  const auto read = std::from_chars(text.data(), text.data() + text.size(), value);
  if (read.ec == std::errc::result_out_of_range) {
    if (number.point > 0) return std::nullopt;
    return 0.0;
  }
  return value;
}

std::string writeFixed(const Decimal& number, std::string_view decimalSymbol) {
  std::string text = number.isNegative ? "-" : "";
  const auto wholeDigits = static_cast<std::size_t>(std::max<std::int64_t>(number.point, 0));
  if (wholeDigits == 0) text.push_back('0');
  text.append(number.digits, 0, wholeDigits);
  if (wholeDigits > number.digits.size()) text.append(wholeDigits - number.digits.size(), '0');
  if (wholeDigits < number.digits.size()) {
    text.append(decimalSymbol);
    if (number.point < 0) text.append(static_cast<std::size_t>(-number.point), '0');
    text.append(number.digits, wholeDigits);
  }
  return text;
}

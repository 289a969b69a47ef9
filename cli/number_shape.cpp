#include "number_shape.h"

#include <algorithm>

namespace {

constexpr std::string_view kSigns = ".,";
constexpr std::string_view kDigitsAndSigns = "0123456789.,";

/// The digits of a number with their signs: what stands before an exponent.
std::string_view mantissaOf(std::string_view text) {
  text.remove_prefix(std::min(text.find_first_of(kDigitsAndSigns), text.size()));
  return text.substr(0, text.find_first_not_of(kDigitsAndSigns));
}

/// Whether the signs can stand for thousands: "1,234,567".
bool isGrouped(std::string_view digits, char sign) {
  std::size_t end = digits.find(sign);
  if (end == 0 || end > kGroupDigits || digits.front() == '0') return false;
  while (end != std::string_view::npos) {
    digits.remove_prefix(end + 1);
    end = digits.find(sign);
    if (std::min(end, digits.size()) != kGroupDigits) return false;
  }
  return true;
}

std::string withPlainBlanks(std::string_view text) {
  std::string plain;
  while (!text.empty()) {
    const std::size_t blank = text.starts_with("\u00A0") ? 2 : text.starts_with("\u202F") ? 3 : 0;
    plain += blank > 0 ? ' ' : text.front();
    text.remove_prefix(std::max<std::size_t>(blank, 1));
  }
  return plain;
}

}  // namespace

bool isShapedWith(char decimal, std::string_view text, OptionKind kind) {
  const std::string_view mantissa = mantissaOf(text);
  const std::size_t split = std::min(mantissa.find(decimal), mantissa.size());
  const bool hasMoreSigns = mantissa.find_first_of(kSigns, split + 1) != std::string_view::npos;
  const std::string_view whole = mantissa.substr(0, split);
  const char group = decimal == ',' ? '.' : ',';
  const bool hasGroups = whole.find(group) != std::string_view::npos;
  return !hasMoreSigns && (!hasGroups || (kind != OptionKind::Rate && isGrouped(whole, group)));
}

bool hasClearSigns(std::string_view text, OptionKind kind, const NumberLocale& locale, bool hasDecimal) {
  if (hasDecimal) return isShapedWith(locale.decimal.front(), text, kind);
  if (text.find_first_of(kSigns) == std::string_view::npos) return true;
  return isShapedWith('.', text, kind) && !isShapedWith(',', text, kind);
}

std::string withoutGroupBlanks(std::string_view text, OptionKind kind) {
  if (kind == OptionKind::Rate) return std::string(text);
  std::string number = withPlainBlanks(text);
  const std::size_t start = std::min(number.find_first_of(kDigitsAndSigns), number.size());
  std::size_t end = std::min(number.find_first_not_of("0123456789 ", start), number.size());
  while (end > start && number[end - 1] == ' ') --end;
  if (!isGrouped(std::string_view(number).substr(start, end - start), ' ')) return std::string(text);
  const auto first = number.begin() + static_cast<std::ptrdiff_t>(start);
  const auto last = number.begin() + static_cast<std::ptrdiff_t>(end);
  number.erase(std::remove(first, last, ' '), last);
  return number;
}

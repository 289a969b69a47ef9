#include "entry_rules.h"

#include "amount_text.h"
#include "decimal.h"

namespace {

std::string withCharacter(std::string_view text, char32_t key) {
  std::string candidate(text);
  const auto append = [&](char32_t byte) {
    candidate.push_back(static_cast<char>(static_cast<unsigned char>(byte)));
  };
  if (key < 0x80) {
    append(key);
  } else if (key < 0x800) {
    append(0xC0 | (key >> 6));
    append(0x80 | (key & 0x3F));
  } else if (key < 0x10000) {
    append(0xE0 | (key >> 12));
    append(0x80 | ((key >> 6) & 0x3F));
    append(0x80 | (key & 0x3F));
  } else {
    append(0xF0 | (key >> 18));
    append(0x80 | ((key >> 12) & 0x3F));
    append(0x80 | ((key >> 6) & 0x3F));
    append(0x80 | (key & 0x3F));
  }
  return candidate;
}

}  // namespace

KeyVerdict judgeKey(EntryKind kind, char32_t key, std::string_view text, bool isWholeTextSelected,
                    const NumberLocale& locale) {
  const std::string candidate = withCharacter(text, key);
  if (kind == EntryKind::Count) {
    if (key == BackspaceKey) return KeyVerdict::Pass;
    const bool isBarred = key == U'-' || key == U'.' || key == U',';
    return isBarred || !isNumeric(candidate, locale) ? KeyVerdict::Swallow : KeyVerdict::Pass;
  }
  if (key == BackspaceKey || key == PasteKey || key == CopyKey) return KeyVerdict::Pass;
  if (key == U'-') return KeyVerdict::Swallow;
  if (isNumeric(candidate, locale)) return KeyVerdict::Pass;
  if (!isWholeTextSelected)
    return isLoneDecimalSymbol(candidate, locale) ? KeyVerdict::Pass : KeyVerdict::Swallow;
  // 110 is the letter "n". Whatever it was meant for, the box ends empty like with any other letter.
  return key == U'n' ? KeyVerdict::PassAfterPoint : KeyVerdict::Pass;
}

bool isLoneDecimalSymbol(std::string_view text, const NumberLocale& locale) {
  return text == "." || text == locale.decimal;
}

bool mayStand(std::string_view text, const NumberLocale& locale) {
  return isLoneDecimalSymbol(text, locale) || isNumeric(text, locale);
}

bool isNegative(std::string_view text, const NumberLocale& locale) {
  const auto number = parseDecimal(text, locale);
  // Beyond the range of a double it is below zero all the same; too small for one it is zero.
  return number && number->isNegative && nearestDouble(*number) != 0.0;
}

bool isBelowGermanMinimum(std::string_view text, const NumberLocale& locale) {
  const auto number = parseDecimal(text, locale);
  if (!number || number->isNegative) return false;
  const auto value = nearestDouble(*number);
  return value && static_cast<float>(*value) < 1.0F;
}

std::string germanMinimum(const NumberLocale& locale) { return withDecimalSymbol("1.00", locale); }

#include "quoted_text.h"

#include <algorithm>

namespace {

/// How many bytes the character at the beginning of a text takes; 0 if it is none.
std::size_t characterLength(std::string_view text) {
  const auto byteAt = [&](std::size_t at) { return static_cast<unsigned char>(text[at]); };
  const unsigned first = byteAt(0);
  const std::size_t length = first < 0x80 ? 1 : first < 0xC2 ? 0 : first < 0xE0 ? 2 : first < 0xF0 ? 3 : 4;
  if (first > 0xF4 || length > text.size()) return 0;
  for (std::size_t at = 1; at < length; ++at) {
    if ((byteAt(at) & 0xC0U) != 0x80U) return 0;
  }
  if (length > 2) {
    // Overlong forms, halves of pairs, and what lies beyond the last character.
    const unsigned second = byteAt(1);
    const bool isWrong = (first == 0xE0 && second < 0xA0) || (first == 0xED && second >= 0xA0) ||
                         (first == 0xF0 && second < 0x90) || (first == 0xF4 && second >= 0x90);
    if (isWrong) return 0;
  }
  return length;
}

/// Whether the character at the beginning of a text, of that length, moves the cursor instead of being seen.
bool isControl(std::string_view text, std::size_t length) {
  const auto byteAt = [&](std::size_t at) { return static_cast<unsigned char>(text[at]); };
  if (length == 1) return byteAt(0) < 0x20 || byteAt(0) == 0x7F;
  return length == 2 && byteAt(0) == 0xC2 && byteAt(1) < 0xA0;
}

}  // namespace

std::string oneLine(std::string_view text, std::size_t longest) {
  std::string line;
  while (!text.empty() && line.size() < longest) {
    const std::size_t length = characterLength(text);
    if (length == 0) {
      line += "\uFFFD";
    } else if (isControl(text, length)) {
      line += ' ';
    } else {
      line += text.substr(0, length);
    }
    text.remove_prefix(std::max<std::size_t>(length, 1));
  }
  if (!text.empty()) line += "...";
  return line;
}

std::string quotedText(std::string_view text) {
  constexpr std::size_t longest = 40;
  return '"' + oneLine(text, longest) + '"';
}

#pragma once

#include <string_view>

/// \file
/// Signs of ASCII, whatever language the desktop speaks.

[[nodiscard]] constexpr bool isDigit(char c) { return c >= '0' && c <= '9'; }

[[nodiscard]] constexpr char inLowerCase(char c) {
  return c >= 'A' && c <= 'Z' ? static_cast<char>(c + ('a' - 'A')) : c;
}

/// Without the blanks and tabs around it.
[[nodiscard]] constexpr std::string_view withoutBlanks(std::string_view text) {
  const auto isBlank = [](char c) { return c == ' ' || c == '\t'; };
  while (!text.empty() && isBlank(text.front())) text.remove_prefix(1);
  while (!text.empty() && isBlank(text.back())) text.remove_suffix(1);
  return text;
}

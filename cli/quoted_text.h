#pragma once

#include <cstddef>
#include <string>
#include <string_view>

/// \file
/// Texts of others within a message.

/// A text as it fits into one line: valid UTF-8 without signs that move the cursor, "..." behind the first
/// `longest` bytes.
[[nodiscard]] std::string oneLine(std::string_view text, std::size_t longest = 200);

/// The beginning of a text on one line, between quotation marks.
[[nodiscard]] std::string quotedText(std::string_view text);

#include "amount_errors.h"

namespace {

// A pasted text may be thousands of characters long; a message shows its beginning.
std::string quoted(std::string_view text) {
  constexpr std::size_t shown = 60;
  const bool isLong = text.size() > shown;
  std::size_t length = isLong ? shown : text.size();
  const auto continuesCharacter = [&](std::size_t at) {
    return (static_cast<unsigned char>(text[at]) & 0xC0U) == 0x80U;
  };
  while (isLong && length > 0 && continuesCharacter(length)) --length;
  return "\"" + std::string(text.substr(0, length)) + (isLong ? "...\"" : "\"");
}

}  // namespace

AmountError::AmountError(const std::string& message, std::string_view offendingText)
    : std::runtime_error(message), m_offendingText(offendingText) {}

ConversionError::ConversionError(std::string_view offendingText)
    : AmountError(quoted(offendingText) + " is not a number.", offendingText) {}

OverflowError::OverflowError(std::string_view offendingText)
    : AmountError("The amount " + quoted(offendingText) + " is too large.", offendingText) {}

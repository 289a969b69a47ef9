#pragma once

#include <stdexcept>
#include <string>
#include <string_view>

/// A text that is no amount, or an amount that its type cannot hold. Carries the offending text.
class AmountError : public std::runtime_error {
 public:
  [[nodiscard]] const std::string& offendingText() const noexcept { return m_offendingText; }

 protected:
  AmountError(const std::string& message, std::string_view offendingText);

 private:
  std::string m_offendingText;
};

/// The text is not a number at all.
class ConversionError : public AmountError {
 public:
  explicit ConversionError(std::string_view offendingText);
};

/// The text or the result is a number, but too large for its type.
class OverflowError : public AmountError {
 public:
  explicit OverflowError(std::string_view offendingText);
};

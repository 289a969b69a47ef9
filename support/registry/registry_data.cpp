#include "registry_data.h"

#include <array>
#include <charconv>
#include <limits>

namespace {

constexpr unsigned kBitsPerByte = 8;

std::string textOf(std::int32_t number) {
  constexpr std::size_t longest = std::numeric_limits<std::int32_t>::digits10 + 2;  // one digit more, a sign
  std::array<char, longest> digits;
  return {digits.data(), std::to_chars(digits.data(), digits.data() + digits.size(), number).ptr};
}

std::string textOf(const RegistryValue& value) {
  const auto* number = std::get_if<std::int32_t>(&value);
  return number ? textOf(*number) : std::get<std::string>(value);
}

/// A text must be a whole number from its first character to its last.
std::optional<std::int32_t> numberOf(const RegistryValue& value) {
  if (const auto* number = std::get_if<std::int32_t>(&value)) return *number;
  const auto& text = std::get<std::string>(value);
  std::int32_t number = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (error != std::errc() || end != text.data() + text.size()) return {};
  return number;
}

std::string withTerminator(std::string text) {
  text.push_back('\0');
  return text;
}

}  // namespace

std::string textData(const RegistryValue& value) { return withTerminator(textOf(value)); }

std::optional<std::string> byteData(const RegistryValue& value) {
  constexpr std::int32_t largestByte = 255;
  const std::optional<std::int32_t> number = numberOf(value);
  if (!number || *number < 0 || *number > largestByte) return {};
  return withTerminator(textOf(*number));
}

std::optional<std::string> numberData(const RegistryValue& value, std::uint32_t size) {
  const std::optional<std::int32_t> number = numberOf(value);
  if (!number) return {};
  std::string bytes(size, '\0');
  auto rest = static_cast<std::uint32_t>(*number);
  for (char& byte : bytes) {
    byte = static_cast<char>(rest & 0xFFU);
    rest >>= kBitsPerByte;
  }
  return bytes;
}

std::optional<std::int32_t> numberOfData(std::string_view bytes) {
  if (bytes.size() < sizeof(std::int32_t)) return {};
  std::uint32_t number = 0;
  for (unsigned at = 0; at < sizeof number; ++at)
    number |= std::uint32_t{static_cast<unsigned char>(bytes[at])} << (kBitsPerByte * at);
  return static_cast<std::int32_t>(number);
}

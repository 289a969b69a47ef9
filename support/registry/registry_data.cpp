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

std::string textOf(const RegistryBytes& bytes) {
  std::string text;
  for (const std::byte byte : bytes) text.push_back(static_cast<char>(byte));
  return text;
}

std::string textOf(const std::string& text) { return text; }

std::string textOf(const RegistryValue& value) {
  return std::visit([](const auto& each) { return textOf(each); }, value);
}

std::string_view withoutOuterBlanks(std::string_view text) {
  const std::size_t first = text.find_first_not_of(' ');
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(' ') + 1 - first);
}

std::optional<std::int32_t> numberOf(std::string_view text) {
  text = withoutOuterBlanks(text);
  if (text.starts_with('+') && !text.starts_with("+-")) text.remove_prefix(1);
  std::int32_t number = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (error != std::errc() || end != text.data() + text.size()) return {};
  return number;
}

std::optional<std::int32_t> numberOf(const RegistryValue& value) {
  if (const auto* number = std::get_if<std::int32_t>(&value)) return *number;
  if (const auto* text = std::get_if<std::string>(&value)) return numberOf(std::string_view(*text));
  return {};
}

bool isByte(std::int32_t number) { return number >= 0 && number <= std::numeric_limits<std::uint8_t>::max(); }

std::string withTerminator(std::string text) {
  text.push_back('\0');
  return text;
}

}  // namespace

std::string textData(const RegistryValue& value) { return withTerminator(textOf(value)); }

std::optional<std::string> binaryData(const RegistryValue& value) {
  if (const auto* bytes = std::get_if<RegistryBytes>(&value)) return textOf(*bytes);
  const std::optional<std::int32_t> number = numberOf(value);
  if (!number || !isByte(*number)) return {};
  return withTerminator(textOf(*number));
}

RegistryBytes bytesOfData(std::string_view data) {
  if (data.ends_with('\0')) {
    const std::string_view text = data.substr(0, data.size() - 1);
    const std::optional<std::int32_t> number = numberOf(text);
    if (number && isByte(*number) && textOf(*number) == text) data = text;
  }
  RegistryBytes bytes;
  for (const char byte : data) bytes.push_back(static_cast<std::byte>(byte));
  return bytes;
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

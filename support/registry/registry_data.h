#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "registry.h"

/// \file
/// Values as the bytes that the registry keeps for each type, and back. Knows no key and makes no call. No
/// locale has a say: a number is written in ASCII digits, and only a whole text of these is read as one.

/// The text and its terminating zero.
std::string textData(const RegistryValue& value);

/// The decimal text of a byte and its terminating zero, or the bytes themselves; nothing for what is no
/// number from 0 to 255.
std::optional<std::string> binaryData(const RegistryValue& value);

/// The bytes of a binary value, without the terminator that `binaryData` put there.
RegistryBytes bytesOfData(std::string_view data);

/// A 32-bit number, the lowest byte first whatever the processor's order is, in `size` bytes: what goes
/// beyond the number is zero. Nothing for what is no such number.
std::optional<std::string> numberData(const RegistryValue& value, std::uint32_t size);

/// The number in the first four bytes; nothing if there are less.
std::optional<std::int32_t> numberOfData(std::string_view bytes);

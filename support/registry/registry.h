#pragma once

#include <cstddef>
#include <cstdint>
#include <stdexcept>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "registry_backend.h"

/// An operation that failed: its number, 11001 to 11008, and as the text its name.
class RegistryError : public std::runtime_error {
 public:
  RegistryError(int number, const char* operation) : std::runtime_error(operation), m_number(number) {}

  [[nodiscard]] int number() const { return m_number; }
  [[nodiscard]] const char* source() const { return "clsRegistry"; }
  [[nodiscard]] const char* description() const { return what(); }

 private:
  int m_number;
};

/// The content of a binary value.
using RegistryBytes = std::vector<std::byte>;

/// What is written or read: a text, a 32-bit number, or bytes. A text is a number where all of it but blanks
/// at its ends is a whole number in ASCII digits, with or without a sign: " 7" and "+7" are, "7.6" is refused
/// and not rounded.
using RegistryValue = std::variant<std::string, std::int32_t, RegistryBytes>;

/// Writes, reads, lists and deletes keys and values of the registry. `root` is a predefined key, `keyPath`
/// the way from there, of which one leading "\" is dropped. With a `computer` the operation first connects to
/// that machine. Whatever an operation opens it closes, also when it fails with a RegistryError.
///
/// It knows no key of the program, and the user's settings do not go through it. Names and texts are bytes in
/// the user's code page on Windows, and UTF-8 elsewhere.
class CRegistry {
 public:
  /// `backend` must outlive the object.
  explicit CRegistry(RegistryBackend& backend) : m_backend(backend) {}

  /// Writes a new value as text, and an existing one in its own type: text, number, or as binary the decimal
  /// text of a byte and its terminator. Bytes are as text the characters that they are, and as binary
  /// themselves; they are no number. A value of another type is left as it is. Always true; 11001 if the key
  /// cannot be opened, the value does not fit the type, or the write fails.
  bool SetValue(RegistryHandle root, std::string_view keyPath, const std::string& valueName,
                const RegistryValue& value, const std::string& computer = {});

  /// A text up to its first zero, a number, or all bytes of a binary value, but for the terminator that
  /// SetValue puts behind the text of a byte. 11002 if the value is missing or has another type.
  [[nodiscard]] RegistryValue GetValue(RegistryHandle root, std::string_view keyPath,
                                       const std::string& valueName, const std::string& computer = {});

  /// The name of the index-th key below, from 0. 11003 past the last one.
  [[nodiscard]] std::string ListSubKey(RegistryHandle root, std::string_view keyPath, std::uint32_t index,
                                       const std::string& computer = {});

  /// Whether the value was there; now it is not. 11004 if the key cannot be opened or the value not be
  /// deleted.
  bool DeleteValue(RegistryHandle root, std::string_view keyPath, const std::string& valueName,
                   const std::string& computer = {});

  /// Makes a key that is not there yet, and those above it. Always true; 11005 if it cannot be made.
  bool CreateKey(RegistryHandle root, std::string_view keyPath, const std::string& computer = {});

  /// Whether the key was there; now it is not. 11006 if it cannot be deleted, as one with keys below it.
  bool DeleteKey(RegistryHandle root, std::string_view keyPath, const std::string& computer = {});

  /// The name of the index-th value, from 0. 11007 past the last one.
  [[nodiscard]] std::string ListSubValue(RegistryHandle root, std::string_view keyPath, std::uint32_t index,
                                         const std::string& computer = {});

  /// False if there is no such key. 11008 if that cannot be told.
  [[nodiscard]] bool KeyExists(RegistryHandle root, std::string_view keyPath,
                               const std::string& computer = {});

 private:
  RegistryBackend& m_backend;
};

#pragma once

#include <string>

#include "registry.h"

/// The content of a binary value, from the characters of its bytes.
inline RegistryBytes bytes(const std::string& data) {
  RegistryBytes result;
  for (const char each : data) result.push_back(static_cast<std::byte>(each));
  return result;
}

constexpr RegistryHandle kUserRoot = 0x80000001;

/// One call of each operation, and the number of its error.
struct Operation {
  const char* name;
  int number;
  void (*run)(CRegistry& registry, RegistryHandle root, const std::string& path, const std::string& computer);
};

// clang-format off
constexpr Operation kOperations[] = {
    {"SetValue",     11001, [](CRegistry& registry, RegistryHandle root, const std::string& path, const std::string& computer)
                            { registry.SetValue(root, path, "v", "new", computer); }},
    {"GetValue",     11002, [](CRegistry& registry, RegistryHandle root, const std::string& path, const std::string& computer)
                            { (void)registry.GetValue(root, path, "v", computer); }},
    {"ListSubKey",   11003, [](CRegistry& registry, RegistryHandle root, const std::string& path, const std::string& computer)
                            { (void)registry.ListSubKey(root, path, 0, computer); }},
    {"DeleteValue",  11004, [](CRegistry& registry, RegistryHandle root, const std::string& path, const std::string& computer)
                            { registry.DeleteValue(root, path, "v", computer); }},
    {"CreateKey",    11005, [](CRegistry& registry, RegistryHandle root, const std::string& path, const std::string& computer)
                            { registry.CreateKey(root, path, computer); }},
    {"DeleteKey",    11006, [](CRegistry& registry, RegistryHandle root, const std::string& path, const std::string& computer)
                            { registry.DeleteKey(root, path, computer); }},
    {"ListSubValue", 11007, [](CRegistry& registry, RegistryHandle root, const std::string& path, const std::string& computer)
                            { (void)registry.ListSubValue(root, path, 0, computer); }},
    {"KeyExists",    11008, [](CRegistry& registry, RegistryHandle root, const std::string& path, const std::string& computer)
                            { (void)registry.KeyExists(root, path, computer); }},
};
// clang-format on

/// "11001 clsRegistry SetValue" if that is what `act` raises, "" if it raises nothing.
template <typename Act>
std::string errorOf(Act act) {
  try {
    act();
    return {};
  } catch (const RegistryError& error) {
    // Five digits, all numbers being between 11001 and 11008.
    std::string number = "11000";
    number.back() = static_cast<char>('0' + error.number() - 11000);
    return number + " " + error.source() + " " + error.description();
  }
}

inline std::string errorOf(const Operation& operation, CRegistry& registry, RegistryHandle root,
                           const std::string& path, const std::string& computer) {
  return errorOf([&] { operation.run(registry, root, path, computer); });
}

inline std::string ownError(const Operation& operation) {
  return errorOf([&] { throw RegistryError(operation.number, operation.name); });
}

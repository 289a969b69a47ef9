#pragma once

#include <algorithm>
#include <array>
#include <charconv>
#include <map>
#include <string>

#include "registry_backend.h"

/// Writes down every call and answers what the test has prepared: success, one value, one key and one name of
/// a value. Knows how many handles are open.
class RecordingRegistry : public RegistryBackend {
 public:
  std::map<std::string, RegistryStatus> answers;  ///< by the name of the call; success for all others
  RegistryType type = RegistryType::Text;         ///< of the value
  std::string data{"old\0", 4};                   ///< of the value
  std::string calls;                              ///< "open(...); query(...); ..."
  std::string written;                            ///< the data of the last write
  int openHandles = 0;

  RegistryStatus connect(const std::string& computer, RegistryHandle root,
                         RegistryHandle& remoteRoot) override {
    const RegistryStatus status = record("connect", computer + ", " + hex(root));
    return handOut(status, remoteRoot, 0x100);
  }

  RegistryStatus openKey(RegistryHandle parent, const std::string& path, std::uint32_t access,
                         RegistryHandle& key) override {
    const RegistryStatus status = record("open", hex(parent) + ", " + path + ", " + hex(access));
    return handOut(status, key, 0x200);
  }

  RegistryStatus createKey(RegistryHandle parent, const std::string& path, std::uint32_t access,
                           RegistryHandle& key) override {
    const RegistryStatus status = record("create", hex(parent) + ", " + path + ", " + hex(access));
    return handOut(status, key, 0x300);
  }

  RegistryStatus deleteKey(RegistryHandle parent, const std::string& path) override {
    return record("delete key", hex(parent) + ", " + path);
  }

  void closeKey(RegistryHandle key) override {
    --openHandles;
    record("close", hex(key));
  }

  RegistryStatus queryValue(RegistryHandle key, const std::string& name, std::span<char> buffer,
                            RegistryType& kind, std::uint32_t& size) override {
    const RegistryStatus status = record("query", hex(key) + ", " + name + ", " + hex(buffer.size()));
    if (status != RegistryStatus::Success) return status;
    kind = type;
    size = static_cast<std::uint32_t>(data.size());
    if (data.size() > buffer.size()) return RegistryStatus::MoreData;
    std::copy(data.begin(), data.end(), buffer.begin());
    return status;
  }

  RegistryStatus setValue(RegistryHandle key, const std::string& name, RegistryType kind,
                          std::string_view bytes) override {
    written = bytes;
    const auto number = static_cast<std::uint32_t>(kind);
    return record("set", hex(key) + ", " + name + ", " + hex(number) + ", " + hex(bytes.size()));
  }

  RegistryStatus deleteValue(RegistryHandle key, const std::string& name) override {
    return record("delete value", hex(key) + ", " + name);
  }

  RegistryStatus enumKey(RegistryHandle key, std::uint32_t index, std::string& name) override {
    name = "a key";
    return record("enum key", hex(key) + ", " + hex(index));
  }

  RegistryStatus enumValue(RegistryHandle key, std::uint32_t index, std::string& name) override {
    name = "a value";
    return record("enum value", hex(key) + ", " + hex(index));
  }

  static std::string hex(std::size_t number) {
    std::array<char, 16> digits;
    return {digits.data(), std::to_chars(digits.data(), digits.data() + digits.size(), number, 16).ptr};
  }

 private:
  RegistryStatus record(const std::string& call, const std::string& arguments) {
    calls += (calls.empty() ? "" : "; ") + call + "(" + arguments + ")";
    const auto answer = answers.find(call);
    return answer == answers.end() ? RegistryStatus::Success : answer->second;
  }

  RegistryStatus handOut(RegistryStatus status, RegistryHandle& handle, RegistryHandle number) {
    handle = number;
    if (status == RegistryStatus::Success) ++openHandles;
    return status;
  }
};

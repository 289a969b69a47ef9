#include <windows.h>

#include "platform_registry.h"

namespace {

// Handles have 32 significant bits, and the sign of the predefined ones goes on into the upper half.
HKEY native(RegistryHandle handle) { return static_cast<HKEY>(LongToHandle(static_cast<LONG>(handle))); }

RegistryHandle numbered(HKEY key) { return static_cast<RegistryHandle>(HandleToLong(key)); }

RegistryStatus answer(LSTATUS status) { return static_cast<RegistryStatus>(status); }

using EnumNames = LSTATUS (*)(HKEY, DWORD, char*, DWORD*);

LSTATUS keyName(HKEY key, DWORD index, char* name, DWORD* length) {
  return RegEnumKeyExA(key, index, name, length, nullptr, nullptr, nullptr, nullptr);
}

LSTATUS valueName(HKEY key, DWORD index, char* name, DWORD* length) {
  return RegEnumValueA(key, index, name, length, nullptr, nullptr, nullptr, nullptr);
}

RegistryStatus nameAt(EnumNames enumerate, RegistryHandle key, std::uint32_t index, std::string& name) {
  // The longest name, that of a value, has 16383 characters of up to three bytes.
  constexpr DWORD longest = 0xFFFF;
  name.resize(longest);
  DWORD length = longest;
  const LSTATUS status = enumerate(native(key), index, name.data(), &length);
  name.resize(status == ERROR_SUCCESS ? length : 0);
  return answer(status);
}

/// The registry of Windows, in the calls that take texts of the user's code page.
class WindowsRegistry : public RegistryBackend {
 public:
  RegistryStatus connect(const std::string& computer, RegistryHandle root,
                         RegistryHandle& remoteRoot) override {
    HKEY connected = nullptr;
    const LSTATUS status = RegConnectRegistryA(computer.c_str(), native(root), &connected);
    remoteRoot = numbered(connected);
    return answer(status);
  }

  RegistryStatus openKey(RegistryHandle parent, const std::string& path, std::uint32_t access,
                         RegistryHandle& key) override {
    HKEY opened = nullptr;
    const LSTATUS status = RegOpenKeyExA(native(parent), path.c_str(), 0, access, &opened);
    key = numbered(opened);
    return answer(status);
  }

  RegistryStatus createKey(RegistryHandle parent, const std::string& path, std::uint32_t access,
                           RegistryHandle& key) override {
    HKEY created = nullptr;
    const LSTATUS status = RegCreateKeyExA(native(parent), path.c_str(), 0, nullptr, REG_OPTION_NON_VOLATILE,
                                           access, nullptr, &created, nullptr);
    key = numbered(created);
    return answer(status);
  }

  RegistryStatus deleteKey(RegistryHandle parent, const std::string& path) override {
    return answer(RegDeleteKeyA(native(parent), path.c_str()));
  }

  void closeKey(RegistryHandle key) override { RegCloseKey(native(key)); }

  RegistryStatus queryValue(RegistryHandle key, const std::string& name, std::span<char> buffer,
                            RegistryType& type, std::uint32_t& size) override {
    DWORD kind = 0;
    auto length = static_cast<DWORD>(buffer.size());
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-reinterpret-cast): the call speaks of unsigned bytes.
    auto* bytes = reinterpret_cast<BYTE*>(buffer.data());
    const LSTATUS status = RegQueryValueExA(native(key), name.c_str(), nullptr, &kind, bytes, &length);
    type = static_cast<RegistryType>(kind);
    size = length;
    return answer(status);
  }

  RegistryStatus setValue(RegistryHandle key, const std::string& name, RegistryType type,
                          std::string_view data) override {
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-reinterpret-cast): the call speaks of unsigned bytes.
    const auto* bytes = reinterpret_cast<const BYTE*>(data.data());
    return answer(RegSetValueExA(native(key), name.c_str(), 0, static_cast<DWORD>(type), bytes,
                                 static_cast<DWORD>(data.size())));
  }

  RegistryStatus deleteValue(RegistryHandle key, const std::string& name) override {
    return answer(RegDeleteValueA(native(key), name.c_str()));
  }

  RegistryStatus enumKey(RegistryHandle key, std::uint32_t index, std::string& name) override {
    return nameAt(keyName, key, index, name);
  }

  RegistryStatus enumValue(RegistryHandle key, std::uint32_t index, std::string& name) override {
    return nameAt(valueName, key, index, name);
  }
};

}  // namespace

std::unique_ptr<RegistryBackend> platformRegistry(const std::filesystem::path& /*file*/) {
  return std::make_unique<WindowsRegistry>();
}

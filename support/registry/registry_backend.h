#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

/// An open key or a predefined root; the numbers of the roots are the platform's (0x80000002 is
/// HKEY_LOCAL_MACHINE). Its handles have 32 significant bits on every system.
using RegistryHandle = std::uint32_t;

/// What a platform call answers, in the platform's numbers. There are more than those with a name.
enum class RegistryStatus : std::uint32_t {
  Success = 0,
  NotFound = 2,
  AccessDenied = 5,
  InvalidHandle = 6,
  BadNetworkPath = 53,
  BadPathName = 161,
  MoreData = 234,
  NoMoreItems = 259,
  DamagedStore = 1009,
  CannotRead = 1012,
  CannotWrite = 1013,
  KeyDeleted = 1018,
};

/// The kind of a value, in the platform's numbers. There are more than those with a name.
enum class RegistryType : std::uint32_t {
  Text = 1,    ///< REG_SZ
  Binary = 3,  ///< REG_BINARY
  Number = 4,  ///< REG_DWORD: 32 bits, the lowest byte first
};

/// The platform calls that CRegistry is made of, one to one. It knows nothing of what they are used for: no
/// argument is changed, no answer is judged. No call throws.
class RegistryBackend {
 public:
  virtual ~RegistryBackend() = default;

  /// The given root of another machine, which is to be closed like an opened key.
  virtual RegistryStatus connect(const std::string& computer, RegistryHandle root,
                                 RegistryHandle& remoteRoot) = 0;

  virtual RegistryStatus openKey(RegistryHandle parent, const std::string& path, std::uint32_t access,
                                 RegistryHandle& key) = 0;

  /// Opens a key, and first makes it and those above it where they are missing.
  virtual RegistryStatus createKey(RegistryHandle parent, const std::string& path, std::uint32_t access,
                                   RegistryHandle& key) = 0;

  /// A key that has keys below it stays, and access to it is denied.
  virtual RegistryStatus deleteKey(RegistryHandle parent, const std::string& path) = 0;

  virtual void closeKey(RegistryHandle key) = 0;

  /// Fills `buffer` and tells the type and the size of the value; both also with MoreData, which is the
  /// answer when the buffer is too small for the value.
  virtual RegistryStatus queryValue(RegistryHandle key, const std::string& name, std::span<char> buffer,
                                    RegistryType& type, std::uint32_t& size) = 0;

  virtual RegistryStatus setValue(RegistryHandle key, const std::string& name, RegistryType type,
                                  std::string_view data) = 0;

  virtual RegistryStatus deleteValue(RegistryHandle key, const std::string& name) = 0;

  /// NoMoreItems past the last one.
  virtual RegistryStatus enumKey(RegistryHandle key, std::uint32_t index, std::string& name) = 0;
  virtual RegistryStatus enumValue(RegistryHandle key, std::uint32_t index, std::string& name) = 0;
};

#include "registry.h"

#include <array>
#include <optional>
#include <utility>

#include "registry_data.h"

namespace {

constexpr std::uint32_t kAllAccess = 0xF003F;

struct Operation {
  int number;
  const char* name;
};

constexpr Operation kSetValue{11001, "SetValue"};
constexpr Operation kGetValue{11002, "GetValue"};
constexpr Operation kListSubKey{11003, "ListSubKey"};
constexpr Operation kDeleteValue{11004, "DeleteValue"};
constexpr Operation kCreateKey{11005, "CreateKey"};
constexpr Operation kDeleteKey{11006, "DeleteKey"};
constexpr Operation kListSubValue{11007, "ListSubValue"};
constexpr Operation kKeyExists{11008, "KeyExists"};

[[noreturn]] void fail(const Operation& operation) { throw RegistryError(operation.number, operation.name); }

void require(RegistryStatus status, const Operation& operation) {
  if (status != RegistryStatus::Success) fail(operation);
}

/// False if what the call was about is not there.
bool wasThere(RegistryStatus status, const Operation& operation) {
  if (status == RegistryStatus::NotFound) return false;
  require(status, operation);
  return true;
}

std::string belowRoot(std::string_view keyPath) {
  if (keyPath.starts_with('\\')) keyPath.remove_prefix(1);
  return std::string(keyPath);
}

/// A handle that is closed at the end of its scope.
class OwnHandle {
 public:
  explicit OwnHandle(RegistryBackend& backend) : m_backend(backend) {}
  OwnHandle(const OwnHandle&) = delete;
  OwnHandle& operator=(const OwnHandle&) = delete;
  ~OwnHandle() {
    if (m_handle) m_backend.closeKey(*m_handle);
  }

  void take(RegistryHandle handle) { m_handle = handle; }

 private:
  RegistryBackend& m_backend;
  std::optional<RegistryHandle> m_handle;
};

/// The root on this machine, or the same on another one.
class Root {
 public:
  Root(RegistryBackend& backend, RegistryHandle root, const std::string& computer, const Operation& operation)
      : m_handle(root), m_connection(backend) {
    if (computer.empty()) return;
    require(backend.connect(computer, root, m_handle), operation);
    m_connection.take(m_handle);
  }

  [[nodiscard]] RegistryHandle handle() const { return m_handle; }

 private:
  RegistryHandle m_handle;
  OwnHandle m_connection;
};

/// A key below a root, if it opens.
class Key {
 public:
  Key(RegistryBackend& backend, RegistryHandle root, std::string_view path, const std::string& computer,
      const Operation& operation)
      : m_root(backend, root, computer, operation), m_key(backend) {
    m_status = backend.openKey(m_root.handle(), belowRoot(path), kAllAccess, m_handle);
    if (m_status == RegistryStatus::Success) m_key.take(m_handle);
  }

  [[nodiscard]] RegistryStatus status() const { return m_status; }
  [[nodiscard]] RegistryHandle handle() const { return m_handle; }

 private:
  Root m_root;
  RegistryHandle m_handle = 0;
  OwnHandle m_key;
  RegistryStatus m_status;
};

/// A key that must open.
class OpenKey : public Key {
 public:
  OpenKey(RegistryBackend& backend, RegistryHandle root, std::string_view path, const std::string& computer,
          const Operation& operation)
      : Key(backend, root, path, computer, operation) {
    require(status(), operation);
  }
};

/// What is known of a value before it is written.
struct Existing {
  RegistryType type = RegistryType::Text;  ///< that of a value that is not there yet
  std::uint32_t size = 0;
};

Existing probe(RegistryBackend& backend, RegistryHandle key, const std::string& name) {
  // A longer value answers that there is more data, and its type is all that is wanted here.
  constexpr std::size_t probeSize = 255;
  std::array<char, probeSize> buffer;
  Existing existing;
  const RegistryStatus status = backend.queryValue(key, name, buffer, existing.type, existing.size);
  if (status == RegistryStatus::NotFound) return {};
  if (status != RegistryStatus::MoreData) require(status, kSetValue);
  return existing;
}

/// False for a type whose values are left alone. What does not fit the type leaves `data` empty.
bool encode(const RegistryValue& value, const Existing& existing, std::optional<std::string>& data) {
  switch (existing.type) {
    case RegistryType::Text:
      data = textData(value);
      return true;
    case RegistryType::Binary:
      data = binaryData(value);
      return true;
    case RegistryType::Number:
      data = numberData(value, existing.size);
      return true;
  }
  return false;
}

struct Stored {
  RegistryType type;
  std::string data;
};

Stored read(RegistryBackend& backend, RegistryHandle key, const std::string& name) {
  std::string buffer(256, '\0');
  // Between two calls another process may have made the value longer, but hardly every time.
  constexpr int tries = 8;
  for (int attempt = 0; attempt < tries; ++attempt) {
    RegistryType type{};
    std::uint32_t size = 0;
    const RegistryStatus status = backend.queryValue(key, name, buffer, type, size);
    if (status != RegistryStatus::MoreData) require(status, kGetValue);
    const bool isWhole = status == RegistryStatus::Success;
    buffer.resize(size);
    if (isWhole) return {type, std::move(buffer)};
  }
  fail(kGetValue);
}

}  // namespace

bool CRegistry::SetValue(RegistryHandle root, std::string_view keyPath, const std::string& valueName,
                         const RegistryValue& value, const std::string& computer) {
  const OpenKey key(m_backend, root, keyPath, computer, kSetValue);
  const Existing existing = probe(m_backend, key.handle(), valueName);
  std::optional<std::string> data;
  if (!encode(value, existing, data)) return true;
  if (!data) fail(kSetValue);
  require(m_backend.setValue(key.handle(), valueName, existing.type, *data), kSetValue);
  return true;
}

RegistryValue CRegistry::GetValue(RegistryHandle root, std::string_view keyPath, const std::string& valueName,
                                  const std::string& computer) {
  const OpenKey key(m_backend, root, keyPath, computer, kGetValue);
  Stored stored = read(m_backend, key.handle(), valueName);
  if (stored.type == RegistryType::Text) return stored.data.substr(0, stored.data.find('\0'));
  if (stored.type == RegistryType::Binary) return bytesOfData(stored.data);
  const std::optional<std::int32_t> number = numberOfData(stored.data);
  if (stored.type != RegistryType::Number || !number) fail(kGetValue);
  return *number;
}

std::string CRegistry::ListSubKey(RegistryHandle root, std::string_view keyPath, std::uint32_t index,
                                  const std::string& computer) {
  const OpenKey key(m_backend, root, keyPath, computer, kListSubKey);
  std::string name;
  require(m_backend.enumKey(key.handle(), index, name), kListSubKey);
  return name;
}

bool CRegistry::DeleteValue(RegistryHandle root, std::string_view keyPath, const std::string& valueName,
                            const std::string& computer) {
  const OpenKey key(m_backend, root, keyPath, computer, kDeleteValue);
  return wasThere(m_backend.deleteValue(key.handle(), valueName), kDeleteValue);
}

bool CRegistry::CreateKey(RegistryHandle root, std::string_view keyPath, const std::string& computer) {
  const Root machine(m_backend, root, computer, kCreateKey);
  RegistryHandle handle = 0;
  require(m_backend.createKey(machine.handle(), belowRoot(keyPath), kAllAccess, handle), kCreateKey);
  m_backend.closeKey(handle);
  return true;
}

bool CRegistry::DeleteKey(RegistryHandle root, std::string_view keyPath, const std::string& computer) {
  const Root machine(m_backend, root, computer, kDeleteKey);
  return wasThere(m_backend.deleteKey(machine.handle(), belowRoot(keyPath)), kDeleteKey);
}

std::string CRegistry::ListSubValue(RegistryHandle root, std::string_view keyPath, std::uint32_t index,
                                    const std::string& computer) {
  const OpenKey key(m_backend, root, keyPath, computer, kListSubValue);
  std::string name;
  require(m_backend.enumValue(key.handle(), index, name), kListSubValue);
  return name;
}

bool CRegistry::KeyExists(RegistryHandle root, std::string_view keyPath, const std::string& computer) {
  const Key key(m_backend, root, keyPath, computer, kKeyExists);
  return wasThere(key.status(), kKeyExists);
}

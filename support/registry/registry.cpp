#include "registry.h"

#include <array>
#include <charconv>
#include <limits>
#include <optional>

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

std::optional<std::string> byteAsText(const RegistryValue& value) {
  constexpr std::int32_t largestByte = 255;
  const std::optional<std::int32_t> number = numberOf(value);
  if (!number || *number < 0 || *number > largestByte) return {};
  return withTerminator(textOf(*number));
}

constexpr unsigned kBitsPerByte = 8;

/// The lowest byte first, whatever the processor's order is; what goes beyond the number is zero.
std::optional<std::string> numberAsBytes(const RegistryValue& value, std::uint32_t size) {
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

std::optional<std::int32_t> numberOfBytes(std::string_view bytes) {
  if (bytes.size() < sizeof(std::int32_t)) return {};
  std::uint32_t number = 0;
  for (unsigned at = 0; at < sizeof number; ++at)
    number |= std::uint32_t{static_cast<unsigned char>(bytes[at])} << (kBitsPerByte * at);
  return static_cast<std::int32_t>(number);
}

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
      data = withTerminator(textOf(value));
      return true;
    case RegistryType::Binary:
      data = byteAsText(value);
      return true;
    case RegistryType::Number:
      data = numberAsBytes(value, existing.size);
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
  if (stored.type == RegistryType::Binary) return std::move(stored.data);
  const std::optional<std::int32_t> number = numberOfBytes(stored.data);
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
  return m_backend.deleteValue(key.handle(), valueName) == RegistryStatus::Success;
}

bool CRegistry::CreateKey(RegistryHandle root, std::string_view keyPath, const std::string& computer) {
  const Root machine(m_backend, root, computer, kCreateKey);
  RegistryHandle handle = 0;
  if (m_backend.createKey(machine.handle(), belowRoot(keyPath), kAllAccess, handle) !=
      RegistryStatus::Success)
    return false;
  m_backend.closeKey(handle);
  return true;
}

bool CRegistry::DeleteKey(RegistryHandle root, std::string_view keyPath, const std::string& computer) {
  const Root machine(m_backend, root, computer, kDeleteKey);
  return m_backend.deleteKey(machine.handle(), belowRoot(keyPath)) == RegistryStatus::Success;
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
  if (key.status() == RegistryStatus::NotFound) return false;
  require(key.status(), kKeyExists);
  return true;
}

#include "registry_tree.h"

#include <algorithm>
#include <array>
#include <limits>
#include <utility>

namespace {

using Node = nlohmann::ordered_json;

constexpr const char* kKeys = "keys";
constexpr const char* kValues = "values";
constexpr const char* kType = "type";
constexpr const char* kText = "text";
constexpr const char* kBytes = "bytes";

// As deep as the registry of Windows. It also bounds how deep these functions call themselves.
constexpr std::size_t kDeepestKey = 512;

constexpr RegistryHandle kFirstRoot = 0x80000000;
// The fourth is that of performance data, which no file can hold.
constexpr std::array<const char*, 6> kRoots{
    "HKEY_CLASSES_ROOT",  "HKEY_CURRENT_USER", "HKEY_LOCAL_MACHINE", "HKEY_USERS", nullptr,
    "HKEY_CURRENT_CONFIG"};

char folded(char letter) {
  return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
}

bool isSameName(std::string_view left, std::string_view right) {
  return std::equal(left.begin(), left.end(), right.begin(), right.end(),
                    [](char one, char other) { return folded(one) == folded(other); });
}

/// An iterator into `members`, const if these are.
template <typename Members>
auto named(Members& members, const std::string& name) {
  auto at = members.begin();
  while (at != members.end() && !isSameName(at.key(), name)) ++at;
  return at;
}

Node emptyKey() { return {{kValues, Node::object()}, {kKeys, Node::object()}}; }

constexpr std::string_view kHexDigits = "0123456789abcdef";

bool isHex(const Node& node) {
  if (!node.is_string()) return false;
  const auto& text = node.get_ref<const std::string&>();
  return text.size() % 2 == 0 && text.find_first_not_of(kHexDigits) == std::string::npos;
}

std::string toHex(std::string_view data) {
  std::string text;
  for (const char byte : data) {
    const auto number = static_cast<unsigned char>(byte);
    text += {kHexDigits[number / kHexDigits.size()], kHexDigits[number % kHexDigits.size()]};
  }
  return text;
}

std::string fromHex(std::string_view text) {
  std::string data;
  for (; !text.empty(); text.remove_prefix(2))
    data += static_cast<char>(kHexDigits.find(text[0]) * kHexDigits.size() + kHexDigits.find(text[1]));
  return data;
}

bool isType(const Node& node) {
  return node.is_number_unsigned() && node.get<std::uint64_t>() <= std::numeric_limits<std::uint32_t>::max();
}

bool isValue(const Node& node) {
  if (!node.is_object() || !node.contains(kType) || !isType(node[kType])) return false;
  if (node.contains(kText)) return node[kText].is_string();
  return node.contains(kBytes) && isHex(node[kBytes]);
}

/// Whether all members of that section pass the check, and it has no name twice.
template <typename Check>
bool isSection(const Node& key, const char* section, Check isMember) {
  if (!key.contains(section) || !key[section].is_object()) return false;
  const Node& members = key[section];
  for (auto at = members.begin(); at != members.end(); ++at)
    if (!isMember(*at) || named(members, at.key()) != at) return false;
  return true;
}

bool isKey(const Node& node, std::size_t depth) {
  return depth <= kDeepestKey && node.is_object() && isSection(node, kValues, isValue) &&
         isSection(node, kKeys, [depth](const Node& below) { return isKey(below, depth + 1); });
}

bool isUtf8(const std::string& text) {
  const std::string written = Node(text).dump(-1, ' ', false, Node::error_handler_t::ignore);
  return Node::parse(written).get_ref<const std::string&>() == text;
}

/// A text of the registry ends in a zero, which the file does not need.
bool isPlainText(RegistryType type, const std::string& data) {
  return type == RegistryType::Text && data.ends_with('\0') && isUtf8(data);
}

Node valueOf(RegistryType type, const std::string& data) {
  Node value{{kType, static_cast<std::uint32_t>(type)}};
  if (isPlainText(type, data))
    value[kText] = data.substr(0, data.size() - 1);
  else
    value[kBytes] = toHex(data);
  return value;
}

std::string dataOf(const Node& value) {
  if (value.contains(kText)) return value[kText].get<std::string>() + '\0';
  return fromHex(value[kBytes].get_ref<const std::string&>());
}

/// The key at the end of the path, or null. As a template for a document that may change and for one that may
/// not.
template <typename Document>
Document* keyAt(Document& document, const KeyPath& path) {
  Document* key = &document;
  for (const std::string& name : path) {
    auto& below = (*key)[kKeys];
    const auto at = named(below, name);
    if (at == below.end()) return nullptr;
    key = &*at;
  }
  return key;
}

}  // namespace

std::optional<std::string> rootName(RegistryHandle root) {
  // A smaller number wraps to one that is far too large.
  const std::uint32_t index = root - kFirstRoot;
  if (index >= kRoots.size() || !kRoots[index]) return {};
  return kRoots[index];
}

RegistryTree::RegistryTree() : RegistryTree(emptyKey()) {}

RegistryTree::RegistryTree(Node document) : m_document(std::move(document)) { addRoots(); }

void RegistryTree::addRoots() {
  Node& roots = m_document[kKeys];
  for (const char* name : kRoots)
    if (name && named(roots, name) == roots.end()) roots[name] = emptyKey();
}

std::optional<RegistryTree> RegistryTree::parse(std::string_view text) {
  constexpr bool throws = false;
  Node document = Node::parse(text, nullptr, throws);
  if (document.is_discarded() || !isKey(document, 0)) return {};
  return RegistryTree(std::move(document));
}

std::optional<std::string> RegistryTree::text() const {
  constexpr int indent = 1;
  try {
    return m_document.dump(indent) + '\n';
  } catch (const Node::type_error&) {
    return {};
  }
}

const RegistryTree::Node* RegistryTree::find(const KeyPath& path) const { return keyAt(m_document, path); }

RegistryTree::Node* RegistryTree::find(const KeyPath& path) { return keyAt(m_document, path); }

bool RegistryTree::hasKey(const KeyPath& path) const { return find(path); }

RegistryStatus RegistryTree::createKey(const KeyPath& path) {
  if (path.size() > kDeepestKey) return RegistryStatus::BadPathName;
  Node* key = &m_document;
  for (const std::string& name : path) {
    Node& below = (*key)[kKeys];
    const auto at = named(below, name);
    key = at != below.end() ? &*at : &(below[name] = emptyKey());
  }
  return RegistryStatus::Success;
}

RegistryStatus RegistryTree::deleteKey(const KeyPath& path) {
  const Node* key = find(path);
  if (!key) return RegistryStatus::NotFound;
  const bool isRoot = path.size() == 1;
  if (isRoot || !(*key)[kKeys].empty()) return RegistryStatus::AccessDenied;
  Node& siblings = (*find({path.begin(), path.end() - 1}))[kKeys];
  siblings.erase(named(siblings, path.back()));
  return RegistryStatus::Success;
}

RegistryStatus RegistryTree::value(const KeyPath& path, const std::string& name, RegistryType& type,
                                   std::string& data) const {
  const Node* key = find(path);
  if (!key) return RegistryStatus::KeyDeleted;
  const Node& values = (*key)[kValues];
  const auto at = named(values, name);
  if (at == values.end()) return RegistryStatus::NotFound;
  type = static_cast<RegistryType>((*at)[kType].get<std::uint32_t>());
  data = dataOf(*at);
  return RegistryStatus::Success;
}

RegistryStatus RegistryTree::setValue(const KeyPath& path, const std::string& name, RegistryType type,
                                      std::string_view data) {
  Node* key = find(path);
  if (!key) return RegistryStatus::KeyDeleted;
  Node& values = (*key)[kValues];
  const auto at = named(values, name);
  (at != values.end() ? *at : values[name]) = valueOf(type, std::string(data));
  return RegistryStatus::Success;
}

RegistryStatus RegistryTree::deleteValue(const KeyPath& path, const std::string& name) {
  Node* key = find(path);
  if (!key) return RegistryStatus::KeyDeleted;
  Node& values = (*key)[kValues];
  const auto at = named(values, name);
  if (at == values.end()) return RegistryStatus::NotFound;
  values.erase(at);
  return RegistryStatus::Success;
}

RegistryStatus RegistryTree::nameIn(const char* section, const KeyPath& path, std::uint32_t index,
                                    std::string& name) const {
  const Node* key = find(path);
  if (!key) return RegistryStatus::KeyDeleted;
  const Node& members = (*key)[section];
  if (index >= members.size()) return RegistryStatus::NoMoreItems;
  name = std::next(members.begin(), static_cast<std::ptrdiff_t>(index)).key();
  return RegistryStatus::Success;
}

RegistryStatus RegistryTree::keyName(const KeyPath& path, std::uint32_t index, std::string& name) const {
  return nameIn(kKeys, path, index, name);
}

RegistryStatus RegistryTree::valueName(const KeyPath& path, std::uint32_t index, std::string& name) const {
  return nameIn(kValues, path, index, name);
}

#include <algorithm>
#include <functional>
#include <map>
#include <utility>

#include "platform_registry.h"
#include "registry_tree.h"
#include "shared_file.h"

namespace {

/// Adds the names of a path, apart by "\". False if one is empty; behind the last a "\" may stand.
bool append(KeyPath& names, std::string_view path) {
  while (!path.empty()) {
    const std::size_t end = std::min(path.find('\\'), path.size());
    if (end == 0) return false;
    names.emplace_back(path.substr(0, end));
    path.remove_prefix(std::min(end + 1, path.size()));
  }
  return true;
}

/// A registry in a file. An open key is no more than its path: whether it is still there shows with every
/// call.
class FileRegistry : public RegistryBackend {
 public:
  explicit FileRegistry(const std::filesystem::path& file) : m_file(file) {}

  RegistryStatus connect(const std::string& /*computer*/, RegistryHandle /*root*/,
                         RegistryHandle& /*remoteRoot*/) override {
    return RegistryStatus::BadNetworkPath;
  }

  RegistryStatus openKey(RegistryHandle parent, const std::string& path, std::uint32_t /*access*/,
                         RegistryHandle& key) override {
    KeyPath names;
    if (const auto status = pathOf(parent, path, names); status != RegistryStatus::Success) return status;
    return ask([&](const RegistryTree& tree) { return openIn(tree, names, key); });
  }

  RegistryStatus createKey(RegistryHandle parent, const std::string& path, std::uint32_t access,
                           RegistryHandle& key) override {
    const RegistryStatus existing = openKey(parent, path, access, key);
    if (existing != RegistryStatus::NotFound) return existing;
    KeyPath names;
    pathOf(parent, path, names);
    const RegistryStatus status = change([&](RegistryTree& tree) { return tree.createKey(names); });
    return status == RegistryStatus::Success ? openKey(parent, path, access, key) : status;
  }

  RegistryStatus deleteKey(RegistryHandle parent, const std::string& path) override {
    KeyPath names;
    if (const auto status = pathOf(parent, path, names); status != RegistryStatus::Success) return status;
    return change([&](RegistryTree& tree) { return tree.deleteKey(names); });
  }

  void closeKey(RegistryHandle key) override { m_open.erase(key); }

  RegistryStatus queryValue(RegistryHandle key, const std::string& name, std::span<char> buffer,
                            RegistryType& type, std::uint32_t& size) override {
    std::string data;
    const RegistryStatus status = askOf(key, &RegistryTree::value, name, type, data);
    if (status != RegistryStatus::Success) return status;
    size = static_cast<std::uint32_t>(data.size());
    if (data.size() > buffer.size()) return RegistryStatus::MoreData;
    std::copy(data.begin(), data.end(), buffer.begin());
    return status;
  }

  RegistryStatus setValue(RegistryHandle key, const std::string& name, RegistryType type,
                          std::string_view data) override {
    return changeOf(key, &RegistryTree::setValue, name, type, data);
  }

  RegistryStatus deleteValue(RegistryHandle key, const std::string& name) override {
    return changeOf(key, &RegistryTree::deleteValue, name);
  }

  RegistryStatus enumKey(RegistryHandle key, std::uint32_t index, std::string& name) override {
    return askOf(key, &RegistryTree::keyName, index, name);
  }

  RegistryStatus enumValue(RegistryHandle key, std::uint32_t index, std::string& name) override {
    return askOf(key, &RegistryTree::valueName, index, name);
  }

 private:
  RegistryStatus pathOf(RegistryHandle parent, const std::string& path, KeyPath& names) const;
  RegistryStatus openIn(const RegistryTree& tree, const KeyPath& names, RegistryHandle& key);
  RegistryStatus load(RegistryTree& tree) const;
  [[nodiscard]] RegistryStatus store(const RegistryTree& tree) const;
  RegistryStatus ask(const std::function<RegistryStatus(const RegistryTree&)>& question) const;
  RegistryStatus change(const std::function<RegistryStatus(RegistryTree&)>& act) const;

  /// A question to, or a change of, an open key.
  template <typename Member, typename... Arguments>
  RegistryStatus askOf(RegistryHandle key, Member member, Arguments&... arguments) const {
    const auto at = m_open.find(key);
    if (at == m_open.end()) return RegistryStatus::InvalidHandle;
    return ask([&](const RegistryTree& tree) { return std::invoke(member, tree, at->second, arguments...); });
  }

  template <typename Member, typename... Arguments>
  [[nodiscard]] RegistryStatus changeOf(RegistryHandle key, Member member,
                                        const Arguments&... arguments) const {
    const auto at = m_open.find(key);
    if (at == m_open.end()) return RegistryStatus::InvalidHandle;
    return change([&](RegistryTree& tree) { return std::invoke(member, tree, at->second, arguments...); });
  }

  SharedFile m_file;
  std::map<RegistryHandle, KeyPath> m_open;
  RegistryHandle m_last = 0;  ///< handles are counted from 1, far below the predefined roots
};

RegistryStatus FileRegistry::pathOf(RegistryHandle parent, const std::string& path, KeyPath& names) const {
  if (const auto root = rootName(parent)) {
    names = {*root};
  } else if (const auto at = m_open.find(parent); at != m_open.end()) {
    names = at->second;
  } else {
    return RegistryStatus::InvalidHandle;
  }
  return append(names, path) ? RegistryStatus::Success : RegistryStatus::BadPathName;
}

RegistryStatus FileRegistry::openIn(const RegistryTree& tree, const KeyPath& names, RegistryHandle& key) {
  if (!tree.hasKey(names)) return RegistryStatus::NotFound;
  key = ++m_last;
  m_open[key] = names;
  return RegistryStatus::Success;
}

RegistryStatus FileRegistry::load(RegistryTree& tree) const {
  std::optional<std::string> content;
  const RegistryStatus status = m_file.read(content);
  if (status != RegistryStatus::Success || !content) return status;
  std::optional<RegistryTree> read = RegistryTree::parse(*content);
  if (!read) return RegistryStatus::DamagedStore;
  tree = std::move(*read);
  return RegistryStatus::Success;
}

RegistryStatus FileRegistry::store(const RegistryTree& tree) const {
  const std::optional<std::string> text = tree.text();
  return text ? m_file.replace(*text) : RegistryStatus::BadPathName;
}

RegistryStatus FileRegistry::ask(const std::function<RegistryStatus(const RegistryTree&)>& question) const {
  RegistryTree tree;
  const RegistryStatus status = load(tree);
  return status == RegistryStatus::Success ? question(tree) : status;
}

RegistryStatus FileRegistry::change(const std::function<RegistryStatus(RegistryTree&)>& act) const {
  return m_file.exclusively([&] {
    RegistryTree tree;
    if (const auto status = load(tree); status != RegistryStatus::Success) return status;
    if (const auto status = act(tree); status != RegistryStatus::Success) return status;
    return store(tree);
  });
}

}  // namespace

std::unique_ptr<RegistryBackend> platformRegistry(const std::filesystem::path& file) {
  return std::make_unique<FileRegistry>(file);
}

#pragma once

#include <nlohmann/json.hpp>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "registry_backend.h"

/// The way to a key: the name of its root, then one name for each step below.
using KeyPath = std::vector<std::string>;

/// The keys and values of a registry as they stand in its file. A key is {"values": {...}, "keys": {...}},
/// and so is the document, whose keys are the roots; a value is {"type": 1, "text": "..."}, or {"type": 3,
/// "bytes": "00ff"} where its data are no text. Names are alike whatever their case (that of ASCII letters),
/// and keep their first spelling; they are listed in the order in which they came.
class RegistryTree {
 public:
  /// Empty but for the roots.
  RegistryTree();

  /// Nothing if the text is not a registry from beginning to end.
  [[nodiscard]] static std::optional<RegistryTree> parse(std::string_view text);

  /// Nothing if a name is not UTF-8.
  [[nodiscard]] std::optional<std::string> text() const;

  [[nodiscard]] bool hasKey(const KeyPath& path) const;
  RegistryStatus createKey(const KeyPath& path);
  RegistryStatus deleteKey(const KeyPath& path);

  // Of a key that is not there any more, the answer is KeyDeleted.
  [[nodiscard]] RegistryStatus value(const KeyPath& path, const std::string& name, RegistryType& type,
                                     std::string& data) const;
  RegistryStatus setValue(const KeyPath& path, const std::string& name, RegistryType type,
                          std::string_view data);
  RegistryStatus deleteValue(const KeyPath& path, const std::string& name);
  [[nodiscard]] RegistryStatus keyName(const KeyPath& path, std::uint32_t index, std::string& name) const;
  [[nodiscard]] RegistryStatus valueName(const KeyPath& path, std::uint32_t index, std::string& name) const;

 private:
  using Node = nlohmann::ordered_json;

  explicit RegistryTree(Node document);
  void addRoots();
  [[nodiscard]] const Node* find(const KeyPath& path) const;
  [[nodiscard]] Node* find(const KeyPath& path);
  [[nodiscard]] RegistryStatus nameIn(const char* section, const KeyPath& path, std::uint32_t index,
                                      std::string& name) const;

  Node m_document;
};

/// The name under which a predefined root stands in the file; nothing for a number that is none.
std::optional<std::string> rootName(RegistryHandle root);

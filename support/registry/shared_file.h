#pragma once

#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "registry_backend.h"

/// A file that several processes read and change. It is replaced as a whole, by one process at a time, so
/// that a reader never sees half of it, and a write that fails leaves the old one. It does not know what is
/// in it.
class SharedFile {
 public:
  explicit SharedFile(const std::filesystem::path& file);

  /// The content; nothing, and Success, for a file that is not there yet.
  [[nodiscard]] RegistryStatus read(std::optional<std::string>& content) const;

  /// Replaces the file; what cannot be written as a whole is not written. Only within `exclusively`.
  [[nodiscard]] RegistryStatus replace(std::string_view content) const;

  /// Does the work while no other process does. The lock is a file of its own beside the file, and stays
  /// there.
  [[nodiscard]] RegistryStatus exclusively(const std::function<RegistryStatus()>& work) const;

 private:
  std::filesystem::path m_file;
};

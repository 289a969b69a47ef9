#pragma once

#include <filesystem>
#include <memory>

#include "registry_backend.h"

/// The registry of the system. On Windows its own, and `file` is not looked at. Elsewhere the JSON file of
/// that name, which is made with the first key, and its folder with it: one user's, shared by processes, read
/// afresh by every call and replaced as a whole or not at all. A file that is damaged fails every call and is
/// never written over. There, other machines cannot be reached.
std::unique_ptr<RegistryBackend> platformRegistry(const std::filesystem::path& file);

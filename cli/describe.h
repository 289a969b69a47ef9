#pragma once

#include <CLI/CLI.hpp>
#include <string>

/// \file
/// What the world around a command wants to know of its options, made from the options themselves: nothing
/// here knows one by name.

/// The manual page, in the language of man(7). `version` is the program's.
[[nodiscard]] std::string manualPage(const CLI::App& program, const std::string& version);

/// Completions for the shells: commands, options, and the values of those that have a list of them.
[[nodiscard]] std::string bashCompletion(const CLI::App& program);
[[nodiscard]] std::string zshCompletion(const CLI::App& program);
[[nodiscard]] std::string fishCompletion(const CLI::App& program);

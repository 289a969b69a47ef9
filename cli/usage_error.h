#pragma once

#include <CLI/CLI.hpp>
#include <string>
#include <vector>

/// What is wrong with a command line that could not be parsed, and on a second line where help is. In words
/// of the program's own, but for errors that no command line can bring about. `arguments` are those that the
/// user wrote.
[[nodiscard]] std::string usageError(const CLI::ParseError& error, const CLI::App& program,
                                     const std::vector<std::string>& arguments);

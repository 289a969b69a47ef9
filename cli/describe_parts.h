#pragma once

#include <CLI/CLI.hpp>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

/// \file
/// What manual page and completions ask about commands, options and arguments, and texts made of the answers.

/// What an option takes for its value, or an argument is.
enum class ValueKind : std::uint8_t {
  None,   ///< it is a flag
  Words,  ///< one of a few: "us|uk|ca|de"
  File,   ///< "FILE"
  Text    ///< anything else: "AMOUNT"
};

[[nodiscard]] std::vector<const CLI::App*> commandsOf(const CLI::App& program);
/// The program itself, which takes options instead of a command, and its commands.
[[nodiscard]] std::vector<const CLI::App*> programAndCommands(const CLI::App& program);
/// The word that stands for it behind the program's name: "single"; "" for the program itself.
[[nodiscard]] std::string wordOf(const CLI::App& command);

/// The options that have a long name (all do).
[[nodiscard]] std::vector<const CLI::Option*> optionsOf(const CLI::App& command);
/// What a command takes besides, told by its place: "FILE".
[[nodiscard]] std::vector<const CLI::Option*> argumentsOf(const CLI::App& command);

/// "--site"; of an argument "FILE".
[[nodiscard]] std::string nameOf(const CLI::Option& option);
/// What stands for the value: "us|uk|ca|de", "AMOUNT". An argument's name says it.
[[nodiscard]] std::string typeOf(const CLI::Option& option);
[[nodiscard]] ValueKind valueKindOf(const CLI::Option& option);
/// The values of one that takes one of a few; otherwise none.
[[nodiscard]] std::vector<std::string> valuesOf(const CLI::Option& option);

[[nodiscard]] std::vector<std::string> namesOf(const std::vector<const CLI::App*>& commands);
[[nodiscard]] std::vector<std::string> namesOf(const std::vector<const CLI::Option*>& options);

[[nodiscard]] std::string joined(const std::vector<std::string>& words, std::string_view between = " ");
[[nodiscard]] std::string replaced(std::string text, std::string_view what, std::string_view with);
/// Within single quotes of a shell.
[[nodiscard]] std::string inQuotes(const std::string& text);

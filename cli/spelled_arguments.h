#pragma once

#include <CLI/CLI.hpp>
#include <string>
#include <vector>

/// \file
/// What a command line says, in the words that the parser knows.

/// The options of a command that "--op" can stand for: the one of that name or, if there is none, all whose
/// names begin with it.
[[nodiscard]] std::vector<const CLI::Option*> optionsMeant(const CLI::App& command, const std::string& name);

/// Arguments with the names of options in full, where they can stand for one alone. The parser takes the next
/// argument for the value of "--opening=", which is how scripts write an empty one: it becomes an argument of
/// its own. A flag that is empty says no, as in the cells of a batch. The values of options, and all behind
/// "--", stay as they are.
[[nodiscard]] std::vector<std::string> spelledOut(const CLI::App& program,
                                                  const std::vector<std::string>& arguments);

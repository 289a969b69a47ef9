#pragma once

#include <CLI/CLI.hpp>
#include <iosfwd>
#include <string>

#include "listing.h"
#include "table.h"

/// How a command ended, as the process says it.
enum ExitStatus : int { AllGood = 0, SomeFailed = 1, WrongUse = 2 };

/// What all commands share: where they write, how, and how they ended.
struct Session {
  std::ostream& out;
  std::ostream& errors;
  int status = AllGood;
  Format format = Format::Text;
  std::string decimal;  ///< "." or ",", as the user said; "" if he did not

  /// The signs of the numbers on the command line and in files.
  [[nodiscard]] NumberLocale locale() const;
  [[nodiscard]] char decimalSign() const { return decimal == "," ? ',' : '.'; }

  void write(const Table& table) { ::write(out, table, format, decimalSign()); }
};

/// Adds --format and --decimal to a command.
void addOutputOptions(CLI::App& command, Session& session);

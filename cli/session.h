#pragma once

#include <iosfwd>
#include <string>

#include "listing.h"
#include "table.h"

// Their header is by far the largest here: only who adds or reads options pays for it.
namespace CLI {
class App;
class Option;
}  // namespace CLI

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

/// Lets an option take one of a few values, "text|csv|json", in any case; they stand in its help.
void takesOneOf(CLI::Option* option, const std::string& values);

/// Adds --decimal to a command.
void addDecimalOption(CLI::App& command, Session& session);

/// Adds --format and --decimal to a command.
void addOutputOptions(CLI::App& command, Session& session);

#include "program.h"

#include <fmt/format.h>

#include <algorithm>
#include <cerrno>
#include <CLI/CLI.hpp>
#include <memory>
#include <ostream>
#include <system_error>

#include "bands_command.h"
#include "batch_command.h"
#include "compare_command.h"
#include "curve_command.h"
#include "help_formatter.h"
#include "price_commands.h"
#include "program_notes.h"
#include "program_version.h"
#include "quoted_text.h"
#include "schedule_command.h"
#include "solve_command.h"
#include "spelled_arguments.h"
#include "usage_error.h"
#include "whatif_command.h"

namespace {

/// What stands below the commands.
std::string footer() {
  std::string text = "Exit status:";
  for (const auto& [status, meaning] : kExitMeanings)
    text += fmt::format(" {} {},", static_cast<int>(status), meaning);
  text.back() = '.';
  text.append("\n\n").append(kAbbreviations).append("\n\nExamples:");
  for (const std::string_view example : kExamples) text.append("\n  ").append(example);
  return text;
}

int parse(CLI::App& program, const Session& session, const std::vector<std::string>& arguments) {
  constexpr std::size_t longest = 1000;
  try {
    std::vector<std::string> spelled = spelledOut(program, arguments);
    std::reverse(spelled.begin(), spelled.end());  // they are taken from the back
    program.parse(std::move(spelled));
    return session.status;
  } catch (const CLI::Success& helpOrVersion) {
    program.exit(helpOrVersion, session.out, session.errors);
    return AllGood;
  } catch (const CLI::ParseError& error) {
    session.errors << usageError(error, program, arguments);
  } catch (const std::runtime_error& error) {
    // An option, an amount or a listing that makes no sense.
    session.errors << program.get_name() << ": " << oneLine(error.what(), longest) << '\n';
  }
  return WrongUse;
}

}  // namespace

void makeProgram(CLI::App& program, Session& session) {
  program.name("tessaloom-fees");
  program.description("what eBay and PayPal charge, by the schedule that is built into Tessaloom");
  program.set_help_flag("-h,--help", "print this help and exit");
  program.require_subcommand(1);
  // Commands take it over as they are added.
  program.formatter(std::make_shared<HelpFormatter>());
  addPriceCommands(program, session);
  addBatchCommand(program, session);
  addScheduleCommand(program, session);
  addCompareCommand(program, session);
  addWhatIfCommand(program, session);
  addSolveCommand(program, session);
  addBandsCommand(program, session);
  addCurveCommand(program, session);
  const std::string version = program.get_name() + " " + kProgramVersion;
  const auto setVersion = [&version](CLI::App& app) {
    app.set_version_flag("--version", version, "print the version and exit");
  };
  setVersion(program);
  for (CLI::App* command : program.get_subcommands([](const CLI::App*) { return true; })) {
    command->group("Commands");
    setVersion(*command);
  }
  // Behind the commands, which would take it over.
  program.footer(footer());
}

int runProgram(const std::vector<std::string>& arguments, std::ostream& out, std::ostream& errors) {
  Session session{.out = out, .errors = errors, .decimal = {}};
  CLI::App program;
  makeProgram(program, session);
  errno = 0;
  const int status = parse(program, session, arguments);
  if (out.flush()) return status;
  // Nothing that could fail comes between the failed write and here.
  errors << program.get_name() << ": cannot write: " << std::generic_category().message(errno) << '\n';
  return status == AllGood ? SomeFailed : status;
}

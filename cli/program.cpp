#include "program.h"

#include <algorithm>
#include <ostream>

#include "amount_errors.h"
#include "bands_command.h"
#include "batch_command.h"
#include "compare_command.h"
#include "curve_command.h"
#include "option_values.h"
#include "price_commands.h"
#include "pricing.h"
#include "program_version.h"
#include "schedule_command.h"
#include "solve_command.h"
#include "whatif_command.h"

namespace {

int parse(CLI::App& program, const Session& session, std::vector<std::string> arguments) {
  try {
    std::reverse(arguments.begin(), arguments.end());  // they are taken from the back
    program.parse(std::move(arguments));
    return session.status;
  } catch (const CLI::ParseError& error) {
    // Help and version end a run as well, without having failed.
    return program.exit(error, session.out, session.errors) == 0 ? AllGood : WrongUse;
  } catch (const std::runtime_error& error) {
    // An option, an amount or a listing that makes no sense.
    session.errors << program.get_name() << ": " << error.what() << '\n';
  }
  return WrongUse;
}

}  // namespace

void makeProgram(CLI::App& program, Session& session) {
  program.name("tessaloom-fees");
  program.description("what eBay and PayPal charge, by the schedule that is built into Tessaloom");
  program.set_version_flag("--version", std::string("tessaloom-fees ") + kProgramVersion);
  program.require_subcommand(1);
  addPriceCommands(program, session);
  addBatchCommand(program, session);
  addScheduleCommand(program, session);
  addCompareCommand(program, session);
  addWhatIfCommand(program, session);
  addSolveCommand(program, session);
  addBandsCommand(program, session);
  addCurveCommand(program, session);
}

int runProgram(std::vector<std::string> arguments, std::ostream& out, std::ostream& errors) {
  Session session{.out = out, .errors = errors, .decimal = {}};
  CLI::App program;
  makeProgram(program, session);
  const int status = parse(program, session, std::move(arguments));
  if (out.flush()) return status;
  errors << program.get_name() << ": the answer could not be written\n";
  return status == AllGood ? SomeFailed : status;
}

#include "program.h"

#include "price_commands.h"
#include "program_version.h"

void makeProgram(CLI::App& program, Session& session) {
  program.name("tessaloom-fees");
  program.description("what eBay and PayPal charge, by the schedule that is built into Tessaloom");
  program.set_version_flag("--version", std::string("tessaloom-fees ") + kProgramVersion);
  program.require_subcommand(1);
  addPriceCommands(program, session);
}

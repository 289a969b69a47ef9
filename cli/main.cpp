#include <iostream>

#include "amount_errors.h"
#include "option_values.h"
#include "pricing.h"
#include "program.h"

namespace {

int run(CLI::App& program, const Session& session, int argc, char** argv) {
  try {
    program.parse(argc, argv);
    return session.status;
  } catch (const CLI::ParseError& error) {
    // Help and version end a run as well, without having failed.
    return program.exit(error, session.out, session.errors) == 0 ? AllGood : WrongUse;
  } catch (const OptionError& error) {
    session.errors << program.get_name() << ": " << error.what() << '\n';
  } catch (const AmountError& error) {
    session.errors << program.get_name() << ": " << error.what() << '\n';
  } catch (const PricingError& error) {
    session.errors << program.get_name() << ": " << error.what() << '\n';
  }
  return WrongUse;
}

}  // namespace

int main(int argc, char** argv) {
  std::ios::sync_with_stdio(false);
  Session session{.out = std::cout, .errors = std::cerr, .decimal = {}};
  CLI::App program;
  makeProgram(program, session);
  return run(program, session, argc, argv);
}

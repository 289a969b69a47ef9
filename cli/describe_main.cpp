#include <CLI/CLI.hpp>
#include <exception>
#include <fstream>
#include <iostream>

#include "describe.h"
#include "program.h"
#include "program_version.h"

namespace {

/// Writes the manual page and the completions of the command into a folder. False if one could not be
/// written.
bool describe(const std::string& folder) {
  Session session{.out = std::cout, .errors = std::cerr, .decimal = {}};
  CLI::App program;
  makeProgram(program, session);
  const std::string& name = program.get_name();
  const auto isWritten = [&](const std::string& file, const std::string& text) {
    std::ofstream out(folder + '/' + file, std::ios::binary);
    out << text;
    out.close();
    return !out.fail();
  };
  return isWritten(name + ".1", manualPage(program, kProgramVersion)) &&
         isWritten(name + ".bash", bashCompletion(program)) &&
         isWritten("_" + name, zshCompletion(program)) && isWritten(name + ".fish", fishCompletion(program));
}

}  // namespace

/// describe_command FOLDER
int main(int argc, char** argv) {
  try {
    if (argc != 2) return WrongUse;
    if (describe(argv[1])) return AllGood;
  } catch (const std::exception& error) {
    std::cerr << error.what() << '\n';
  }
  return SomeFailed;
}

#include <fstream>
#include <iostream>

#include "describe.h"
#include "program.h"
#include "program_version.h"

/// describe_command FOLDER: writes the manual page and the completions of the command into a folder.
int main(int argc, char** argv) {
  if (argc != 2) return WrongUse;
  Session session{.out = std::cout, .errors = std::cerr, .decimal = {}};
  CLI::App program;
  makeProgram(program, session);
  const std::string folder = std::string(argv[1]) + "/";
  const std::string& name = program.get_name();
  const auto isWritten = [&](const std::string& file, const std::string& text) {
    std::ofstream out(folder + file, std::ios::binary);
    out << text;
    out.close();
    return !out.fail();
  };
  const bool isAllWritten = isWritten(name + ".1", manualPage(program, kProgramVersion)) &&
                            isWritten(name + ".bash", bashCompletion(program)) &&
                            isWritten("_" + name, zshCompletion(program)) &&
                            isWritten(name + ".fish", fishCompletion(program));
  return isAllWritten ? AllGood : SomeFailed;
}

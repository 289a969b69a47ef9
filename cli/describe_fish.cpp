#include "describe.h"
#include "describe_parts.h"

namespace {

/// What follows the name of an option.
std::string valueOf(const CLI::Option& option) {
  switch (valueKindOf(option)) {
    case ValueKind::Words:
      return " -x -a " + inQuotes(joined(valuesOf(option)));
    case ValueKind::File:
      return " -r -F";
    case ValueKind::Text:
      return " -x";
    case ValueKind::None:
      break;
  }
  return "";
}

}  // namespace

std::string fishCompletion(const CLI::App& program) {
  const std::string& name = program.get_name();
  const std::string condition = "__" + replaced(name, "-", "_") + "_command_is";
  const std::string start = "complete -c " + name + " ";
  const auto startOf = [&](const CLI::App& command) {
    return start + "-n \"" + condition + " " + inQuotes(wordOf(command)) + "\" ";
  };
  // Before any command it is the empty word.
  std::string text = "# fish completion for " + name + "\nfunction " + condition +
                     "\n  set -l words (commandline -opc) ''\n  test $words[2] = $argv[1]\nend\n" + start +
                     "-f\n";
  for (const CLI::App* command : commandsOf(program))
    text +=
        startOf(program) + "-a " + command->get_name() + " -d " + inQuotes(command->get_description()) + "\n";
  for (const CLI::App* command : programAndCommands(program)) {
    for (const CLI::Option* option : optionsOf(*command))
      text += startOf(*command) + "-l " + option->get_lnames().front() + " -d " +
              inQuotes(option->get_description()) + valueOf(*option) + "\n";
    for (const CLI::Option* argument : argumentsOf(*command)) {
      if (valueKindOf(*argument) == ValueKind::File) text += startOf(*command) + "-F\n";
    }
  }
  return text;
}

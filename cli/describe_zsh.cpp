#include "describe.h"
#include "describe_parts.h"

namespace {

/// What an option or an argument takes, behind its name.
std::string actionOf(const CLI::Option& option) {
  const std::string label = ":" + typeOf(option) + ":";
  switch (valueKindOf(option)) {
    case ValueKind::Words:
      return ":value:(" + joined(valuesOf(option)) + ")";
    case ValueKind::File:
      return label + "_files";
    case ValueKind::Text:
      return label + " ";
    case ValueKind::None:
      break;
  }
  return "";
}

/// "'--site=[the eBay site (us)]:value:(us uk ca de)'" and so on, each behind a blank.
std::string specifications(const CLI::App& command) {
  const auto bracketed = [](const std::string& text) {
    return "[" + replaced(replaced(replaced(text, "[", "\\["), "]", "\\]"), ":", "\\:") + "]";
  };
  const std::string newLine = " \\\n        ";
  std::string all;
  for (const CLI::Option* option : optionsOf(command)) {
    const std::string sign = valueKindOf(*option) == ValueKind::None ? "" : "=";
    const std::string text = nameOf(*option) + sign + bracketed(option->get_description());
    all.append(newLine).append(inQuotes(text + actionOf(*option)));
  }
  for (const CLI::Option* argument : argumentsOf(command))
    all.append(newLine).append(inQuotes(":" + actionOf(*argument).substr(1)));
  return all;
}

}  // namespace

std::string zshCompletion(const CLI::App& program) {
  std::string commands;
  std::string cases;
  for (const CLI::App* command : commandsOf(program)) {
    const std::string& name = command->get_name();
    commands.append("    ").append(inQuotes(name + ":" + command->get_description())).append("\n");
    cases.append("    ").append(name).append(")\n      _arguments");
    cases.append(specifications(*command)).append("\n      ;;\n");
  }
  return "#compdef " + program.get_name() + "\nlocal -a commands=(\n" + commands +
         ")\nif ((CURRENT == 2)) && [[ $PREFIX == -* ]]; then\n  _arguments" + specifications(program) +
         "\nelif ((CURRENT == 2)); then\n  _describe command commands\nelse\n  local command=$words[2]\n" +
         "  shift words\n  ((CURRENT--))\n  case $command in\n" + cases + "  esac\nfi\n";
}

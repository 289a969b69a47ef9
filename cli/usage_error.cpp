#include "usage_error.h"

#include <algorithm>

#include "nearest_name.h"
#include "quoted_text.h"
#include "spelled_arguments.h"

namespace {

/// The command that was asked for; the program itself if none was.
const CLI::App& askedFor(const CLI::App& program) {
  const auto commands = program.get_subcommands();
  return commands.empty() ? program : *commands.front();
}

std::string suggestion(const std::string& dashes, const std::string& name,
                       const std::vector<std::string>& names) {
  const std::string nearest = nearestName(name, names);
  return nearest.empty() ? "" : ": did you mean " + dashes + nearest + "?";
}

/// "--bold" of "--bold=no".
std::string nameIn(const std::string& argument) { return argument.substr(0, argument.find('=')); }

/// What "--p" is instead of an option: short for several, or none at all.
std::string noOption(const std::string& name, const CLI::App& command) {
  std::string meant;
  for (const CLI::Option* option : optionsMeant(command, name))
    meant.append(meant.empty() ? "" : ", ").append(option->get_name());
  if (!meant.empty()) return "option " + quotedText(name) + " could be " + meant;
  std::vector<std::string> known;
  for (const CLI::Option* option : command.get_options())
    known.insert(known.end(), option->get_lnames().begin(), option->get_lnames().end());
  const std::string letters = name.substr(std::min(name.find_first_not_of('-'), name.size()));
  return "there is no option " + quotedText(name) + suggestion("--", letters, known);
}

std::string noCommand(const std::string& name, const CLI::App& program) {
  std::vector<std::string> known;
  for (const CLI::App* command : program.get_subcommands({})) known.push_back(command->get_name());
  return "there is no command " + quotedText(name) + suggestion("", name, known);
}

/// What a command does not understand.
std::string unexpected(const std::string& argument, const CLI::App& command) {
  if (argument.starts_with('-')) return noOption(nameIn(argument), command);
  return "unexpected argument " + quotedText(argument);
}

/// What the program itself does not understand, where a command should stand.
std::string noProgramArgument(const std::string& argument, const CLI::App& program, const CLI::App& command,
                              const std::vector<std::string>& arguments) {
  if (!argument.starts_with('-')) return noCommand(argument, program);
  const std::string name = nameIn(argument);
  const auto placeOf = [&](const std::string& word) {
    return std::find(arguments.begin(), arguments.end(), word);
  };
  const bool isInFront = placeOf(argument) < placeOf(command.get_name());
  if (isInFront && &command != &program && !optionsMeant(command, name).empty())
    return "option " + quotedText(name) + " belongs behind " + quotedText(command.get_name());
  return noOption(name, program);
}

/// The option that an error is about, by its name in front of the parser's text; null if it names none.
const CLI::Option* optionIn(const CLI::ParseError& error, const CLI::App& command) {
  const std::string text = error.what();
  return command.get_option_no_throw(text.substr(0, text.find(':')));
}

/// What is missing or too much of an option.
std::string mismatch(const CLI::Option& option) {
  const std::string name = option.get_name();
  if (option.count() > 1) return name + " is given more than once";
  return name + " needs a value: " + option.get_type_name();
}

/// What a flag was given instead of yes or no; only flags are converted.
std::string wrongFlag(const CLI::ParseError& error, const CLI::App& command) {
  std::string text = error.what();
  for (const CLI::Option* option : command.get_options()) {
    if (text.find(": " + option->get_name() + " = ") != std::string::npos)
      return option->get_name() + ": " + quotedText(option->results().back()) + " is neither yes nor no";
  }
  return text;
}

std::string missing(const CLI::App& command) {
  for (const CLI::Option* option : command.get_options()) {
    if (option->get_required() && option->count() == 0)
      return option->get_name() + " is needed: " + option->get_description();
  }
  return "a command is needed";
}

std::string reasonOf(const CLI::ParseError& error, const CLI::App& program, const CLI::App& command,
                     const std::vector<std::string>& arguments) {
  // What was not understood stands first: another word may be missing only because of it.
  const auto beside = program.remaining();
  if (!beside.empty()) return noProgramArgument(beside.front(), program, command, arguments);
  const auto behind = command.remaining();
  if (!behind.empty()) return unexpected(behind.front(), command);
  if (dynamic_cast<const CLI::RequiredError*>(&error) != nullptr) return missing(command);
  const CLI::Option* option = optionIn(error, command);
  if (option != nullptr && dynamic_cast<const CLI::ArgumentMismatch*>(&error) != nullptr)
    return mismatch(*option);
  return dynamic_cast<const CLI::ConversionError*>(&error) == nullptr ? error.what()
                                                                      : wrongFlag(error, command);
}

}  // namespace

std::string usageError(const CLI::ParseError& error, const CLI::App& program,
                       const std::vector<std::string>& arguments) {
  constexpr std::size_t longest = 1000;
  const CLI::App& command = askedFor(program);
  const std::string asked = &command == &program ? "" : " " + command.get_name();
  return program.get_name() + ": " + oneLine(reasonOf(error, program, command, arguments), longest) +
         "\nTry '" + program.get_name() + asked + " --help'.\n";
}

#include "describe_parts.h"

#include <algorithm>

std::vector<const CLI::App*> commandsOf(const CLI::App& program) {
  return program.get_subcommands([](const CLI::App*) { return true; });
}

std::vector<const CLI::App*> programAndCommands(const CLI::App& program) {
  std::vector<const CLI::App*> all = commandsOf(program);
  all.insert(all.begin(), &program);
  return all;
}

std::string wordOf(const CLI::App& command) {
  return command.get_parent() == nullptr ? std::string() : command.get_name();
}

std::vector<const CLI::Option*> optionsOf(const CLI::App& command) {
  return command.get_options([](const CLI::Option* option) { return !option->get_lnames().empty(); });
}

std::vector<const CLI::Option*> argumentsOf(const CLI::App& command) {
  return command.get_options([](const CLI::Option* option) { return option->get_positional(); });
}

std::string nameOf(const CLI::Option& option) {
  return option.get_positional() ? option.get_name(true) : "--" + option.get_lnames().front();
}

std::string typeOf(const CLI::Option& option) {
  return option.get_positional() ? option.get_name(true) : option.get_type_name();
}

ValueKind valueKindOf(const CLI::Option& option) {
  if (option.get_items_expected_max() == 0) return ValueKind::None;
  const std::string type = typeOf(option);
  if (type.find('|') != std::string::npos) return ValueKind::Words;
  return type == "FILE" ? ValueKind::File : ValueKind::Text;
}

std::vector<std::string> valuesOf(const CLI::Option& option) {
  if (valueKindOf(option) != ValueKind::Words) return {};
  return CLI::detail::split(typeOf(option), '|');
}

std::vector<std::string> namesOf(const std::vector<const CLI::App*>& commands) {
  std::vector<std::string> names;
  names.reserve(commands.size());
  for (const CLI::App* command : commands) names.push_back(command->get_name());
  return names;
}

std::vector<std::string> namesOf(const std::vector<const CLI::Option*>& options) {
  std::vector<std::string> names;
  names.reserve(options.size());
  for (const CLI::Option* option : options) names.push_back(nameOf(*option));
  return names;
}

std::string joined(const std::vector<std::string>& words, std::string_view between) {
  std::string text;
  for (const std::string& word : words) text.append(text.empty() ? "" : between).append(word);
  return text;
}

std::string replaced(std::string text, std::string_view what, std::string_view with) {
  for (std::size_t at = text.find(what); at != std::string::npos; at = text.find(what, at + with.size()))
    text.replace(at, what.size(), with);
  return text;
}

std::string inQuotes(const std::string& text) { return "'" + replaced(text, "'", R"('\'')") + "'"; }

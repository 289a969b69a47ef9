#include "spelled_arguments.h"

#include <algorithm>

namespace {

bool isFlag(const CLI::Option& option) { return option.get_items_expected_max() == 0; }

/// Adds an option; its value, if it has one, begins with "=".
void add(std::vector<std::string>& spelled, const CLI::Option& option, const std::string& value) {
  const std::string name = "--" + option.get_lnames().front();
  if (value != "=") {
    spelled.push_back(name + value);
  } else if (isFlag(option)) {
    spelled.push_back(name + "=false");
  } else {
    spelled.push_back(name);
    spelled.emplace_back();
  }
}

}  // namespace

std::vector<const CLI::Option*> optionsMeant(const CLI::App& command, const std::string& name) {
  const std::string dashes = "--";
  if (!name.starts_with(dashes) || name == dashes) return {};
  const std::string letters = name.substr(dashes.size());
  const auto named = [&letters](const CLI::Option* option) { return option->check_lname(letters); };
  const auto begun = [&letters](const CLI::Option* option) {
    const std::vector<std::string>& names = option->get_lnames();
    return std::any_of(names.begin(), names.end(),
                       [&letters](const std::string& full) { return full.starts_with(letters); });
  };
  const auto exact = command.get_options(named);
  return exact.empty() ? command.get_options(begun) : exact;
}

std::vector<std::string> spelledOut(const CLI::App& program, const std::vector<std::string>& arguments) {
  const CLI::App* command = &program;
  std::vector<std::string> spelled;
  for (auto argument = arguments.begin(); argument != arguments.end(); ++argument) {
    if (*argument == "--") {
      spelled.insert(spelled.end(), argument, arguments.end());
      break;
    }
    const std::size_t sign = argument->find('=');
    const auto meant = optionsMeant(*command, argument->substr(0, sign));
    if (meant.size() != 1) {
      spelled.push_back(*argument);
      const auto commands =
          program.get_subcommands([&](const CLI::App* other) { return other->get_name() == *argument; });
      if (command == &program && !commands.empty()) command = commands.front();
      continue;
    }
    const std::string value = sign == std::string::npos ? std::string() : argument->substr(sign);
    add(spelled, *meant.front(), value);
    const bool isNextItsValue = !isFlag(*meant.front()) && value.empty();
    if (isNextItsValue && argument + 1 != arguments.end()) spelled.push_back(*++argument);
  }
  return spelled;
}

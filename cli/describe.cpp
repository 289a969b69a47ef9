#include "describe.h"

#include <algorithm>
#include <vector>

namespace {

std::vector<const CLI::App*> commandsOf(const CLI::App& program) {
  return program.get_subcommands([](const CLI::App*) { return true; });
}

/// The options that have a long name, (all do).
std::vector<const CLI::Option*> optionsOf(const CLI::App& command) {
  std::vector<const CLI::Option*> found;
  for (const CLI::Option* option : command.get_options()) {
    if (!option->get_lnames().empty()) found.push_back(option);
  }
  return found;
}

std::string nameOf(const CLI::Option& option) { return "--" + option.get_lnames().front(); }

bool takesValue(const CLI::Option& option) { return option.get_items_expected_max() > 0; }

/// The values of an option that takes one of a few, as they stand in its type: "us|uk|ca|de".
std::vector<std::string> valuesOf(const CLI::Option& option) {
  const std::string type = option.get_type_name();
  std::vector<std::string> values;
  if (type.find('|') == std::string::npos) return values;
  std::size_t start = 0;
  for (std::size_t end = type.find('|'); end != std::string::npos; end = type.find('|', start)) {
    values.push_back(type.substr(start, end - start));
    start = end + 1;
  }
  values.push_back(type.substr(start));
  return values;
}

std::string replaced(std::string text, const std::string& what, const std::string& with) {
  for (std::size_t at = text.find(what); at != std::string::npos; at = text.find(what, at + with.size()))
    text.replace(at, what.size(), with);
  return text;
}

/// A text within a paragraph of man(7): back-slashes, hyphens that are typed, and what begins a request.
std::string roff(const std::string& text) {
  std::string escaped = replaced(replaced(text, "\\", "\\e"), "-", "\\-");
  if (!escaped.empty() && (escaped.front() == '.' || escaped.front() == '\'')) escaped.insert(0, "\\&");
  return escaped;
}

std::string joined(const std::vector<std::string>& words, const std::string& between) {
  std::string text;
  for (const std::string& word : words) text += (text.empty() ? "" : between) + word;
  return text;
}

void appendOption(std::string& page, const CLI::Option& option) {
  page += ".TP\n.B " + roff(nameOf(option));
  if (takesValue(option)) page += " \\fI" + roff(option.get_type_name()) + "\\fR";
  page += "\n" + roff(option.get_description()) + ".\n";
}

/// Within single quotes of a shell.
std::string inQuotes(const std::string& text) { return "'" + replaced(text, "'", R"('\'')") + "'"; }

}  // namespace

std::string manualPage(const CLI::App& program, const std::string& version) {
  const std::string& name = program.get_name();
  std::string upper = name;
  std::transform(upper.begin(), upper.end(), upper.begin(),
                 [](char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; });
  std::string page = ".TH " + upper + R"( 1 "" "Tessaloom )" + version + "\"\n.SH NAME\n" + roff(name) +
                     " \\- " + roff(program.get_description()) + "\n.SH SYNOPSIS\n";
  for (const CLI::App* command : commandsOf(program))
    page += ".B " + roff(name + " " + command->get_name()) + "\n[\\fIOPTION\\fR]...\n.br\n";
  page +=
      ".SH DESCRIPTION\nThe fees are a fixed schedule that is built in. They are not the prices of today.\n";
  for (const CLI::App* command : commandsOf(program)) {
    page += ".SH " + roff(command->get_name()) + "\n" + roff(command->get_description()) + ".\n";
    for (const CLI::Option* option : optionsOf(*command)) appendOption(page, *option);
  }
  page +=
      ".SH EXIT STATUS\n0 if all is good, 1 if some rows could not be priced or nothing was found, 2 after "
      "wrong use.\n";
  return page;
}

std::string bashCompletion(const CLI::App& program) {
  std::vector<std::string> commands;
  std::string options;
  std::string values;
  for (const CLI::App* command : commandsOf(program)) {
    commands.push_back(command->get_name());
    std::vector<std::string> names;
    for (const CLI::Option* option : optionsOf(*command)) {
      names.push_back(nameOf(*option));
      const std::string row = "    " + command->get_name() + ":" + nameOf(*option) +
                              ") words=" + inQuotes(joined(valuesOf(*option), " ")) + " ;;\n";
      if (!valuesOf(*option).empty()) values += row;
    }
    options += "    " + command->get_name() + ") words=" + inQuotes(joined(names, " ")) + " ;;\n";
  }
  const std::string function = "_" + replaced(program.get_name(), "-", "_");
  return "# bash completion for " + program.get_name() + "\n" + function + "() {\n" +
         "  local current=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD-1]} words=\n" +
         "  if ((COMP_CWORD == 1)); then\n    COMPREPLY=($(compgen -W " + inQuotes(joined(commands, " ")) +
         " -- \"$current\"))\n    return\n  fi\n  case ${COMP_WORDS[1]}:$previous in\n" + values +
         "    *) case ${COMP_WORDS[1]} in\n" + options + "    esac ;;\n  esac\n" +
         "  COMPREPLY=($(compgen -W \"$words\" -- \"$current\"))\n}\ncomplete -o default -F " + function +
         " " + program.get_name() + "\n";
}

std::string zshCompletion(const CLI::App& program) {
  std::string commands;
  std::string cases;
  const auto bracketed = [](const std::string& text) {
    return replaced(replaced(replaced(text, "[", "\\["), "]", "\\]"), ":", "\\:");
  };
  for (const CLI::App* command : commandsOf(program)) {
    commands += "    " + inQuotes(command->get_name() + ":" + command->get_description()) + "\n";
    std::string arguments;
    for (const CLI::Option* option : optionsOf(*command)) {
      std::string argument = nameOf(*option) + "[" + bracketed(option->get_description()) + "]";
      if (takesValue(*option))
        argument +=
            valuesOf(*option).empty() ? ":value:_files" : ":value:(" + joined(valuesOf(*option), " ") + ")";
      arguments += " \\\n        " + inQuotes(argument);
    }
    cases +=
        "    " + command->get_name() + ")\n      _arguments" + arguments + " '*:file:_files'\n      ;;\n";
  }
  return "#compdef " + program.get_name() + "\nlocal -a commands=(\n" + commands +
         ")\nif ((CURRENT == 2)); then\n  _describe command commands\nelse\n  local command=$words[2]\n" +
         "  shift words\n  ((CURRENT--))\n  case $command in\n" + cases + "  esac\nfi\n";
}

std::string fishCompletion(const CLI::App& program) {
  const std::string start = "complete -c " + program.get_name() + " ";
  std::string text = "# fish completion for " + program.get_name() + "\n";
  for (const CLI::App* command : commandsOf(program)) {
    text += start + "-n __fish_use_subcommand -f -a " + command->get_name() + " -d " +
            inQuotes(command->get_description()) + "\n";
    for (const CLI::Option* option : optionsOf(*command)) {
      text += start + "-n '__fish_seen_subcommand_from " + command->get_name() + "' -l " +
              option->get_lnames().front() + " -d " + inQuotes(option->get_description());
      const std::string values = joined(valuesOf(*option), " ");
      if (takesValue(*option)) text += values.empty() ? " -r" : " -x -a " + inQuotes(values);
      text += "\n";
    }
  }
  return text;
}

#include <algorithm>

#include "describe.h"
#include "describe_parts.h"
#include "program_notes.h"

namespace {

/// A text of man(7): back-slashes, hyphens that are typed, and what begins a request at the start of a line.
std::string roff(std::string_view text) {
  const std::string escaped = "\n" + replaced(replaced(std::string(text), "\\", "\\e"), "-", "\\-");
  return replaced(replaced(escaped, "\n.", "\n\\&."), "\n'", "\n\\&'").substr(1);
}

std::string inCapitals(std::string text) {
  std::transform(text.begin(), text.end(), text.begin(),
                 [](char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; });
  return text;
}

std::string inItalics(const std::string& text) { return "\\fI" + roff(text) + "\\fR"; }

/// The line of the synopsis: what is called, and with what.
std::string synopsis(const CLI::App& command, const std::string& program) {
  std::string line = ".B " + roff(program + " " + command.get_name()) + "\n[" + inItalics("OPTION") + "]...";
  for (const CLI::Option* argument : argumentsOf(command))
    line.append(" ").append(inItalics(nameOf(*argument)));
  return line + "\n.br\n";
}

/// An option or an argument, and below it what it means.
std::string entry(const CLI::Option& option) {
  std::string name = ".I " + roff(nameOf(option));
  if (!option.get_positional()) {
    name = ".B ";
    for (const std::string& letter : option.get_snames()) name.append(roff("-" + letter)).append(", ");
    name += roff(nameOf(option));
    if (valueKindOf(option) != ValueKind::None) name += " " + inItalics(typeOf(option));
  }
  return ".TP\n" + name + "\n" + roff(option.get_description()) + ".\n";
}

/// A command with what is its own: the options of the program go with all of them.
std::string section(const CLI::App& command, const CLI::App& program) {
  std::string text = ".SS " + roff(command.get_name()) + "\n" + roff(command.get_description()) + ".\n";
  if (!command.get_footer().empty()) text += ".PP\n" + roff(command.get_footer()) + "\n";
  for (const CLI::Option* argument : argumentsOf(command)) text += entry(*argument);
  for (const CLI::Option* option : optionsOf(command)) {
    if (program.get_option_no_throw(nameOf(*option)) == nullptr) text += entry(*option);
  }
  return text;
}

std::string exitStatus() {
  std::string text;
  for (const auto& [status, meaning] : kExitMeanings) {
    text.append(".TP\n.B ").append(1, static_cast<char>('0' + status)).append("\n");
    text.append(roff(meaning)).append(".\n");
  }
  return text;
}

std::string examples() {
  std::string text = ".nf\n";
  for (const std::string_view example : kExamples) text.append(roff(example)).append("\n");
  return text + ".fi\n";
}

}  // namespace

std::string manualPage(const CLI::App& program, const std::string& version) {
  const std::string& name = program.get_name();
  std::string page = ".TH " + roff(inCapitals(name)) + R"( 1 "" "Tessaloom )" + version +
                     "\"\n.nh\n.ad l\n.SH NAME\n" + roff(name) + " \\- " + roff(program.get_description()) +
                     "\n.SH SYNOPSIS\n";
  for (const CLI::App* command : commandsOf(program)) page += synopsis(*command, name);
  page +=
      ".SH DESCRIPTION\nThe fees are a fixed schedule that is built in. They are not the prices of today.\n"
      ".SH COMMANDS\n";
  for (const CLI::App* command : commandsOf(program)) page += section(*command, program);
  page += ".SH OPTIONS\n" + roff(kAbbreviations) +
          "\n.PP\nThe program and each of its commands take these too.\n";
  for (const CLI::Option* option : optionsOf(program)) page += entry(*option);
  return page + ".SH EXIT STATUS\n" + exitStatus() + ".SH EXAMPLES\n" + examples();
}

#include "describe.h"
#include "describe_parts.h"

namespace {

constexpr std::string_view kHead =
    R"(  local current=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD-1]}
  local command='' prefix='' words='' is_behind_sign=''
  COMPREPLY=()
  if ((COMP_CWORD > 1)); then command=${COMP_WORDS[1]}; fi
  # The sign = is a word of its own, unless it was taken out of COMP_WORDBREAKS.
  if [[ $current == = ]]; then
    is_behind_sign=1 current=''
  elif [[ $previous == = ]]; then
    is_behind_sign=1 previous=${COMP_WORDS[COMP_CWORD-2]}
  elif [[ $current == --*=* ]]; then
    is_behind_sign=1 previous=${current%%=*} prefix=${current%%=*}= current=${current#*=}
  fi
  case $command:$previous in
)";

constexpr std::string_view kMiddle = R"(    *)
      if [[ -n $is_behind_sign ]]; then return; fi
      case $command in
)";

constexpr std::string_view kFoot = R"(      esac ;;
  esac
  mapfile -t COMPREPLY < <(compgen -P "$prefix" -W "$words" -- "$current")
}
)";

/// Readline knows best how to quote them.
constexpr std::string_view kFiles = "compopt -o default; return";

/// What is offered for the values of options.
std::string valueCases(const CLI::App& command) {
  std::string cases;
  for (const CLI::Option* option : optionsOf(command)) {
    const ValueKind kind = valueKindOf(*option);
    if (kind == ValueKind::None) continue;
    cases.append("    ").append(wordOf(command)).append(":").append(nameOf(*option)).append(") ");
    if (kind == ValueKind::Words) cases.append("words=").append(inQuotes(joined(valuesOf(*option))));
    if (kind == ValueKind::File) cases.append(kFiles);
    if (kind == ValueKind::Text) cases.append("return");
    cases.append(" ;;\n");
  }
  return cases;
}

/// What is offered elsewhere: options, but where a command or a file can stand only behind a dash.
std::string wordsCase(const CLI::App& command) {
  std::string words = "words=" + inQuotes(joined(namesOf(optionsOf(command))));
  const std::string unlessOption = "; [[ $current == -* ]] || ";
  const std::vector<std::string> commands = namesOf(commandsOf(command));
  if (!commands.empty()) words += unlessOption + "words=" + inQuotes(joined(commands));
  const std::vector<const CLI::Option*> arguments = argumentsOf(command);
  if (!arguments.empty() && valueKindOf(*arguments.front()) == ValueKind::File)
    words.append(unlessOption).append("{ ").append(kFiles).append("; }");
  return "        " + inQuotes(wordOf(command)) + ") " + words + " ;;\n";
}

}  // namespace

std::string bashCompletion(const CLI::App& program) {
  const std::string& name = program.get_name();
  const std::string function = "_" + replaced(name, "-", "_");
  std::string text = "# bash completion for " + name + "\n" + function + "() {\n";
  text += kHead;
  for (const CLI::App* command : programAndCommands(program)) text += valueCases(*command);
  text += kMiddle;
  for (const CLI::App* command : programAndCommands(program)) text += wordsCase(*command);
  text += kFoot;
  return text + "complete -F " + function + " " + name + "\n";
}

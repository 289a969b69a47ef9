#include "session.h"

#include <CLI/CLI.hpp>
#include <vector>

#include "option_values.h"
#include "quoted_text.h"

namespace {

std::vector<std::string_view> parts(std::string_view values) {
  std::vector<std::string_view> all;
  for (std::size_t end = values.find('|'); end != std::string_view::npos; end = values.find('|')) {
    all.push_back(values.substr(0, end));
    values.remove_prefix(end + 1);
  }
  all.push_back(values);
  return all;
}

Format formatOf(std::string_view name) {
  return name == "csv" ? Format::Csv : name == "json" ? Format::Json : Format::Text;
}

}  // namespace

NumberLocale Session::locale() const {
  return decimal == "," ? NumberLocale{",", ".", "€"} : NumberLocale{".", ",", "$"};
}

void takesOneOf(CLI::Option* option, const std::string& values) {
  const auto toValue = [values](std::string& text) -> std::string {
    const auto all = parts(values);
    try {
      text = all.at(static_cast<std::size_t>(indexIn(all, text)));
    } catch (const OptionError&) {
      return quotedText(text) + " is none of " + values;
    }
    return {};
  };
  option->transform(CLI::Validator(toValue, ""))->type_name(values);
}

void addDecimalOption(CLI::App& command, Session& session) {
  takesOneOf(command.add_option("--decimal", session.decimal,
                                "the decimal sign of numbers, read and written. Without it they are written "
                                "with . and one that could mean two, such as 1.234, or has a decimal comma, "
                                "such as 9,99, is refused"),
             ".|,");
}

void addOutputOptions(CLI::App& command, Session& session) {
  takesOneOf(command.add_option_function<std::string>(
                 "--format", [&session](const std::string& name) { session.format = formatOf(name); },
                 "how the answer is written (text)"),
             "text|csv|json");
  addDecimalOption(command, session);
}

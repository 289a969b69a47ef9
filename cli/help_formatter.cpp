#include "help_formatter.h"

#include <sstream>

namespace {

constexpr std::size_t kLineWidth = 80;

/// A text with its words in lines of that width. A line that begins with a blank stays as it is.
std::string wrapped(const std::string& text, std::size_t width) {
  std::string all;
  std::istringstream lines(text);
  for (std::string line; std::getline(lines, line);) {
    if (!all.empty()) all += '\n';
    if (line.starts_with(' ')) {
      all += line;
      continue;
    }
    std::size_t length = 0;
    std::istringstream words(line);
    for (std::string word; words >> word;) {
      const bool isFirst = length == 0;
      const bool fits = length + 1 + word.size() <= width;
      if (!isFirst) all += fits ? ' ' : '\n';
      length = isFirst || !fits ? word.size() : length + 1 + word.size();
      all += word;
    }
  }
  return all;
}

}  // namespace

HelpFormatter::HelpFormatter() {
  label("SUBCOMMAND", "COMMAND");
  label("OPTIONS", "OPTION...");
  label("REQUIRED", "(needed)");
  label("Positionals", "Arguments");
}

std::string HelpFormatter::make_description(const CLI::App* app) const {
  return wrapped(app->get_description(), kLineWidth) + "\n\n";
}

std::string HelpFormatter::make_subcommand(const CLI::App* sub) const {
  std::ostringstream out;
  CLI::detail::format_help(out, sub->get_name(), wrapped(sub->get_description(), kLineWidth - column_width_),
                           column_width_);
  return out.str();
}

std::string HelpFormatter::make_option_desc(const CLI::Option* option) const {
  return wrapped(option->get_description(), kLineWidth - column_width_);
}

std::string HelpFormatter::make_footer(const CLI::App* app) const {
  return app->get_footer().empty() ? "" : wrapped(app->get_footer(), kLineWidth) + '\n';
}

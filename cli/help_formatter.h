#pragma once

#include <CLI/CLI.hpp>
#include <string>

/// The help of a program and of its commands, in lines of at most 80 characters where words allow it.
class HelpFormatter : public CLI::Formatter {
 public:
  HelpFormatter();

  std::string make_description(const CLI::App* app) const override;
  std::string make_subcommand(const CLI::App* sub) const override;
  std::string make_option_desc(const CLI::Option* option) const override;
  std::string make_footer(const CLI::App* app) const override;
};

#include <gtest/gtest.h>
#include <CLI/CLI.hpp>

#include "command_run.h"
#include "describe.h"

namespace {

struct ChoiceRow {
  const char* command;
  const char* option;
  const char* values;
};

constexpr ChoiceRow kChoices[] = {
    {"solve", "--payment", "paypal billpoint"},
    {"bands", "--vary", "closing opening-and-closing"},
    {"curve", "--payment", "paypal billpoint"},
};

TEST(SaleOptions, TheirChoicesAreCompleted) {
  std::ostringstream out;
  std::ostringstream errors;
  Session session{.out = out, .errors = errors, .decimal = {}};
  CLI::App program;
  makeProgram(program, session);
  const std::string completion = bashCompletion(program);
  for (const ChoiceRow& row : kChoices) {
    const std::string line =
        std::string(row.command) + ":" + row.option + ") words='" + row.values + "' ;;\n";
    EXPECT_NE(completion.find(line), std::string::npos) << line;
  }
}

struct LimitRow {
  const char* command;
  std::vector<const char*> options;
};

TEST(SaleOptions, TheHelpSaysHowLargeAnAmountMayBe) {
  const LimitRow rows[] = {
      {"solve", {"--net", "--profit", "--cost", "--shipping", "--shipping-charged", "--opening"}},
      {"bands", {"--to", "--shipping-charged", "--opening"}},
      {"curve", {"--from", "--to", "--shipping-charged", "--opening"}},
  };
  for (const LimitRow& row : rows) {
    std::ostringstream out;
    std::ostringstream errors;
    Session session{.out = out, .errors = errors, .decimal = {}};
    CLI::App program;
    makeProgram(program, session);
    const CLI::App* command = program.get_subcommand(row.command);
    for (const char* option : row.options) {
      const std::string help = command->get_option(option)->get_description();
      EXPECT_TRUE(help.ends_with("; at most 1000000.00")) << row.command << ' ' << option << ": " << help;
    }
  }
}

}  // namespace

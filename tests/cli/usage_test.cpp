#include <gtest/gtest.h>

#include "command_run.h"
#include "option_values.h"

/// \file
/// How the command is asked: help and version, what it says to wrong use, and what it refuses to price.

namespace {

const char* const kCommands[] = {"single",  "multiple", "payment", "billpoint", "batch", "schedule",
                                 "compare", "whatif",   "solve",   "bands",     "curve"};

TEST(Usage, EveryCommandTellsTheVersion) {
  const CommandRun version = runLine("--version");
  EXPECT_EQ(version.status, AllGood);
  EXPECT_EQ(version.out.find("tessaloom-fees "), 0U) << version.out;
  for (const std::string command : kCommands) {
    const CommandRun answer = runLine(command + " --version");
    EXPECT_EQ(answer.status, AllGood) << command;
    EXPECT_EQ(answer.out, version.out) << command;
    EXPECT_EQ(answer.errors, "") << command;
  }
}

TEST(Usage, EveryCommandHasItsHelpInShortLines) {
  std::vector<std::string> lines{"--help"};
  for (const std::string command : kCommands) lines.push_back(command + " --help");
  for (const std::string& line : lines) {
    const CommandRun answer = runLine(line);
    EXPECT_EQ(answer.status, AllGood) << line;
    EXPECT_EQ(answer.errors, "") << line;
    const std::string usage = line == "--help" ? " [OPTION...] COMMAND\n" : " [OPTION...]";
    const std::string command = line == "--help" ? "" : ' ' + line.substr(0, line.find(' '));
    const std::string head = std::string("Usage: tessaloom-fees").append(command).append(usage);
    EXPECT_NE(answer.out.find(head), std::string::npos) << answer.out;
    std::istringstream text(answer.out);
    for (std::string row; std::getline(text, row);) {
      const bool isOneWord = row.find("--real-estate") != std::string::npos;
      EXPECT_TRUE(row.size() <= 80 || isOneWord) << line << ": " << row;
    }
  }
}

struct TextRow {
  const char* rule;
  const char* line;
  const char* has;
  const char* hasNot;
};

// clang-format off
constexpr TextRow kHelp[] = {
    {"a single item knows nothing of several",    "single --help",    "the opening bid",                     "several"},
    {"nor does it of --kind",                     "single --help",    "the closing bid",                     "--kind"},
    {"an opening price that is needed says so",   "single --help",    "the fixed price (needed but for real estate and vehicles)", "for one US dollar (needed"},
    {"one that may be left out does not",         "solve --help",     "if it is not to move; not with --fixed-price; at most 1000000.00", "(needed"},
    {"several items have no reserve",             "multiple --help",  "the opening price of each item (needed)", "reserve"},
    {"where there are both, both are told",       "compare --help",   "the closing bid; with --kind multiple: the lowest", "no more"},
    {"what is needed says so",                    "payment --help",   "the amount paid (needed)",            "several"},
    {"the overview is short",                     "--help",           "one in each row of a CSV file",       "names the columns"},
    {"the command's own help is long",            "batch --help",     "names the columns",                   "Examples"},
    {"an argument stands in capitals",            "batch --help",     "batch [OPTION...] FILE\n",            "file FILE"},
    {"the overview has the exit status",          "--help",           "Exit status: 0 all is good",          "Subcommands"},
    {"it says that names may be cut short", "--help",         "--op 9.99",                           "Subcommands"},
    {"no sign is said to be the usual one",       "single --help",    "--decimal .|,",                       "(.)"},
    {"both names of the older service",           "--help",           "eBay Payments (Billpoint)",           "SUBCOMMAND"},
};

struct ErrorRow {
  const char* rule;
  const char* line;
  const char* error;  ///< on the first line
  const char* help;   ///< what to try
};

constexpr ErrorRow kErrors[] = {
    {"no command",                     "",                               "a command is needed",                      ""},
    {"another command",                "foo",                            "there is no command \"foo\"",              ""},
    {"help is an option",              "help",                           "there is no command \"help\"",             ""},
    {"an option before any command",   "--foo",                          "there is no option \"--foo\"",             ""},
    {"another option",                 "single --opening 1 --foo 3",     "there is no option \"--foo\"",             " single"},
    {"a command with a letter missing", "sngle",                         "there is no command \"sngle\": did you mean single?", ""},
    {"letters of a command swapped",   "bacth x.csv",                    "there is no command \"bacth\": did you mean batch?", ""},
    {"an option with a letter missing", "single --galery",               "there is no option \"--galery\": did you mean --gallery?", " single"},
    {"a wrong option with its value",  "single --clsoing=25",            "there is no option \"--clsoing\": did you mean --closing?", " single"},
    {"a column's name for an option",  "single --two_categories",        "there is no option \"--two_categories\": did you mean --two-categories?", " single"},
    {"one dash for two",               "single -opening 5",              "there is no option \"-opening\": did you mean --opening?", " single"},
    {"an option near that of another command", "payment --openin 3",     "there is no option \"--openin\"",          " payment"},
    {"a wrong option before a command", "--versoin",                     "there is no option \"--versoin\": did you mean --version?", ""},
    {"short for several",              "solve --p 5 --net 3",            "option \"--p\" could be --profit, --pictures, --payment", " solve"},
    {"short for several, with a value", "single --s=us",                 "option \"--s\" could be --site, --subtitle, --scheduled, --slideshow, --supersize", " single"},
    {"no letter is short for nothing", "single --=5",                    "there is no option \"--\"",                " single"},
    {"short for a missing value",      "single --op",                    "--opening needs a value: AMOUNT",          " single"},
    {"short and in full is twice",     "single --op 1 --opening 2",      "--opening is given more than once",        " single"},
    {"two dashes as a value end nothing", "single --opening -- --op 5",  "--opening is given more than once",        " single"},
    {"another option with a value",    "single --foo=3",                 "there is no option \"--foo\"",             " single"},
    {"of another command",             "payment --opening 3",            "there is no option \"--opening\"",         " payment"},
    {"no argument is asked for",       "single 9.99",                    "unexpected argument \"9.99\"",             " single"},
    {"one argument too many",          "batch a.csv b.csv",              "unexpected argument \"b.csv\"",            " batch"},
    {"an argument is missing",         "batch --excel",                  "FILE is needed: a CSV file, or - for the standard input", " batch"},
    {"a value is missing",             "single --opening",               "--opening needs a value: AMOUNT",          " single"},
    {"a choice is missing",            "single --site",                  "--site needs a value: us|uk|ca|de",        " single"},
    {"said twice",                     "single --opening 1 --opening 2", "--opening is given more than once",        " single"},
    {"another format",                 "single --format xml",            "--format: \"xml\" is none of text|csv|json", " single"},
    {"another decimal sign",           "batch --decimal ; x.csv",        "--decimal: \";\" is none of .|,",          " batch"},
    {"an empty choice",                "single --format=",               "--format: \"\" is none of text|csv|json",  " single"},
    {"another kind",                   "whatif --kind payment",          "--kind: \"payment\" is none of single|multiple", " whatif"},
    {"a flag with another value",      "single --explain=maybe",         "--explain: \"maybe\" is neither yes nor no", " single"},
    {"in front of its command",        "--bold=no single --opening 5",   R"(option "--bold" belongs behind "single")", " single"},
    {"in front, cut short",            "--open 5 single",                R"(option "--open" belongs behind "single")", " single"},
    {"in front and of another command", "--kind=single payment",         "there is no option \"--kind\"",           " payment"},
    {"in front of no command",         "--site uk",                      "there is no option \"--site\"",           ""},
    {"behind -- all are arguments",    "single --opening 5 -- --bold=",  "there is no option \"--bold\"",            " single"},
};

constexpr TextRow kEmpty[] = {
    {"an empty value is the empty text",    "single --opening= --vehicle --closing 25 --format csv", "\n40.00,,0.00,40.00,80.00,,-55.00,$\n", "unused"},
    {"the next option keeps its meaning",   "single --closing= --bold --opening 1 --format csv", "\n0.35,,1.00,", "unused"},
    {"as the last of all",                  "single --opening 1 --closing=",               "Listing fee      $  0.35",  "unused"},
    {"an empty flag says no",               "single --opening 1 --bold= --format csv",     "\n0.35,,0.00,",             "unused"},
    {"a flag says no",                      "single --opening 1 --bold=no --format csv",   "\n0.35,,0.00,",             "unused"},
    {"a flag says yes as a cell does",      "single --opening 1 --bold=X --format csv",    "\n0.35,,1.00,",             "unused"},
    {"the last of two flags counts",        "single --opening 1 --bold --bold=no --format csv", "\n0.35,,0.00,",        "unused"},
    {"choices are read in any case",        "single --opening 1 --format CSV",             "insertion_fee,",            "Listing fee"},
};

struct SameRow {
  const char* rule;
  const char* line;
  const char* inFull;
};

constexpr SameRow kAbbreviated[] = {
    {"an option",                          "single --op 9.99 --c 25",             "single --opening 9.99 --closing 25"},
    {"behind its value stands a sign",     "single --opening 1 --form=csv",       "single --opening 1 --format=csv"},
    {"a flag",                             "single --opening 1 --bo --expl",      "single --opening 1 --bold --explain"},
    {"a flag that says no",                "single --opening 1 --bo=no",          "single --opening 1 --bold=no"},
    {"a flag that is empty",               "single --opening 1 --bo=",            "single --opening 1 --bold="},
    {"an empty value",                     "single --op= --c 25",                 "single --opening= --closing 25"},
    {"an exact name goes before a longer", "single --opening 1 --gallery",        "single --opening 1 --gallery=yes"},
    {"so does an exact name that is empty", "single --opening 1 --gallery=",      "single --opening 1 --gallery=no"},
    {"and one whose value is",             "solve --net 20 --shipping= --bold",   "solve --net 20 --bold"},
    {"up to where two part",               "single --opening 1 --gallery-",       "single --opening 1 --gallery-featured"},
    {"what another command has besides",   "payment --a 5",                       "payment --amount 5"},
    {"the help of a command",              "solve --he",                          "solve --help"},
    {"the version without a command",      "--vers",                              "--version"},
    {"behind a file",                      "batch no.csv --ex",                   "batch no.csv --excel"},
};

struct RefusedRow {
  const char* rule;
  const char* line;
  const char* error;
};

constexpr RefusedRow kRefused[] = {
    {"a value that is no number",              "single --opening x",                       "--opening: \"x\" is no number"},
    {"a value that is no choice",              "single --site fr",                         "--site: \"fr\" is none of us, uk, ca, de"},
    {"no site whose schedule is asked for",    "schedule --site fr",                       "--site: \"fr\" is none of us, uk, ca, de"},
    {"a comma that could mean two things",     "single --opening 1,234",                   "--opening: \"1,234\" could mean two numbers: say --decimal . or --decimal ,"},
    {"a decimal comma",                        "single --opening 9,99",                    "--opening: \"9,99\" is a number with a decimal comma only: say --decimal ,"},
    {"a flag with another value",              "single --opening 1 --bold=2",              "--bold: \"2\" is neither yes nor no"},
    {"an option as a value",                   "single --opening --bold",                 "--opening: \"--bold\" is no number"},
    {"the beginning of one as a value",        "single --opening --bo",                   "--opening: \"--bo\" is no number"},
    {"one with a sign as a value",             "single --opening --bold=",                "--opening: \"--bold=\" is no number"},
    {"two dashes as a value",                  "single --opening --",                     "--opening: \"--\" is no number"},
    {"a negative number as a value",           "single --op -5",                          "--opening: \"-5\" is below zero"},
    {"behind -- names are arguments",          "batch -- --ex",                           "--ex: No such file or directory"},
    {"a rate with a comma",                    "payment --amount 1 --rate 0,5",            "--rate: \"0,5\" is a number with a decimal comma only: say --decimal ,"},
    {"a margin with a comma",                  "solve --margin 1,5%",                      "--margin: \"1,5\" is a number with a decimal comma only: say --decimal ,"},
    {"a margin with another decimal sign",     "solve --margin 0,5% --decimal .",          "--margin: \"0,5\" is no number with the decimal sign ."},
    {"a target with another decimal sign",     "solve --net 0.99 --decimal ,",             "--net: \"0.99\" is no number with the decimal sign ,"},
    {"a rate with another decimal sign",       "payment --amount 1 --rate 0.5 --decimal ,", "--rate: \"0.5\" is no number with the decimal sign ,"},
    {"a count that its box cannot hold",       "multiple --opening 1 --offered 32768 --sold 1", "--offered: \"32768\" is too large: at most 32767"},
    {"no price",                               "single",                                   "an opening price is needed"},
    {"no opening price",                       "single --closing 25",                      "an opening price is needed"},
    {"none of a fixed price",                  "single --closing 25 --fixed-price",        "an opening price is needed"},
    {"none on eBay Motors but of no vehicle",  "single --closing 25 --motors",             "an opening price is needed"},
    {"none to compare",                        "compare --closing 25",                     "an opening price is needed"},
    {"none to add features to",                "whatif --closing 25",                      "an opening price is needed"},
    {"no price, explained",                    "single --bold --explain",                  "an opening price is needed"},
    {"no price that counts",                   "single --did-not-sell --closing 5",        "an opening price is needed"},
    {"a reserve without a price",              "single --reserve --closing 5",             "an opening price is needed"},
    {"a reserve of real estate without one",   "single --reserve --real-estate 30-day-ad --did-not-sell", "an opening price is needed"},
    {"no price on any site",                   "compare --bold",                           "an opening price is needed"},
    {"no price to raise",                      "whatif",                                   "an opening price is needed"},
    {"no amount",                              "payment",                                  "an amount is needed"},
    {"no amount for the older service",        "billpoint",                                "an amount is needed"},
    {"nothing of several items",               "multiple",                                 "needed: --offered, --sold, --opening"},
    {"one entry of several items",             "multiple --opening 1 --offered 3",         "needed: --sold"},
    {"all are sold, but for what?",            "multiple --opening 1 --offered 3 --sold 3", "needed: --closing"},
    {"several is more than one",               "multiple --opening 1 --offered 1 --sold 0", "several items are two or more"},
    {"and more than none",                     "multiple --opening 1 --offered 0 --sold 0", "several items are two or more"},
    {"more sold than there are",               "multiple --opening 1 --offered 5 --sold 9", "more items sold than offered: 9 of 5"},
    {"whatever noughts stand in front",        "multiple --opening 1 --offered 0005 --sold 006", "more items sold than offered: 6 of 5"},
    {"more sold than there are, compared",     "compare --kind multiple --opening 1 --offered 5 --sold 9", "more items sold than offered: 9 of 5"},
    {"nor less",                               "multiple --opening 1 --offered -2 --sold 0", "--offered: \"-2\" is below zero"},
    {"below the lowest opening price",         "single --site de --opening 0.99",          "eBay Germany takes no opening price below 1.00"},
    {"in the seller's own signs",              "single --site de --opening 0,99 --decimal ,", "eBay Germany takes no opening price below 1,00"},
    {"below it in a search",                   "solve --site de --opening 0.50 --net 5",   "eBay Germany takes no opening price below 1.00"},
    {"motorcycles in the UK",                  "single --site uk --opening 1 --motorcycle", "motorcycles are told from other vehicles on eBay.com and eBay Germany only"},
    {"motorcycles in Canada",                  "bands --site ca --motorcycle",             "motorcycles are told from other vehicles on eBay.com and eBay Germany only"},
    {"a timeshare of nothing",                 "single --opening 1 --timeshare",           "a timeshare needs --real-estate"},
};

constexpr const char* kPriced[] = {
    "single --site de --opening 1",
    "single --site de --closing 0.50 --vehicle",
    "single --closing 5 --real-estate 30-day-ad",
    "solve --net 5",
    "single --site uk --opening 0.50",
    "single --site de --opening 1 --motorcycle",
    "single --motorcycle",
    "single --real-estate 30-day-ad --timeshare",
    "multiple --site de --opening 0.50 --offered 2 --sold 0",
    "multiple --opening 1 --offered 3 --sold 2",
    "multiple --opening 1 --offered 3 --sold 3 --closing 2",
    "solve --site de --net 5",
    "bands --site de",
    "curve --site de",
    "compare --opening 10 --vehicle",
};
// clang-format on

TEST(Usage, TheHelpIsThatOfTheCommand) {
  for (const TextRow& row : kHelp) {
    const CommandRun answer = runLine(row.line);
    std::string text;
    for (const std::string& word : words(answer.out)) text += (text.empty() ? "" : " ") + word;
    const bool isThere =
        text.find(row.has) != std::string::npos || answer.out.find(row.has) != std::string::npos;
    EXPECT_TRUE(isThere) << row.rule << '\n' << answer.out;
    EXPECT_EQ(text.find(row.hasNot), std::string::npos) << row.rule << '\n' << answer.out;
  }
}

TEST(Usage, AnErrorNamesWhatIsWrongAndWhereHelpIs) {
  for (const ErrorRow& row : kErrors) {
    const CommandRun answer = runLine(row.line);
    EXPECT_EQ(answer.status, WrongUse) << row.rule;
    EXPECT_EQ(answer.out, "") << row.rule;
    EXPECT_EQ(answer.errors, "tessaloom-fees: " + std::string(row.error) + "\nTry 'tessaloom-fees" +
                                 row.help + " --help'.\n")
        << row.rule;
  }
}

TEST(Usage, AnErrorStaysOnItsLine) {
  EXPECT_EQ(
      run({"single", "--format", "x\ny"}).errors,
      "tessaloom-fees: --format: \"x y\" is none of text|csv|json\nTry 'tessaloom-fees single --help'.\n");
  EXPECT_EQ(run({"a\nb"}).errors,
            "tessaloom-fees: there is no command \"a b\"\nTry 'tessaloom-fees --help'.\n");
}

TEST(Usage, AnEmptyValueIsNotTheNextArgument) {
  for (const TextRow& row : kEmpty) {
    const CommandRun answer = runLine(row.line);
    EXPECT_EQ(answer.status, AllGood) << row.rule << ": " << answer.errors;
    EXPECT_NE(answer.out.find(row.has), std::string::npos) << row.rule << '\n' << answer.out;
    EXPECT_EQ(answer.out.find(row.hasNot), std::string::npos) << row.rule << '\n' << answer.out;
  }
}

TEST(Usage, AnOptionMayBeAbbreviated) {
  for (const SameRow& row : kAbbreviated) {
    const CommandRun answer = runLine(row.line);
    const CommandRun inFull = runLine(row.inFull);
    EXPECT_EQ(answer.status, inFull.status) << row.rule;
    EXPECT_EQ(answer.out, inFull.out) << row.rule;
    EXPECT_EQ(answer.errors, inFull.errors) << row.rule;
  }
}

TEST(Usage, WhatTheWindowCannotHoldIsRefused) {
  for (const RefusedRow& row : kRefused) {
    const CommandRun answer = runLine(row.line);
    EXPECT_EQ(answer.status, WrongUse) << row.rule;
    EXPECT_EQ(answer.out, "") << row.rule;
    EXPECT_EQ(answer.errors, "tessaloom-fees: " + std::string(row.error) + '\n') << row.rule;
  }
}

TEST(Usage, WhatItHoldsIsPriced) {
  for (const std::string line : kPriced) {
    const CommandRun answer = runLine(line);
    EXPECT_EQ(answer.status, AllGood) << line << ": " << answer.errors;
    EXPECT_EQ(answer.errors, "") << line;
    EXPECT_NE(answer.out, "") << line;
  }
}

TEST(Usage, ComparedSitesRefuseEachForItself) {
  const CommandRun answer = runLine("compare --opening 0.50 --motorcycle --format csv");
  EXPECT_EQ(answer.status, SomeFailed);
  const std::string& csv = answer.out;
  EXPECT_NE(csv.find("\nus,$,30.00,"), std::string::npos) << csv;
  EXPECT_NE(csv.find("\nuk,GBP,,,,,,,,motorcycles are told from other vehicles"), std::string::npos) << csv;
  EXPECT_NE(csv.find("\nde,EUR,,,,,,,,eBay Germany takes no opening price below 1.00\n"), std::string::npos)
      << csv;
}

}  // namespace

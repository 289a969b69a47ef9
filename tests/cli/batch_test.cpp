#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <iterator>
#include <sstream>
#include <system_error>

#include "batch_run.h"
#include "folders.h"
#include "option_values.h"

namespace {

struct Answer {
  std::string output;
  std::string errors;
  bool hasErrors = false;
};

const NumberLocale kPoint{".", ",", "$"};
const NumberLocale kComma{",", ".", "€"};

CsvSource::Read inPieces(std::string_view text, std::size_t most = std::size_t{1} << 20U) {
  return [text, most](std::span<char> bytes) mutable {
    const std::size_t count = std::min({bytes.size(), text.size(), most});
    text.copy(bytes.data(), count);
    text.remove_prefix(count);
    return count;
  };
}

Answer answerTo(CsvSource::Read read, const BatchChoices& choices, unsigned threads = 1) {
  Answer answer;
  std::ostringstream errors;
  BatchReport report({.name = "list.csv"}, errors);
  BatchRun{.choices = choices,
           .read = std::move(read),
           .write = [&](std::string_view bytes) { answer.output += bytes; },
           .threads = threads}
      .answer(report);
  report.finish();
  answer.errors = errors.str();
  answer.hasErrors = report.hasErrors();
  return answer;
}

Answer answerTo(std::string_view text, const BatchChoices& choices = {.locale = kPoint}) {
  return answerTo(inPieces(text), choices);
}

std::string fileText(const std::string& name) {
  std::ifstream file(kSourceFolder + std::string("/tests/cli/golden/") + name, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

std::vector<std::string> linesOf(const std::string& text) {
  std::vector<std::string> lines;
  std::istringstream stream(text);
  for (std::string line; std::getline(stream, line);) lines.push_back(line);
  return lines;
}

/// What the answer says behind the cells of its first row.
std::string behindCells(const Answer& answer, std::string_view cells) {
  const std::string row = linesOf(answer.output).at(1);
  return row.starts_with(cells) ? row.substr(cells.size()) : "another row: " + row;
}

struct GoldenRow {
  const char* name;
  BatchChoices choices;
  bool hasErrors;
};

TEST(Batch, AnswersAsTheFilesHaveIt) {
  const GoldenRow rows[] = {
      {"batch_mixed", {.locale = kPoint}, true},
      {"batch_decimal_comma", {.locale = kComma, .hasDecimal = true}, true},
      {"batch_excel", {.locale = kPoint, .isForSpreadsheet = true}, true},
      {"batch_from_window", {.locale = kPoint, .isFromWindow = true}, true},
      {"batch_from_window_comma", {.locale = kComma, .hasDecimal = true, .isFromWindow = true}, false},
  };
  for (const GoldenRow& row : rows) {
    const std::string input = fileText(std::string(row.name) + ".csv");
    ASSERT_FALSE(input.empty()) << row.name;
    const Answer answer = answerTo(input, row.choices);
    EXPECT_EQ(answer.output, fileText(std::string(row.name) + ".expected.csv")) << row.name;
    EXPECT_EQ(answer.errors, fileText(std::string(row.name) + ".errors.txt")) << row.name;
    EXPECT_EQ(answer.hasErrors, row.hasErrors) << row.name;
  }
}

struct CellRow {
  const char* rule;
  const char* input;
  const char* cells;   ///< as they are written
  const char* answer;  ///< what follows them
};

TEST(Batch, PassesCellsAsTheyAreAndAnswersBehindThem) {
  // clang-format off
  const CellRow rows[] = {
      {"a single item",              "opening,closing\n9.99,25\n",   "9.99,25",     ",0.35,,0.00,1.31,1.66,,23.34,$,"},
      {"kind and names in any case", "KIND,Opening,Did-Not_SELL\nSingle,1,1\n", "Single,1,1", ",0.35,,0.00,,0.35,,-0.35,$,"},
      {"blanks around choices",      "site , opening, bold\n uk ,1, 1 \n", " uk ,1, 1 ", ",0.20,,0.75,0.05,1.00,,0.00,GBP,"},
      {"blanks around counts",       "kind,opening,offered,sold\nmultiple,1, 2 ,\t0\n", "multiple,1, 2 ,\t0", ",0.35,,0.00,0.00,0.35,,-0.35,$,"},
      {"blanks alone are empty",     "opening,closing\n1, \n",      "1, ",         ",0.35,,0.00,0.05,0.40,,0.60,$,"},
      {"a payment",                  "kind,amount\npayment,100\n",   "payment,100", ",,,,,,3.20,96.80,$,"},
      {"other columns",              "name,opening\n\"a,\"\"b\"\"\",1\n", R"("a,""b""",1)", ",0.35,,0.00,0.05,0.40,,0.60,$,"},
      {"quotes that are not needed", "name,opening\n\"a\",1\n",      "a,1",         ",0.35,,0.00,0.05,0.40,,0.60,$,"},
      {"missing cells are empty",    "opening,name,bold\n1\n",       "1,,",         ",0.35,,0.00,0.05,0.40,,0.60,$,"},
      {"semicolons stay",            "opening;name\n1;a,b\n",        "1;a,b",       ";0.35;;0.00;0.05;0.40;;0.60;$;"},
      {"tabs stay",                  "opening\tname\n1\ta,b\n",      "1\ta,b",      "\t0.35\t\t0.00\t0.05\t0.40\t\t0.60\t$\t"},
      {"a byte order mark",          "\xEF\xBB\xBFopening,a\r\n1,2\r\n", "1,2",     ",0.35,,0.00,0.05,0.40,,0.60,$,"},
      {"no end of the last line",    "opening,a\n1,2",               "1,2",         ",0.35,,0.00,0.05,0.40,,0.60,$,"},
      {"columns of other kinds",     "kind,opening,offered,echeck\nsingle,1,many,x\n", "single,1,many,x", ",0.35,,0.00,0.05,0.40,,0.60,$,"},
      {"a formula, untouched",       "opening,a\n1,=1+1\n",          "1,=1+1",      ",0.35,,0.00,0.05,0.40,,0.60,$,"},
  };
  // clang-format on
  for (const CellRow& row : rows) {
    const Answer answer = answerTo(row.input);
    EXPECT_EQ(behindCells(answer, row.cells), row.answer) << row.rule;
    EXPECT_EQ(answer.errors, "") << row.rule;
    EXPECT_FALSE(answer.hasErrors) << row.rule;
  }
}

struct ErrorRow {
  const char* rule;
  std::string input;
  const char* errors;
};

TEST(Batch, TellsWhatIsWrongWithARowAndGoesOn) {
  // clang-format off
  const ErrorRow rows[] = {
      {"no number",            "opening\nmuch\n1\n",          "2: opening: \"much\" is no number"},
      {"below zero",           "opening\n-1\n1\n",            "2: opening: \"-1\" is below zero"},
      {"two readings",         "opening\n1\n1.234\n",         "3: opening: \"1.234\" could mean two numbers: say --decimal . or --decimal ,"},
      {"no kind",              "kind,opening\nlot,1\n",       "2: kind: \"lot\" is none of single, multiple, payment, billpoint"},
      {"no site",              "site,opening\nfr,1\n",        "2: site: \"fr\" is none of us, uk, ca, de"},
      {"no flag",              "bold,opening\nmaybe,1\n",     "2: bold: \"maybe\" is neither yes nor no"},
      {"not offered",          "site,opening,reserve\nde,1,1\n", "2: eBay Germany has no reserve"},
      {"too large a number",   "opening,closing\n1,1e30\n",   "2: The amount \"1e30\" is too large."},
      {"entries missing",      "kind,opening\nmultiple,1\n",  "2: needed: offered, sold"},
      {"no price",             "opening,a\n1,2\n,\n",       "3: an opening price is needed"},
      {"no opening price",     "opening,closing\n,25\n",      "2: an opening price is needed"},
      {"more sold than there are", "kind,opening,offered,sold\nmultiple,1,5,9\n", "2: more items sold than offered: 9 of 5"},
      {"a column of two words", "opening,Real-Estate\n1,hut\n", "2: real_estate: \"hut\" is none of 3-10-day-auction, 30-day-auction, 30-day-ad, 90-day-ad"},
      {"a column that is needed", "opening,timeshare\n1,1\n", "2: a timeshare needs real_estate"},
      {"no amount",            "kind,amount\npayment,\n",    "2: an amount is needed"},
      {"two readings, comma",  "opening;a\n1,234;1\n",       "2: opening: \"1,234\" could mean two numbers: say --decimal . or --decimal ,"},
      {"a decimal comma",      "opening;a\n9,99;1\n",        "2: opening: \"9,99\" is a number with a decimal comma only: say --decimal ,"},
      {"no whole number",      "kind,offered\nmultiple,2.5\n", "2: offered: \"2.5\" is no whole number"},
      {"blanks alone are no amount", "opening,a\n  ,1\n",   "2: an opening price is needed"},
      {"one item of several",  "kind,opening,offered,sold\nmultiple,1,1,0\n", "2: several items are two or more"},
      {"too low in Germany",   "site,opening\nde,0.99\n",    "2: eBay Germany takes no opening price below 1.00"},
      {"a NUL byte",           {"kind,a\nx\0y,1\n", 13},     "2: kind: \"x y\" is none of single, multiple, payment, billpoint"},
      {"a NUL byte in a number", {"opening,a\nx\0y,1\n", 16}, "2: opening: \"x y\" is no number"},
      {"too many cells",       "opening,a\n1,2,3\n",          "2: 3 cells, but only 2 columns"},
      {"a mark not doubled",   "opening,a\n1,\"5\" tall\"\n1,2\n", "2: a quotation mark is too many or too few"},
      {"a mark closed by no later row", "opening,a\n1,\"2\n3,\"4\"\n5,6\n", "2: a quotation mark is too many or too few"},
      {"a mark never closed",  "opening,a\n1,\"2\n3,4\n",     "2: a quotation mark is too many or too few"},
      {"line of the row",      "opening,a\n1,\"x\r\ny\n\"\n\nx,1\n", "6: opening: \"x\" is no number"},
      {"signs of control",     "kind,a\n\"x\r\ny\x1B\",1\n",  "2: kind: \"x  y \" is none of single, multiple, payment, billpoint"},
      {"no valid UTF-8",       "kind,a\nx\xC3\xFF,1\n",       "2: kind: \"x\uFFFD\uFFFD\" is none of single, multiple, payment, billpoint"},
  };
  // clang-format on
  for (const ErrorRow& row : rows) {
    const Answer answer = answerTo(row.input);
    EXPECT_EQ(answer.errors, std::string("list.csv:") + row.errors + '\n') << row.rule;
    EXPECT_TRUE(answer.hasErrors) << row.rule;
    const std::string reason = std::string(row.errors).substr(3);
    std::string doubled;
    for (const char c : reason) doubled += c == '"' ? "\"\"" : std::string(1, c);
    const bool isInOutput =
        answer.output.find(reason) != std::string::npos || answer.output.find(doubled) != std::string::npos;
    EXPECT_TRUE(isInOutput) << row.rule << '\n' << answer.output;
  }
}

TEST(Batch, AWrongRowLeavesTheOthersAlone) {
  const Answer answer = answerTo("opening,a\nx,\"b\n\"\n1,2\n");
  const auto lines = linesOf(answer.output);
  ASSERT_EQ(lines.size(), 4U);
  EXPECT_EQ(lines[2], "\",,,,,,,,,\"opening: \"\"x\"\" is no number\"");
  EXPECT_EQ(lines[3], "1,2,0.35,,0.00,0.05,0.40,,0.60,$,");
}

TEST(Batch, TellsTwentyErrorsAndCountsTheOthers) {
  std::string text = "opening\n";
  for (int at = 0; at < 23; ++at) text += "x\n";
  const auto lines = linesOf(answerTo(text).errors);
  ASSERT_EQ(lines.size(), 21U);
  EXPECT_EQ(lines[19], "list.csv:21: opening: \"x\" is no number");
  EXPECT_EQ(lines[20], "list.csv: 3 more rows with errors");
}

TEST(Batch, RefusesATableWhoseColumnsItCannotUnderstand) {
  using namespace std::string_view_literals;
  struct WrongUse {
    const char* rule;
    std::string text;
    std::size_t line;
    const char* reason;
    BatchChoices choices;
  };
  const BatchChoices window{.locale = kPoint, .isFromWindow = true};
  constexpr const char* nothing = "there is no first line with the names of the columns";
  constexpr const char* quotes = "the first line has a quotation mark too many or too few";
  constexpr const char* utf16 = "the table is UTF-16: save it as UTF-8 (in Excel: CSV UTF-8)";
  const WrongUse rows[] = {
      {"nothing at all", "", 1, nothing, {}},
      {"empty lines", "\n\r\n", 3, nothing, {}},
      {"no line behind the separator", "sep=;\n", 2, nothing, {}},
      {"no known column",
       "1.00,2.00\n",
       1,
       "the first line names no column that is known, such as kind, site or opening",
       {}},
      {"a column twice", "opening,Opening\n1,1\n", 1, "two columns are named \"opening\"", {}},
      {"the line of the names",
       "sep=,\r\n\nopening,Opening\n1,1\n",
       3,
       "two columns are named \"opening\"",
       {}},
      {"the same option, written in two ways",
       "two_categories,two-categories\n1,1\n",
       1,
       "two columns are named \"two-categories\"",
       {}},
      {"the kind twice", "kind,opening,KIND\nsingle,1,single\n", 1, "two columns are named \"kind\"", {}},
      {"a control twice", "kind,txtPrice,txtPrice\nsingle,1,1\n", 1, "two columns are named \"txtPrice\"",
       window},
      {"options where controls are asked for", "opening,closing\n1,1\n", 1,
       "the first line names neither kind nor site nor a control of the window", window},
      {"two signs", "\nopening;note, closing\n", 2, "two signs may separate the cells of the first line", {}},
      {"a mark not doubled", "opening,\"5\" screen\"\n1,2\n", 1, quotes, {}},
      {"a mark never closed", "opening,\"closing\n1,2\n", 1, quotes, {}},
      {"a mark never closed, before many rows",
       "opening,\"closing\n" + std::string(std::size_t{6} << 20U, '\n'),
       1,
       quotes,
       {}},
      {"an endless first line",
       std::string(std::size_t{6} << 20U, '\0'),
       1,
       "the first line is too long for the names of columns",
       {}},
      {"UTF-16 of Windows", std::string("\xFF\xFEo\0,\0a\0\n\0"sv), 1, utf16, {}},
      {"UTF-16 in the other order", std::string("\xFE\xFF\0o\0,\0a\0\n"sv), 1, utf16, {}},
  };
  for (const WrongUse& row : rows) {
    try {
      answerTo(row.text, row.choices);
      ADD_FAILURE() << row.rule << ": taken";
    } catch (const TableError& error) {
      EXPECT_STREQ(error.what(), row.reason) << row.rule;
      EXPECT_EQ(error.line() + 1, row.line) << row.rule;
    }
  }
  EXPECT_NO_THROW(answerTo("opening,name,name\n")) << "other columns may have any names";
}

TEST(Batch, TakesTheSeparatorFromALineInFrontOfTheNames) {
  struct SeparatorRow {
    const char* rule;
    std::string_view text;
    std::string_view begin;  ///< of the answer
  };
  constexpr SeparatorRow rows[] = {
      {"a semicolon", "sep=;\nopening;a,b,c\n1;2\n", "sep=;\nopening;a,b,c;insertion_fee;"},
      {"a comma", "sep=,\r\nopening,a;b;c\r\n1,2\r\n", "sep=,\nopening,a;b;c,insertion_fee,"},
      {"a tab", "sep=\t\ropening\ta\r1\t2\r", "sep=\t\nopening\ta\tinsertion_fee\t"},
      {"in marks and in any case", "\"SEP=;\"\nopening;a\n1;2\n", "\"SEP=;\"\nopening;a;insertion_fee;"},
      {"behind a byte order mark", "\xEF\xBB\xBFSep=;\nopening;a\n1;2\n", "Sep=;\nopening;a;insertion_fee;"},
      {"where two signs are as frequent", "sep=;\nopening;a,b\n1;2\n", "sep=;\nopening;a,b;insertion_fee;"},
      {"marks stand only behind that sign", "sep=;\nopening;a,\"b\n1;2\n",
       "sep=;\nopening;\"a,\"\"b\";insertion_fee;"},
  };
  for (const SeparatorRow& row : rows) {
    for (const std::size_t most : {std::size_t{1}, std::size_t{1000}}) {
      const Answer answer = answerTo(inPieces(row.text, most), {.locale = kPoint});
      EXPECT_EQ(answer.output.substr(0, row.begin.size()), row.begin) << row.rule;
      EXPECT_EQ(linesOf(answer.output).size(), 3U) << row.rule;
      EXPECT_EQ(answer.errors, "") << row.rule;
    }
  }
  const Answer wrong = answerTo("sep=;\nopening;a\nx;2\n");
  EXPECT_EQ(wrong.errors, "list.csv:3: opening: \"x\" is no number\n");
  const Answer excel = answerTo("sep=,\nopening,a\n1,2\n", {.locale = kPoint, .isForSpreadsheet = true});
  EXPECT_TRUE(excel.output.starts_with("\xEF\xBB\xBFopening;a;insertion_fee;")) << excel.output;
  EXPECT_THROW(answerTo("sep=|\nopening\n1\n"), TableError) << "another sign is a name";
}

TEST(Batch, TellsOfColumnsThatHaveTheNamesOfTheAnswer) {
  const BatchChoices window{.locale = kPoint, .isFromWindow = true};
  const Answer one = answerTo("opening,net\n1,2\n");
  EXPECT_EQ(one.errors, "list.csv:1: the column \"net\" is there already; the new one stands at the end\n");
  EXPECT_FALSE(one.hasErrors);
  EXPECT_EQ(behindCells(one, "1,2"), ",0.35,,0.00,0.05,0.40,,0.60,$,");
  EXPECT_EQ(answerTo("sep=;\nerror; net ;opening\n").errors,
            "list.csv:2: the columns \"net\", \"error\" are there already; the new ones stand at the end\n");
  EXPECT_EQ(answerTo("kind,shown_txtPrice,net\n", window).errors,
            "list.csv:1: the column \"shown_txtPrice\" is there already; the new one stands at the end\n");
  EXPECT_EQ(answerTo("opening,network\n").errors, "");
}

TEST(Batch, TakesARowForASingleItemOnEbayComUnlessItSaysOtherwise) {
  constexpr const char* single = ",0.35,,0.00,0.05,0.40,,0.60,$,";
  EXPECT_EQ(behindCells(answerTo("opening\n1\n"), "1"), single);
  EXPECT_EQ(behindCells(answerTo("kind,site,opening\n,,1\n"), ",,1"), single);
  EXPECT_EQ(behindCells(answerTo("kind,site,opening\n , ,1\n"), " , ,1"), single);
}

TEST(Batch, NeutralisesWhatASpreadsheetWouldRun) {
  struct FormulaRow {
    const char* cell;
    const char* written;
  };
  constexpr FormulaRow rows[] = {
      {"=1+1", "'=1+1"},
      {"+A1", "'+A1"},
      {"-A1", "'-A1"},
      {"@SUM(1)", "'@SUM(1)"},
      {"\t=1", "'\t=1"},
      {"-5", "-5"},
      {"+3,50", "+3,50"},
      {"-1.5", "-1.5"},
      {"-", "'-"},
      {"-1.5.2", "'-1.5.2"},
      {"a=1", "a=1"},
      {"'=1", "'=1"},
      {"\"\r=1\"", "\"'\r=1\""},
      {"\"\n=1\"", "\"'\n=1\""},
      {"＝1+1", "'＝1+1"},
      {"＋A1", "'＋A1"},
      {"－A1", "'－A1"},
      {"＠A1", "'＠A1"},
      {"！A1", "！A1"},
  };
  for (const FormulaRow& row : rows) {
    const Answer answer = answerTo(std::string("opening;a\n1;") + row.cell + "\n",
                                   {.locale = kPoint, .isForSpreadsheet = true});
    EXPECT_EQ(answer.output,
              "\xEF\xBB\xBFopening;a;insertion_fee;reserve_fee;extra_features;final_value_fee;"
              "total_fees;payment_fee;net;currency;error\n1;" +
                  std::string(row.written) + ";0,35;;0,00;0,05;0,40;;0,60;$;\n");
  }
}

TEST(Batch, WritesTheNumbersOfASpreadsheetWithCommas) {
  struct NumberRow {
    const char* rule;
    const char* table;
    const char* cells;
    BatchChoices choices;
  };
  const BatchChoices comma{.locale = kComma, .hasDecimal = true, .isForSpreadsheet = true};
  const BatchChoices point{.locale = kPoint, .hasDecimal = true, .isForSpreadsheet = true};
  const BatchChoices unsaid{.locale = kPoint, .isForSpreadsheet = true};
  const BatchChoices window{.locale = kPoint, .isFromWindow = true, .isForSpreadsheet = true};
  const BatchChoices windowWithCommas{
      .locale = kComma, .hasDecimal = true, .isFromWindow = true, .isForSpreadsheet = true};
  const NumberRow rows[] = {
      {"an amount that was read", "opening,a\n9.99,x\n", "9,99;x", unsaid},
      {"an amount without decimals", "opening,a\n9,x\n", "9;x", unsaid},
      {"an amount with commas already", "opening;a\n9,99;x\n", "9,99;x", comma},
      {"not another column", "opening,a\n1,9.99\n", "1;9.99", unsaid},
      {"not what may mean two numbers", "opening,a\n1.234,x\n", "1.234;x", unsaid},
      {"but what is said to mean one", "opening,a\n1.234,x\n", "1,234;x", point},
      {"nothing that is refused", "opening;a\n9,99;x\n", "9,99;x", point},
      {"group signs are left out", "opening,a\n\"1,234.56\",x\n", "1234,56;x", point},
      {"without decimals too", "opening,a\n\"1,234\",x\n", "1234;x", point},
      {"where they can be nothing else", "opening,a\n\"1,234,567\",x\n", "1234567;x", unsaid},
      {"but not where they may be", "opening,a\n\"1,234\",x\n", "1,234;x", unsaid},
      {"of a number with commas", "opening;a\n1.234,56;x\n", "1234,56;x", comma},
      {"blanks that group", "opening,a\n1 234.56,x\n", "1234,56;x", unsaid},
      {"but not of a rate, which has none", "amount,rate\n1,1 234\n", "1;1 234", unsaid},
      {"a rate", "amount,rate\n1,0.5\n", "1;0,5", unsaid},
      {"a currency sign is left out", "opening,a\n\"$1,234.56\",x\n", "1234,56;x", unsaid},
      {"so are blanks around it", "opening,a\n 9.99 ,x\n", "9,99;x", unsaid},
      {"an exponent is worked out", "opening,a\n1.5e3,x\n", "1500;x", unsaid},
      {"a number that is too large stays", "opening,a\n1e400,x\n", "1e400;x", unsaid},
      {"a box that shows a number", "kind,txtStartingPrice\nsingle,9.99\n",
       "single;9,99;0,35;0,00;0,52;0,87;9,99;9,99", window},
      {"the exchange rate of the window", "kind,txtConversion,RateText\npayment,0.5,0.25\n",
       "payment;0,5;0,25", window},
      {"a box with group signs", "kind,txtPaymentAmount\npayment,\"1,234.56\"\n", "payment;1234,56;", window},
      {"they may stand anywhere there", "kind,txtPaymentAmount\npayment,\"9,99\"\n",
       "payment;999;;;;;;;;;;;;;;999,00;", window},
      {"a box of a comma user with a point", "kind;txtPaymentAmount\npayment;9.99\n",
       "payment;9,99;;;;;;;;;;;;;;9,99;", windowWithCommas},
      {"a count of the window stays", "kind,txtDutchItemsSold\nmultiple,1.5\n", "multiple;1.5;", window},
      {"a box that shows a formula", "kind,txtPaymentAmount\npayment,+E5-E6\n",
       "payment;'+E5-E6;;;;;;;;;;;;;;'+E5-E6;;;conversion", window},
  };
  for (const NumberRow& row : rows) {
    const std::string line = linesOf(answerTo(row.table, row.choices).output).at(1);
    EXPECT_EQ(line.substr(0, std::string_view(row.cells).size()), row.cells) << row.rule;
  }
}

TEST(Batch, WritesNumbersWithTheSignTheyAreReadWith) {
  const BatchChoices comma{.locale = kComma, .hasDecimal = true};
  EXPECT_EQ(behindCells(answerTo("opening;a\n1234,5;1.234\n", comma), "1234,5;1.234"),
            ";4,80;;0,00;31,64;36,44;;1198,06;$;");
  EXPECT_EQ(behindCells(answerTo("opening,a\n\"9,99\",1\n", comma), "\"9,99\",1"),
            ",\"0,35\",,\"0,00\",\"0,52\",\"0,87\",,\"9,12\",$,");
  // Now that it is said which sign is which, this is one number.
  EXPECT_EQ(answerTo("opening\n1.234\n", comma).errors, "");
}

TEST(Batch, TakesLongCells) {
  const std::string cell(std::size_t{1} << 20U, 'x');
  const Answer answer = answerTo("name,opening\n" + cell + ",1\n\"" + cell + "\n\",1\n" + cell + ",y\n");
  const auto lines = linesOf(answer.output);
  ASSERT_EQ(lines.size(), 5U);
  EXPECT_EQ(lines[1], cell + ",1,0.35,,0.00,0.05,0.40,,0.60,$,");
  EXPECT_EQ(lines[3], "\",1,0.35,,0.00,0.05,0.40,,0.60,$,");
  EXPECT_EQ(answer.errors, "list.csv:5: opening: \"y\" is no number\n");
  EXPECT_LT(answerTo("kind,a\n" + cell + ",1\n").errors.size(), 300U);
}

TEST(Batch, AnswersAllRowsBehindAWrongMark) {
  for (const std::string_view mark : {R"("2)", R"("5" tall")", R"(""2)", R"("2"")"}) {
    std::string text = "opening,a\n1,";
    text.append(mark).append("\n1,2\n1,\"3\"\n1,4\n");
    const auto lines = linesOf(answerTo(text).output);
    ASSERT_EQ(lines.size(), 5U) << mark;
    EXPECT_EQ(lines[2], "1,2,0.35,,0.00,0.05,0.40,,0.60,$,") << mark;
    EXPECT_EQ(lines[4], "1,4,0.35,,0.00,0.05,0.40,,0.60,$,") << mark;
  }
}

TEST(Batch, LeavesOutARowThatIsTooLongAndAnswersTheOthers) {
  const std::string text =
      "opening,a\n1,2\n1,\"x\ny\"," + std::string(std::size_t{17} << 20U, 'x') + "\nx,2\n1,2";
  const Answer answer = answerTo(text);
  const auto lines = linesOf(answer.output);
  ASSERT_EQ(lines.size(), 5U);
  EXPECT_EQ(lines[2], ",,,,,,,,,,the row is longer than 16 MB and was left out");
  EXPECT_EQ(lines[4], "1,2,0.35,,0.00,0.05,0.40,,0.60,$,");
  EXPECT_EQ(answer.errors,
            "list.csv:3: the row is longer than 16 MB and was left out\n"
            "list.csv:5: opening: \"x\" is no number\n");
}

TEST(Batch, KeepsTheOrderInSeveralThreads) {
  std::string text = "id,opening,closing\n";
  std::ostringstream ids;
  constexpr int count = 20'000;
  for (int at = 0; at < count; ++at) {
    std::ostringstream row;
    row << at << ",1." << 10 + at % 90 << ',' << (at % 1000 == 7 ? "x" : "5") << '\n';
    text += row.str();
  }
  const BatchChoices choices{.locale = kPoint};
  const Answer one = answerTo(inPieces(text), choices, 1);
  ASSERT_EQ(linesOf(one.output).size(), count + 1U);
  for (const std::size_t most : {std::size_t{100}, std::size_t{5000}}) {
    const Answer several = answerTo(inPieces(text, most), choices, 5);
    EXPECT_TRUE(several.output == one.output) << "another output";
    EXPECT_EQ(several.errors, one.errors);
  }
}

TEST(Batch, EndsWhenItCannotWriteAnyMore) {
  const std::string text = "opening\n1\n";
  std::size_t rows = 0;
  // Endless: only the failure can end it.
  std::size_t given = 0;
  const CsvSource::Read endless = [&](std::span<char> bytes) {
    const std::string_view piece = given++ == 0 ? "opening\n" : "1\n2\n";
    piece.copy(bytes.data(), piece.size());
    return piece.size();
  };
  std::ostringstream errors;
  BatchReport report({.name = "list.csv"}, errors);
  const BatchRun run{.choices = {.locale = kPoint},
                     .read = endless,
                     .write =
                         [&](std::string_view) {
                           if (++rows > 100) throw std::system_error(ENOSPC, std::generic_category());
                         },
                     .threads = 4};
  EXPECT_THROW(run.answer(report), std::system_error);
  EXPECT_EQ(rows, 101U);
}

TEST(Batch, TellsThatTheInputEndedTooEarly) {
  std::size_t given = 0;
  const Answer answer = answerTo(
      [&](std::span<char> bytes) -> std::size_t {
        if (++given == 3) throw std::system_error(EIO, std::generic_category());
        const std::string_view piece = given == 1 ? "opening\n" : "1\n2\n3";
        piece.copy(bytes.data(), piece.size());
        return piece.size();
      },
      {.locale = kPoint}, 2);
  EXPECT_EQ(linesOf(answer.output).size(), 3U);
  EXPECT_EQ(answer.errors, "list.csv:4: cannot be read further: Input/output error\n");
}

}  // namespace

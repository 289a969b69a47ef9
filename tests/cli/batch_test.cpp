#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <iterator>
#include <sstream>
#include <system_error>

#include "batch_run.h"
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
  std::ifstream file(std::string(GOLDEN_FOLDER "/") + name, std::ios::binary);
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
      {"entries missing",      "kind,opening\nmultiple,1\n",  "2: items offered, opening price, items sold and lowest bid are needed"},
      {"too many cells",       "opening,a\n1,2,3\n",          "2: 3 cells, but only 2 columns"},
      {"a mark never closed",  "opening,a\n1,\"2\n3,4\n",     "2: a quotation mark is never closed"},
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
  struct WrongUse {
    const char* rule;
    std::string text;
    BatchChoices choices;
  };
  const BatchChoices window{.locale = kPoint, .isFromWindow = true};
  const WrongUse rows[] = {
      {"nothing at all", "", {}},
      {"empty lines", "\n\r\n", {}},
      {"no known column", "1.00,2.00\n", {}},
      {"a column twice", "opening,Opening\n1,1\n", {}},
      {"the same option, written in two ways", "two_categories,two-categories\n1,1\n", {}},
      {"the kind twice", "kind,opening,KIND\nsingle,1,single\n", {}},
      {"a control twice", "kind,txtPrice,txtPrice\nsingle,1,1\n", window},
      {"options where controls are asked for", "opening,closing\n1,1\n", window},
      {"an endless first line", std::string(std::size_t{6} << 20U, '\0'), {}},
  };
  for (const WrongUse& row : rows) EXPECT_THROW(answerTo(row.text, row.choices), OptionError) << row.rule;
  EXPECT_NO_THROW(answerTo("opening,name,name\n")) << "other columns may have any names";
}

TEST(Batch, NeutralisesWhatASpreadsheetWouldRun) {
  struct FormulaRow {
    const char* cell;
    const char* written;
  };
  constexpr FormulaRow rows[] = {
      {"=1+1", "'=1+1"},         {"+A1", "'+A1"},   {"-A1", "'-A1"},
      {"@SUM(1)", "'@SUM(1)"},   {"\t=1", "'\t=1"}, {"-5", "-5"},
      {"+3,50", "+3,50"},        {"-1.5", "-1.5"},  {"-", "'-"},
      {"-1.5.2", "'-1.5.2"},     {"a=1", "a=1"},    {"'=1", "'=1"},
      {"\"\r=1\"", "\"'\r=1\""},
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

TEST(Batch, AnEndlessRowEndsItBehindAllRowsBefore) {
  const std::string text = "opening,a\n1,2\n1,\"" + std::string(std::size_t{17} << 20U, 'x');
  const Answer answer = answerTo(text);
  EXPECT_EQ(linesOf(answer.output).size(), 2U);
  EXPECT_EQ(answer.errors,
            "list.csv:3: the row is longer than 16 MB; a closing quotation mark may be missing\n");
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

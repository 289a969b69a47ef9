#include "csv_reader.h"

#include <csv.h>
#include <gtest/gtest.h>

#include <random>

#include "csv_source.h"

namespace {

using Table = std::vector<std::vector<std::string>>;

Table cellsOf(std::string_view text, char separator) {
  Table table;
  CsvRow row;
  for (CsvReader reader(text, separator); reader.next(row);)
    table.emplace_back(row.cells.begin(), row.cells.end());
  return table;
}

/// What libcsv makes of a text, blanks kept.
Table cellsOfLibcsv(std::string_view text, char separator) {
  struct Rows {
    Table table;
    std::vector<std::string> row;
  } rows;
  csv_parser parser{};
  csv_init(&parser, 0);
  csv_set_delim(&parser, static_cast<unsigned char>(separator));
  csv_set_space_func(&parser, [](unsigned char) { return 0; });
  const auto onCell = [](void* cell, std::size_t length, void* to) {
    static_cast<Rows*>(to)->row.emplace_back(static_cast<const char*>(cell), length);
  };
  const auto onRow = [](int, void* to) {
    auto& all = *static_cast<Rows*>(to);
    all.table.push_back(std::move(all.row));
    all.row.clear();
  };
  csv_parse(&parser, text.data(), text.size(), onCell, onRow, &rows);
  csv_fini(&parser, onCell, onRow, &rows);
  csv_free(&parser);
  return rows.table;
}

/// Reads a text a few bytes at a time.
CsvSource::Read inPieces(std::string_view text, std::size_t most) {
  return [text, most](std::span<char> bytes) mutable {
    const std::size_t count = std::min({bytes.size(), text.size(), most});
    text.copy(bytes.data(), count);
    text.remove_prefix(count);
    return count;
  };
}

std::string randomText(std::mt19937_64& random, std::size_t length) {
  constexpr std::string_view signs = "ab,;\"\"\n\r ";
  std::string text;
  while (text.size() < length) text += signs[random() % signs.size()];
  return text;
}

struct Row {
  const char* rule;
  std::string_view text;
  Table table;
};

TEST(CsvReader, CutsATextIntoCells) {
  using namespace std::string_view_literals;
  const std::vector<Row> rows{
      {"a line feed ends a row", "a,b\nc,d\n", {{"a", "b"}, {"c", "d"}}},
      {"so do both signs together, and the old one alone", "a\r\nb\rc", {{"a"}, {"b"}, {"c"}}},
      {"the last line needs no end", "a,b", {{"a", "b"}}},
      {"a separator at the end opens a cell", "a,\n,b,", {{"a", ""}, {"", "b", ""}}},
      {"what is wholly empty is no row", "\n\r\n\na\n\n", {{"a"}}},
      {"blanks belong to their cell", " a , b \n", {{" a ", " b "}}},
      {"quotation marks protect separators and line ends", "\"a,b\",\"c\r\nd\"", {{"a,b", "c\r\nd"}}},
      {"two marks are one", R"("a""b","""")", {{R"(a"b)", R"(")"}}},
      {"an empty cell in marks is a cell", "\"\"\n\"\",a", {{""}, {"", "a"}}},
      {"a mark within a cell stands for itself", R"(a"b,c"")", {{R"(a"b)", R"(c"")"}}},
      {"so does one before anything but an end", R"("a"b,c",d)", {{R"(a"b,c)", "d"}}},
      {"a mark behind a blank opens nothing", " \"a,b\"", {{" \"a", "b\""}}},
      {"a mark that is never closed takes the rest", "a,\"b\nc,d", {{"a", "b\nc,d"}}},
      {"also if doubled marks stand in it", "\"b\"\"\n\"\"c", {{"b\"\n\"c"}}},
      {"a NUL is a byte like others", "a\0b,\0\n"sv, {{std::string("a\0b", 3), std::string(1, '\0')}}},
      {"nothing has no rows", "", {}},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(cellsOf(row.text, ','), row.table) << row.rule;
    EXPECT_EQ(cellsOfLibcsv(row.text, ','), row.table) << row.rule;
  }
}

TEST(CsvReader, AgreesWithLibcsvOnAnyText) {
  // NOLINTNEXTLINE(cert-msc51-cpp): a failure must come again
  std::mt19937_64 random(20040131);
  for (int at = 0; at < 200'000; ++at) {
    const std::string text = randomText(random, random() % 16);
    ASSERT_EQ(cellsOf(text, ','), cellsOfLibcsv(text, ',')) << text;
    ASSERT_EQ(cellsOf(text, ';'), cellsOfLibcsv(text, ';')) << text;
  }
}

TEST(CsvReader, KnowsTheLineOfEachRow) {
  CsvReader reader("a\n\n\"b\r\nb\nb\rb\"\r\nc\rd\n\r\ne\n", ',');
  CsvRow row;
  std::vector<std::size_t> lines;
  while (reader.next(row)) lines.push_back(row.line);
  EXPECT_EQ(lines, (std::vector<std::size_t>{0, 2, 6, 7, 9}));
  EXPECT_EQ(reader.lines(), 10U);
}

TEST(CsvReader, SaysWhetherAQuotationMarkIsNeverClosed) {
  const auto isOpen = [](std::string_view text) {
    CsvRow row;
    CsvReader reader(text, ',');
    return reader.next(row) && row.isOpen;
  };
  EXPECT_TRUE(isOpen("a,\"b"));
  EXPECT_TRUE(isOpen("\""));
  EXPECT_TRUE(isOpen("\"b\"\""));
  EXPECT_FALSE(isOpen("a,\"b\""));
  EXPECT_FALSE(isOpen("a\"b"));
}

TEST(CsvSource, FindsTheSeparatorInTheFirstRow) {
  struct SeparatorRow {
    const char* rule;
    std::string_view text;
    char separator;
    std::string_view header;
  };
  constexpr SeparatorRow rows[] = {
      {"a comma", "a,b\n1;2;3;4", ',', "a,b\n"},
      {"a semicolon", "a;b\n", ';', "a;b\n"},
      {"a tab", "a\tb\n", '\t', "a\tb\n"},
      {"the most frequent", "a;b,c;d\n", ';', "a;b,c;d\n"},
      {"not within quotation marks", "\"a,b,c\";d\nx", ';', "\"a,b,c\";d\n"},
      {"one column has none", "a\n1,2", ',', "a\n"},
      {"a byte order mark is no part of it",
       "\xEF\xBB\xBF"
       "a;b\r\nc",
       ';', "a;b\r\n"},
      {"it may be broken into lines", "\"a\nb\";c\nd", ';', "\"a\nb\";c\n"},
      {"it may be all there is", "a;b", ';', "a;b"},
      {"the old line end", "a;b\rc", ';', "a;b\r"},
  };
  for (const SeparatorRow& row : rows) {
    for (const std::size_t most : {std::size_t{1}, std::size_t{3}, std::size_t{1000}}) {
      CsvSource source(inPieces(row.text, most));
      char separator = '?';
      EXPECT_EQ(source.header(separator), row.header) << row.rule;
      EXPECT_EQ(separator, row.separator) << row.rule;
    }
  }
}

TEST(CsvSource, GivesWholeRowsHoweverTheTextArrives) {
  // NOLINTNEXTLINE(cert-msc51-cpp): a failure must come again
  std::mt19937_64 random(20040131);
  for (int at = 0; at < 3'000; ++at) {
    const std::string text = "x,y\n" + randomText(random, random() % 60);
    CsvSource source(inPieces(text, 1 + random() % 7));
    char separator = '?';
    Table table = cellsOf(source.header(separator), ',');
    std::size_t lines = 1;
    for (std::string chunk; source.next(chunk);) {
      for (auto& row : cellsOf(chunk, ',')) table.push_back(std::move(row));
      lines += lineEndsIn(chunk);
    }
    ASSERT_EQ(table, cellsOf(text, ',')) << text;
    ASSERT_EQ(lines, lineEndsIn(text)) << text;
  }
}

TEST(CsvSource, RefusesAnEndlessRowAfterAllThatStandBeforeIt) {
  std::string text = "a,b\n1,2\n\"";
  text.append(CsvSource::kLongestRow + (std::size_t{1} << 20U), 'x');
  CsvSource source(inPieces(text, text.size()));
  char separator = '?';
  source.header(separator);
  std::string chunk;
  ASSERT_TRUE(source.next(chunk));
  EXPECT_EQ(chunk, "1,2\n");
  EXPECT_THROW(source.next(chunk), RowTooLong);
}

}  // namespace

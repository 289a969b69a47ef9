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

bool hasStrayQuote(std::string_view text, char separator) {
  CsvRow row;
  bool isAny = false;
  for (CsvReader reader(text, separator); reader.next(row);) isAny = isAny || row.hasStrayQuote;
  return isAny;
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

/// Cells of some bytes or none, a few of them quoted, with doubled marks or, rarely, a single one.
std::string randomText(std::mt19937_64& random, std::size_t length) {
  using namespace std::string_view_literals;
  constexpr std::string_view bytes = "abc  \x80\xAC\xFF\0\x01"sv;
  constexpr auto parts =
      std::to_array<std::string_view>({",", ",", ";", "\n", "\r", "\r\n", ",\"a\"", ";\"\"", "\n\"b,\nc\"\n",
                                       R"(,"d""e",)", ",\"", "\"", "\","});
  std::string text;
  while (text.size() < length) {
    text.append(random() % 12, bytes[random() % bytes.size()]);
    // The last three can leave the rest of the text within quotation marks: they are rare.
    text += parts[random() % (random() % 8 == 0 ? parts.size() : parts.size() - 3)];
  }
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
      {"a mark behind a blank opens nothing", " \"a,b\"", {{" \"a", "b\""}}},
      {"a NUL is a byte like others", "a\0b,\0\n"sv, {{std::string("a\0b", 3), std::string(1, '\0')}}},
      {"nothing has no rows", "", {}},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(cellsOf(row.text, ','), row.table) << row.rule;
    EXPECT_EQ(cellsOfLibcsv(row.text, ','), row.table) << row.rule;
  }
}

TEST(CsvReader, SpoilsOnlyTheLineOfAStrayQuotationMark) {
  const std::vector<Row> rows{
      {"the cell is what stands in the text", "\"a\"b,c\nd,e", {{"\"a\"b", "c"}, {"d", "e"}}},
      {"separators and line ends end it", "\"a,\nb\"c,d\ne", {{"\"a", ""}, {"b\"c", "d"}, {"e"}}},
      {"doubled marks stay", R"("a""b" ,c)", {{R"("a""b" )", "c"}}},
      {"a mark behind it stands for itself", "\"a\"b\",c\nd", {{R"("a"b")", "c"}, {"d"}}},
      {"a mark that is never closed", "a,\"b\nc,d", {{"a", "\"b"}, {"c", "d"}}},
      {"also if doubled marks follow", "\"b\"\"\n\"\"c", {{R"("b"")"}, {R"(""c)"}}},
      {"a later row's mark closes nothing", "a,\"b\nc,\"d\"\ne", {{"a", "\"b"}, {"c", "d"}, {"e"}}},
      {"what else is quoted stays so", "\"a,\"b,c\",d\ne", {{"\"a", "b,c", "d"}, {"e"}}},
      {"but not beyond the line", "\"a,\"b\nc\",d", {{"\"a", "\"b"}, {"c\"", "d"}}},
      {"a quoted line end may stand before it", "\"a\nb\",\"c\nd", {{"a\nb", "\"c"}, {"d"}}},
      {"at the very end", "a\n\"", {{"a"}, {"\""}}},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(cellsOf(row.text, ','), row.table) << row.rule;
    EXPECT_TRUE(hasStrayQuote(row.text, ',')) << row.rule;
  }
  EXPECT_FALSE(hasStrayQuote("\"a\",\"b\"\"\"\r\n\"c\"\n\"d\"", ','));
}

TEST(CsvReader, ClosesACellOnlyWithinTheLengthOfARow) {
  struct LongRow {
    const char* rule;
    std::string_view text;
    Table table;
    std::size_t tooLong;  ///< how many rows are
  };
  const std::vector<LongRow> rows{
      {"as long as may be", "12345678\na", {{"12345678"}, {"a"}}, 0},
      {"one byte more", "123456789\na", {{""}, {"a"}}, 1},
      {"the cells of a row together", "1,2,3,4,5\na", {{""}, {"a"}}, 1},
      {"a mark that just closes", "a,\"\n\n\n\n\"\nb", {{"a", "\n\n\n\n"}, {"b"}}, 0},
      {"a mark that closes too late", "a,\"\n\n\n\n\n\"\nb", {{"a", "\""}, {"\""}, {"b"}}, 0},
      {"the row goes on behind it", "a,\"\n\n\n\n\",\nb", {{""}, {"b"}}, 1},
      {"a mark behind that length opens nothing", "12345678,\"\n\",a", {{""}, {"\"", "a"}}, 1},
      {"each row anew", "\"12345\"\n\"67890\"\n", {{"12345"}, {"67890"}}, 0},
  };
  for (const LongRow& row : rows) {
    CsvReader reader(row.text, ',', 8);
    Table table;
    std::size_t tooLong = 0;
    for (CsvRow cut; reader.next(cut);) {
      table.emplace_back(cut.cells.begin(), cut.cells.end());
      tooLong += cut.isTooLong ? 1 : 0;
    }
    EXPECT_EQ(table, row.table) << row.rule;
    EXPECT_EQ(tooLong, row.tooLong) << row.rule;
    EXPECT_EQ(reader.lines(), lineEndsIn(row.text)) << row.rule;
  }
}

/// If the search for a closing mark were repeated for each opening one, this would take hours.
TEST(CsvReader, IsNotHeldUpByMarksThatAreNeverClosed) {
  constexpr std::size_t count = 1'000'000;
  for (const std::string_view part : {"\"", ",\"", "\"\n", ",\"\n", "\"\",", ",\"x", R"(""""x,)", "\"x\n"}) {
    std::string text = "\"";
    for (std::size_t at = 0; at < count; ++at) text += part;
    std::size_t cells = 0;
    CsvReader reader(text, ',');
    for (CsvRow row; reader.next(row);) cells += row.cells.size();
    EXPECT_GE(cells, 1U);
    EXPECT_EQ(reader.lines(), lineEndsIn(text)) << part;
  }
}

TEST(CsvReader, AgreesWithLibcsvOnAnyTextWithoutStrayQuotationMarks) {
  // NOLINTNEXTLINE(cert-msc51-cpp): a failure must come again
  std::mt19937_64 random(20040131);
  for (int compared = 0; compared < 50'000;) {
    const std::string text = randomText(random, random() % (random() % 2 == 0 ? 300 : 16));
    for (const char separator : {',', ';'}) {
      if (hasStrayQuote(text, separator)) continue;
      ASSERT_EQ(cellsOf(text, separator), cellsOfLibcsv(text, separator)) << text;
      ++compared;
    }
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
      {"a second mark is a part of it",
       "\xEF\xBB\xBF\xEF\xBB\xBF"
       "a;b\nc",
       ';',
       "\xEF\xBB\xBF"
       "a;b\n"},
      {"it may be broken into lines", "\"a\nb\";c\nd", ';', "\"a\nb\";c\n"},
      {"it may be all there is", "a;b", ';', "a;b"},
      {"the old line end", "a;b\rc", ';', "a;b\r"},
      {"a mark within a cell is no quotation", "5\" screen;b\n1;2", ';', "5\" screen;b\n"},
      {"nor are two of them", "5\"\" screen;b\n1;2", ';', "5\"\" screen;b\n"},
      {"doubled marks close nothing", "\"a\"\",b\n,c\";d\ne", ';', "\"a\"\",b\n,c\";d\n"},
      {"a quoted cell may be empty", "\"\";b\n1;2", ';', "\"\";b\n"},
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

TEST(CsvSource, RefusesAFirstRowThatItCannotBeSureOf) {
  constexpr std::pair<const char*, std::string_view> rows[] = {
      {"two signs may separate its cells", "opening;note, closing\n1;2\n"},
      {"a mark is never closed", "opening,\"closing\n1,2\n"},
      {"a mark within a quoted cell is not doubled", "opening,\"5\" screen\"\n1,2\n"},
      {"what looked quoted is not, as the cells turn out", "a;b;x,\"\n1;\"\n2\n"},
  };
  for (const auto& [rule, text] : rows) {
    CsvSource source(inPieces(text, 100));
    char separator = '?';
    EXPECT_THROW(source.header(separator), TableError) << rule;
  }
}

/// The rows of a table as they are, and those that are too long by how many lines they have.
struct Pieces {
  Table table;
  std::size_t tooLong = 0;
  std::size_t lines = 0;

  void add(std::string_view text, std::size_t longestRow) {
    CsvReader reader(text, ',', longestRow);
    for (CsvRow row; reader.next(row);) {
      table.emplace_back(row.cells.begin(), row.cells.end());
      tooLong += row.isTooLong ? 1 : 0;
    }
    lines += reader.lines();
  }

  bool operator==(const Pieces& other) const = default;
};

TEST(CsvSource, GivesWholeRowsHoweverTheTextArrives) {
  // NOLINTNEXTLINE(cert-msc51-cpp): a failure must come again
  std::mt19937_64 random(20040131);
  for (int at = 0; at < 6'000; ++at) {
    const std::size_t longestRow = 4 + random() % (random() % 2 == 0 ? 12 : 200);
    const std::string text = "x,y\n" + randomText(random, random() % 100);
    CsvSource source(inPieces(text, 1 + random() % 7), longestRow);
    char separator = '?';
    Pieces pieces;
    pieces.add(source.header(separator), longestRow);
    for (std::string chunk; source.next(chunk);) pieces.add(chunk, longestRow);
    Pieces whole;
    whole.add(text, longestRow);
    ASSERT_EQ(pieces, whole) << text;
  }
}

TEST(CsvSource, GivesNoMoreThanAPieceAfterALongSearchForAClosingMark) {
  std::string text = "a,b\n1,\"2\n";
  while (text.size() < kLongestRow + kLongestRow / 2) text += "some,row\n";
  CsvSource source(inPieces(text, text.size()));
  char separator = '?';
  std::string given = source.header(separator);
  for (std::string chunk; source.next(chunk);) {
    ASSERT_LT(chunk.size(), std::size_t{1} << 20U);
    given += chunk;
  }
  EXPECT_TRUE(given == text);
}

TEST(CsvSource, PassesOverAnEndlessRow) {
  std::string text = "a,b\n1,2\n\"x\ny\",\"";
  text.append(kLongestRow + (std::size_t{1} << 20U), 'x');
  for (const std::string_view end : {"\n3,4", "\r\n3,4", "\r3,4"}) {
    const std::string table = text + std::string(end);
    CsvSource source(inPieces(table, table.size()));
    char separator = '?';
    Pieces pieces;
    pieces.add(source.header(separator), kLongestRow);
    for (std::string chunk; source.next(chunk);) {
      EXPECT_LT(chunk.size(), kLongestRow + 10);
      pieces.add(chunk, kLongestRow);
    }
    EXPECT_EQ(pieces.table, (Table{{"a", "b"}, {"1", "2"}, {""}, {"3", "4"}}));
    EXPECT_EQ(pieces.tooLong, 1U);
    EXPECT_EQ(pieces.lines, 4U);
  }
}

}  // namespace

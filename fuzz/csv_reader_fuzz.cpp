#include <csv.h>

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <optional>
#include <string>
#include <vector>

#include "csv_reader.h"
#include "csv_source.h"

/// \file
/// Any bytes as a table. What must hold: the reader finds the same cells as libcsv unless a quotation mark is
/// astray or a row too long, and the same whole or in pieces that arrive a few bytes at a time, with a first
/// row of any bytes, also behind a line that says the separator, or one that is known; and every line is
/// counted. The first byte picks the separator, the second how many bytes arrive together, the third how long
/// a row may be.

namespace {

struct Cells {
  std::vector<std::string> cells;  ///< a row's end as a cell that no text holds
  bool hasWrongRow = false;
  std::size_t lines = 0;

  bool operator==(const Cells& other) const = default;
  void endRow() { cells.emplace_back("\n row"); }
};

void require(bool holds) {
  if (!holds) std::abort();
}

Cells libcsvCells(std::string_view text, char separator) {
  Cells cells;
  csv_parser parser{};
  csv_init(&parser, 0);
  csv_set_delim(&parser, static_cast<unsigned char>(separator));
  csv_set_space_func(&parser, [](unsigned char) { return 0; });
  const auto onCell = [](void* cell, std::size_t length, void* to) {
    static_cast<Cells*>(to)->cells.emplace_back(static_cast<const char*>(cell), length);
  };
  const auto onRow = [](int, void* to) { static_cast<Cells*>(to)->endRow(); };
  csv_parse(&parser, text.data(), text.size(), onCell, onRow, &cells);
  csv_fini(&parser, onCell, onRow, &cells);
  csv_free(&parser);
  return cells;
}

/// How a table is read.
struct Reading {
  char separator;
  std::size_t most;  ///< bytes that arrive together
  std::size_t longestRow;
};

void addCells(std::string_view text, const Reading& reading, Cells& cells) {
  CsvReader reader(text, reading.separator, reading.longestRow);
  CsvRow row;
  while (reader.next(row)) {
    cells.cells.insert(cells.cells.end(), row.cells.begin(), row.cells.end());
    cells.hasWrongRow = cells.hasWrongRow || row.hasStrayQuote || row.isTooLong;
    cells.endRow();
  }
  cells.lines += reader.lines();
}

Cells wholeCells(std::string_view text, const Reading& reading) {
  Cells cells;
  addCells(text, reading, cells);
  require(cells.lines == lineEndsIn(text));
  require(cells.hasWrongRow || cells.cells == libcsvCells(text, reading.separator).cells);
  return cells;
}

/// Reads a table with its first row, which says what separates the cells; nothing if it leaves that open.
std::optional<Cells> cellsInPieces(std::string_view table, Reading& reading) {
  CsvSource source(
      [&](std::span<char> to) {
        const std::size_t count = std::min({to.size(), table.size(), reading.most});
        table.copy(to.data(), count);
        table.remove_prefix(count);
        return count;
      },
      reading.longestRow);
  Cells cells;
  std::string header;
  try {
    header = source.header(reading.separator);
  } catch (const TableError&) {
    return std::nullopt;
  }
  addCells(source.separatorLine(), reading, cells);
  addCells(header, reading, cells);
  for (std::string chunk; source.next(chunk);) addCells(chunk, reading, cells);
  return cells;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size < 3) return 0;
  const std::string bytes(data, data + size);
  const char separator = std::string_view(",;\t")[data[0] % 3];
  Reading reading{.separator = '?', .most = 1U + data[1], .longestRow = 4U + data[2]};
  const std::string_view rest = std::string_view(bytes).substr(3);

  const std::string table = std::string("x") + separator + "y\n" + std::string(rest);
  const auto known = cellsInPieces(table, reading);
  require(known && reading.separator == separator && *known == wholeCells(table, reading));

  constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
  const auto any = cellsInPieces(rest, reading);
  const std::string_view plain = rest.starts_with(byteOrderMark) ? rest.substr(byteOrderMark.size()) : rest;
  if (any) require(*any == wholeCells(plain, reading));
  return 0;
}

#include <csv.h>

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <vector>

#include "csv_reader.h"
#include "csv_source.h"

/// \file
/// Any bytes as a table. What must hold: the reader finds the same cells as libcsv, whole or in pieces that
/// arrive a few bytes at a time, and every line is counted. The first byte picks the separator, the second
/// how many bytes arrive together.

namespace {

struct Cells {
  std::vector<std::string> cells;  ///< a row's end as a cell that no text holds

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

std::size_t addCells(std::string_view text, char separator, Cells& cells) {
  CsvReader reader(text, separator);
  CsvRow row;
  while (reader.next(row)) {
    cells.cells.insert(cells.cells.end(), row.cells.begin(), row.cells.end());
    cells.endRow();
  }
  return reader.lines();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size < 2) return 0;
  const std::string bytes(data, data + size);
  const char separator = std::string_view(",;\t")[data[0] % 3];
  const std::size_t most = 1U + data[1];
  std::string_view rest = std::string_view(bytes).substr(2);

  const Cells expected = libcsvCells(rest, separator);
  Cells whole;
  const std::size_t lines = addCells(rest, separator, whole);
  require(whole.cells == expected.cells);
  require(lines == lineEndsIn(rest));

  // A first row of its own tells the separator.
  std::string table = std::string("x") + separator + "y\n";
  table += rest;
  rest = table;
  CsvSource source([&](std::span<char> to) {
    const std::size_t count = std::min({to.size(), rest.size(), most});
    rest.copy(to.data(), count);
    rest.remove_prefix(count);
    return count;
  });
  char found = '?';
  source.header(found);
  require(found == separator);
  Cells inPieces;
  for (std::string chunk; source.next(chunk);) addCells(chunk, separator, inPieces);
  require(inPieces.cells == expected.cells);
  return 0;
}

#include <csv.h>

#include <cstdint>
#include <cstring>
#include <fstream>
#include <iostream>
#include <string_view>
#include <vector>

#include "csv_reader.h"
#include "csv_source.h"

/// \file
/// How long it takes only to split a table into fields: byte by byte, which is the yardstick; with libcsv;
/// and with the reader of the companion command, in its pieces. Prints how many fields there were, and a sum
/// of their lengths, so that none can be left out.

namespace {

struct Counts {
  std::uint64_t rows = 0;
  std::uint64_t fields = 0;
  std::uint64_t bytes = 0;

  void add(std::size_t length) {
    ++fields;
    bytes += length;
  }
};

CsvSource::Read readerOf(std::istream& input) {
  return [&input](std::span<char> bytes) {
    input.read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    return static_cast<std::size_t>(input.gcount());
  };
}

/// Knows nothing but lines and commas.
Counts splitByteByByte(std::istream& input) {
  Counts counts;
  std::string line;
  std::vector<std::string_view> fields;
  while (std::getline(input, line)) {
    fields.clear();
    std::size_t start = 0;
    for (std::size_t at = 0; at < line.size(); ++at) {
      if (line[at] != ',') continue;
      fields.emplace_back(line.data() + start, at - start);
      start = at + 1;
    }
    fields.emplace_back(line.data() + start, line.size() - start);
    for (const std::string_view field : fields) counts.add(field.size());
    ++counts.rows;
  }
  return counts;
}

Counts splitWithLibcsv(const CsvSource::Read& read) {
  Counts counts;
  csv_parser parser{};
  csv_init(&parser, 0);
  csv_set_space_func(&parser, [](unsigned char) { return 0; });
  const auto onField = [](void*, std::size_t length, void* to) { static_cast<Counts*>(to)->add(length); };
  const auto onRow = [](int, void* to) { ++static_cast<Counts*>(to)->rows; };
  std::vector<char> piece(std::size_t{256} << 10U);
  while (const std::size_t count = read(piece))
    csv_parse(&parser, piece.data(), count, onField, onRow, &counts);
  csv_fini(&parser, onField, onRow, &counts);
  csv_free(&parser);
  return counts;
}

Counts splitWithReader(const CsvSource::Read& read) {
  Counts counts;
  CsvSource source(read);
  std::string chunk;
  CsvRow row;
  while (source.next(chunk)) {
    for (CsvReader reader(chunk, ','); reader.next(row); ++counts.rows) {
      for (const std::string_view cell : row.cells) counts.add(cell.size());
    }
  }
  return counts;
}

}  // namespace

int main(int argc, char** argv) {
  const std::string_view how = argc == 3 ? argv[1] : "";
  if (how != "bytes" && how != "libcsv" && how != "reader") {
    std::cerr << "split_fields bytes|libcsv|reader FILE\n";
    return 2;
  }
  std::ifstream input(argv[2], std::ios::binary);
  if (!input) {
    std::cerr << "split_fields: cannot open " << argv[2] << '\n';
    return 2;
  }
  const auto read = readerOf(input);
  const Counts counts = how == "bytes"    ? splitByteByByte(input)
                        : how == "libcsv" ? splitWithLibcsv(read)
                                          : splitWithReader(read);
  std::cout << counts.rows << " rows, " << counts.fields << " fields, " << counts.bytes << " bytes\n";
  return 0;
}

#pragma once

#include <cstdint>
#include <iosfwd>
#include <string>
#include <vector>

/// How a table is written.
enum class Format : std::uint8_t { Text, Csv, Json };

/// A column: its name for programs, its heading for people.
struct Column {
  std::string key;
  std::string heading;
  bool isNumber = false;
  bool isFlag = false;  ///< "1" or "0"
};

/// What a command answers. Numbers are texts with a point or a comma as decimal sign and without group signs.
struct Table {
  std::string title;
  std::vector<Column> columns;
  std::vector<std::vector<std::string>> rows;
};

/// Writes a table: aligned columns under title and headings, CSV with the keys as its first line, or JSON, an
/// array with one object for each row, numbers as numbers. `decimal` is the sign that numbers in text and CSV
/// are written with; with a comma the columns of CSV are separated by ";".
void write(std::ostream& out, const Table& table, Format format, char decimal);

/// A cell of CSV: in quotes where it has to be.
void appendCsvCell(std::string& line, std::string_view cell, char separator);

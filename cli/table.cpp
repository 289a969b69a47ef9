#include "table.h"

#include <algorithm>
#include <charconv>
#include <nlohmann/json.hpp>
#include <ostream>

namespace {

/// How many characters a text takes on a line, by its code points.
std::size_t widthOf(std::string_view text) {
  constexpr unsigned continuation = 0x80;
  constexpr unsigned mask = 0xC0;
  return static_cast<std::size_t>(std::count_if(text.begin(), text.end(), [](char byte) {
    return (static_cast<unsigned char>(byte) & mask) != continuation;
  }));
}

std::string withDecimal(std::string text, const Column& column, char decimal) {
  if (column.isNumber) std::replace(text.begin(), text.end(), decimal == ',' ? '.' : ',', decimal);
  return text;
}

void appendAligned(std::string& line, const std::string& cell, std::size_t width, bool isRight) {
  const std::string blanks(width - widthOf(cell), ' ');
  line += isRight ? blanks + cell : cell + blanks;
}

void endLine(std::string& text, std::string line) {
  line.erase(line.find_last_not_of(' ') + 1);
  text += line + '\n';
}

void writeText(std::ostream& out, const Table& table, char decimal) {
  std::vector<std::size_t> widths;
  for (std::size_t at = 0; at < table.columns.size(); ++at) {
    std::size_t width = widthOf(table.columns[at].heading);
    for (const auto& row : table.rows) width = std::max(width, widthOf(row[at]));
    widths.push_back(width);
  }
  std::string text = table.title.empty() ? "" : table.title + "\n\n";
  const bool hasHeadings = std::any_of(table.columns.begin(), table.columns.end(),
                                       [](const Column& column) { return !column.heading.empty(); });
  const auto append = [&](const auto& cellAt) {
    std::string line;
    for (std::size_t at = 0; at < table.columns.size(); ++at) {
      if (at > 0) line += "  ";
      appendAligned(line, cellAt(at), widths[at], table.columns[at].isNumber);
    }
    endLine(text, std::move(line));
  };
  if (hasHeadings) append([&](std::size_t at) { return table.columns[at].heading; });
  for (const auto& row : table.rows)
    append([&](std::size_t at) { return withDecimal(row[at], table.columns[at], decimal); });
  out << text;
}

void writeCsv(std::ostream& out, const Table& table, char decimal) {
  const char separator = decimal == ',' ? ';' : ',';
  std::string text;
  const auto append = [&](const auto& cellAt) {
    for (std::size_t at = 0; at < table.columns.size(); ++at) {
      if (at > 0) text += separator;
      appendCsvCell(text, cellAt(at), separator);
    }
    text += '\n';
  };
  append([&](std::size_t at) { return table.columns[at].key; });
  for (const auto& row : table.rows)
    append([&](std::size_t at) { return withDecimal(row[at], table.columns[at], decimal); });
  out << text;
}

nlohmann::ordered_json valueOf(std::string cell, const Column& column) {
  if (column.isFlag) return cell == "1";
  const bool isNumber = column.isNumber;
  if (isNumber) std::replace(cell.begin(), cell.end(), ',', '.');
  double number = 0.0;
  const char* end = cell.data() + cell.size();
  if (isNumber && !cell.empty()) {
    const auto read = std::from_chars(cell.data(), end, number);
    if (read.ec == std::errc() && read.ptr == end) return number;
  }
  if (isNumber && cell.empty()) return nullptr;
  return cell;
}

void writeJson(std::ostream& out, const Table& table) {
  nlohmann::ordered_json array = nlohmann::ordered_json::array();
  for (const auto& row : table.rows) {
    nlohmann::ordered_json object = nlohmann::ordered_json::object();
    for (std::size_t at = 0; at < table.columns.size(); ++at)
      object[table.columns[at].key] = valueOf(row[at], table.columns[at]);
    array.push_back(std::move(object));
  }
  out << array.dump(2, ' ', false, nlohmann::ordered_json::error_handler_t::replace) << '\n';
}

}  // namespace

void appendCsvCell(std::string& line, std::string_view cell, char separator) {
  const bool isPlain = std::none_of(cell.begin(), cell.end(), [separator](char c) {
    return c == separator || c == '"' || c == '\n' || c == '\r';
  });
  if (isPlain) {
    line += cell;
    return;
  }
  line += '"';
  for (const char c : cell) {
    if (c == '"') line += '"';
    line += c;
  }
  line += '"';
}

void write(std::ostream& out, const Table& table, Format format, char decimal) {
  switch (format) {
    case Format::Text:
      return writeText(out, table, decimal);
    case Format::Csv:
      return writeCsv(out, table, decimal);
    case Format::Json:
      return writeJson(out, table);
  }
}

#pragma once

#include <array>
#include <climits>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// A row of a table in text, cut into cells.
struct CsvRow {
  std::vector<std::string_view> cells;  ///< without their quotation marks; they last until the next row
  std::string_view text;                ///< the row as it stands, without its end
  std::size_t line = 0;                 ///< in which it begins, counted from 0
  bool hasQuotes = false;               ///< if not, the cells stand in `text` as they are
  bool isOpen = false;                  ///< the text ends within its last, quoted cell
};

/// Cuts a text into rows and cells. It takes any bytes and refuses nothing:
/// - a row ends with LF, CR or both; what is wholly empty is no row;
/// - blanks belong to their cell;
/// - a cell that begins with a quotation mark ends with the mark before a separator, a row's end or the end
/// of
///   the text. Within it two marks are one, and a mark before anything else stands for itself;
/// - in any other cell a mark stands for itself.
class CsvReader {
 public:
  CsvReader(std::string_view text, char separator);

  /// The next row, or false behind the last. `row` can be used again and again.
  bool next(CsvRow& row);

  /// How many lines ended before the place where it is.
  [[nodiscard]] std::size_t lines() const { return m_lines; }

 private:
  void skipLineEnds();
  [[nodiscard]] const char* nextSign(const char* at) const;
  [[nodiscard]] bool isRowEnd(std::size_t at) const;
  [[nodiscard]] bool isCellEnd(std::size_t at) const;
  void readCell(CsvRow& row);
  void readQuotedCell(CsvRow& row);
  std::string_view withoutDoubledQuotes(std::size_t start, std::size_t end);

  std::string_view m_text;
  std::size_t m_at = 0;
  std::size_t m_lines = 0;
  char m_separator;
  std::array<bool, UCHAR_MAX + 1> m_isSign{};  ///< bytes that are not simply part of a cell
  std::string m_unquoted;                      ///< what cells hold that do not stand in the text as they are
};

/// How many lines end in a text: with LF, CR or both.
[[nodiscard]] std::size_t lineEndsIn(std::string_view text);

/// The sign that separates the cells of the first row, the most frequent of "," ";" and TAB outside quotation
/// marks, and where that row ends; nothing if the text ends before the row does.
struct FirstRow {
  char separator = ',';
  std::size_t end = 0;  ///< of the row with its line end
};
[[nodiscard]] std::optional<FirstRow> firstRowOf(std::string_view text, bool isWhole);

#pragma once

#include <cstddef>
#include <cstdint>
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
  bool hasStrayQuote = false;           ///< a mark opens a cell that no mark closes
  bool isTooLong = false;               ///< it was left out: its only cell and `text` are empty
};

/// More than this is no row: whoever keeps a row needs no more room.
constexpr std::size_t kLongestRow = std::size_t{16} << 20U;

/// Looks for the mark that closes a quoted cell: the next one, where two are one of the cell, if the cell
/// ends behind it. A next mark within a cell closes nothing; it may well be the opening mark of a later row.
///
/// No byte is searched often, however many marks are never closed: where a search without success went, marks
/// stand in even numbers side by side, so that the search for a cell that begins there ends with the marks
/// that it begins with.
class ClosingQuote {
 public:
  enum class State : std::uint8_t { Found, Missing, Unknown };

  /// `opening` is the place of the mark that opens the cell.
  explicit ClosingQuote(std::size_t opening) : m_at(opening + 1) {}

  /// Whether it stands before `end`. It is unknown only where text can follow, as `isWhole` denies; then the
  /// search goes on with the next call, whose text begins like this one.
  State search(std::string_view text, char separator, std::size_t end, bool isWhole);

  [[nodiscard]] std::size_t at() const { return m_at; }

 private:
  std::size_t m_at;
};

/// Cuts a text into rows and cells. It takes any bytes and refuses nothing:
/// - a row ends with LF, CR or both; what is wholly empty is no row;
/// - blanks belong to their cell;
/// - a cell that begins with a quotation mark is quoted if a ClosingQuote is found in what the row may hold;
///   within it two marks are one;
/// - if none is found, the opening mark stands for itself, and the row ends with the line, whatever else is
///   quoted in it: a wrong mark spoils its own line and not the rest of the table;
/// - in any other cell a mark stands for itself;
/// - a row of more than `longestRow` bytes is left out.
class CsvReader {
 public:
  CsvReader(std::string_view text, char separator, std::size_t longestRow = kLongestRow);

  /// The next row, or false behind the last. `row` can be used again and again.
  bool next(CsvRow& row);

  /// How many lines ended before the place where it is.
  [[nodiscard]] std::size_t lines() const { return m_lines; }

 private:
  void skipLineEnds();
  void lookThrough(std::size_t block);
  [[nodiscard]] bool isRowEnd(std::size_t at) const;
  [[nodiscard]] bool isCellEnd(std::size_t at) const;
  void readPlainCells(CsvRow& row);
  void readCell(CsvRow& row);
  void readQuotedCell(CsvRow& row);
  std::string_view withoutDoubledQuotes(std::size_t start, std::size_t end);

  std::string_view m_text;
  std::size_t m_at = 0;
  std::size_t m_lines = 0;
  char m_separator;
  std::size_t m_longestRow;
  std::size_t m_quotesEnd = 0;  ///< behind it no mark closes a cell of this row
  std::string m_unquoted;       ///< what cells hold that do not stand in the text as they are
  std::size_t m_block;          ///< where the bytes begin that were looked through last
  std::uint64_t m_signs = 0;    ///< which of them are not simply part of a cell, the first at the lowest bit
};

[[nodiscard]] bool isLineSign(char c);

/// How many lines end in a text: with LF, CR or both.
[[nodiscard]] std::size_t lineEndsIn(std::string_view text);

/// The sign that separates the cells of the first row, the most frequent of some outside quoted cells, and
/// where that row ends; nothing if the text ends before the row does.
struct FirstRow {
  char separator = ',';
  bool isTie = false;   ///< another is as frequent
  std::size_t end = 0;  ///< of the row with its line end
};
[[nodiscard]] std::optional<FirstRow> firstRowOf(std::string_view text, std::string_view separators,
                                                 bool isWhole);

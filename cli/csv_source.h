#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "csv_reader.h"

/// A table whose first row leaves open what its columns are.
class TableError : public std::runtime_error {
 public:
  TableError(std::size_t line, const std::string& reason) : std::runtime_error(reason), m_line(line) {}

  /// Where it is wrong, counted from 0.
  [[nodiscard]] std::size_t line() const { return m_line; }

 private:
  std::size_t m_line;
};

/// Where the whole rows of a growing text end, by the rules of CsvReader. Each byte is looked at once, and by
/// the search for one ClosingQuote.
class RowEnds {
 public:
  RowEnds(char separator, std::size_t longestRow) : m_separator(separator), m_longestRow(longestRow) {}

  /// The end of a row that is whole for certain, mostly of the last one; 0 if there is none. `text` begins
  /// like the one of the call before; nothing follows it if it `isWhole`, and with it ends its last row.
  std::size_t lastIn(std::string_view text, bool isWhole);

 private:
  enum class In : std::uint8_t { Plain, Quoted, Spoiled };

  [[nodiscard]] bool isCellStart(std::string_view text, std::size_t at) const;
  bool skip(std::string_view text, bool isWhole);
  void skipPlain(std::string_view text);
  bool skipQuoted(std::string_view text, bool isWhole);
  bool skipSpoiled(std::string_view text);

  char m_separator;
  std::size_t m_longestRow;
  std::size_t m_at = 0;
  std::size_t m_rowStart = 0;
  In m_in = In::Plain;
  ClosingQuote m_closing{0};
};

/// Reads a table in pieces of whole rows, so that no more of it is in memory than a piece, or the longest
/// row. A longer one is passed over; in its place stands one of as many lines that CsvReader leaves out.
class CsvSource {
 public:
  /// Reads some bytes; 0 at the end. It may throw what it likes.
  using Read = std::function<std::size_t(std::span<char>)>;

  explicit CsvSource(Read read, std::size_t longestRow = kLongestRow)
      : m_read(std::move(read)), m_longestRow(longestRow) {}

  /// The first row with its end, without a byte order mark, and what separates its cells; "" if there is
  /// none. To be called first. Throws TableError, also if the text is UTF-16.
  std::string header(char& separator);

  /// The line in front of the first row that says what separates the cells, as it stands with its end; mostly
  /// "". Known with the header.
  [[nodiscard]] const std::string& separatorLine() const { return m_separatorLine; }

  /// The next rows, or false behind the last.
  bool next(std::string& chunk);

 private:
  /// What was read and not yet given.
  [[nodiscard]] std::string_view rest() const { return std::string_view(m_text).substr(m_given); }
  void fill();
  void skipByteOrderMark();
  std::string take(std::size_t end);
  [[nodiscard]] std::optional<char> takeSeparatorLine();
  [[nodiscard]] FirstRow findFirstRow(std::string_view separators);
  [[nodiscard]] std::size_t lineOfNames() const;
  void passOver(std::string& chunk);

  Read m_read;
  std::size_t m_longestRow;
  std::vector<char> m_piece;
  std::string m_text;
  std::size_t m_given = 0;  ///< so much of it
  std::string m_separatorLine;
  char m_separator = ',';
  bool m_isAtEnd = false;
};

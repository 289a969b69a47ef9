#pragma once

#include <cstddef>
#include <functional>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

/// A row that is longer than a row may be.
class RowTooLong : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// Where the whole rows of a growing text end, by the rules of CsvReader. Each byte is looked at once.
class RowEnds {
 public:
  explicit RowEnds(char separator) : m_separator(separator) {}

  /// The end of the last row that is whole for certain; 0 if there is none. `text` begins like the one of the
  /// call before.
  std::size_t lastIn(std::string_view text);

 private:
  [[nodiscard]] bool isCellStart(std::string_view text, std::size_t at) const;
  bool skipQuoted(std::string_view text);
  void skipPlain(std::string_view text);

  char m_separator;
  std::size_t m_at = 0;
  std::size_t m_last = 0;
  bool m_isQuoted = false;
};

/// Reads a table in pieces of whole rows, so that no more of it is in memory than a piece, or one row.
class CsvSource {
 public:
  /// Reads some bytes; 0 at the end. It may throw what it likes.
  using Read = std::function<std::size_t(std::span<char>)>;

  static constexpr std::size_t kLongestRow = std::size_t{16} << 20U;

  explicit CsvSource(Read read) : m_read(std::move(read)) {}

  /// The first row with its end, without a byte order mark, and what separates its cells; "" if there is
  /// none. To be called first. Throws RowTooLong.
  std::string header(char& separator);

  /// The next rows, or false behind the last. Throws RowTooLong.
  bool next(std::string& chunk);

 private:
  void fill(std::string& text);

  Read m_read;
  std::vector<char> m_piece;
  std::string m_rest;
  char m_separator = ',';
  bool m_isAtEnd = false;
};

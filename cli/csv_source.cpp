#include "csv_source.h"

#include <algorithm>
#include <utility>

#include "csv_reader.h"

namespace {

constexpr char kQuote = '"';
constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
constexpr std::size_t kPiece = std::size_t{256} << 10U;

/// The names of the columns; more than this is no list of names.
constexpr std::size_t kLongestHeader = std::size_t{4} << 20U;

}  // namespace

bool RowEnds::isCellStart(std::string_view text, std::size_t at) const {
  if (at == 0) return true;
  const char before = text[at - 1];
  return before == m_separator || before == '\n' || before == '\r';
}

std::size_t RowEnds::lastIn(std::string_view text) {
  while (m_at < text.size()) {
    if (!m_isQuoted) {
      skipPlain(text);
    } else if (!skipQuoted(text)) {
      break;
    }
  }
  return m_last;
}

void RowEnds::skipPlain(std::string_view text) {
  std::size_t mark = text.find(kQuote, m_at);
  while (mark != std::string_view::npos && !isCellStart(text, mark)) mark = text.find(kQuote, mark + 1);
  const std::size_t end = std::min(mark, text.size());
  const std::string_view skipped = text.substr(m_at, end - m_at);
  std::size_t sign = skipped.rfind('\n');
  if (sign == std::string_view::npos) {
    // At the very end it may be the first half of a row's end.
    const bool isCut = end == text.size() && skipped.ends_with('\r');
    sign = skipped.substr(0, skipped.size() - (isCut ? 1 : 0)).rfind('\r');
  }
  if (sign != std::string_view::npos) m_last = m_at + sign + 1;
  m_isQuoted = mark != std::string_view::npos;
  m_at = m_isQuoted ? mark + 1 : end;
}

/// False if only what follows can tell what the last mark means.
bool RowEnds::skipQuoted(std::string_view text) {
  m_at = std::min(text.find(kQuote, m_at), text.size());
  if (m_at + 1 >= text.size()) return false;
  const char behind = text[m_at + 1];
  if (behind == m_separator || behind == '\n' || behind == '\r') {
    m_isQuoted = false;
    ++m_at;
  } else {
    m_at += behind == kQuote ? 2 : 1;
  }
  return true;
}

void CsvSource::fill(std::string& text) {
  m_piece.resize(kPiece);
  const std::size_t count = m_read(m_piece);
  text.append(m_piece.data(), count);
  m_isAtEnd = count == 0;
}

std::string CsvSource::header(char& separator) {
  std::optional<FirstRow> first;
  std::size_t seen = 0;
  while (true) {
    if (m_rest.starts_with(kByteOrderMark)) m_rest.erase(0, kByteOrderMark.size());
    const bool mayBeMark = m_rest.size() < kByteOrderMark.size() && !m_isAtEnd;
    // Without a new line end the row is as unfinished as before.
    const bool hasLineEnd = m_rest.find_first_of("\r\n", seen) != std::string::npos;
    if (!mayBeMark) {
      if (hasLineEnd || m_isAtEnd) first = firstRowOf(m_rest, m_isAtEnd);
      seen = m_rest.size();
    }
    if (first) break;
    if (m_rest.size() > kLongestHeader)
      throw RowTooLong("the first line is too long for the names of columns");
    fill(m_rest);
  }
  // The second half of the line's end belongs to it as well.
  while (first->end == m_rest.size() && m_rest.ends_with('\r') && !m_isAtEnd) fill(m_rest);
  if (first->end < m_rest.size() && m_rest[first->end - 1] == '\r' && m_rest[first->end] == '\n')
    ++first->end;
  m_separator = separator = first->separator;
  std::string row = m_rest.substr(0, first->end);
  m_rest.erase(0, first->end);
  return row;
}

bool CsvSource::next(std::string& chunk) {
  if (chunk.capacity() > 4 * kPiece) std::string().swap(chunk);
  chunk.assign(m_rest);
  m_rest.clear();
  RowEnds ends(m_separator);
  while (true) {
    const std::size_t end = ends.lastIn(chunk);
    if (end > 0) {
      m_rest.assign(chunk, end);
      chunk.resize(end);
      return true;
    }
    if (m_isAtEnd) return !chunk.empty();
    if (chunk.size() > kLongestRow)
      throw RowTooLong("the row is longer than 16 MB; a closing quotation mark may be missing");
    fill(chunk);
  }
}

#include "csv_source.h"

#include <algorithm>
#include <span>

#include "ascii_text.h"

namespace {

constexpr char kQuote = '"';
constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
constexpr std::string_view kSeparators = ",;\t";
constexpr std::size_t kPiece = std::size_t{256} << 10U;

/// The names of the columns; more than this is no list of names.
constexpr std::size_t kLongestHeader = std::size_t{4} << 20U;

constexpr const char* kTooLong = "the first line is too long for the names of columns";
constexpr const char* kWrongQuotes = "the first line has a quotation mark too many or too few";

/// What spreadsheets take for the line that says what separates the cells, with any of the three signs: in
/// any case, with or without quotation marks around it.
std::optional<char> separatorIn(std::string_view line) {
  constexpr std::string_view start = "sep=";
  if (line.size() == start.size() + 3 && line.front() == kQuote && line.back() == kQuote)
    line = line.substr(1, line.size() - 2);
  const bool isIt = line.size() == start.size() + 1 &&
                    std::equal(start.begin(), start.end(), line.begin(),
                               [](char small, char c) { return small == inLowerCase(c); }) &&
                    kSeparators.find(line.back()) != std::string_view::npos;
  return isIt ? std::optional(line.back()) : std::nullopt;
}

/// Of the line's end that a text begins with.
std::size_t lineEndSize(std::string_view text) { return text.starts_with("\r\n") ? 2U : 1U; }

}  // namespace

bool RowEnds::isCellStart(std::string_view text, std::size_t at) const {
  if (at == 0) return true;
  const char before = text[at - 1];
  return before == m_separator || isLineSign(before);
}

std::size_t RowEnds::lastIn(std::string_view text, bool isWhole) {
  // At the very end it may be the first half of a row's end.
  if (!isWhole && text.ends_with('\r')) text.remove_suffix(1);
  while (m_at < text.size() && skip(text, isWhole)) continue;
  return isWhole && m_at == text.size() ? m_at : m_rowStart;
}

/// False if it is to be left at that for now.
bool RowEnds::skip(std::string_view text, bool isWhole) {
  if (m_in == In::Quoted) return skipQuoted(text, isWhole);
  if (m_in == In::Spoiled) return skipSpoiled(text);
  skipPlain(text);
  return true;
}

void RowEnds::skipPlain(std::string_view text) {
  std::size_t mark = text.find(kQuote, m_at);
  while (mark != std::string_view::npos && !isCellStart(text, mark)) mark = text.find(kQuote, mark + 1);
  const std::size_t end = std::min(mark, text.size());
  std::size_t start = end;
  while (start > m_at && !isLineSign(text[start - 1])) --start;
  if (start > m_at) m_rowStart = start;
  m_at = end;
  if (mark == std::string_view::npos) return;
  m_closing = ClosingQuote(mark);
  m_in = In::Quoted;
  m_at = mark + 1;
}

bool RowEnds::skipQuoted(std::string_view text, bool isWhole) {
  switch (m_closing.search(text, m_separator, m_rowStart + m_longestRow, isWhole)) {
    case ClosingQuote::State::Unknown:
      return false;
    case ClosingQuote::State::Missing:
      m_in = In::Spoiled;
      return true;
    case ClosingQuote::State::Found:
      m_in = In::Plain;
      m_at = m_closing.at() + 1;
  }
  return true;
}

bool RowEnds::skipSpoiled(std::string_view text) {
  m_at = std::min(text.find_first_of("\r\n", m_at), text.size());
  if (m_at == text.size()) return true;
  m_at += lineEndSize(text.substr(m_at));
  m_rowStart = m_at;
  m_in = In::Plain;
  // Where the search for its closing mark went far, the rows behind it are too many to be given at once.
  return text.size() - m_at < 2 * kPiece;
}

void CsvSource::fill() {
  m_piece.resize(kPiece);
  const std::size_t count = m_read(m_piece);
  m_text.erase(0, m_given);
  m_given = 0;
  m_text.append(m_piece.data(), count);
  m_isAtEnd = count == 0;
}

/// Only the first mark is one of the byte order, however the bytes arrive.
void CsvSource::skipByteOrderMark() {
  while (rest().size() < kByteOrderMark.size() && !m_isAtEnd) fill();
  if (rest().starts_with("\xFF\xFE") || rest().starts_with("\xFE\xFF"))
    throw TableError(0, "the table is UTF-16: save it as UTF-8 (in Excel: CSV UTF-8)");
  if (rest().starts_with(kByteOrderMark)) m_given += kByteOrderMark.size();
}

/// What stands before `end`, and the second half of a line's end there, which belongs to it as well.
std::string CsvSource::take(std::size_t end) {
  while (end == rest().size() && rest().ends_with('\r') && !m_isAtEnd) fill();
  if (end > 0 && rest().substr(end - 1).starts_with("\r\n")) ++end;
  std::string taken(rest().substr(0, end));
  m_given += end;
  return taken;
}

std::optional<char> CsvSource::takeSeparatorLine() {
  constexpr std::size_t longest = 8;  // in quotation marks, with a line's end
  while (rest().size() < longest && !m_isAtEnd) fill();
  const std::size_t end = std::min(rest().find_first_of("\r\n"), rest().size());
  const auto separator = separatorIn(rest().substr(0, end));
  if (separator) m_separatorLine = take(std::min(end + 1, rest().size()));
  return separator;
}

FirstRow CsvSource::findFirstRow(std::string_view separators) {
  std::size_t seen = 0;
  while (seen <= kLongestHeader) {
    // Without a new line end the row is as unfinished as before.
    const bool hasLineEnd = rest().find_first_of("\r\n", seen) != std::string_view::npos;
    if (hasLineEnd || m_isAtEnd) {
      if (const auto first = firstRowOf(rest(), separators, m_isAtEnd)) return *first;
    }
    seen = rest().size();
    fill();
  }
  const std::size_t start = rest().find_first_not_of("\r\n");
  const bool isOpen = rest().find_first_of("\r\n", start) != std::string_view::npos;
  throw TableError(lineOfNames(), isOpen ? kWrongQuotes : kTooLong);
}

/// Empty lines may stand in front of the names.
std::size_t CsvSource::lineOfNames() const {
  const std::string_view text = rest();
  return lineEndsIn(m_separatorLine) +
         lineEndsIn(text.substr(0, std::min(text.find_first_not_of("\r\n"), text.size())));
}

std::string CsvSource::header(char& separator) {
  skipByteOrderMark();
  const auto said = takeSeparatorLine();
  const FirstRow first = findFirstRow(said ? std::string_view(&*said, 1) : kSeparators);
  m_separator = separator = first.separator;
  const std::size_t line = lineOfNames();
  std::string row = take(first.end);
  // What separates the cells was found before it was known what else may not stand in the row.
  if (first.isTie) throw TableError(line, "two signs may separate the cells of the first line");
  CsvReader reader(row, separator, m_longestRow);
  CsvRow cut;
  reader.next(cut);
  if (cut.isTooLong) throw TableError(line, kTooLong);
  if (cut.hasStrayQuote || reader.next(cut)) throw TableError(line, kWrongQuotes);
  return row;
}

bool CsvSource::next(std::string& chunk) {
  if (chunk.capacity() > 4 * kPiece) std::string().swap(chunk);
  RowEnds ends(m_separator, m_longestRow);
  std::size_t seen = 0;
  while (true) {
    const bool isWhole = m_isAtEnd && seen == rest().size();
    const std::size_t end = ends.lastIn(rest().substr(0, seen), isWhole);
    if (end > 0) {
      chunk.assign(rest().substr(0, end));
      m_given += end;
      return true;
    }
    if (isWhole) return false;
    // One more than is too long: it tells that the row did not end before.
    if (seen > m_longestRow + 1) {
      passOver(chunk);
      return true;
    }
    if (seen == rest().size()) fill();
    // What was read to search for a closing mark is given in pieces all the same.
    seen = std::min(seen + kPiece, rest().size());
  }
}

void CsvSource::passOver(std::string& chunk) {
  // So far lines end only within quoted cells, and from there on the row goes no further than its line.
  std::size_t lines = lineEndsIn(rest().substr(0, m_longestRow));
  std::size_t end = rest().find_first_of("\r\n", m_longestRow);
  while (end == std::string_view::npos && !m_isAtEnd) {
    m_given = m_text.size();
    fill();
    end = rest().find_first_of("\r\n");
  }
  if (end == std::string_view::npos) {
    m_given = m_text.size();
  } else {
    ++lines;
    m_given += end;
    if (rest().size() == 1) fill();
    m_given += lineEndSize(rest());
  }
  chunk.assign(m_longestRow + 1, ' ').append(lines, '\n');
}

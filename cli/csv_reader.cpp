#include "csv_reader.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstring>

namespace {

constexpr char kQuote = '"';
/// So many bytes are looked through at once: one for each bit of a word.
constexpr std::size_t kBlock = 64;

/// The lowest bits of eight bytes side by side, that of the first byte lowest.
std::uint64_t gathered(std::uint64_t lowestBits) {
  // The product brings each of them to its place in the highest byte, and no two to one place.
  constexpr std::uint64_t places =
      std::endian::native == std::endian::little ? 0x0102040810204080U : 0x8040201008040201U;
  return lowestBits * places >> 56U;
}

/// Which of a block's bytes are not simply part of a cell. Cells are short: who goes from one sign to the
/// next byte by byte guesses wrong at nearly each of them.
std::uint64_t signsIn(const char* block, char separator) {
  // As bytes and without a branch, so that the compiler compares many at once.
  using Byte = unsigned char;
  const auto same = [](char one, char other) { return one == other ? Byte{1} : Byte{0}; };
  std::array<Byte, kBlock> isSign;
  for (std::size_t at = 0; at < kBlock; ++at) {
    const char c = block[at];
    isSign[at] = same(c, separator) | same(c, kQuote) | same(c, '\n') | same(c, '\r');
  }
  std::uint64_t signs = 0;
  for (std::size_t at = 0; at < kBlock; at += sizeof(std::uint64_t)) {
    std::uint64_t bytes = 0;
    std::memcpy(&bytes, &isSign[at], sizeof(bytes));
    signs |= gathered(bytes) << at;
  }
  return signs;
}

}  // namespace

bool isLineSign(char c) { return c == '\n' || c == '\r'; }

ClosingQuote::State ClosingQuote::search(std::string_view text, char separator, std::size_t end,
                                         bool isWhole) {
  const std::string_view searched = text.substr(0, end);
  while (true) {
    m_at = std::min(searched.find(kQuote, m_at), searched.size());
    if (m_at >= end) return State::Missing;
    if (m_at + 1 >= text.size()) {
      if (!isWhole) return State::Unknown;
      return m_at < text.size() ? State::Found : State::Missing;
    }
    const char next = text[m_at + 1];
    if (next != kQuote) return next == separator || isLineSign(next) ? State::Found : State::Missing;
    m_at += 2;
  }
}

CsvReader::CsvReader(std::string_view text, char separator, std::size_t longestRow)
    : m_text(text), m_separator(separator), m_longestRow(longestRow), m_block(text.size()) {}

void CsvReader::lookThrough(std::size_t block) {
  m_block = block;
  const std::string_view rest = m_text.substr(block, kBlock);
  if (rest.size() == kBlock) {
    m_signs = signsIn(rest.data(), m_separator);
    return;
  }
  std::array<char, kBlock> padded{};
  std::copy(rest.begin(), rest.end(), padded.begin());
  m_signs = signsIn(padded.data(), m_separator);
}

bool CsvReader::isRowEnd(std::size_t at) const { return at == m_text.size() || isLineSign(m_text[at]); }

bool CsvReader::isCellEnd(std::size_t at) const { return isRowEnd(at) || m_text[at] == m_separator; }

void CsvReader::skipLineEnds() {
  for (; m_at < m_text.size() && isLineSign(m_text[m_at]); ++m_at) {
    const bool isFirstHalf = m_text[m_at] == '\r' && m_at + 1 < m_text.size() && m_text[m_at + 1] == '\n';
    if (!isFirstHalf) ++m_lines;
  }
}

bool CsvReader::next(CsvRow& row) {
  skipLineEnds();
  row.line = m_lines;
  row.cells.clear();
  row.hasQuotes = row.hasStrayQuote = row.isTooLong = false;
  if (m_at == m_text.size()) return false;
  m_unquoted.clear();
  const std::size_t start = m_at;
  m_quotesEnd = start + m_longestRow;
  while (true) {
    readPlainCells(row);
    if (m_at < m_text.size() && m_text[m_at] == kQuote) {
      readQuotedCell(row);
    } else {
      readCell(row);
    }
    if (m_at == m_text.size() || m_text[m_at] != m_separator) break;
    ++m_at;
  }
  row.text = m_text.substr(start, m_at - start);
  if (row.text.size() > m_longestRow) {
    row.text = {};
    row.cells.assign(1, {});
    row.hasQuotes = row.hasStrayQuote = false;
    row.isTooLong = true;
  }
  return true;
}

/// All cells from here on that a separator ends and that have no mark, which are nearly all cells of a table.
void CsvReader::readPlainCells(CsvRow& row) {
  std::size_t start = m_at;
  if (start < m_block || start - m_block >= kBlock) lookThrough(start);
  std::uint64_t signs = m_signs >> (start - m_block) << (start - m_block);
  while (true) {
    for (; signs != 0; signs &= signs - 1) {
      const std::size_t sign = m_block + static_cast<std::size_t>(std::countr_zero(signs));
      if (m_text[sign] != m_separator) break;
      row.cells.emplace_back(m_text.data() + start, sign - start);
      start = sign + 1;
    }
    if (signs != 0 || m_text.size() - m_block <= kBlock) break;
    lookThrough(m_block + kBlock);
    signs = m_signs;
  }
  m_at = start;
}

void CsvReader::readCell(CsvRow& row) {
  const std::size_t start = m_at;
  for (; !isCellEnd(m_at); ++m_at) row.hasQuotes = row.hasQuotes || m_text[m_at] == kQuote;
  row.cells.push_back(m_text.substr(start, m_at - start));
}

void CsvReader::readQuotedCell(CsvRow& row) {
  row.hasQuotes = true;
  ClosingQuote closing(m_at);
  if (closing.search(m_text, m_separator, m_quotesEnd, true) != ClosingQuote::State::Found) {
    // Once in a row: the next such cell need not look for the line's end again.
    if (!row.hasStrayQuote) m_quotesEnd = std::min(m_quotesEnd, m_text.find_first_of("\r\n", m_at));
    row.hasStrayQuote = true;
    return readCell(row);
  }
  const std::size_t start = m_at + 1;
  const std::size_t end = closing.at();
  m_lines += lineEndsIn(m_text.substr(start, end - start));
  m_at = end + 1;
  row.cells.push_back(withoutDoubledQuotes(start, end));
}

std::string_view CsvReader::withoutDoubledQuotes(std::size_t start, std::size_t end) {
  const std::string_view quoted = m_text.substr(start, end - start);
  if (quoted.find(kQuote) == std::string_view::npos) return quoted;
  // Growing would leave the cells before it without their text.
  if (m_unquoted.capacity() < m_text.size()) m_unquoted.reserve(m_text.size());
  const std::size_t first = m_unquoted.size();
  while (start < end) {
    const std::size_t mark = std::min(m_text.find(kQuote, start), end);
    const bool isMark = mark < end;
    m_unquoted.append(m_text.substr(start, mark - start + (isMark ? 1 : 0)));
    const bool isDoubled = isMark && mark + 1 < end && m_text[mark + 1] == kQuote;
    start = mark + (isDoubled ? 2 : 1);
  }
  return std::string_view(m_unquoted).substr(first);
}

std::size_t lineEndsIn(std::string_view text) {
  std::size_t count = static_cast<std::size_t>(std::count(text.begin(), text.end(), '\n'));
  for (std::size_t at = text.find('\r'); at != std::string_view::npos; at = text.find('\r', at + 1)) {
    if (at + 1 == text.size() || text[at + 1] != '\n') ++count;
  }
  return count;
}

std::optional<FirstRow> firstRowOf(std::string_view text, std::string_view separators, bool isWhole) {
  std::vector<std::size_t> counts(separators.size());
  bool isQuoted = false;
  bool mayOpen = true;  // at a cell's start, and behind a closing mark, which is then one of two
  std::size_t at = std::min(text.find_first_not_of("\r\n"), text.size());
  for (; at < text.size() && (isQuoted || !isLineSign(text[at])); ++at) {
    const std::size_t found = separators.find(text[at]);
    if (!isQuoted && found != std::string_view::npos) ++counts[found];
    const bool isMark = text[at] == kQuote;
    const bool wasQuoted = isQuoted;
    if (isMark && (isQuoted || mayOpen)) isQuoted = !isQuoted;
    mayOpen = isMark ? wasQuoted : found != std::string_view::npos;
  }
  if (at == text.size() && !isWhole) return std::nullopt;
  const auto most = std::max_element(counts.begin(), counts.end());
  const bool isTie = *most > 0 && std::count(counts.begin(), counts.end(), *most) > 1;
  return FirstRow{.separator = separators[static_cast<std::size_t>(most - counts.begin())],
                  .isTie = isTie,
                  .end = std::min(at + 1, text.size())};
}

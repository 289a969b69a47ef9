#include "csv_reader.h"

#include <algorithm>
#include <array>

namespace {

constexpr char kQuote = '"';

bool isLineSign(char c) { return c == '\n' || c == '\r'; }

}  // namespace

CsvReader::CsvReader(std::string_view text, char separator) : m_text(text), m_separator(separator) {
  for (const char sign : {separator, kQuote, '\n', '\r'}) m_isSign[static_cast<unsigned char>(sign)] = true;
}

const char* CsvReader::nextSign(const char* at) const {
  const char* const end = m_text.data() + m_text.size();
  while (at != end && !m_isSign[static_cast<unsigned char>(*at)]) ++at;
  return at;
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
  row.hasQuotes = row.isOpen = false;
  if (m_at == m_text.size()) return false;
  m_unquoted.clear();
  const std::size_t start = m_at;
  while (true) {
    if (m_at < m_text.size() && m_text[m_at] == kQuote) {
      readQuotedCell(row);
    } else {
      readCell(row);
    }
    if (m_at == m_text.size() || m_text[m_at] != m_separator) break;
    ++m_at;
  }
  row.text = m_text.substr(start, m_at - start);
  return true;
}

void CsvReader::readCell(CsvRow& row) {
  const std::size_t start = m_at;
  const char* const end = m_text.data() + m_text.size();
  const char* at = nextSign(m_text.data() + start);
  while (at != end && *at == kQuote) {
    row.hasQuotes = true;
    at = nextSign(at + 1);
  }
  m_at = static_cast<std::size_t>(at - m_text.data());
  row.cells.push_back(m_text.substr(start, m_at - start));
}

void CsvReader::readQuotedCell(CsvRow& row) {
  row.hasQuotes = true;
  const std::size_t start = m_at + 1;
  bool isPlain = true;
  std::size_t mark = m_text.find(kQuote, start);
  while (mark != std::string_view::npos && !isCellEnd(mark + 1)) {
    const bool isDoubled = m_text[mark + 1] == kQuote;
    if (isDoubled) isPlain = false;
    mark = m_text.find(kQuote, mark + (isDoubled ? 2 : 1));
  }
  row.isOpen = mark == std::string_view::npos;
  const std::size_t end = row.isOpen ? m_text.size() : mark;
  m_lines += lineEndsIn(m_text.substr(start, end - start));
  row.cells.push_back(isPlain ? m_text.substr(start, end - start) : withoutDoubledQuotes(start, end));
  m_at = row.isOpen ? end : end + 1;
}

std::string_view CsvReader::withoutDoubledQuotes(std::size_t start, std::size_t end) {
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

std::optional<FirstRow> firstRowOf(std::string_view text, bool isWhole) {
  constexpr std::string_view separators = ",;\t";
  std::array<std::size_t, separators.size()> counts{};
  bool isQuoted = false;
  std::size_t at = std::min(text.find_first_not_of("\r\n"), text.size());
  for (; at < text.size() && (isQuoted || !isLineSign(text[at])); ++at) {
    if (text[at] == kQuote) isQuoted = !isQuoted;
    const std::size_t found = separators.find(text[at]);
    if (!isQuoted && found != std::string_view::npos) ++counts[found];
  }
  if (at == text.size() && !isWhole) return std::nullopt;
  const auto most = std::max_element(counts.begin(), counts.end()) - counts.begin();
  return FirstRow{separators[static_cast<std::size_t>(most)], std::min(at + 1, text.size())};
}

#include "batch_rows.h"

#include <algorithm>
#include <array>
#include <charconv>

#include "option_values.h"
#include "table.h"

namespace {

bool isDigit(char c) { return c >= '0' && c <= '9'; }

/// "-5", "+3,50", "1.5": nothing that a spreadsheet would calculate.
bool isPlainNumber(std::string_view text) {
  if (text.starts_with('-') || text.starts_with('+')) text.remove_prefix(1);
  std::size_t signs = 0;
  std::size_t digits = 0;
  for (const char c : text) {
    if (!isDigit(c) && c != '.' && c != ',') return false;
    ++(isDigit(c) ? digits : signs);
  }
  return digits > 0 && signs <= 1;
}

bool isFormula(std::string_view cell) {
  constexpr std::string_view starts = "=+-@\t\r";
  return !cell.empty() && starts.find(cell.front()) != std::string_view::npos && !isPlainNumber(cell);
}

/// How many bytes the character at the beginning of a text takes; 0 if it is none.
std::size_t characterLength(std::string_view text) {
  const auto byteAt = [&](std::size_t at) { return static_cast<unsigned char>(text[at]); };
  const unsigned first = byteAt(0);
  const std::size_t length = first < 0x80 ? 1 : first < 0xC2 ? 0 : first < 0xE0 ? 2 : first < 0xF0 ? 3 : 4;
  if (first > 0xF4 || length > text.size()) return 0;
  for (std::size_t at = 1; at < length; ++at) {
    if ((byteAt(at) & 0xC0U) != 0x80U) return 0;
  }
  if (length > 2) {
    // Overlong forms, halves of pairs, and what lies beyond the last character.
    const unsigned second = byteAt(1);
    const bool isWrong = (first == 0xE0 && second < 0xA0) || (first == 0xED && second >= 0xA0) ||
                         (first == 0xF0 && second < 0x90) || (first == 0xF4 && second >= 0x90);
    if (isWrong) return 0;
  }
  return length;
}

std::string numberText(std::size_t number) {
  std::array<char, 24> digits;
  const auto written = std::to_chars(digits.data(), digits.data() + digits.size(), number);
  return {digits.data(), written.ptr};
}

}  // namespace

std::string oneLine(std::string_view reason) {
  constexpr std::size_t longest = 200;
  constexpr unsigned char firstPrintable = 0x20;
  constexpr unsigned char deleteSign = 0x7F;
  std::string line;
  while (!reason.empty() && line.size() < longest) {
    const std::size_t length = characterLength(reason);
    const auto first = static_cast<unsigned char>(reason.front());
    if (length == 0) {
      line += "\uFFFD";
    } else if (first < firstPrintable || first == deleteSign) {
      line += ' ';
    } else {
      line += reason.substr(0, length);
    }
    reason.remove_prefix(std::max<std::size_t>(length, 1));
  }
  if (!reason.empty()) line += "...";
  return line;
}

std::string shapeError(const CsvRow& row, const BatchPlan& plan) {
  if (row.isOpen) return "a quotation mark is never closed";
  if (row.cells.size() > plan.columns.count)
    return numberText(row.cells.size()) + " cells, but only " + numberText(plan.columns.count) + " columns";
  return {};
}

ListingKind kindIn(const CsvRow& row, const BatchColumns& columns) {
  if (!columns.kind) return ListingKind::Single;
  const std::string_view name = withoutBlanks(BatchColumns::cellOf(row, *columns.kind));
  if (name.empty()) return ListingKind::Single;
  const auto kind = kindOf(name);
  if (!kind)
    throw OptionError("kind: \"" + std::string(name) + "\" is none of single, multiple, payment, billpoint");
  return *kind;
}

void appendText(std::string& out, std::string_view cell, const BatchPlan& plan) {
  if (plan.choices.isForSpreadsheet && isFormula(cell)) {
    appendCsvCell(out, "'" + std::string(cell), plan.outputSeparator);
  } else {
    appendCsvCell(out, cell, plan.outputSeparator);
  }
}

void appendNumber(std::string& out, std::string_view number, const BatchPlan& plan) {
  const std::size_t start = out.size();
  out += number;
  const char decimal = plan.choices.locale.decimal.front();
  if (plan.outputDecimal != decimal)
    std::replace(out.begin() + static_cast<std::ptrdiff_t>(start), out.end(), decimal, plan.outputDecimal);
  if (plan.outputSeparator != plan.outputDecimal) return;
  const std::string cell = out.substr(start);
  out.resize(start);
  appendCsvCell(out, cell, plan.outputSeparator);
}

BatchRows::BatchRows(const BatchPlan& plan)
    : m_plan(plan), m_answers(plan.choices.isFromWindow ? windowAnswers(plan) : feeAnswers(plan)) {}

void BatchRows::appendCells(const CsvRow& row, std::string& out) const {
  const std::size_t count = std::min(row.cells.size(), m_plan.columns.count);
  const bool isAsItStands = !row.hasQuotes && m_plan.separator == m_plan.outputSeparator &&
                            !m_plan.choices.isForSpreadsheet && count == row.cells.size();
  if (isAsItStands) {
    out += row.text;
  } else {
    for (std::size_t at = 0; at < count; ++at) {
      if (at > 0) out += m_plan.outputSeparator;
      appendText(out, row.cells[at], m_plan);
    }
  }
  out.append(m_plan.columns.count - count, m_plan.outputSeparator);
}

void BatchRows::appendHeader(const CsvRow& header, std::string& out) const {
  if (m_plan.choices.isForSpreadsheet) out += "\xEF\xBB\xBF";
  appendCells(header, out);
  m_answers->appendHeader(out);
  out += '\n';
}

void BatchRows::answer(std::string_view chunk, ChunkAnswer& answer) {
  answer.output.clear();
  answer.errors.clear();
  answer.bytes = chunk.size();
  CsvReader reader(chunk, m_plan.separator);
  while (reader.next(m_row)) {
    appendCells(m_row, answer.output);
    std::string reason = m_answers->append(m_row, answer.output);
    answer.output += '\n';
    if (reason.empty()) continue;
    answer.errors.push_back({m_row.line, std::move(reason)});
  }
  answer.lines = reader.lines();
}

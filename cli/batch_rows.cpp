#include "batch_rows.h"

#include <algorithm>
#include <array>
#include <charconv>

#include "amount_errors.h"
#include "amount_text.h"
#include "ascii_text.h"
#include "number_shape.h"
#include "option_values.h"
#include "quoted_text.h"
#include "table.h"

namespace {

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

/// How a cell begins that a spreadsheet runs; the wide signs are those of East Asian keyboards.
constexpr std::array<std::string_view, 11> kFormulaStarts{"=",  "+",      "-",      "@",      "\t",    "\r",
                                                          "\n", "\uFF1D", "\uFF0B", "\uFF0D", "\uFF20"};

bool isFormula(std::string_view cell) {
  return !isPlainNumber(cell) &&
         std::any_of(kFormulaStarts.begin(), kFormulaStarts.end(),
                     [cell](std::string_view start) { return cell.starts_with(start); });
}

/// The value of a number; nothing for what is none, and for one of more digits than a spreadsheet keeps.
std::optional<std::string> plainNumber(std::string_view text, const NumberLocale& locale) {
  if (!isNumeric(text, locale)) return std::nullopt;
  try {
    const std::string number = plainText(toDouble(text, locale), locale);
    const std::string_view plain = withoutBlanks(number);
    return isPlainNumber(plain) ? std::optional<std::string>(plain) : std::nullopt;
  } catch (const OverflowError&) {
    return std::nullopt;
  }
}

std::string numberText(std::size_t number) {
  std::array<char, 24> digits;
  const auto written = std::to_chars(digits.data(), digits.data() + digits.size(), number);
  return {digits.data(), written.ptr};
}

}  // namespace

std::string shapeError(const CsvRow& row, const BatchPlan& plan) {
  if (row.isTooLong) return "the row is longer than 16 MB and was left out";
  if (row.hasStrayQuote) return "a quotation mark is too many or too few";
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
    throw OptionError("kind: " + quotedText(name) + " is none of single, multiple, payment, billpoint");
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

/// A number in a column of numbers, as it was read: digits with a decimal sign at most. The window's boxes
/// are read by its own rules.
std::optional<std::string> BatchRows::numberIn(std::string_view cell, std::size_t at) const {
  const BatchChoices& choices = m_plan.choices;
  const auto kind = m_plan.columns.numbers[at];
  if (!kind) return std::nullopt;
  std::string number(cell);
  if (!choices.isFromWindow) {
    number = withoutGroupBlanks(cell, *kind);
    if (!hasClearSigns(number, *kind, choices.locale, choices.hasDecimal)) return std::nullopt;
  }
  const bool isGrouped = number.find(choices.locale.group) != std::string::npos;
  return isPlainNumber(number) && !isGrouped ? number : plainNumber(number, choices.locale);
}

void BatchRows::appendCell(const CsvRow& row, std::size_t at, std::string& out) const {
  const std::string_view cell = row.cells[at];
  // A spreadsheet that writes commas takes 9.99 for a date or a text, and 1,234 for a number near one.
  const auto number = m_plan.choices.isForSpreadsheet ? numberIn(cell, at) : std::nullopt;
  if (number) return appendNumber(out, *number, m_plan);
  appendText(out, cell, m_plan);
}

void BatchRows::appendCells(const CsvRow& row, std::string& out) const {
  const std::size_t count = std::min(row.cells.size(), m_plan.columns.count);
  const bool isAsItStands = !row.hasQuotes && m_plan.separator == m_plan.outputSeparator &&
                            !m_plan.choices.isForSpreadsheet && count == row.cells.size();
  if (isAsItStands) {
    out += row.text;
  } else {
    for (std::size_t at = 0; at < count; ++at) {
      if (at > 0) out += m_plan.outputSeparator;
      appendCell(row, at, out);
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

/// Cells that no column has a name for, behind all others so that those stay in their columns.
void BatchRows::appendSurplusCells(const CsvRow& row, std::string& out) const {
  for (std::size_t at = m_plan.columns.count; at < row.cells.size(); ++at) {
    out += m_plan.outputSeparator;
    appendText(out, row.cells[at], m_plan);
  }
}

void BatchRows::answer(std::string_view chunk, ChunkAnswer& answer) {
  constexpr std::size_t mostKept = std::size_t{4} << 20U;  // a long row has its room alone
  if (answer.output.capacity() > mostKept) std::string().swap(answer.output);
  answer.output.clear();
  answer.errors.clear();
  answer.errorCount = 0;
  answer.bytes = chunk.size();
  CsvReader reader(chunk, m_plan.separator);
  while (reader.next(m_row)) {
    appendCells(m_row, answer.output);
    std::string reason = m_answers->append(m_row, answer.output);
    appendSurplusCells(m_row, answer.output);
    answer.output += '\n';
    if (reason.empty() || ++answer.errorCount > kErrorsTold) continue;
    answer.errors.push_back({m_row.line, std::move(reason)});
  }
  answer.lines = reader.lines();
}

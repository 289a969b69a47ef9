#include "batch_columns.h"

#include <algorithm>

#include "ascii_text.h"
#include "option_values.h"

namespace {

/// The name of a column as the options are named: in lower case, with "-".
std::string optionName(std::string_view column) {
  std::string name(withoutBlanks(column));
  for (char& c : name) {
    c = c == '_' ? '-' : inLowerCase(c);
  }
  return name;
}

/// The column with a name, if there is one.
std::optional<std::size_t> columnNamed(const std::vector<std::string>& names, std::string_view name) {
  const auto found = std::find(names.begin(), names.end(), name);
  if (found == names.end()) return std::nullopt;
  if (std::find(found + 1, names.end(), name) != names.end())
    throw OptionError("two columns are named \"" + std::string(name) + "\"");
  return static_cast<std::size_t>(found - names.begin());
}

/// Shares the columns out to the kinds of listings that they are for; true if there is any.
template <typename Setter>
bool share(std::span<const Setter> setters, const std::vector<std::string>& names,
           std::array<std::vector<SetColumn<Setter>>, 4>& columns) {
  bool isAny = false;
  for (const Setter& setter : setters) {
    const auto at = columnNamed(names, setter.name);
    if (!at) continue;
    isAny = true;
    for (std::size_t kind = 0; kind < columns.size(); ++kind) {
      if ((setter.scope & scopeOf(static_cast<ListingKind>(kind))) != 0)
        columns.at(kind).push_back({*at, &setter});
    }
  }
  return isAny;
}

template <typename Setter>
void markNumbers(const std::array<std::vector<SetColumn<Setter>>, 4>& columns,
                 std::vector<std::optional<OptionKind>>& numbers) {
  for (const auto& ofKind : columns) {
    for (const auto& [at, setter] : ofKind) {
      if (setter->kind == OptionKind::Amount || setter->kind == OptionKind::Rate) numbers[at] = setter->kind;
    }
  }
}

}  // namespace

BatchColumns batchColumns(const CsvRow& header, bool isFromWindow) {
  BatchColumns columns;
  columns.count = header.cells.size();
  std::vector<std::string> names;
  for (const std::string_view cell : header.cells)
    names.push_back(isFromWindow ? std::string(withoutBlanks(cell)) : optionName(cell));
  columns.kind = columnNamed(names, "kind");
  columns.numbers.resize(columns.count);
  const bool isAny = isFromWindow ? share(windowControls(), names, columns.controls)
                                  : share(options(), names, columns.options);
  if (!isAny && !columns.kind)
    throw OptionError(isFromWindow
                          ? "the first line names neither kind nor site nor a control of the window"
                          : "the first line names no column that is known, such as kind, site or opening");
  markNumbers(columns.options, columns.numbers);
  markNumbers(columns.controls, columns.numbers);
  return columns;
}

NamesTaken namesTaken(const CsvRow& header, const CsvRow& answer) {
  NamesTaken taken;
  for (const std::string_view name : answer.cells) {
    const auto isSame = [name](std::string_view cell) { return withoutBlanks(cell) == name; };
    if (name.empty() || std::none_of(header.cells.begin(), header.cells.end(), isSame)) continue;
    if (taken.count++ > 0) taken.list += ", ";
    taken.list.append(1, '"').append(name).append(1, '"');
  }
  return taken;
}

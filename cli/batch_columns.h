#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "csv_reader.h"
#include "option_table.h"

/// What the cells of a row set, in the terms of the options or of the window.
template <typename Setter>
struct SetColumn {
  std::size_t at;
  const Setter* setter;
};

/// What the columns of a batch are for: which hold the kind, and an option or a control of which kinds.
struct BatchColumns {
  std::size_t count = 0;
  std::optional<std::size_t> kind;
  std::array<std::vector<SetColumn<Option>>, 4> options;  ///< of each kind, in the order of the table
  std::array<std::vector<SetColumn<WindowControl>>, 4> controls;
  std::vector<std::optional<OptionKind>> numbers;  ///< of each column whether it holds amounts or rates

  /// The cell of a column; "" if the row ends before it.
  [[nodiscard]] static std::string_view cellOf(const CsvRow& row, std::size_t column) {
    return column < row.cells.size() ? row.cells[column] : std::string_view{};
  }
};

/// What the names of the columns say. Throws OptionError if none of them is known, or if two columns would
/// set the same.
[[nodiscard]] BatchColumns batchColumns(const CsvRow& header, bool isFromWindow);

/// The columns of the answer whose names the table has already, each in quotation marks; "" if there is none.
struct NamesTaken {
  std::string list;
  std::size_t count = 0;
};
[[nodiscard]] NamesTaken namesTaken(const CsvRow& header, const CsvRow& answer);

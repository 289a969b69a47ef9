#pragma once

#include <functional>
#include <string_view>

#include "batch_report.h"
#include "batch_rows.h"
#include "csv_source.h"

/// Answers a whole table. Throws TableError if its first line names no columns, what `read` throws before
/// there is such a line, and what `write` throws. What `read` throws later is told by the report once all
/// rows before it are written.
struct BatchRun {
  BatchChoices choices;
  CsvSource::Read read;
  std::function<void(std::string_view bytes)> write;
  unsigned threads = 1;

  void answer(BatchReport& report) const;
};

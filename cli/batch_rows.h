#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "batch_columns.h"
#include "number_locale.h"

/// What a batch is asked for.
struct BatchChoices {
  NumberLocale locale;      ///< of the numbers that are read
  bool hasDecimal = false;  ///< the user has said which decimal sign he writes
  bool isFromWindow = false;
  bool isForSpreadsheet = false;
};

/// How the rows of a batch are read and written.
struct BatchPlan {
  BatchChoices choices;
  BatchColumns columns;
  char separator = ',';  ///< of the input
  char outputSeparator = ',';
  char outputDecimal = '.';
};

/// Answers rows: what is written behind the cells of each. Not for several threads at once.
class RowAnswers {
 public:
  RowAnswers() = default;
  RowAnswers(const RowAnswers&) = delete;
  RowAnswers& operator=(const RowAnswers&) = delete;
  virtual ~RowAnswers() = default;

  /// Appends the names of the columns of the answer, each behind a separator.
  virtual void appendHeader(std::string& out) const = 0;
  /// Appends the answer to a row likewise. What is wrong with the row, if anything, is its last cell and is
  /// returned.
  virtual std::string append(const CsvRow& row, std::string& out) = 0;
};

/// The fees of listings in the terms of the options.
[[nodiscard]] std::unique_ptr<RowAnswers> feeAnswers(const BatchPlan& plan);
/// The boxes of the window for listings in its terms.
[[nodiscard]] std::unique_ptr<RowAnswers> windowAnswers(const BatchPlan& plan);

/// A row that could not be answered.
struct RowError {
  std::size_t line;  ///< where the row begins, counted from the beginning of its chunk, from 0
  std::string reason;
};

/// So many errors of rows are told; of the others only how many there are.
constexpr std::size_t kErrorsTold = 20;

/// What became of a chunk of rows.
struct ChunkAnswer {
  std::string output;
  std::vector<RowError> errors;  ///< the first of them, as many as can be told
  std::size_t errorCount = 0;
  std::size_t lines = 0;  ///< of the chunk
  std::size_t bytes = 0;
};

/// Answers chunks of rows. Not for several threads at once.
class BatchRows {
 public:
  explicit BatchRows(const BatchPlan& plan);

  void appendHeader(const CsvRow& header, std::string& out) const;
  void answer(std::string_view chunk, ChunkAnswer& answer);

 private:
  void appendCells(const CsvRow& row, std::string& out) const;
  void appendSurplusCells(const CsvRow& row, std::string& out) const;
  void appendCell(const CsvRow& row, std::size_t at, std::string& out) const;
  [[nodiscard]] std::optional<std::string> numberIn(std::string_view cell, std::size_t at) const;

  const BatchPlan& m_plan;
  std::unique_ptr<RowAnswers> m_answers;
  CsvRow m_row;
};

/// What is wrong with the shape of a row; "" if nothing is.
[[nodiscard]] std::string shapeError(const CsvRow& row, const BatchPlan& plan);

/// What the row is about: "single" unless it says otherwise. Throws OptionError.
[[nodiscard]] ListingKind kindIn(const CsvRow& row, const BatchColumns& columns);

/// A cell that was passed through, or a text of the answer.
void appendText(std::string& out, std::string_view cell, const BatchPlan& plan);

/// A number of the answer, from the decimal sign that it was calculated with to the one that is written.
void appendNumber(std::string& out, std::string_view number, const BatchPlan& plan);

#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <iosfwd>
#include <string>

#include "batch_rows.h"

/// What a batch tells on the standard error while it runs: the errors of rows, the first of them one by one,
/// and on a terminal how far it has come, if that takes longer than a second.
class BatchReport {
 public:
  struct Settings {
    std::string name;        ///< of the input, as the user gave it
    std::uint64_t size = 0;  ///< of the input in bytes; 0 if it is not known
    bool showsProgress = false;
  };

  BatchReport(Settings settings, std::ostream& errors);

  /// The first lines of the input, which belong to no chunk.
  void skip(std::size_t lines, std::size_t bytes);
  void add(const ChunkAnswer& answer);
  /// What the user should know of a line, counted from 0, though it is no error.
  void note(std::size_t line, const std::string& text) { tell(line + 1, text); }
  /// What ended the run early, in the line behind all that was answered.
  void fail(const std::string& reason);
  void finish();

  [[nodiscard]] bool hasErrors() const { return m_errorCount > 0; }

 private:
  void tell(std::size_t line, const std::string& reason);
  void showProgress();
  void clearProgress();

  Settings m_settings;
  std::ostream& m_errors;
  std::chrono::steady_clock::time_point m_shown;
  std::size_t m_lines = 0;
  std::uint64_t m_bytes = 0;
  std::size_t m_errorCount = 0;
  std::size_t m_barWidth = 0;
};

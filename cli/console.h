#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>

/// \file
/// What the system knows of files, pipes and terminals.

/// A file or the standard input ("-"), to be read from its beginning to its end.
class InputFile {
 public:
  /// Throws std::system_error if it cannot be opened.
  explicit InputFile(const std::string& name);
  InputFile(const InputFile&) = delete;
  InputFile& operator=(const InputFile&) = delete;
  ~InputFile();

  /// Reads some bytes, as many as there are just now; 0 at the end. Throws std::system_error.
  std::size_t read(std::span<char> bytes);

  /// In bytes; 0 if that is not known, as of a pipe.
  [[nodiscard]] std::uint64_t size() const;

 private:
  int m_descriptor;
};

/// Writes all of it to the standard output. Throws std::system_error if that is not possible.
void writeToOutput(std::string_view bytes);

/// Throws std::system_error if what was written could not be kept.
void finishOutput();

/// Lets the process end in silence when nobody reads its output any more, whatever its parent had chosen.
void endWithReaderOfOutput();

[[nodiscard]] bool isErrorTerminal();
[[nodiscard]] bool isOutputTerminal();

#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>

/// \file
/// What the system knows of files, pipes and terminals.

/// What was written cannot be kept. Its text says why.
class OutputError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

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

  /// The standard output goes into this very file, which would then never end.
  [[nodiscard]] bool isOutput() const;

  /// In bytes; 0 if that is not known, as of a pipe.
  [[nodiscard]] std::uint64_t size() const;

 private:
  int m_descriptor;
};

/// Writes all of it to the standard output. Throws OutputError.
void writeToOutput(std::string_view bytes);

/// To be called behind the last write. Throws OutputError.
void finishOutput();

/// Lets the process end in silence when nobody reads its output any more, whatever its parent had chosen.
void endWithReaderOfOutput();

[[nodiscard]] bool isErrorTerminal();
[[nodiscard]] bool isOutputTerminal();

#pragma once

#include <stdexcept>
#include <string>
#include <string_view>

/// A file that could not be written. Its text says which and why.
class FileError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// Writes a whole file or none: what stood there stays until all is written. What is no plain file, such as a
/// pipe, is written to as it is. Throws FileError.
void writeWholeFile(const std::string& path, std::string_view content);

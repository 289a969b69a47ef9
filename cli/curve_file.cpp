#include "curve_file.h"

#include <array>
#include <cerrno>
#include <charconv>
#include <filesystem>
#include <fstream>
#include <random>
#include <system_error>

namespace {

namespace fs = std::filesystem;

[[noreturn]] void fail(const std::string& path, const std::error_code& reason) {
  throw FileError("cannot write " + path + ": " + reason.message());
}

std::error_code lastError() { return {errno != 0 ? errno : EIO, std::generic_category()}; }

void writeTo(const fs::path& file, std::string_view content, const std::string& shownPath) {
  errno = 0;
  std::ofstream out(file, std::ios::binary | std::ios::trunc);
  out.write(content.data(), static_cast<std::streamsize>(content.size()));
  out.close();
  if (!out) fail(shownPath, lastError());
}

/// A name beside the file that no other run uses at the same time.
fs::path temporaryBeside(const fs::path& file) {
  std::array<char, 16> digits;
  const auto written =
      std::to_chars(digits.data(), digits.data() + digits.size(), std::random_device{}(), 36);
  fs::path name = file;
  return name += "." + std::string(digits.data(), written.ptr) + ".part";
}

}  // namespace

void writeWholeFile(const std::string& path, std::string_view content) {
  std::error_code error;
  const fs::file_status status = fs::status(path, error);
  if (fs::is_directory(status)) fail(path, std::make_error_code(std::errc::is_a_directory));
  if (fs::exists(status) && !fs::is_regular_file(status)) return writeTo(path, content, path);
  // A link stays a link: what it points at is replaced.
  const fs::path file = fs::exists(status) ? fs::canonical(path, error) : fs::path(path);
  if (error && fs::exists(status)) fail(path, error);
  const fs::path temporary = temporaryBeside(file);
  try {
    writeTo(temporary, content, path);
    if (fs::exists(status)) fs::permissions(temporary, status.permissions(), error);
    fs::rename(temporary, file, error);
    if (error) fail(path, error);
  } catch (const FileError&) {
    fs::remove(temporary, error);
    throw;
  }
}

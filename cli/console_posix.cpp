#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <system_error>

#include "console.h"

namespace {

[[noreturn]] void fail() { throw std::system_error(errno, std::generic_category()); }

}  // namespace

InputFile::InputFile(const std::string& name)
    : m_descriptor(name == "-" ? STDIN_FILENO : ::open(name.c_str(), O_RDONLY | O_CLOEXEC)) {
  if (m_descriptor < 0) fail();
}

InputFile::~InputFile() {
  if (m_descriptor != STDIN_FILENO) ::close(m_descriptor);
}

std::size_t InputFile::read(std::span<char> bytes) {
  while (true) {
    const ssize_t count = ::read(m_descriptor, bytes.data(), bytes.size());
    if (count >= 0) return static_cast<std::size_t>(count);
    if (errno != EINTR) fail();
  }
}

std::uint64_t InputFile::size() const {
  struct stat status {};
  const bool isKnown = ::fstat(m_descriptor, &status) == 0 && S_ISREG(status.st_mode);
  return isKnown ? static_cast<std::uint64_t>(status.st_size) : 0;
}

void writeToOutput(std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t count = ::write(STDOUT_FILENO, bytes.data(), bytes.size());
    if (count < 0 && errno != EINTR) fail();
    if (count > 0) bytes.remove_prefix(static_cast<std::size_t>(count));
  }
}

void finishOutput() {
  // Some file systems tell only when a file is closed that they had no room for it.
  const int copy = ::dup(STDOUT_FILENO);
  if (copy >= 0 && ::close(copy) != 0) fail();
}

void endWithReaderOfOutput() {
  if (std::signal(SIGPIPE, SIG_DFL) == SIG_ERR) fail();
}

bool isErrorTerminal() { return ::isatty(STDERR_FILENO) == 1; }
bool isOutputTerminal() { return ::isatty(STDOUT_FILENO) == 1; }

#include <fcntl.h>
#include <poll.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <system_error>

#include "console.h"

namespace {

[[noreturn]] void fail() { throw std::system_error(errno, std::generic_category()); }

[[noreturn]] void failToWrite() {
  throw OutputError("cannot write: " + std::generic_category().message(errno));
}

/// What another process has opened may refuse to wait; then this one waits itself. False if it was something
/// else that kept the call from its work.
bool waitFor(int descriptor, short what) {
  if (errno == EINTR) return true;
  if (errno != EAGAIN) return false;
  pollfd waiting{.fd = descriptor, .events = what, .revents = 0};
  return ::poll(&waiting, 1, -1) >= 0 || errno == EINTR;
}

/// Not in the place of a standard output that is closed: the answer would be meant for this file.
int openFile(const std::string& name) {
  const int descriptor = ::open(name.c_str(), O_RDONLY | O_CLOEXEC);
  if (descriptor < 0 || descriptor > STDERR_FILENO) return descriptor;
  const int moved = ::fcntl(descriptor, F_DUPFD_CLOEXEC, STDERR_FILENO + 1);
  ::close(descriptor);
  return moved;
}

}  // namespace

InputFile::InputFile(const std::string& name) : m_descriptor(name == "-" ? STDIN_FILENO : openFile(name)) {
  if (m_descriptor < 0) fail();
}

InputFile::~InputFile() {
  if (m_descriptor != STDIN_FILENO) ::close(m_descriptor);
}

std::size_t InputFile::read(std::span<char> bytes) {
  while (true) {
    const ssize_t count = ::read(m_descriptor, bytes.data(), bytes.size());
    if (count >= 0) return static_cast<std::size_t>(count);
    if (!waitFor(m_descriptor, POLLIN)) fail();
  }
}

bool InputFile::isOutput() const {
  struct stat input {};
  struct stat output {};
  return ::fstat(m_descriptor, &input) == 0 && ::fstat(STDOUT_FILENO, &output) == 0 &&
         S_ISREG(input.st_mode) && input.st_dev == output.st_dev && input.st_ino == output.st_ino;
}

std::uint64_t InputFile::size() const {
  struct stat status {};
  const bool isKnown = ::fstat(m_descriptor, &status) == 0 && S_ISREG(status.st_mode);
  return isKnown ? static_cast<std::uint64_t>(status.st_size) : 0;
}

void writeToOutput(std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t count = ::write(STDOUT_FILENO, bytes.data(), bytes.size());
    if (count < 0 && !waitFor(STDOUT_FILENO, POLLOUT)) failToWrite();
    if (count > 0) bytes.remove_prefix(static_cast<std::size_t>(count));
  }
}

void finishOutput() {
  // Some file systems tell only when a file is closed that they had no room for it.
  const int copy = ::dup(STDOUT_FILENO);
  if (copy >= 0 && ::close(copy) != 0) failToWrite();
}

void endWithReaderOfOutput() {
  if (std::signal(SIGPIPE, SIG_DFL) == SIG_ERR) fail();
}

bool isErrorTerminal() { return ::isatty(STDERR_FILENO) == 1; }
bool isOutputTerminal() { return ::isatty(STDOUT_FILENO) == 1; }

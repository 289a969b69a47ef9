#include "shared_file.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>
#include <cerrno>
#include <cstdlib>
#include <fstream>
#include <iterator>

namespace fs = std::filesystem;

namespace {

/// A file of the system that is closed, and with it unlocked, at the end of its scope.
class Descriptor {
 public:
  explicit Descriptor(int number) : m_number(number) {}
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;
  ~Descriptor() {
    if (isOpen()) close(m_number);
  }

  [[nodiscard]] bool isOpen() const { return m_number >= 0; }

  [[nodiscard]] bool lock() const {
    int result = 0;
    do result = flock(m_number, LOCK_EX);
    while (result != 0 && errno == EINTR);
    return result == 0;
  }

  [[nodiscard]] bool write(std::string_view content) const {
    while (!content.empty()) {
      const ssize_t written = ::write(m_number, content.data(), content.size());
      if (written < 0 && errno == EINTR) continue;
      if (written <= 0) return false;
      content.remove_prefix(static_cast<std::size_t>(written));
    }
    // Otherwise a crash of the machine could leave the new name with nothing behind it.
    return fsync(m_number) == 0;
  }

 private:
  int m_number;
};

fs::path beside(const fs::path& file, const char* suffix) {
  fs::path path = file;
  path += suffix;
  return path;
}

/// A link stays one: what it leads to is read and replaced.
fs::path resolved(const fs::path& file) {
  std::error_code error;
  const fs::path target = fs::weakly_canonical(file, error);
  return error ? file : target;
}

bool isRenamed(const fs::path& from, const fs::path& to) {
  std::error_code error;
  fs::rename(from, to, error);
  return !error;
}

int openLock(const fs::path& file) {
  std::error_code ignored;  // opening says whether it helped
  fs::create_directories(file.parent_path(), ignored);
  return open(beside(file, ".lock").c_str(), O_RDWR | O_CREAT | O_CLOEXEC, S_IRUSR | S_IWUSR);
}

}  // namespace

SharedFile::SharedFile(const fs::path& file) : m_file(resolved(file)) {}

RegistryStatus SharedFile::read(std::optional<std::string>& content) const {
  std::error_code error;
  const fs::file_status status = fs::status(m_file, error);
  if (status.type() == fs::file_type::not_found) return RegistryStatus::Success;
  // Not a pipe, which would be waited for.
  if (status.type() != fs::file_type::regular) return RegistryStatus::CannotRead;
  std::ifstream file(m_file, std::ios::binary);
  if (!file) return RegistryStatus::CannotRead;
  content.emplace(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>());
  return file.bad() ? RegistryStatus::CannotRead : RegistryStatus::Success;
}

RegistryStatus SharedFile::replace(std::string_view content) const {
  std::string temporary = beside(m_file, ".XXXXXX");
  const Descriptor file(mkostemp(temporary.data(), O_CLOEXEC));
  if (!file.isOpen()) return RegistryStatus::CannotWrite;
  if (file.write(content) && isRenamed(temporary, m_file)) return RegistryStatus::Success;
  std::error_code ignored;  // the write has failed anyway
  fs::remove(temporary, ignored);
  return RegistryStatus::CannotWrite;
}

RegistryStatus SharedFile::exclusively(const std::function<RegistryStatus()>& work) const {
  const Descriptor lock(openLock(m_file));
  if (!lock.isOpen() || !lock.lock()) return RegistryStatus::CannotWrite;
  return work();
}

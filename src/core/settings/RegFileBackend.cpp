#include "core/settings/RegFileBackend.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <string_view>
#include <system_error>

namespace sonalyx {

namespace {

// A file descriptor closed on every way out.
class FileHandle {
 public:
  explicit FileHandle(int fd) : m_fd(fd) {}
  ~FileHandle() {
    if (m_fd >= 0) ::close(m_fd);
  }
  FileHandle(const FileHandle&) = delete;
  FileHandle& operator=(const FileHandle&) = delete;

  int get() const { return m_fd; }
  bool close() {
    const int fd = m_fd;
    m_fd = -1;
    return ::close(fd) == 0;
  }

 private:
  int m_fd;
};

enum class ReadResult { Ok, Missing, Failed };

ReadResult readFile(const std::filesystem::path& file, std::string& bytes) {
  bytes.clear();
  FileHandle handle(::open(file.c_str(), O_RDONLY | O_CLOEXEC));
  if (handle.get() < 0) return errno == ENOENT ? ReadResult::Missing : ReadResult::Failed;
  char buffer[16384];
  while (true) {
    const ssize_t count = ::read(handle.get(), buffer, sizeof buffer);
    if (count == 0) return ReadResult::Ok;
    if (count < 0) {
      if (errno == EINTR) continue;
      return ReadResult::Failed;
    }
    bytes.append(buffer, static_cast<std::size_t>(count));
  }
}

bool writeAll(int fd, std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t count = ::write(fd, bytes.data(), bytes.size());
    if (count < 0) {
      if (errno == EINTR) continue;
      return false;
    }
    bytes.remove_prefix(static_cast<std::size_t>(count));
  }
  return true;
}

// Writes a temporary file beside `target`, flushes it and renames it over
// `target`, so a crash at any moment leaves either the old or the new file.
bool replaceFile(const std::filesystem::path& target, std::string_view bytes) {
  std::string pattern = target.string() + ".tmp-XXXXXX";
  FileHandle handle(::mkostemp(pattern.data(), O_CLOEXEC));
  if (handle.get() < 0) return false;
  struct stat old {};
  // mkostemp makes the file private; a file the user opened up keeps its mode.
  const bool ok = writeAll(handle.get(), bytes) &&
                  (::stat(target.c_str(), &old) != 0 || ::fchmod(handle.get(), old.st_mode & 07777) == 0) &&
                  ::fsync(handle.get()) == 0 && handle.close() &&
                  ::rename(pattern.c_str(), target.c_str()) == 0;
  if (!ok) {
    ::unlink(pattern.c_str());
    return false;
  }
  // The rename itself lasts only once the folder is flushed too.
  FileHandle folder(::open(target.parent_path().c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  if (folder.get() >= 0) ::fsync(folder.get());
  return true;
}

std::filesystem::path withSuffix(const std::filesystem::path& file, const char* suffix) {
  std::filesystem::path result = file;
  result += suffix;
  return result;
}

}  // namespace

RegFileBackend::RegFileBackend(std::filesystem::path file) : m_file(std::move(file)) {}

std::string RegFileBackend::keyPath() {
  return std::string(kSettingsRootKey) + "\\" + std::string(kSettingsSubkey);
}

std::optional<RegFileDocument> RegFileBackend::load(const std::filesystem::path& file) const {
  std::string bytes;
  switch (readFile(file, bytes)) {
    case ReadResult::Ok:
      return RegFileDocument::parse(bytes);
    case ReadResult::Missing:
      return RegFileDocument();
    case ReadResult::Failed:
      break;
  }
  return std::nullopt;
}

std::optional<RegistryValue> RegFileBackend::readValue(std::string_view name) {
  const auto document = load(m_file);
  return document ? document->value(keyPath(), name) : std::nullopt;
}

std::vector<NamedValue> RegFileBackend::listValues() {
  const auto document = load(m_file);
  return document ? document->values(keyPath()) : std::vector<NamedValue>{};
}

bool RegFileBackend::keyHasContent() {
  const auto document = load(m_file);
  return document && document->keyHasContent(keyPath());
}

bool RegFileBackend::writeValue(std::string_view name, const RegistryValue& value) {
  return modify(true, [&](RegFileDocument& document) {
    document.setValue(keyPath(), name, value);
    return true;
  });
}

bool RegFileBackend::deleteKey() {
  return modify(false, [](RegFileDocument& document) { return document.removeKey(keyPath()); });
}

bool RegFileBackend::deleteValue(std::string_view name) {
  return modify(false, [&](RegFileDocument& document) { return document.removeValue(keyPath(), name); });
}

bool RegFileBackend::modify(bool creates, const std::function<bool(RegFileDocument&)>& change) {
  // A settings file kept elsewhere through a symbolic link stays a link: the
  // change goes to the file it points at.
  std::error_code error;
  std::filesystem::path file = std::filesystem::canonical(m_file, error);
  if (error) file = m_file;
  const std::filesystem::path folder = file.parent_path().empty() ? "." : file.parent_path();
  if (!creates && !std::filesystem::exists(folder, error) && !error) return true;
  std::filesystem::create_directories(folder, error);
  if (!std::filesystem::is_directory(folder, error)) return false;

  FileHandle lock(::open(withSuffix(file, ".lock").c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0600));
  if (lock.get() < 0) return false;
  while (::flock(lock.get(), LOCK_EX) != 0) {
    if (errno != EINTR) return false;
  }

  std::string before;
  if (readFile(file, before) == ReadResult::Failed) return false;
  RegFileDocument document = RegFileDocument::parse(before);
  if (!change(document)) return true;
  const std::string after = document.serialize();
  if (after == before) return true;

  if (document.damaged()) {
    const std::filesystem::path bad = withSuffix(file, ".bad");
    const bool kept = std::filesystem::exists(bad, error);
    if (error || (!kept && !replaceFile(bad, before))) return false;
  }
  return replaceFile(file, after);
}

}  // namespace sonalyx

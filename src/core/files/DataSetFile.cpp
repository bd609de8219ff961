#include "core/files/DataSetFile.h"

#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <limits>
#include <memory>
#include <optional>
#include <random>
#include <sstream>
#include <string_view>
#include <system_error>

#include "core/files/FileError.h"
#include "core/limits/Limits.h"
#include "core/utility/DecimalText.h"
#include "core/utility/NumberFormat.h"

#if defined(__unix__) || defined(__APPLE__)
#include <unistd.h>
#endif

namespace fs = std::filesystem;

namespace sonalyx {

namespace {

constexpr std::string_view kUtf8Bom = "\xEF\xBB\xBF";

bool isSeparator(char c) {
  return c == ' ' || c == '\t' || c == ',' || c == '\v' || c == '\f';
}

// One word as a number: a decimal, or a value the writer spells out for a point
// without one ("Error" for NaN, "Infinity"). Nothing for any other word.
std::optional<double> wordValue(std::string_view word) {
  std::size_t used = 0;
  const double value = decimalToDouble(word, &used);
  if (used != 0 && used == word.size()) return value;
  if (word == "Error" || word == "nan" || word == "NaN") return std::numeric_limits<double>::quiet_NaN();
  if (word == "Infinity" || word == "inf") return std::numeric_limits<double>::infinity();
  if (word == "-Infinity" || word == "-inf") return -std::numeric_limits<double>::infinity();
  return std::nullopt;
}

// Exactly two numbers, separated by blanks, tabs or commas; nothing for any other line.
std::optional<DataPoint> parseLine(std::string_view line) {
  std::string_view words[3];
  std::size_t found = 0;
  std::size_t i = 0;
  while (found < 3) {
    while (i < line.size() && isSeparator(line[i])) ++i;
    if (i == line.size()) break;
    const std::size_t start = i;
    while (i < line.size() && !isSeparator(line[i])) ++i;
    words[found++] = line.substr(start, i - start);
  }
  if (found != 2) return std::nullopt;
  const auto x = wordValue(words[0]);
  const auto y = wordValue(words[1]);
  if (!x || !y) return std::nullopt;
  DataPoint p;
  p.x = *x;
  p.y = *y;
  return p;
}

bool isBlankLine(std::string_view line) {
  return line.find_first_not_of(" \t\v\f") == std::string_view::npos;
}

// Paths arrive as UTF-8 whatever the platform's narrow encoding.
fs::path pathFromUtf8(const std::string& text) {
  return fs::path(std::u8string(text.begin(), text.end()));
}

bool isBadPath(const std::string& path) {
  return path.empty() || path.find('\0') != std::string::npos;
}

std::FILE* openFile(const fs::path& path, const char* mode) {
#ifdef _WIN32
  const std::string narrow(mode);
  return _wfopen(path.c_str(), std::wstring(narrow.begin(), narrow.end()).c_str());
#else
  return std::fopen(path.c_str(), mode);
#endif
}

// A missing folder is a wrong path rather than a missing file.
FileError errorFor(int err, const fs::path& path) {
  if (err == ENOENT) {
    std::error_code ec;
    const fs::path folder = path.parent_path();
    if (!folder.empty() && !fs::is_directory(folder, ec)) return FileError(FileError::BadPath, err);
  }
  return FileError::fromErrno(err);
}

FileError errorFor(const std::error_code& ec, const fs::path& path) {
  const std::error_condition condition = ec.default_error_condition();
  return errorFor(condition.category() == std::generic_category() ? condition.value() : 0, path);
}

struct FileCloser {
  void operator()(std::FILE* f) const { std::fclose(f); }
};
using FileHandle = std::unique_ptr<std::FILE, FileCloser>;

// The temporary file beside the target; removed unless it has been renamed.
class TemporaryFile {
 public:
  explicit TemporaryFile(const fs::path& target) {
    const fs::path folder = target.parent_path();
    std::mt19937_64 random(std::random_device{}());
    for (int attempt = 0; attempt < 100; ++attempt) {
      char name[40];
      std::snprintf(name, sizeof name, ".sonalyx-%016llx.tmp", static_cast<unsigned long long>(random()));
      m_path = folder / name;
      // "x": never open a file someone else just made.
      m_file.reset(openFile(m_path, "wbx"));
      if (m_file) return;
      if (errno != EEXIST) throw errorFor(errno, target);
    }
    throw FileError::fromErrno(EEXIST);
  }
  TemporaryFile(const TemporaryFile&) = delete;
  TemporaryFile& operator=(const TemporaryFile&) = delete;
  ~TemporaryFile() {
    m_file.reset();
    if (!m_kept) {
      std::error_code ec;
      fs::remove(m_path, ec);
    }
  }

  // Writes everything and makes sure it reached the disk; returns 0 or the errno.
  int write(const std::string& bytes) {
    std::FILE* f = m_file.get();
    errno = 0;
    if (std::fwrite(bytes.data(), 1, bytes.size(), f) != bytes.size() || std::fflush(f) != 0) {
      return errno != 0 ? errno : EIO;
    }
#if defined(__unix__) || defined(__APPLE__)
    if (::fsync(fileno(f)) != 0 && errno != EINVAL) return errno;  // EINVAL: cannot be synced
#endif
    errno = 0;
    if (std::fclose(m_file.release()) != 0) return errno != 0 ? errno : EIO;
    return 0;
  }

  const fs::path& path() const {
    return m_path;
  }
  void keep() {
    m_kept = true;
  }

 private:
  fs::path m_path;
  FileHandle m_file;
  bool m_kept = false;
};

}  // namespace

void writeDataSet(std::ostream& out, const DataSet& set) {
  for (const DataPoint& p : set.points()) {
    out << formatNumber(p.x, "%-10.10g") << ' ' << formatNumber(p.y, "%10.10g") << kTextLineEnd;
  }
}

std::vector<DataPoint> readDataSet(std::istream& in) {
  std::vector<DataPoint> points;
  std::string line;
  std::size_t number = 0;
  while (std::getline(in, line)) {
    ++number;
    std::string_view text(line);
    // Editors on other systems may leave a byte-order mark or CR LF line ends.
    if (number == 1 && text.starts_with(kUtf8Bom)) text.remove_prefix(kUtf8Bom.size());
    if (!text.empty() && text.back() == '\r') text.remove_suffix(1);
    if (isBlankLine(text)) continue;
    const auto point = parseLine(text);
    if (!point) throw DataSetTextError(DataSetTextError::NotTwoNumbers, number);
    if (points.size() == limits::kMostPoints) throw DataSetTextError(DataSetTextError::TooManyPoints);
    points.push_back(*point);
  }
  if (points.empty()) throw DataSetTextError(DataSetTextError::NoPoints);
  return points;
}

std::vector<DataPoint> readDataSetText(const std::string& text) {
  if (text.size() > limits::kMostDataTextBytes) throw DataSetTextError(DataSetTextError::TooLarge);
  std::istringstream in(text);
  return readDataSet(in);
}

std::string applySetExtension(const std::string& chosenName) {
  if (chosenName.size() >= 3) {
    std::string last = chosenName.substr(chosenName.size() - 3);
    for (char& c : last) {
      if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
    }
    if (last == "set") return chosenName;
  }
  return chosenName + ".set";
}

std::string saveDataSetFile(const std::string& chosenName, const DataSet& set) {
  // A folder name ("data/") would otherwise become a hidden file named ".set".
  if (isBadPath(chosenName) || !pathFromUtf8(chosenName).has_filename()) throw FileError::fromErrno(EINVAL);
  const std::string finalName = applySetExtension(chosenName);
  fs::path target = pathFromUtf8(finalName);
  std::error_code ec;
  // Saving through a link replaces the file it points to, not the link.
  if (fs::is_symlink(target, ec)) {
    const fs::path resolved = fs::weakly_canonical(target, ec);
    if (!ec) target = resolved;
  }
  const fs::file_status existing = fs::status(target, ec);
  if (fs::exists(existing)) {
    // Only an ordinary, writable file may be replaced.
    if (fs::is_directory(existing)) throw FileError::fromErrno(EISDIR);
    constexpr fs::perms anyWrite = fs::perms::owner_write | fs::perms::group_write | fs::perms::others_write;
    if (!fs::is_regular_file(existing) || (existing.permissions() & anyWrite) == fs::perms::none) {
      throw FileError::fromErrno(EACCES);
    }
  }

  std::ostringstream text;
  writeDataSet(text, set);
  TemporaryFile temporary(target);
  if (const int err = temporary.write(text.str()); err != 0) throw errorFor(err, target);
  if (fs::exists(existing)) fs::permissions(temporary.path(), existing.permissions(), ec);
  fs::rename(temporary.path(), target, ec);
  if (ec) throw errorFor(ec, target);
  temporary.keep();
  return finalName;
}

std::vector<DataPoint> readDataSetFile(const std::string& path) {
  if (isBadPath(path)) throw FileError::fromErrno(EINVAL);
  const fs::path file = pathFromUtf8(path);
  std::error_code ec;
  if (fs::is_directory(file, ec)) throw FileError::fromErrno(EISDIR);
  FileHandle f(openFile(file, "rb"));
  if (!f) throw errorFor(errno, file);
  // Measured before anything is read: a file of gigabytes is refused, not loaded.
  if (const auto size = fs::file_size(file, ec); !ec && size > limits::kMostDataTextBytes)
    throw DataSetTextError(DataSetTextError::TooLarge);
  std::string text;
  char buffer[65536];
  for (;;) {
    errno = 0;
    const std::size_t n = std::fread(buffer, 1, sizeof buffer, f.get());
    // A file that grows while it is read, or a device, is bounded here.
    if (text.size() + n > limits::kMostDataTextBytes) throw DataSetTextError(DataSetTextError::TooLarge);
    text.append(buffer, n);
    if (n < sizeof buffer) {
      if (std::ferror(f.get())) throw errorFor(errno != 0 ? errno : EIO, file);
      break;
    }
  }
  std::istringstream in(text);
  return readDataSet(in);
}

}  // namespace sonalyx

#include "core/speech/ScreenReaderProcess.h"

#include <algorithm>
#include <array>

namespace sonalyx {

namespace {

constexpr std::array<std::string_view, 1> kScreenReaders{"orca"};

std::string_view baseName(std::string_view path) {
  const std::size_t slash = path.rfind('/');
  return slash == std::string_view::npos ? path : path.substr(slash + 1);
}

bool isScreenReaderName(std::string_view path) {
  return std::find(kScreenReaders.begin(), kScreenReaders.end(), baseName(path)) != kScreenReaders.end();
}

}  // namespace

bool isScreenReaderProcess(std::string_view shortName, const std::vector<std::string>& commandLine) {
  if (isScreenReaderName(shortName)) return true;
  if (commandLine.empty()) return false;
  if (isScreenReaderName(commandLine[0])) return true;
  // A script: the interpreter's first argument.
  return commandLine.size() > 1 && baseName(commandLine[0]).starts_with("python") &&
         isScreenReaderName(commandLine[1]);
}

}  // namespace sonalyx

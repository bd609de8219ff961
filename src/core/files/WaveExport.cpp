#include "core/files/WaveExport.h"

#include <algorithm>
#include <cctype>

namespace sonalyx {

std::string applyWavExtension(std::string path) {
  std::string tail = path.substr(path.size() - std::min<std::size_t>(path.size(), 3));
  std::transform(tail.begin(), tail.end(), tail.begin(),
                 [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
  if (tail != "wav") path += ".wav";
  return path;
}

}  // namespace sonalyx

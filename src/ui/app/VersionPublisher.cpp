#include "ui/app/VersionPublisher.h"

#include <limits>
#include <vector>

#include "core/settings/SettingsStore.h"
#include "ui/app/ProductInfo.h"

namespace sonalyx::ui {

namespace {

// The leading digits of a piece; a piece with none is 0. Saturates rather than wraps.
std::uint32_t pieceValue(std::string_view piece) {
  std::uint64_t value = 0;
  for (const char c : piece) {
    if (c < '0' || c > '9') break;
    value = value * 10 + static_cast<std::uint64_t>(c - '0');
    if (value > std::numeric_limits<std::uint32_t>::max()) return std::numeric_limits<std::uint32_t>::max();
  }
  return static_cast<std::uint32_t>(value);
}

}  // namespace

VersionNumbers parseProductVersion(std::string_view text) {
  if (text.size() < 5) return {};
  std::vector<std::uint32_t> numbers;
  std::size_t start = 0;
  while (start < text.size()) {
    const std::size_t dot = text.find('.', start);
    const std::size_t end = dot == std::string_view::npos ? text.size() : dot;
    if (end > start) numbers.push_back(pieceValue(text.substr(start, end - start)));
    start = end + 1;
  }
  if (numbers.size() < 3) return {};
  return {numbers[0], numbers[1], numbers[2]};
}

std::string updateManifestUrl(std::string_view argumentText) {
  return argumentText == "-localTest" ? product::kTestUpdateManifest : product::kUpdateManifest;
}

void PublishVersion(const SettingsStore& settings, std::string_view productVersion,
                    std::string_view argumentText) {
  const VersionNumbers version = parseProductVersion(productVersion);
  settings.SetMajor(version.major);
  settings.SetMinor(version.minor);
  settings.SetRev(version.rev);
  settings.SetAppName(product::kAppName);
  settings.SetUpdateURL(updateManifestUrl(argumentText));
}

}  // namespace sonalyx::ui

#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace sonalyx {
class SettingsStore;
}

namespace sonalyx::ui {

struct VersionNumbers {
  std::uint32_t major = 0;
  std::uint32_t minor = 0;
  std::uint32_t rev = 0;
  bool operator==(const VersionNumbers&) const = default;
};

// The first three numbers of a product version string such as "3.0.15.0". A string
// shorter than five characters, or one with fewer than three numbers, gives 0.0.0.
// Runs of dots count as one separator and a piece that does not start with a digit
// counts as 0; further numbers (the build) are dropped.
VersionNumbers parseProductVersion(std::string_view text);

// The update manifest's address: the test server's when the whole argument text is
// exactly "-localTest" (case matters), otherwise the public one.
std::string updateManifestUrl(std::string_view argumentText);

// Writes Major, Minor, Rev, appName and updateURL for the external updater.
void PublishVersion(const SettingsStore& settings, std::string_view productVersion,
                    std::string_view argumentText);

}  // namespace sonalyx::ui

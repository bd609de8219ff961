#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/settings/RegistryValue.h"

namespace sonalyx {

// The one key all settings live under, below the current user's root.
inline constexpr std::string_view kSettingsRootKey = "HKEY_CURRENT_USER";
inline constexpr std::string_view kSettingsSubkey = "Software\\Quillmont\\SLX3\\CurrentVersion\\Settings";

struct NamedValue {
  std::string name;
  RegistryValue value;

  bool operator==(const NamedValue&) const = default;
};

// Where the settings key lives: the per-user registry on Windows, a registry
// export file elsewhere. Every call opens the key, does its work and lets go, so
// two running programs share the key value by value. Value names compare as the
// registry compares them: without regard to ASCII case. Failures are not thrown:
// a read that fails is an absent value, a write that fails returns false.
class SettingsBackend {
 public:
  virtual ~SettingsBackend() = default;

  // Nothing when the key or the value is missing or cannot be read.
  virtual std::optional<RegistryValue> readValue(std::string_view name) = 0;
  // Creates the key (and the path to it) when it is missing.
  virtual bool writeValue(std::string_view name, const RegistryValue& value) = 0;
  // Every value of the key in stored order; empty when the key is missing.
  virtual std::vector<NamedValue> listValues() = 0;
  // False when the key is missing or holds neither values nor subkeys.
  virtual bool keyHasContent() = 0;
  // Removes the key with all its subkeys; true when it is gone afterwards.
  virtual bool deleteKey() = 0;
  // Removes one value; true when it is gone afterwards.
  virtual bool deleteValue(std::string_view name) = 0;
};

}  // namespace sonalyx

#pragma once

#include <cstdint>
#include <string_view>

namespace sonalyx {

// Booleans and integers are stored as REG_DWORD, reals and texts as REG_SZ.
enum class SettingType { Boolean, Integer, Real, Text };

// One row of the settings table.
struct SettingKey {
  std::string_view name;  // exactly as stored
  SettingType type;
  // The default as text: "0" or "1" for a Boolean, a decimal number for an integer,
  // the stored text of a real. nullptr for the values written at every start and
  // never read back (the version and the updater's values), which have no getter.
  const char* defaultText;
  // Integers only: the setter stores at least `minimum` and at most `maximum`.
  std::uint32_t minimum = 0;
  std::uint32_t maximum = UINT32_MAX;

  constexpr bool hasDefault() const { return defaultText != nullptr; }
  constexpr bool defaultBool() const { return hasDefault() && std::string_view(defaultText) != "0"; }
  constexpr std::uint32_t defaultInt() const {
    std::uint32_t value = 0;
    for (const char* c = defaultText; c != nullptr && *c >= '0' && *c <= '9'; ++c) {
      value = value * 10 + static_cast<std::uint32_t>(*c - '0');
    }
    return value;
  }
  constexpr std::string_view defaultString() const { return hasDefault() ? defaultText : std::string_view(); }
};

}  // namespace sonalyx

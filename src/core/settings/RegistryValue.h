#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace sonalyx {

// Registry value types, numbered as the Windows registry numbers them so that a
// registry backend can pass them through unchanged.
enum RegistryType : std::uint32_t {
  kRegNone = 0,
  kRegSz = 1,
  kRegExpandSz = 2,
  kRegBinary = 3,
  kRegDword = 4,
  kRegDwordBigEndian = 5,
  kRegLink = 6,
  kRegMultiSz = 7,
  kRegResourceList = 8,
  kRegFullResourceDescriptor = 9,
  kRegResourceRequirementsList = 10,
  kRegQword = 11,
};

// "REG_SZ", "REG_DWORD" ...; a type without a name as "REG_0x" and its number in hex.
std::string registryTypeName(std::uint32_t type);

// One named value's type and bytes exactly as the registry holds them: strings are
// UTF-16LE with their terminating zeros. Types the program does not know are kept
// as raw bytes so they survive a rewrite.
struct RegistryValue {
  std::uint32_t type = kRegNone;
  std::vector<std::uint8_t> data;

  // A string of the given text type: the UTF-16LE characters, the terminating zero
  // character and one more zero character of padding, so 2 x characters + 4 bytes.
  static RegistryValue fromText(std::string_view utf8, std::uint32_t textType = kRegSz);
  // Four bytes, least significant first.
  static RegistryValue fromDword(std::uint32_t value, std::uint32_t wordType = kRegDword);

  // The first four bytes as they lie (no byte swap for REG_DWORD_BIG_ENDIAN), for
  // the two double-word types; nothing for another type or fewer than four bytes.
  std::optional<std::uint32_t> dword() const;
  // The characters up to the first zero character, for the four text types
  // (REG_SZ, REG_EXPAND_SZ, REG_LINK, REG_MULTI_SZ; nothing is expanded).
  std::optional<std::string> text() const;

  bool operator==(const RegistryValue&) const = default;
};

}  // namespace sonalyx

#include "core/settings/RegistryValue.h"

#include <cstdio>

#include "core/settings/Utf16Text.h"

namespace sonalyx {

std::string registryTypeName(std::uint32_t type) {
  static const char* const names[] = {"REG_NONE",
                                      "REG_SZ",
                                      "REG_EXPAND_SZ",
                                      "REG_BINARY",
                                      "REG_DWORD",
                                      "REG_DWORD_BIG_ENDIAN",
                                      "REG_LINK",
                                      "REG_MULTI_SZ",
                                      "REG_RESOURCE_LIST",
                                      "REG_FULL_RESOURCE_DESCRIPTOR",
                                      "REG_RESOURCE_REQUIREMENTS_LIST",
                                      "REG_QWORD"};
  if (type < std::size(names)) return names[type];
  char buffer[24];
  std::snprintf(buffer, sizeof buffer, "REG_0x%x", static_cast<unsigned>(type));
  return buffer;
}

RegistryValue RegistryValue::fromText(std::string_view utf8, std::uint32_t textType) {
  RegistryValue value;
  value.type = textType;
  const std::u16string units = utf8ToUtf16(utf8);
  value.data.reserve(2 * units.size() + 4);
  for (const char16_t unit : units) {
    value.data.push_back(static_cast<std::uint8_t>(unit & 0xFF));
    value.data.push_back(static_cast<std::uint8_t>(unit >> 8));
  }
  value.data.insert(value.data.end(), 4, 0);
  return value;
}

RegistryValue RegistryValue::fromDword(std::uint32_t word, std::uint32_t wordType) {
  RegistryValue value;
  value.type = wordType;
  for (int shift = 0; shift < 32; shift += 8) value.data.push_back(static_cast<std::uint8_t>(word >> shift));
  return value;
}

std::optional<std::uint32_t> RegistryValue::dword() const {
  if ((type != kRegDword && type != kRegDwordBigEndian) || data.size() < 4) return std::nullopt;
  return std::uint32_t{data[0]} | std::uint32_t{data[1]} << 8 | std::uint32_t{data[2]} << 16 |
         std::uint32_t{data[3]} << 24;
}

std::optional<std::string> RegistryValue::text() const {
  if (type != kRegSz && type != kRegExpandSz && type != kRegLink && type != kRegMultiSz) return std::nullopt;
  std::u16string units;
  for (std::size_t i = 0; i + 1 < data.size(); i += 2) {
    const auto unit = static_cast<char16_t>(data[i] | data[i + 1] << 8);
    if (unit == 0) break;
    units += unit;
  }
  return utf16ToUtf8(units);
}

}  // namespace sonalyx

#pragma once

#include <string>
#include <string_view>

namespace sonalyx {

// Conversions between the core's UTF-8 text and the UTF-16 units the registry
// stores. Malformed input (bad UTF-8 bytes, lone surrogates) becomes U+FFFD and
// clears `valid` when it is given, so callers can tell a faithful conversion from
// a repaired one.
std::u16string utf8ToUtf16(std::string_view utf8, bool* valid = nullptr);
std::string utf16ToUtf8(std::u16string_view utf16, bool* valid = nullptr);

}  // namespace sonalyx

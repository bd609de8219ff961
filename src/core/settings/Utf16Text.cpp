#include "core/settings/Utf16Text.h"

#include <cstdint>

namespace sonalyx {

namespace {

constexpr char32_t kReplacement = 0xFFFD;

void appendUtf8(std::string& out, char32_t c) {
  if (c < 0x80) {
    out += static_cast<char>(c);
  } else if (c < 0x800) {
    out += static_cast<char>(0xC0 | (c >> 6));
    out += static_cast<char>(0x80 | (c & 0x3F));
  } else if (c < 0x10000) {
    out += static_cast<char>(0xE0 | (c >> 12));
    out += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
    out += static_cast<char>(0x80 | (c & 0x3F));
  } else {
    out += static_cast<char>(0xF0 | (c >> 18));
    out += static_cast<char>(0x80 | ((c >> 12) & 0x3F));
    out += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
    out += static_cast<char>(0x80 | (c & 0x3F));
  }
}

void appendUtf16(std::u16string& out, char32_t c) {
  if (c < 0x10000) {
    out += static_cast<char16_t>(c);
  } else {
    c -= 0x10000;
    out += static_cast<char16_t>(0xD800 + (c >> 10));
    out += static_cast<char16_t>(0xDC00 + (c & 0x3FF));
  }
}

// Decodes one code point starting at `i` and advances `i`; kReplacement and
// `ok` false for a malformed sequence (overlong forms and surrogates included).
char32_t nextCodePoint(std::string_view s, std::size_t& i, bool& ok) {
  const auto lead = static_cast<std::uint8_t>(s[i++]);
  if (lead < 0x80) return lead;
  int length = 0;
  char32_t c = 0;
  char32_t minimum = 0;
  if ((lead & 0xE0) == 0xC0) {
    length = 1, c = lead & 0x1F, minimum = 0x80;
  } else if ((lead & 0xF0) == 0xE0) {
    length = 2, c = lead & 0x0F, minimum = 0x800;
  } else if ((lead & 0xF8) == 0xF0) {
    length = 3, c = lead & 0x07, minimum = 0x10000;
  } else {
    ok = false;
    return kReplacement;
  }
  for (int k = 0; k < length; ++k) {
    if (i >= s.size() || (static_cast<std::uint8_t>(s[i]) & 0xC0) != 0x80) {
      ok = false;
      return kReplacement;
    }
    c = (c << 6) | (static_cast<std::uint8_t>(s[i++]) & 0x3F);
  }
  if (c < minimum || c > 0x10FFFF || (c >= 0xD800 && c <= 0xDFFF)) {
    ok = false;
    return kReplacement;
  }
  return c;
}

}  // namespace

std::u16string utf8ToUtf16(std::string_view utf8, bool* valid) {
  std::u16string out;
  out.reserve(utf8.size());
  bool ok = true;
  std::size_t i = 0;
  while (i < utf8.size()) appendUtf16(out, nextCodePoint(utf8, i, ok));
  if (valid != nullptr) *valid = ok;
  return out;
}

std::string utf16ToUtf8(std::u16string_view utf16, bool* valid) {
  std::string out;
  out.reserve(utf16.size());
  bool ok = true;
  for (std::size_t i = 0; i < utf16.size(); ++i) {
    const char16_t unit = utf16[i];
    if (unit >= 0xD800 && unit <= 0xDBFF && i + 1 < utf16.size() && utf16[i + 1] >= 0xDC00 &&
        utf16[i + 1] <= 0xDFFF) {
      appendUtf8(out, 0x10000 + ((char32_t(unit) - 0xD800) << 10) + (char32_t(utf16[i + 1]) - 0xDC00));
      ++i;
    } else if (unit >= 0xD800 && unit <= 0xDFFF) {
      ok = false;
      appendUtf8(out, kReplacement);
    } else {
      appendUtf8(out, unit);
    }
  }
  if (valid != nullptr) *valid = ok;
  return out;
}

}  // namespace sonalyx

#include "core/speech/Catalogue.h"

#include <cstdint>
#include <optional>

#include "core/speech/LanguageTable.h"

namespace sonalyx {

namespace {

void appendUtf8(std::string& out, std::uint32_t code) {
  if (code < 0x80) {
    out += static_cast<char>(code);
  } else if (code < 0x800) {
    out += static_cast<char>(0xC0 | (code >> 6));
    out += static_cast<char>(0x80 | (code & 0x3F));
  } else if (code < 0x10000) {
    out += static_cast<char>(0xE0 | (code >> 12));
    out += static_cast<char>(0x80 | ((code >> 6) & 0x3F));
    out += static_cast<char>(0x80 | (code & 0x3F));
  } else {
    out += static_cast<char>(0xF0 | (code >> 18));
    out += static_cast<char>(0x80 | ((code >> 12) & 0x3F));
    out += static_cast<char>(0x80 | ((code >> 6) & 0x3F));
    out += static_cast<char>(0x80 | (code & 0x3F));
  }
}

// XML character data with its five named entities and numeric references undone;
// nullopt for an entity it does not know.
std::optional<std::string> unescape(std::string_view text) {
  std::string out;
  out.reserve(text.size());
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] != '&') {
      out += text[i];
      continue;
    }
    const std::size_t end = text.find(';', i);
    if (end == std::string_view::npos) return std::nullopt;
    const std::string_view name = text.substr(i + 1, end - i - 1);
    if (name == "amp")
      out += '&';
    else if (name == "lt")
      out += '<';
    else if (name == "gt")
      out += '>';
    else if (name == "quot")
      out += '"';
    else if (name == "apos")
      out += '\'';
    else if (name.size() > 1 && name[0] == '#') {
      const bool hex = name[1] == 'x' || name[1] == 'X';
      const std::string_view digits = name.substr(hex ? 2 : 1);
      if (digits.empty() || digits.size() > 8) return std::nullopt;
      std::uint32_t code = 0;
      for (const char c : digits) {
        int digit = -1;
        if (c >= '0' && c <= '9')
          digit = c - '0';
        else if (hex && c >= 'a' && c <= 'f')
          digit = c - 'a' + 10;
        else if (hex && c >= 'A' && c <= 'F')
          digit = c - 'A' + 10;
        if (digit < 0) return std::nullopt;
        code = code * (hex ? 16 : 10) + static_cast<std::uint32_t>(digit);
      }
      if (code == 0 || code > 0x10FFFF) return std::nullopt;
      appendUtf8(out, code);
    } else {
      return std::nullopt;
    }
    i = end;
  }
  return out;
}

// One element of a message: its attributes (raw) and its text; nullopt when the
// element is missing or malformed. An empty element ("<translation/>") has no text.
struct Element {
  std::string_view attributes;
  std::string_view text;
};

std::optional<Element> findElement(std::string_view message, std::string_view name) {
  const std::string open = "<" + std::string(name);
  std::size_t at = 0;
  while ((at = message.find(open, at)) != std::string_view::npos) {
    const std::size_t after = at + open.size();
    if (after < message.size() && (message[after] == '>' || message[after] == ' ' || message[after] == '/'))
      break;
    at = after;
  }
  if (at == std::string_view::npos) return std::nullopt;
  const std::size_t close = message.find('>', at);
  if (close == std::string_view::npos) return std::nullopt;
  Element element;
  element.attributes = message.substr(at + open.size(), close - at - open.size());
  if (!element.attributes.empty() && element.attributes.back() == '/') return element;
  const std::string closing = "</" + std::string(name) + ">";
  const std::size_t end = message.find(closing, close + 1);
  if (end == std::string_view::npos) return std::nullopt;
  element.text = message.substr(close + 1, end - close - 1);
  return element;
}

}  // namespace

Catalogue Catalogue::fromTsText(std::string_view tsText) {
  Catalogue catalogue;
  const std::size_t head = tsText.find("<TS");
  if (head == std::string_view::npos) return catalogue;
  constexpr std::string_view kOpen = "<message";
  constexpr std::string_view kClose = "</message>";
  std::size_t at = 0;
  while ((at = tsText.find(kOpen, at)) != std::string_view::npos) {
    const std::size_t end = tsText.find(kClose, at);
    if (end == std::string_view::npos) return {};
    const std::string_view message = tsText.substr(at, end - at);
    at = end + kClose.size();
    const std::optional<Element> source = findElement(message, "source");
    const std::optional<Element> translation = findElement(message, "translation");
    if (!source || !translation) return {};
    // A text that has left the sources is no longer asked for; plural forms are not used.
    const std::string_view kind = translation->attributes;
    if (kind.find("vanished") != std::string_view::npos || kind.find("obsolete") != std::string_view::npos ||
        translation->text.find("<numerusform") != std::string_view::npos)
      continue;
    std::optional<std::string> english = unescape(source->text);
    std::optional<std::string> translated = unescape(translation->text);
    if (!english || !translated) return {};
    if (translated->empty()) continue;
    catalogue.m_translations.insert_or_assign(std::move(*english), std::move(*translated));
  }
  // The file's language ("fr_FR") gives the decimal sign.
  const std::string_view attribute = " language=\"";
  const std::size_t named = tsText.find(attribute, head);
  if (named != std::string_view::npos && named + attribute.size() + 2 <= tsText.size())
    catalogue.m_translations[kDecimalSignKey] =
        std::string(decimalSign(languageForCode(tsText.substr(named + attribute.size(), 2))));
  return catalogue;
}

std::string Catalogue::translate(const std::string& english) const {
  const auto found = m_translations.find(english);
  return found == m_translations.end() ? english : found->second;
}

Translator Catalogue::translator() const {
  if (m_translations.empty()) return {};
  return [this](const std::string& english) { return translate(english); };
}

}  // namespace sonalyx

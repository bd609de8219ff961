#include "core/settings/RegFileDocument.h"

#include <algorithm>
#include <cstdio>

#include "core/settings/Utf16Text.h"

namespace sonalyx {

namespace {

constexpr std::size_t kMaxLineLength = 80;

char lower(char c) {
  return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

bool sameName(std::string_view a, std::string_view b) {
  return a.size() == b.size() &&
         std::equal(a.begin(), a.end(), b.begin(), [](char x, char y) { return lower(x) == lower(y); });
}

bool startsWithName(std::string_view text, std::string_view prefix) {
  return text.size() >= prefix.size() && sameName(text.substr(0, prefix.size()), prefix);
}

bool isBlank(char c) {
  return c == ' ' || c == '\t';
}

std::string_view trimLeft(std::string_view s) {
  while (!s.empty() && isBlank(s.front())) s.remove_prefix(1);
  return s;
}

std::string_view trimRight(std::string_view s) {
  while (!s.empty() && isBlank(s.back())) s.remove_suffix(1);
  return s;
}

std::string_view trim(std::string_view s) {
  return trimRight(trimLeft(s));
}

int hexDigit(char c) {
  if (c >= '0' && c <= '9') return c - '0';
  c = lower(c);
  if (c >= 'a' && c <= 'f') return c - 'a' + 10;
  return -1;
}

// 1 to `maxDigits` hex digits and nothing else.
std::optional<std::uint32_t> parseHex(std::string_view s, std::size_t maxDigits) {
  if (s.empty() || s.size() > maxDigits) return std::nullopt;
  std::uint32_t value = 0;
  for (const char c : s) {
    const int digit = hexDigit(c);
    if (digit < 0) return std::nullopt;
    value = value << 4 | static_cast<std::uint32_t>(digit);
  }
  return value;
}

// A quoted text at the start of `s` with the export's two escapes, \\ and \".
// Advances `s` past the closing quote.
std::optional<std::string> parseQuoted(std::string_view& s) {
  if (s.empty() || s.front() != '"') return std::nullopt;
  std::string text;
  std::size_t i = 1;
  while (i < s.size()) {
    const char c = s[i++];
    if (c == '"') {
      s.remove_prefix(i);
      return text;
    }
    if (c == '\\') {
      if (i >= s.size() || (s[i] != '\\' && s[i] != '"')) return std::nullopt;
      text += s[i++];
    } else {
      text += c;
    }
  }
  return std::nullopt;
}

std::string quote(std::string_view text) {
  std::string out = "\"";
  for (const char c : text) {
    if (c == '\\' || c == '"') out += '\\';
    out += c;
  }
  return out + '"';
}

// The name and the '=' of a value line; `s` is left at the data.
std::optional<std::string> parseNameAndEquals(std::string_view& s) {
  std::optional<std::string> name;
  if (!s.empty() && s.front() == '@') {
    name = std::string();
    s.remove_prefix(1);
  } else {
    name = parseQuoted(s);
    if (!name) return std::nullopt;
  }
  s = trimLeft(s);
  if (s.empty() || s.front() != '=') return std::nullopt;
  s = trimLeft(s.substr(1));
  return name;
}

struct ParsedData {
  bool removal = false;
  RegistryValue value;
};

std::optional<std::vector<std::uint8_t>> parseBytes(std::string_view list) {
  std::vector<std::uint8_t> bytes;
  list = trim(list);
  if (list.empty()) return bytes;
  std::size_t start = 0;
  while (true) {
    const std::size_t comma = list.find(',', start);
    const auto byte = parseHex(trim(list.substr(start, comma - start)), 2);
    if (!byte) return std::nullopt;
    bytes.push_back(static_cast<std::uint8_t>(*byte));
    if (comma == std::string_view::npos) return bytes;
    start = comma + 1;
  }
}

std::optional<ParsedData> parseData(std::string_view s) {
  ParsedData parsed;
  if (!s.empty() && s.front() == '"') {
    auto text = parseQuoted(s);
    if (!text || !trim(s).empty()) return std::nullopt;
    parsed.value = RegistryValue::fromText(*text);
    return parsed;
  }
  if (trim(s) == "-") {
    parsed.removal = true;
    return parsed;
  }
  if (startsWithName(s, "dword:")) {
    const auto word = parseHex(trim(s.substr(6)), 8);
    if (!word) return std::nullopt;
    parsed.value = RegistryValue::fromDword(*word);
    return parsed;
  }
  if (!startsWithName(s, "hex")) return std::nullopt;
  s.remove_prefix(3);
  std::uint32_t type = kRegBinary;
  if (!s.empty() && s.front() == '(') {
    const std::size_t close = s.find(')');
    if (close == std::string_view::npos) return std::nullopt;
    const auto number = parseHex(s.substr(1, close - 1), 8);
    if (!number) return std::nullopt;
    type = *number;
    s.remove_prefix(close + 1);
  }
  if (s.empty() || s.front() != ':') return std::nullopt;
  auto bytes = parseBytes(s.substr(1));
  if (!bytes) return std::nullopt;
  parsed.value.type = type;
  parsed.value.data = std::move(*bytes);
  return parsed;
}

// A line that cannot continue a hex list: the start of another entry.
bool startsNewEntry(std::string_view line) {
  line = trimLeft(line);
  return line.empty() || line.front() == '[' || line.front() == '"' || line.front() == '@' ||
         line.front() == ';';
}

bool isText(std::string_view line) {
  bool valid = true;
  utf8ToUtf16(line, &valid);
  return valid && line.find('\0') == std::string_view::npos;
}

// The bytes as UTF-8 text; `ok` false when they were not faithfully text.
std::string decode(std::string_view bytes, bool& ok) {
  ok = true;
  if (bytes.starts_with("\xEF\xBB\xBF")) return std::string(bytes.substr(3));
  if (!bytes.starts_with("\xFF\xFE")) return std::string(bytes);
  bytes.remove_prefix(2);
  if (bytes.size() % 2 != 0) ok = false;
  std::u16string units;
  units.reserve(bytes.size() / 2);
  for (std::size_t i = 0; i + 1 < bytes.size(); i += 2) {
    units += static_cast<char16_t>(static_cast<std::uint8_t>(bytes[i]) |
                                   static_cast<std::uint8_t>(bytes[i + 1]) << 8);
  }
  bool valid = true;
  std::string text = utf16ToUtf8(units, &valid);
  ok = ok && valid;
  return text;
}

std::vector<std::string_view> splitLines(std::string_view text) {
  std::vector<std::string_view> lines;
  std::size_t start = 0;
  while (start < text.size()) {
    std::size_t end = text.find('\n', start);
    if (end == std::string_view::npos) end = text.size();
    std::string_view line = text.substr(start, end - start);
    // Every carriage return before the line end goes: one left in a kept line would
    // be taken for the line end when the file is read again.
    while (line.ends_with('\r')) line.remove_suffix(1);
    lines.push_back(line);
    start = end + 1;
  }
  return lines;
}

// A string that the quoted form gives back byte for byte and that fits on a line.
bool isPlainString(const RegistryValue& value) {
  if (value.type != kRegSz) return false;
  const auto text = value.text();
  return text && text->find_first_of("\r\n") == std::string::npos && RegistryValue::fromText(*text) == value;
}

}  // namespace

RegFileDocument RegFileDocument::parse(std::string_view bytes) {
  RegFileDocument document;
  bool encodingOk = true;
  const std::string text = decode(bytes, encodingOk);
  document.m_damaged = !encodingOk;
  const auto lines = splitLines(text);
  for (std::size_t i = 0; i < lines.size(); ++i) {
    Entry entry;
    entry.raw = std::string(lines[i]);
    const std::string_view line = trim(lines[i]);
    if (!isText(lines[i])) {
      entry.kind = Kind::Unreadable;
    } else if (line.empty() || line.front() == ';') {
      entry.kind = Kind::Other;
    } else if (line == kHeader) {
      entry.kind = Kind::Header;
    } else if (line.front() == '[') {
      entry.kind = line.size() > 2 && line.back() == ']' ? Kind::Section : Kind::Unreadable;
      if (entry.kind == Kind::Section) entry.name = std::string(line.substr(1, line.size() - 2));
    } else {
      std::string_view rest = line;
      auto name = parseNameAndEquals(rest);
      std::string logical;
      if (name && startsWithName(rest, "hex")) {
        logical = std::string(rest);
        while (trimRight(logical).ends_with('\\') && i + 1 < lines.size() && !startsNewEntry(lines[i + 1]) &&
               isText(lines[i + 1])) {
          logical = std::string(trimRight(logical));
          logical.pop_back();
          logical += trim(lines[++i]);
          entry.raw += '\n';
          entry.raw += lines[i];
        }
        rest = logical;
      }
      const auto data = name ? parseData(rest) : std::nullopt;
      if (data) {
        entry.kind = data->removal ? Kind::Removal : Kind::Value;
        entry.name = std::move(*name);
        entry.value = data->value;
      } else {
        entry.kind = Kind::Unreadable;
      }
    }
    if (entry.kind == Kind::Unreadable) document.m_damaged = true;
    document.m_entries.push_back(std::move(entry));
  }
  return document;
}

std::string RegFileDocument::serialize() const {
  std::string out;
  for (const auto& entry : m_entries) {
    out += entry.raw;
    out += '\n';
  }
  return out;
}

std::vector<RegFileDocument::Block> RegFileDocument::blocks(std::string_view key, bool withSubkeys) const {
  std::vector<Block> found;
  for (std::size_t i = 0; i < m_entries.size(); ++i) {
    if (m_entries[i].kind != Kind::Section) continue;
    const std::string& section = m_entries[i].name;
    const bool matches =
        sameName(section, key) || (withSubkeys && section.size() > key.size() &&
                                   startsWithName(section, key) && section[key.size()] == '\\');
    if (!matches) continue;
    std::size_t end = i + 1;
    while (end < m_entries.size() && m_entries[end].kind != Kind::Section) ++end;
    found.push_back({i, end});
  }
  return found;
}

std::optional<RegistryValue> RegFileDocument::value(std::string_view key, std::string_view name) const {
  std::optional<RegistryValue> result;
  for (const auto& block : blocks(key, false)) {
    for (std::size_t i = block.begin + 1; i < block.end; ++i) {
      const Entry& entry = m_entries[i];
      if (entry.kind == Kind::Value && sameName(entry.name, name)) result = entry.value;
      if (entry.kind == Kind::Removal && sameName(entry.name, name)) result.reset();
    }
  }
  return result;
}

std::vector<NamedValue> RegFileDocument::values(std::string_view key) const {
  std::vector<NamedValue> result;
  for (const auto& block : blocks(key, false)) {
    for (std::size_t i = block.begin + 1; i < block.end; ++i) {
      const Entry& entry = m_entries[i];
      if (entry.kind != Kind::Value && entry.kind != Kind::Removal) continue;
      const auto same = std::find_if(result.begin(), result.end(),
                                     [&](const NamedValue& v) { return sameName(v.name, entry.name); });
      if (entry.kind == Kind::Removal) {
        if (same != result.end()) result.erase(same);
      } else if (same != result.end()) {
        same->value = entry.value;
      } else {
        result.push_back({entry.name, entry.value});
      }
    }
  }
  return result;
}

bool RegFileDocument::keyHasContent(std::string_view key) const {
  return !values(key).empty() || blocks(key, true).size() > blocks(key, false).size();
}

void RegFileDocument::setValue(std::string_view key, std::string_view name, const RegistryValue& value) {
  if (std::none_of(m_entries.begin(), m_entries.end(),
                   [](const Entry& e) { return e.kind == Kind::Header; })) {
    m_entries.insert(m_entries.begin(), {Entry{Kind::Header, std::string(kHeader), {}, {}}, Entry{}});
  }
  const auto keyBlocks = blocks(key, false);
  // Replacing the last mention keeps the value where the user last saw it; an
  // earlier duplicate stays shadowed as before.
  for (auto block = keyBlocks.rbegin(); block != keyBlocks.rend(); ++block) {
    for (std::size_t i = block->end; i-- > block->begin + 1;) {
      Entry& old = m_entries[i];
      if ((old.kind == Kind::Value || old.kind == Kind::Removal) && sameName(old.name, name)) {
        // The registry keeps the spelling a value was created with.
        old.kind = Kind::Value;
        old.raw = valueText(old.name, value);
        old.value = value;
        return;
      }
    }
  }

  Entry entry{Kind::Value, valueText(name, value), std::string(name), value};
  if (keyBlocks.empty()) {
    if (m_entries.back().kind != Kind::Other || !trim(m_entries.back().raw).empty())
      m_entries.push_back(Entry{});
    std::string header = "[";
    header.append(key).append("]");
    m_entries.push_back(Entry{Kind::Section, std::move(header), std::string(key), {}});
    m_entries.push_back(std::move(entry));
    return;
  }
  // After the key's last line that is not blank or a comment, so a blank line
  // before the next key stays where it is.
  const Block& last = keyBlocks.back();
  std::size_t at = last.end;
  while (at > last.begin + 1 && m_entries[at - 1].kind == Kind::Other) --at;
  m_entries.insert(m_entries.begin() + static_cast<std::ptrdiff_t>(at), std::move(entry));
}

bool RegFileDocument::removeValue(std::string_view key, std::string_view name) {
  bool removed = false;
  const auto keyBlocks = blocks(key, false);
  for (auto block = keyBlocks.rbegin(); block != keyBlocks.rend(); ++block) {
    for (std::size_t i = block->end; i-- > block->begin + 1;) {
      const Entry& entry = m_entries[i];
      if ((entry.kind == Kind::Value || entry.kind == Kind::Removal) && sameName(entry.name, name)) {
        m_entries.erase(m_entries.begin() + static_cast<std::ptrdiff_t>(i));
        removed = true;
      }
    }
  }
  return removed;
}

bool RegFileDocument::removeKey(std::string_view key) {
  const auto keyBlocks = blocks(key, true);
  for (auto block = keyBlocks.rbegin(); block != keyBlocks.rend(); ++block) {
    m_entries.erase(m_entries.begin() + static_cast<std::ptrdiff_t>(block->begin),
                    m_entries.begin() + static_cast<std::ptrdiff_t>(block->end));
  }
  return !keyBlocks.empty();
}

std::string RegFileDocument::valueText(std::string_view name, const RegistryValue& value) {
  std::string line = name.empty() ? std::string("@") : quote(name);
  line += '=';
  if (isPlainString(value)) return line + quote(*value.text());
  char buffer[32];
  if (value.type == kRegDword && value.data.size() == 4) {
    std::snprintf(buffer, sizeof buffer, "dword:%08x", static_cast<unsigned>(*value.dword()));
    return line + buffer;
  }
  if (value.type == kRegBinary) {
    line += "hex:";
  } else {
    std::snprintf(buffer, sizeof buffer, "hex(%x):", static_cast<unsigned>(value.type));
    line += buffer;
  }
  std::string out;
  for (std::size_t i = 0; i < value.data.size(); ++i) {
    std::snprintf(buffer, sizeof buffer, "%02x", static_cast<unsigned>(value.data[i]));
    std::string token = buffer;
    if (i + 1 < value.data.size()) token += ',';
    // Room for the token and, when it is not the last, the continuation mark.
    if (line.size() + token.size() + 1 > kMaxLineLength && line != "  ") {
      out += line + "\\\n";
      line = "  ";
    }
    line += token;
  }
  return out + line;
}

}  // namespace sonalyx

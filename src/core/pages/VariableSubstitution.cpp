#include "core/pages/VariableSubstitution.h"

#include <utility>

namespace sonalyx {

namespace {

// Deeper chains of variables than this are taken for a cycle.
constexpr int kMaxPasses = 32;
// A few chained doublings (a = b+b, b = c+c, ...) would otherwise fill memory.
constexpr std::size_t kMaxLength = 1'000'000;

// Characters that continue a name or a number; bytes of UTF-8 sequences count
// as letters.
bool isWordChar(char c) {
  const auto byte = static_cast<unsigned char>(c);
  return (byte >= 'a' && byte <= 'z') || (byte >= 'A' && byte <= 'Z') || (byte >= '0' && byte <= '9') ||
         byte == '_' || byte >= 0x80;
}

bool isBlank(char c) {
  return c == ' ' || c == '\t';
}

bool standsAlone(const std::string& text, std::size_t start, std::size_t length) {
  const std::size_t end = start + length;
  // "." before a name continues a number: "1.e5" holds no "e5".
  if (isWordChar(text[start]) && start > 0 && (isWordChar(text[start - 1]) || text[start - 1] == '.'))
    return false;
  if (isWordChar(text[end - 1])) {
    if (end < text.size() && isWordChar(text[end])) return false;
    std::size_t next = end;
    while (next < text.size() && isBlank(text[next])) ++next;
    if (next < text.size() && text[next] == '(') return false;
  }
  return true;
}

}  // namespace

bool replaceWholeName(std::string& text, std::string_view name, std::string_view replacement) {
  if (name.empty()) return false;
  // Built afresh rather than replaced in place, which would move the tail of a
  // long text once per occurrence; the values put in are not searched again.
  std::string replaced;
  std::size_t copied = 0;
  for (std::size_t at = text.find(name); at != std::string::npos; at = text.find(name, at + 1)) {
    if (at < copied || !standsAlone(text, at, name.size())) continue;
    replaced.append(text, copied, at - copied);
    replaced.append(replacement);
    copied = at + name.size();
  }
  if (copied == 0) return false;
  replaced.append(text, copied);
  text = std::move(replaced);
  return true;
}

bool substituteVariables(std::string& text, const std::map<std::string, std::string>& variables) {
  for (int pass = 0; pass < kMaxPasses; ++pass) {
    bool changed = false;
    for (const auto& [name, value] : variables) {
      if (replaceWholeName(text, name, "(" + value + ")")) changed = true;
      if (text.size() > kMaxLength) return false;
    }
    if (!changed) return true;
  }
  return false;
}

}  // namespace sonalyx

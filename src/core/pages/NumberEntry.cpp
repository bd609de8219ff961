#include "core/pages/NumberEntry.h"

#include <charconv>
#include <cmath>

#include "core/speech/TranslationMarker.h"
#include "core/utility/DecimalText.h"

namespace sonalyx::entry {

namespace {

std::string_view trimmed(std::string_view text) {
  const auto blank = [](char c) { return c == ' ' || c == '\t'; };
  while (!text.empty() && blank(text.front())) text.remove_prefix(1);
  while (!text.empty() && blank(text.back())) text.remove_suffix(1);
  return text;
}

void replaceFirst(std::string& text, std::string_view marker, const std::string& value) {
  if (const auto at = text.find(marker); at != std::string::npos) text.replace(at, marker.size(), value);
}

}  // namespace

std::optional<double> realNumber(std::string_view text) {
  text = trimmed(text);
  std::size_t consumed = 0;
  const double value = decimalToDouble(text, &consumed);
  if (consumed == 0 || consumed != text.size() || !std::isfinite(value)) return std::nullopt;
  return value;
}

std::optional<long long> wholeNumber(std::string_view text) {
  text = trimmed(text);
  if (!text.empty() && text.front() == '+') text.remove_prefix(1);
  long long value = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
  if (text.empty() || error != std::errc() || end != text.data() + text.size()) return std::nullopt;
  return value;
}

std::string rangeText(const Translator& translate, const std::string& english, long long lowest,
                      long long highest) {
  std::string text = translateWith(translate, english);
  replaceFirst(text, "%d", std::to_string(lowest));
  replaceFirst(text, "%d", std::to_string(highest));
  return text;
}

std::string notANumberText(const Translator& translate, const std::string& fieldName) {
  std::string text = translateWith(translate, SLX_TR("%s must be a number."));
  replaceFirst(text, "%s", translateWith(translate, fieldName));
  return text;
}

}  // namespace sonalyx::entry

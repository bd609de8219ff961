#include "core/utility/NumberFormat.h"

#include <cmath>
#include <cstdio>
#include <stdexcept>

namespace sonalyx {

namespace {

struct Conversion {
  bool leftJustify = false;
  bool zeroPad = false;
  std::string flags;  // the flags passed on to snprintf ('+', ' ', '#')
  int width = 0;
  int precision = -1;
  char type = 'g';
};

Conversion parseConversion(std::string_view text) {
  Conversion c;
  std::size_t i = 0;
  auto fail = [&] { throw std::invalid_argument("unsupported number conversion: " + std::string(text)); };
  if (i >= text.size() || text[i] != '%') fail();
  ++i;
  for (; i < text.size(); ++i) {
    const char f = text[i];
    if (f == '-') {
      c.leftJustify = true;
    } else if (f == '0') {
      c.zeroPad = true;
    } else if (f == '+' || f == ' ' || f == '#') {
      c.flags += f;
    } else {
      break;
    }
  }
  for (; i < text.size() && text[i] >= '0' && text[i] <= '9'; ++i) c.width = c.width * 10 + (text[i] - '0');
  if (i < text.size() && text[i] == '.') {
    ++i;
    c.precision = 0;
    for (; i < text.size() && text[i] >= '0' && text[i] <= '9'; ++i)
      c.precision = c.precision * 10 + (text[i] - '0');
  }
  if (i + 1 != text.size()) fail();
  c.type = text[i];
  if (std::string_view("gGeEfF").find(c.type) == std::string_view::npos) fail();
  if (c.width > 512 || c.precision > 512) fail();
  return c;
}

// glibc writes at least two exponent digits; widen them to three.
void widenExponent(std::string& s) {
  const std::size_t e = s.find_first_of("eE");
  if (e == std::string::npos || e + 1 >= s.size()) return;
  std::size_t digits = e + 1;
  if (s[digits] == '+' || s[digits] == '-') {
    ++digits;
  } else {
    s.insert(digits, 1, '+');
    ++digits;
  }
  const std::size_t count = s.size() - digits;
  if (count < 3) s.insert(digits, 3 - count, '0');
}

std::string pad(std::string body, const Conversion& c, bool numeric) {
  if (static_cast<int>(body.size()) >= c.width) return body;
  const std::size_t fill = static_cast<std::size_t>(c.width) - body.size();
  if (c.leftJustify) return body + std::string(fill, ' ');
  if (c.zeroPad && numeric) {
    // Zeros go after the sign.
    const std::size_t at = (!body.empty() && (body[0] == '-' || body[0] == '+' || body[0] == ' ')) ? 1 : 0;
    body.insert(at, fill, '0');
    return body;
  }
  return std::string(fill, ' ') + body;
}

}  // namespace

std::string formatNumber(double value, std::string_view conversion) {
  const Conversion c = parseConversion(conversion);
  if (std::isnan(value)) return pad("Error", c, false);
  // A zero is read as zero: "-0" would be heard as "minus zero".
  if (value == 0.0) value = 0.0;
  if (std::isinf(value)) return pad(value > 0 ? "Infinity" : "-Infinity", c, false);

  std::string spec = "%";
  spec += c.flags;
  if (c.precision >= 0) {
    spec += '.';
    spec += std::to_string(c.precision);
  }
  spec += c.type;
  // One conversion into a stack buffer in the common case: sampling writes
  // hundreds of thousands of numbers into expressions.
  char buffer[64];
  const int n = std::snprintf(buffer, sizeof buffer, spec.c_str(), value);
  std::string body;
  if (n >= 0 && static_cast<std::size_t>(n) < sizeof buffer) {
    body.assign(buffer, static_cast<std::size_t>(n));
  } else {
    body.assign(n > 0 ? static_cast<std::size_t>(n) : 0, '\0');
    std::snprintf(body.data(), body.size() + 1, spec.c_str(), value);
  }
  widenExponent(body);
  return pad(std::move(body), c, true);
}

std::string withDecimalSign(std::string number, std::string_view sign) {
  const std::size_t point = number.find('.');
  if (point != std::string::npos) number.replace(point, 1, sign);
  return number;
}

std::string formatG(double value, int precision) {
  return formatNumber(value, "%." + std::to_string(precision) + "g");
}

}  // namespace sonalyx

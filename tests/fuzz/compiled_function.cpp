// Compiled function against Calculate: random expressions at random x. The input
// is the expression up to the first newline; any bytes after it are x values, 8
// bytes each, tried with a fixed set of x that covers signs, zeros and extremes.
//
// For every x a number can be written for, the compiled value must equal
// Calculate's for the text with that x written in full ("(%.17g)" where x stands
// as a name) within 1e-12 relative or 1e-300 absolute, NaN and infinities by kind;
// a block and a single value must agree bit for bit; and an expression the
// compiler refuses Calculate refuses too with 2 written for x. Any difference aborts, which libFuzzer
// records.

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <string>
#include <string_view>
#include <vector>

#include "core/engines/CompiledFunction.h"
#include "core/engines/Evaluator.h"

namespace {

using sonalyx::CompiledFunction;

bool isLetter(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

// The text with every name "x" replaced by the value, bracketed or not.
std::string withValue(std::string_view expression, double x, bool bracketed = true) {
  char value[48];
  std::snprintf(value, sizeof value, bracketed ? "(%.17g)" : "%.17g", x);
  std::string text;
  std::size_t i = 0;
  while (i < expression.size()) {
    if (!isLetter(expression[i])) {
      text += expression[i++];
      continue;
    }
    std::size_t end = i;
    while (end < expression.size() && isLetter(expression[end])) ++end;
    const std::string_view name = expression.substr(i, end - i);
    if (name == "x") {
      text += value;
    } else {
      text += name;
    }
    i = end;
  }
  return text;
}

bool sameBits(double a, double b) {
  return std::memcmp(&a, &b, sizeof a) == 0 || (std::isnan(a) && std::isnan(b));
}

bool agree(double compiled, double calculated) {
  if (std::isnan(compiled) || std::isnan(calculated)) return std::isnan(compiled) && std::isnan(calculated);
  if (std::isinf(compiled) || std::isinf(calculated)) return compiled == calculated;
  const double difference = std::fabs(compiled - calculated);
  return difference <= 1e-300 || difference <= 1e-12 * std::fmax(std::fabs(compiled), std::fabs(calculated));
}

[[noreturn]] void report(const char* what, std::string_view expression, double x, double a, double b) {
  std::fprintf(stderr, "%s: \"%.*s\" at x = %.17g: %.17g against %.17g\n", what,
               static_cast<int>(expression.size()), expression.data(), x, a, b);
  std::abort();
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  // Longer texts only repeat what shorter ones reach, and cost time per run.
  if (size > 2048) return 0;
  const std::string_view input(reinterpret_cast<const char*>(data), size);
  const std::size_t newline = input.find('\n');
  const std::string_view expression = input.substr(0, newline);

  std::vector<double> xs = {0.0,   -0.0,   1.0,    -1.0,     0.5,   -3.0, 2.0,
                            1e-11, 1e-300, -1e300, 4.9e-324, 710.0, 1e15, 3.141592653589793,
                            -0.001};
  if (newline != std::string_view::npos) {
    const std::string_view bytes = input.substr(newline + 1);
    for (std::size_t at = 0; at + sizeof(double) <= bytes.size() && xs.size() < 64; at += sizeof(double)) {
      double x = 0.0;
      std::memcpy(&x, bytes.data() + at, sizeof x);
      xs.push_back(x);
    }
  }

  const std::string text(expression);
  sonalyx::EvaluationError error;
  const auto f = CompiledFunction::compile(text, error);
  double calculated = 0.0;
  std::string reason;
  if (!f) {
    // Refused here, so refused with a number for x. Written bare, "2x" reads as 22;
    // in brackets, "cos x" reads as cos (2): only what both read is a finding.
    if (sonalyx::Calculate(withValue(expression, 2.0), calculated, reason) &&
        sonalyx::Calculate(withValue(expression, 2.0, false), calculated, reason))
      report("only Calculate reads", expression, 2.0, 0, 0);
    return 0;
  }

  std::vector<double> ys(xs.size());
  f->evaluate(xs.data(), ys.data(), xs.size());
  for (std::size_t i = 0; i < xs.size(); ++i) {
    const double x = xs[i];
    const double single = (*f)(x);
    if (!sameBits(single, ys[i])) report("block and single value differ", expression, x, ys[i], single);
    if (!std::isfinite(x)) continue;  // no number to write
    const std::string substituted = withValue(expression, x);
    if (!sonalyx::Calculate(substituted, calculated, reason))
      report("only the compiler reads", expression, x, 0, 0);
    if (!agree(ys[i], calculated)) report("values differ", expression, x, ys[i], calculated);
  }
  return 0;
}

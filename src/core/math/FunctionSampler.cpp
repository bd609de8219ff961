#include "core/math/FunctionSampler.h"

#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <exception>
#include <new>
#include <optional>
#include <string_view>
#include <utility>
#include <vector>

#include "core/engines/EvaluationError.h"
#include "core/engines/Evaluator.h"
#include "core/utility/NumberFormat.h"

namespace sonalyx {

namespace {

constexpr double kZeroTolerance = 1e-11;
constexpr double kDerivativeStep = 0.001;
constexpr double kDerivativeScale = 500.0;  // 1 / (2 * step)

// 7-point Gauss-Legendre on [-1, 1], applied in this order.
constexpr std::array<double, 7> kNodes = {-0.949107912342758, -0.741531185599394, -0.405845151377397, 0.0,
                                          0.405845151377397,  0.741531185599394,  0.949107912342758};
constexpr std::array<double, 7> kWeights = {0.12948496616887,  0.279705391489277, 0.381830050505119,
                                            0.417959183673469, 0.381830050505119, 0.279705391489277,
                                            0.12948496616887};

// "exp" hides this while x's are replaced, so that its x is not the variable.
constexpr std::string_view kExpGuard = "@EEE@";

bool isBlank(char c) {
  return c == ' ' || c == '\t' || c == '\n' || c == '\r' || c == '\v' || c == '\f';
}

void replaceAll(std::string& text, std::string_view from, std::string_view to) {
  std::size_t at = text.find(from);
  while (at != std::string::npos) {
    text.replace(at, from.size(), to);
    at = text.find(from, at + to.size());
  }
}

double zeroTiny(double v) {
  return std::fabs(v) < kZeroTolerance ? 0.0 : v;
}

// How a number goes into an expression for the evaluator: bracketed when it has a
// sign or an exponent, so that x^2 at -3 is (-3)^2 and 2^x at 1e-020 is 2^(1e-020).
std::string valueText(double v) {
  std::string text = formatNumber(zeroTiny(v), "%.14g");
  if (text.find_first_of("-e") != std::string::npos) text = '(' + text + ')';
  return text;
}

bool isDigitOrPoint(char c) {
  return (c >= '0' && c <= '9') || c == '.';
}

bool isLetter(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
}

// An expression cut at its x's: substituting a value is then one concatenation,
// which matters at ten substitutions per point.
class XTemplate {
 public:
  // The whole substitution: blanks removed, exp protected, and every x checked to
  // stand where a number can; `error` says why not ("2x").
  static XTemplate forSampling(const std::string& expression, EvaluationError& error) {
    std::string text;
    text.reserve(expression.size());
    for (const char c : expression) {
      if (!isBlank(c)) text += c;
    }
    replaceAll(text, "exp", kExpGuard);
    XTemplate t;
    if (text.find('x') == std::string::npos) {
      t.m_pieces.push_back(expression);
      return t;
    }
    for (std::size_t at = text.find('x'); at != std::string::npos; at = text.find('x', at + 1)) {
      if (const auto problem = misplacedX(text, at)) {
        error = *problem;
        t.m_pieces.emplace_back();
        return t;
      }
    }
    t.split(text);
    return t;
  }

  // Only the replacement, the text kept as it is (blanks included).
  static XTemplate plain(std::string text) {
    replaceAll(text, "exp", kExpGuard);
    XTemplate t;
    t.split(text);
    return t;
  }

  void fill(std::string_view value, std::string& out) const {
    out.assign(m_pieces.front());
    for (std::size_t k = 1; k < m_pieces.size(); ++k) {
      out += value;
      out += m_pieces[k];
    }
  }

 private:
  // An x must follow an operator or an opening bracket, or start the text.
  static std::optional<EvaluationError> misplacedX(std::string_view text, std::size_t at) {
    if (at == 0) return std::nullopt;
    const char before = text[at - 1];
    if (std::string_view("-+*/(^").find(before) != std::string_view::npos) return std::nullopt;
    EvaluationError error;
    error.position = at;
    if (isDigitOrPoint(before)) {
      error.kind = EvaluationError::Kind::NumberBeforeX;
    } else if (isLetter(before)) {
      // Part of a longer name, such as "max": name the whole word.
      std::size_t start = at;
      while (start > 0 && isLetter(text[start - 1])) --start;
      std::size_t end = at + 1;
      while (end < text.size() && isLetter(text[end])) ++end;
      std::string name(text.substr(start, end - start));
      replaceAll(name, kExpGuard, "exp");
      error.kind = EvaluationError::Kind::UnknownName;
      error.subject = std::move(name);
    } else {
      error.kind = EvaluationError::Kind::Unexpected;
      error.subject = "x";
    }
    return error;
  }

  // `text` has exp guarded; each piece gets it back. The guard holds no x and a
  // number's text holds no '@', so restoring piece by piece equals restoring after.
  void split(std::string_view text) {
    std::size_t start = 0;
    for (;;) {
      const std::size_t at = text.find('x', start);
      std::string piece(text.substr(start, at == std::string_view::npos ? at : at - start));
      replaceAll(piece, kExpGuard, "exp");
      m_pieces.push_back(std::move(piece));
      if (at == std::string_view::npos) return;
      start = at + 1;
    }
  }

  std::vector<std::string> m_pieces;  // one more than the x's
};

std::int32_t trendOf(double change) {
  if (change > kZeroTolerance) return 1;
  if (change < -kZeroTolerance) return -1;
  return 0;  // unchanged within the tolerance, or NaN
}

const std::array<std::string, 7>& nodeTexts() {
  static const std::array<std::string, 7> texts = [] {
    std::array<std::string, 7> t;
    for (std::size_t k = 0; k < kNodes.size(); ++k) t[k] = valueText(kNodes[k]);
    return t;
  }();
  return texts;
}

}  // namespace

FunctionSampler::FunctionSampler(Translator translate, Evaluator evaluate)
    : m_translate(std::move(translate)), m_evaluate(std::move(evaluate)) {}

std::string FunctionSampler::translate(const std::string& text) const {
  return m_translate ? m_translate(text) : text;
}

bool FunctionSampler::evaluate(const std::string& text, double& result, std::string& reason) const {
  if (m_evaluate) return m_evaluate(text, result, reason);
  EvaluationError error;
  if (Calculate(text, result, error)) return true;
  reason = evaluationErrorText(error, m_translate);
  return false;
}

std::string FunctionSampler::substituteX(const std::string& expression, double value) {
  EvaluationError ignored;
  std::string out;
  XTemplate::forSampling(expression, ignored).fill(valueText(value), out);
  return out;
}

std::string FunctionSampler::invalidEntry(const std::string& reason) const {
  std::string text = translate("Invalid entry.");
  if (!reason.empty()) text += ' ' + reason;
  return text;
}

bool FunctionSampler::computeFunction(DataSet& set, const std::string& expression, double x0, double x1,
                                      int numPts, std::string& errorText) {
  set.clear();
  // Written so that a NaN bound is refused too.
  if (!(x0 < x1)) {
    errorText = invalidEntry(translate("Start must be below finish."));
    return false;
  }
  if (numPts < 2) {
    errorText = invalidEntry(translate("At least 2 points are needed."));
    return false;
  }
  bool built = false;
  try {
    built = set.makeGrid(x0, x1, static_cast<std::size_t>(numPts));
  } catch (const std::bad_alloc&) {
    set.clear();
  }
  if (!built) {
    errorText = translate("Point allocation error.");
    return false;
  }
  if (!sampleFunction(set, expression)) {
    errorText = m_lastError;
    return false;
  }
  return true;
}

bool FunctionSampler::sampleFunction(DataSet& set, const std::string& expression) {
  bool ok = false;
  std::string reason;
  try {
    if (set.count() < 2) {
      reason = translate("Range error: Check plot settings.");
    } else {
      EvaluationError misplaced;
      const XTemplate f = XTemplate::forSampling(expression, misplaced);
      if (misplaced.kind != EvaluationError::Kind::None) {
        reason = evaluationErrorText(misplaced, m_translate);
      } else {
        std::string text;
        ok = true;
        for (std::size_t i = 0; ok && i < set.count(); ++i) {
          f.fill(valueText(set.getX(i)), text);
          double y = 0.0;
          ok = evaluate(text, y, reason);
          if (ok) set.setY(i, y);
        }
        ok = ok && computeDerivative(set, expression, reason) && computeIntegral(set, expression, reason);
      }
    }
  } catch (const std::exception&) {
    ok = false;
  }
  if (!ok) {
    set.clear();
    m_lastError = invalidEntry(reason);
  }
  return ok;
}

bool FunctionSampler::computeDerivative(DataSet& set, const std::string& expression, std::string& errorText) {
  EvaluationError misplaced;
  const XTemplate f = XTemplate::forSampling(expression, misplaced);
  if (misplaced.kind != EvaluationError::Kind::None) {
    errorText = evaluationErrorText(misplaced, m_translate);
    return false;
  }
  std::string text;
  set.setTrend(0, 0);
  double previous = 0.0;
  for (std::size_t i = 0; i < set.count(); ++i) {
    const double x = set.getX(i);
    double below = 0.0;
    double above = 0.0;
    f.fill(valueText(x - kDerivativeStep), text);
    if (!evaluate(text, below, errorText)) return false;
    f.fill(valueText(x + kDerivativeStep), text);
    if (!evaluate(text, above, errorText)) return false;
    const double derivative = (above - below) * kDerivativeScale;
    set.setDerivative(i, derivative);
    if (i >= 1) set.setTrend(i, trendOf(derivative - previous));
    previous = derivative;
  }
  return true;
}

bool FunctionSampler::computeIntegral(DataSet& set, const std::string& expression, std::string& errorText) {
  if (set.count() == 0) return true;
  const auto& nodes = nodeTexts();
  std::string text;
  set.setIntegral(0, 0.0);
  double integral = 0.0;
  double magnitude = 0.0;  // of all the parts added, to tell a true 0 from rounding
  for (std::size_t i = 1; i < set.count(); ++i) {
    const double right = set.getX(i);
    const double left = set.getX(i - 1);
    const std::string h = formatNumber(zeroTiny((right - left) * 0.5), "%.15g");
    const std::string m = formatNumber(zeroTiny((right + left) * 0.5), "%.15g");
    // h * f(h * t + m) over t in [-1, 1], as text; the brackets keep a sum such as
    // x+1 whole under the factor h.
    std::string integrand = h + " * (" + expression + ")";
    replaceAll(integrand, "exp", kExpGuard);
    replaceAll(integrand, "x", "(" + h + " * x + " + m + ")");
    replaceAll(integrand, kExpGuard, "exp");
    const XTemplate g = XTemplate::plain(std::move(integrand));
    double sum = 0.0;
    for (std::size_t k = 0; k < kNodes.size(); ++k) {
      g.fill(nodes[k], text);
      double value = 0.0;
      if (!evaluate(text, value, errorText)) return false;
      sum += kWeights[k] * value;
    }
    integral += sum;
    magnitude += std::fabs(sum);
    // Parts that cancel leave rounding noise (-8.9e-16 for x^3 over -2..2): 0.
    set.setIntegral(i, std::fabs(integral) <= magnitude * 1e-14 ? 0.0 : integral);
  }
  return true;
}

}  // namespace sonalyx

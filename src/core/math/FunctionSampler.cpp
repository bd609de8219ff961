#include "core/math/FunctionSampler.h"

#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <exception>
#include <new>
#include <string_view>
#include <utility>
#include <vector>

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

// How a number goes into an expression for the evaluator.
std::string valueText(double v) {
  return formatNumber(zeroTiny(v), "%.14g");
}

// An expression cut at its x's: substituting a value is then one concatenation,
// which matters at ten substitutions per point.
class XTemplate {
 public:
  // The whole substitution: blanks removed, exp protected, the first x's
  // neighbours checked.
  static XTemplate forSampling(const std::string& expression) {
    std::string text;
    text.reserve(expression.size());
    for (const char c : expression) {
      if (!isBlank(c)) text += c;
    }
    replaceAll(text, "exp", kExpGuard);
    XTemplate t;
    const std::size_t first = text.find('x');
    if (first == std::string::npos) {
      t.m_pieces.push_back(expression);
      return t;
    }
    if (!firstXStandsAlone(text, first)) {
      t.m_pieces.emplace_back();
      return t;
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
  static bool firstXStandsAlone(std::string_view text, std::size_t at) {
    if (text == "x") return true;
    if (at > 0) return std::string_view("-+*/(^").find(text[at - 1]) != std::string_view::npos;
    return at + 1 < text.size() && std::string_view("-+*/)^").find(text[at + 1]) != std::string_view::npos;
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
  // Against +1e-11, not -1e-11: an unchanged derivative counts as falling.
  if (change < kZeroTolerance) return -1;
  return 0;
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
    : m_translate(std::move(translate)), m_evaluate(std::move(evaluate)) {
  if (!m_evaluate) m_evaluate = Calculate;
}

std::string FunctionSampler::translate(const std::string& text) const {
  return m_translate ? m_translate(text) : text;
}

std::string FunctionSampler::substituteX(const std::string& expression, double value) {
  std::string out;
  XTemplate::forSampling(expression).fill(valueText(value), out);
  return out;
}

bool FunctionSampler::computeFunction(DataSet& set, const std::string& expression, double x0, double x1,
                                      int numPts, std::string& errorText) {
  set.clear();
  bool built = false;
  try {
    built = numPts >= 2 && set.makeGrid(x0, x1, static_cast<std::size_t>(numPts));
  } catch (const std::bad_alloc&) {
    set.clear();
  }
  if (!built) {
    errorText = "Point allocation error.";
    return false;
  }
  if (!sampleFunction(set, expression)) {
    errorText = translate("Invalid entry.");
    return false;
  }
  return true;
}

bool FunctionSampler::sampleFunction(DataSet& set, const std::string& expression) {
  // The reason for a failure is dropped on purpose: the user always hears
  // "Invalid entry.", whatever went wrong inside.
  bool ok = false;
  try {
    std::string error;
    if (set.count() < 2) {
      error = translate("Range error: Check plot settings.");
    } else {
      const XTemplate f = XTemplate::forSampling(expression);
      std::string text;
      ok = true;
      for (std::size_t i = 0; ok && i < set.count(); ++i) {
        f.fill(valueText(set.getX(i)), text);
        double y = 0.0;
        ok = m_evaluate(text, y, error);
        if (ok) set.setY(i, y);
      }
      ok = ok && computeDerivative(set, expression, error) && computeIntegral(set, expression, error);
    }
  } catch (const std::exception&) {
    ok = false;
  }
  if (!ok) {
    set.clear();
    m_lastError = translate("Invalid entry.");
  }
  return ok;
}

bool FunctionSampler::computeDerivative(DataSet& set, const std::string& expression, std::string& errorText) {
  const XTemplate f = XTemplate::forSampling(expression);
  std::string text;
  set.setTrend(0, 0);
  double previous = 0.0;
  for (std::size_t i = 0; i < set.count(); ++i) {
    const double x = set.getX(i);
    double below = 0.0;
    double above = 0.0;
    f.fill(valueText(x - kDerivativeStep), text);
    if (!m_evaluate(text, below, errorText)) return false;
    f.fill(valueText(x + kDerivativeStep), text);
    if (!m_evaluate(text, above, errorText)) return false;
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
  for (std::size_t i = 1; i < set.count(); ++i) {
    const double right = set.getX(i);
    const double left = set.getX(i - 1);
    const std::string h = formatNumber(zeroTiny((right - left) * 0.5), "%.15g");
    const std::string m = formatNumber(zeroTiny((right + left) * 0.5), "%.15g");
    // h * f(h * t + m) over t in [-1, 1], as text. The expression is not bracketed.
    std::string integrand = h + " * " + expression;
    replaceAll(integrand, "exp", kExpGuard);
    replaceAll(integrand, "x", "(" + h + " * x + " + m + ")");
    replaceAll(integrand, kExpGuard, "exp");
    const XTemplate g = XTemplate::plain(std::move(integrand));
    double sum = 0.0;
    for (std::size_t k = 0; k < kNodes.size(); ++k) {
      g.fill(nodes[k], text);
      double value = 0.0;
      if (!m_evaluate(text, value, errorText)) return false;
      sum += kWeights[k] * value;
    }
    integral += sum;
    set.setIntegral(i, integral);
  }
  return true;
}

}  // namespace sonalyx

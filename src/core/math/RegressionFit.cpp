#include "core/math/RegressionFit.h"

#include <cmath>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "core/math/FitModel.h"
#include "core/math/FitText.h"
#include "core/math/LogisticModel.h"
#include "core/math/PolynomialFit.h"
#include "core/math/SinusoidalModel.h"
#include "core/math/Statistics.h"
#include "core/math/StraightLineFit.h"
#include "core/speech/TranslationMarker.h"

namespace sonalyx {

namespace {

// Polynomial coefficients smaller than this are taken as 0.
constexpr double kPolynomialZeroBelow = 1e-9;
// The models that divide by x (b/x, ax/(b + x)) reject an x this close to 0.
constexpr double kSmallestDivisor = 1e-11;
// For y = a/(b + x) and y = ax/(b + x), whose transformed X mixes x and y.
constexpr char kModelCannotFit[] = SLX_TR("These points cannot be fitted by this model.");

class FitRun {
 public:
  FitRun(const DataSet& set, const FitTranslate& translate, FitResult& result)
      : m_points(set.points()), m_text(translate), m_result(result) {}

  void header(int model, std::size_t count) {
    m_result.lines.push_back(m_text.countLine(count));
    m_result.lines.emplace_back();
    m_result.lines.push_back(m_text.translate(SLX_TR("Regression analysis:")));
    m_result.lines.push_back(m_text.translate(std::string(fitModelTitle(model))));
    m_result.lines.emplace_back();
  }

  void message(const std::string& english) { m_result.lines.push_back(m_text.translate(english)); }

  void coefficient(char letter, double value) {
    m_result.lines.push_back(m_text.coefficientLine(letter, value));
    m_result.coefficients.push_back(FitText::zeroed(value));
  }

  // Models 1 and 5 to 10: a straight line through transformed pairs. `valid`
  // rejects a point, `transform` gives its (X, Y) and `coefficients` turns A and B
  // into the model's a and b. `noSpread` is the message for data whose X does not
  // spread, and for a flat Y when the model cannot take one (`takesFlatY`).
  template <typename Valid, typename Transform, typename Coefficients>
  void straightLine(int model, const char* invalidMessage, Valid valid, Transform transform,
                    Coefficients coefficients, bool takesFlatY = true,
                    const char* noSpread = SLX_TR("All x values are equal: no line can be fitted.")) {
    const std::size_t count = m_points.size();
    header(model, count);
    for (std::size_t i = 0; i < count; ++i) {
      if (!valid(m_points[i])) {
        message(invalidMessage);
        return;
      }
    }
    StraightLineFit fit;
    for (std::size_t i = 0; i < count; ++i) {
      const auto [x, y] = transform(m_points[i]);
      fit.add(x, y);
    }
    const StraightLineFit::Line line = fit.line();
    if (line.shape == StraightLineFit::Shape::NoSpreadX ||
        (line.shape == StraightLineFit::Shape::FlatY && !takesFlatY)) {
      message(noSpread);
      return;
    }
    const auto [a, b] = coefficients(line.intercept, line.slope);
    if (line.shape == StraightLineFit::Shape::FlatY) {
      // Every y alike: the line is flat and a correlation means nothing.
      m_result.lines.push_back("r: " + m_text.translate(SLX_TR("undefined")));
    } else {
      m_result.lines.push_back(m_text.coefficientLine('r', line.r));
    }
    coefficient('a', a);
    coefficient('b', b);
  }

  void polynomial(int degree) {
    const std::size_t count = m_points.size();
    header(degree, count);
    if (count < static_cast<std::size_t>(degree) + 1) {
      message(SLX_TR("Not enough points for fit."));
      return;
    }
    const std::optional<std::vector<double>> fitted = fitPolynomial(m_points, degree);
    if (!fitted || fitted->size() < static_cast<std::size_t>(degree) + 1) {
      message(SLX_TR("Invalid data set for polynomial fit."));
      return;
    }
    for (std::size_t k = fitted->size(); k-- > 0;) {
      double value = (*fitted)[k];
      if (std::fabs(value) < kPolynomialZeroBelow) value = 0.0;
      coefficient(static_cast<char>('a' + (fitted->size() - 1 - k)), value);
    }
  }

  // Models 11 and 12; a failure is the message alone, without the header.
  void nonlinear(int model, const NonlinearModel& fit, bool solved, const char* invalidMessage) {
    if (!solved) {
      message(invalidMessage);
      return;
    }
    header(model, m_points.size());
    for (std::size_t i = 0; i < fit.parameterCount(); ++i) {
      coefficient(static_cast<char>('a' + i), fit.parameter(i));
    }
  }

  void loadData(NonlinearModel& fit) const {
    std::vector<double> xs;
    std::vector<double> ys;
    xs.reserve(m_points.size());
    ys.reserve(m_points.size());
    for (const DataPoint& p : m_points) {
      xs.push_back(p.x);
      ys.push_back(p.y);
    }
    fit.setData(std::move(xs), std::move(ys));
  }

 private:
  const std::vector<DataPoint>& m_points;
  FitText m_text;
  FitResult& m_result;
};

using Pair = std::pair<double, double>;

}  // namespace

FitResult runFit(int model, const DataSet& set, const SineStartChooser& chooseSineB,
                 const FitTranslate& translate) {
  FitResult result;
  if (!set.hasData() || set.count() < 2) return result;
  result.ran = true;
  FitRun run(set, translate, result);
  const auto any = [](const DataPoint&) { return true; };
  const auto asIs = [](double a, double b) { return Pair{a, b}; };

  switch (model) {
    case kStatistics:
      result.lines = statisticsLines(set, translate);
      break;
    case kLinear:
      run.straightLine(
          model, "", any,
          [](const DataPoint& p) {
            return Pair{p.x, p.y};
          },
          asIs);
      break;
    case kQuadratic:
    case kCubic:
    case kQuartic:
      run.polynomial(model);
      break;
    case kExponential:
      run.straightLine(
          model, SLX_TR("Invalid data set.  Y values must be > 0."),
          [](const DataPoint& p) { return p.y > 0.0; },
          [](const DataPoint& p) {
            return Pair{p.x, std::log(p.y)};
          },
          [](double a, double b) {
            return Pair{std::exp(a), std::exp(b)};
          });
      break;
    case kLogarithmic:
      run.straightLine(
          model, SLX_TR("Invalid data set.  X values must be > 0."),
          [](const DataPoint& p) { return p.x > 0.0; },
          [](const DataPoint& p) {
            return Pair{std::log(p.x), p.y};
          },
          asIs);
      break;
    case kPower:
      run.straightLine(
          model, SLX_TR("Invalid data set.  X and Y values must be > 0."),
          [](const DataPoint& p) { return p.x > 0.0 && p.y > 0.0; },
          [](const DataPoint& p) {
            return Pair{std::log(p.x), std::log(p.y)};
          },
          [](double a, double b) {
            return Pair{std::exp(a), b};
          });
      break;
    case kHyperbolic:
      run.straightLine(
          model, SLX_TR("Invalid data set.  X values cannot = 0."),
          [](const DataPoint& p) { return !(std::fabs(p.x) < kSmallestDivisor); },
          [](const DataPoint& p) {
            return Pair{1.0 / p.x, p.y};
          },
          asIs);
      break;
    case kRational:
      run.straightLine(
          model, "", any,
          [](const DataPoint& p) {
            return Pair{p.x * p.y, p.y};
          },
          [](double a, double b) {
            const double denominator = -1.0 / b;
            return Pair{denominator * a, denominator};
          },
          false, kModelCannotFit);
      break;
    case kRationalX:
      run.straightLine(
          model, SLX_TR("Invalid data set.  X values cannot = 0."),
          [](const DataPoint& p) { return !(std::fabs(p.x) < kSmallestDivisor); },
          [](const DataPoint& p) {
            return Pair{p.y / p.x, p.y};
          },
          [](double a, double b) {
            return Pair{a, -b};
          },
          true, kModelCannotFit);
      break;
    case kLogistic: {
      LogisticModel fit;
      run.loadData(fit);
      fit.estimateStart();
      const bool solved = fit.solve();
      run.nonlinear(model, fit, solved, SLX_TR("Invalid data set for logistic fit."));
      break;
    }
    case kSinusoidal: {
      SinusoidalModel fit;
      run.loadData(fit);
      fit.estimateStart();
      const double estimated = fit.parameter(1);
      fit.setParameter(1, chooseSineB ? chooseSineB(estimated) : estimated);
      // a, c and d again, now for the b that will be used.
      fit.estimateStart();
      const bool solved = fit.solve();
      if (solved) fit.normalize();
      run.nonlinear(model, fit, solved, SLX_TR("Invalid data set for sinusoidal fit."));
      break;
    }
    default:
      break;
  }
  return result;
}

FitResult runFit(int model, const DataSet& set, double sineB, const FitTranslate& translate) {
  return runFit(
      model, set, [sineB](double) { return sineB; }, translate);
}

}  // namespace sonalyx

#include "core/graph/GraphScaling.h"

#include <cmath>
#include <utility>

#include "core/graph/GraphTicks.h"
#include "core/math/DataPoint.h"

namespace sonalyx {

namespace {

using Bounds = std::pair<double, double>;

constexpr double kAutoMargin = 0.05;

// The absent marker is finite, so it must be refused by name: a range reaching it
// would squeeze every real point onto one device unit.
bool isUsable(const Bounds& b) {
  const auto value = [](double v) { return std::isfinite(v) && std::fabs(v) < kAbsent; };
  return value(b.first) && value(b.second) && b.first <= b.second && std::isfinite(b.second - b.first);
}

Bounds widenedIfEmpty(Bounds b) {
  if (b.first != b.second) return b;
  double margin = 1.0;
  // Beyond 2^53 adding 1 changes nothing; keep the range from collapsing there too.
  if (b.first - margin == b.first) margin = std::fabs(b.first) * kAutoMargin;
  return {b.first - margin, b.second + margin};
}

Bounds autoScaled(const Bounds& extent, const Bounds& fallback) {
  if (!isUsable(extent)) return widenedIfEmpty(fallback);
  const double margin = (extent.second - extent.first) * kAutoMargin;
  return widenedIfEmpty({extent.first - margin, extent.second + margin});
}

}  // namespace

std::optional<GraphRange> dataExtent(const DataSet& set, bool polar) {
  if (set.count() == 0) return std::nullopt;
  const Bounds x = set.rangeX(polar);
  const Bounds y = set.rangeY(polar);
  GraphRange extent;
  extent.set(y.second, x.first, y.first, x.second);
  return extent;
}

GraphRange graphRange(const GraphRange& settingsRange, bool autoScaleX, bool autoScaleY,
                      const DataSet& current, bool polar) {
  const Bounds settingsX{settingsRange.left, settingsRange.right};
  const Bounds settingsY{settingsRange.bottom, settingsRange.top};
  Bounds x = widenedIfEmpty(settingsX);
  Bounds y = widenedIfEmpty(settingsY);
  if (autoScaleX || autoScaleY) {
    const auto extent = dataExtent(current, polar);
    const Bounds none{kAbsent, -kAbsent};
    if (autoScaleX) x = autoScaled(extent ? Bounds{extent->left, extent->right} : none, settingsX);
    if (autoScaleY) y = autoScaled(extent ? Bounds{extent->bottom, extent->top} : none, settingsY);
  }
  GraphRange range;
  range.set(y.second, x.first, y.first, x.second);
  return range;
}

double graphYLabelFactor(const GraphRange& drawn) {
  return yLabelFactor(drawn.bottom, drawn.top);
}

}  // namespace sonalyx

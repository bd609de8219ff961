#include "core/graph/GraphTicks.h"

#include <cmath>

#include "core/utility/NumberFormat.h"

namespace sonalyx {

namespace {

constexpr int kSteps = 8;
constexpr int kStepsEachSide = 7;
constexpr double kLogZero = 1e-11;

std::int32_t toInt32(std::int64_t v) {
  return static_cast<std::int32_t>(v);
}

// Ticks anchored on the other axis at device position `anchor`; `towardsLow` walks
// towards smaller device positions and `lowValueSign` is the sign of the values there
// (negative for x going left, positive for y going up).
std::vector<Tick> anchoredTicks(std::int64_t anchor, std::int64_t spacing, std::int64_t lowEdge,
                                std::int64_t highEdge, double step, double lowValueSign, double factor) {
  std::vector<Tick> ticks;
  ticks.push_back({toInt32(anchor), 0.0});
  for (int k = 1; k <= kStepsEachSide; ++k) {
    const std::int64_t position = anchor - k * spacing;
    if (position < lowEdge) break;
    ticks.push_back({toInt32(position), lowValueSign * k * step * factor});
  }
  for (int k = 1; k <= kStepsEachSide; ++k) {
    const std::int64_t position = anchor + k * spacing;
    if (position > highEdge) break;
    ticks.push_back({toInt32(position), -lowValueSign * k * step * factor});
  }
  return ticks;
}

}  // namespace

std::vector<Tick> xTicks(const GraphRange& range, const PlotRect& rect, std::optional<std::int32_t> yAxisAt) {
  const double step = (range.right - range.left) * 0.125;
  const std::int64_t spacing = rect.width / kSteps;
  if (yAxisAt) return anchoredTicks(*yAxisAt, spacing, rect.left, rect.right(), step, -1.0, 1.0);
  std::vector<Tick> ticks;
  std::int64_t position = rect.left;
  for (int k = 0; k <= kSteps; ++k) {
    ticks.push_back({toInt32(position), range.left + k * step});
    position += spacing;
  }
  return ticks;
}

std::vector<Tick> yTicks(const GraphRange& range, const PlotRect& rect, std::optional<std::int32_t> xAxisAt,
                         double labelFactor) {
  const double step = (range.top - range.bottom) * 0.125;
  const std::int64_t spacing = rect.height / kSteps;
  if (xAxisAt) return anchoredTicks(*xAxisAt, spacing, rect.top, rect.bottom(), step, 1.0, labelFactor);
  std::vector<Tick> ticks;
  std::int64_t position = rect.top;
  for (int k = 0; k <= kSteps; ++k) {
    ticks.push_back({toInt32(position), (range.top - k * step) * labelFactor});
    position += spacing;
  }
  return ticks;
}

std::vector<DeviceLine> xTickMarks(const std::vector<Tick>& ticks, const PlotRect& rect,
                                   std::uint32_t frameType) {
  std::vector<DeviceLine> marks;
  if (frameType != FrameTicks && frameType != FrameGrid) return marks;
  const std::int32_t bottom = toInt32(rect.bottom());
  for (const Tick& t : ticks) {
    if (frameType == FrameGrid) {
      marks.push_back({{t.position, rect.top}, {t.position, bottom}});
    } else {
      marks.push_back({{t.position, bottom}, {t.position, bottom - kTickMarkLength}});
    }
  }
  return marks;
}

std::vector<DeviceLine> yTickMarks(const std::vector<Tick>& ticks, const PlotRect& rect,
                                   std::uint32_t frameType) {
  std::vector<DeviceLine> marks;
  if (frameType != FrameTicks && frameType != FrameGrid) return marks;
  const std::int32_t to = frameType == FrameGrid ? toInt32(rect.right()) : rect.left + kTickMarkLength;
  for (const Tick& t : ticks) marks.push_back({{rect.left, t.position}, {to, t.position}});
  return marks;
}

double yLabelFactor(double yMin, double yMax) {
  const auto logOf = [](double v) { return std::fabs(v) < kLogZero ? 0.0 : std::log10(std::fabs(v)); };
  const double l1 = logOf(yMin);
  const double l2 = logOf(yMax);
  const double l = std::fabs(l2) > std::fabs(l1) ? l2 : l1;
  // An infinite or missing bound says nothing about the size of the labels.
  if (!std::isfinite(l) || std::fabs(l) <= 1.0) return 1.0;
  const double n = std::trunc(l - 0.5);
  return 1.0 / std::pow(10.0, n);
}

double yAxisMultiplier(double labelFactor) {
  // The factor is 10^-n; its reciprocal by division may miss 10^n by a unit in the
  // last place (1 / 1e-5 gives 99999.99999999999), so the power is taken again.
  return std::pow(10.0, std::round(-std::log10(labelFactor)));
}

std::string tickLabel(double value) {
  std::string text = formatNumber(value, "%.2f");
  // A value that rounds to nothing (a step sum missing 0 by 1e-17) is no negative number.
  if (text == "-0.00") text = "0.00";
  return text;
}

}  // namespace sonalyx

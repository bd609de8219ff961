#include "core/graph/GraphScene.h"

#include <cmath>
#include <utility>

#include "core/files/SelectedDataSet.h"
#include "core/graph/GraphMapping.h"
#include "core/graph/GraphScaling.h"
#include "core/graph/GraphTicks.h"
#include "core/settings/SettingsStore.h"
#include "core/utility/NumberFormat.h"

namespace sonalyx {

namespace {

using graph_colour::kBlack;
using graph_colour::kBlue;
using graph_colour::kCyan;
using graph_colour::kRed;
using graph_colour::kYellow;

// How far beyond the rectangle a clipped line still runs, so that a line leaving
// the plot is drawn up to its edge.
constexpr double kClipMargin = 2.0;
// Beyond this many device units in the rectangle, repeated points are only left
// out when they follow each other.
constexpr std::int64_t kMostTrackedPixels = std::int64_t{1} << 24;

struct Exact {
  double x;
  double y;
};

// The device position before rounding, on the mapping's own formula.
std::optional<Exact> exactDevice(PlanePoint p, const GraphRange& range, const PlotRect& rect) {
  const double spanX = range.right - range.left;
  const double spanY = range.top - range.bottom;
  if (!(spanX > 0.0) || !(spanY > 0.0) || !std::isfinite(spanX) || !std::isfinite(spanY)) return std::nullopt;
  const double x = rect.width * ((p.x - range.left) / spanX) + rect.left;
  const double y = rect.height - (rect.height * ((p.y - range.bottom) / spanY) - rect.top);
  if (!std::isfinite(x) || !std::isfinite(y)) return std::nullopt;
  return Exact{x, y};
}

DevicePoint rounded(Exact e, const PlotRect& rect) {
  // The clipped ends are near the rectangle, well inside 32 bits.
  return DevicePoint{static_cast<std::int32_t>(roundHalfDown(e.x)),
                     static_cast<std::int32_t>(rect.height - roundHalfDown(rect.height - e.y))};
}

// Liang-Barsky: the part of a to b inside the box, as fractions along it.
std::optional<std::pair<double, double>> clipFractions(Exact a, Exact b, double left, double top,
                                                       double right, double bottom) {
  double t0 = 0.0;
  double t1 = 1.0;
  const double dx = b.x - a.x;
  const double dy = b.y - a.y;
  const double p[4] = {-dx, dx, -dy, dy};
  const double q[4] = {a.x - left, right - a.x, a.y - top, bottom - a.y};
  for (int i = 0; i < 4; ++i) {
    if (p[i] == 0.0) {
      if (q[i] < 0.0) return std::nullopt;
      continue;
    }
    const double t = q[i] / p[i];
    if (p[i] < 0.0) {
      if (t > t1) return std::nullopt;
      if (t > t0) t0 = t;
    } else {
      if (t < t0) return std::nullopt;
      if (t < t1) t1 = t;
    }
  }
  return std::make_pair(t0, t1);
}

class LineBuilder {
 public:
  LineBuilder(const GraphRange& range, const PlotRect& rect, Rgb colour, std::vector<GraphPolyline>& out)
      : m_range(range), m_rect(rect), m_colour(colour), m_out(out) {}

  void add(std::optional<PlanePoint> world) {
    std::optional<Exact> here;
    if (world) here = exactDevice(*world, m_range, m_rect);
    if (here && m_last) segment(*m_last, *here, *world);
    if (!here) m_open = false;
    m_last = here;
    m_lastWorld = world;
  }

 private:
  void segment(Exact a, Exact b, PlanePoint bWorld) {
    const double left = m_rect.left - kClipMargin;
    const double top = m_rect.top - kClipMargin;
    const double right = static_cast<double>(m_rect.right()) + kClipMargin;
    const double bottom = static_cast<double>(m_rect.bottom()) + kClipMargin;
    const auto part = clipFractions(a, b, left, top, right, bottom);
    if (!part) {
      m_open = false;
      return;
    }
    const auto at = [&](double t) { return Exact{a.x + t * (b.x - a.x), a.y + t * (b.y - a.y)}; };
    const DevicePoint from =
        part->first == 0.0 ? *worldToDevice(*m_lastWorld, m_range, m_rect) : rounded(at(part->first), m_rect);
    const DevicePoint to =
        part->second == 1.0 ? *worldToDevice(bWorld, m_range, m_rect) : rounded(at(part->second), m_rect);
    if (!m_open || m_out.back().points.back() != from) {
      m_out.push_back(GraphPolyline{m_colour, {from}});
      m_open = true;
    }
    if (m_out.back().points.back() != to) m_out.back().points.push_back(to);
    // A line that leaves the box starts again where it comes back.
    if (part->second != 1.0) m_open = false;
  }

  const GraphRange& m_range;
  const PlotRect& m_rect;
  Rgb m_colour;
  std::vector<GraphPolyline>& m_out;
  std::optional<Exact> m_last;
  std::optional<PlanePoint> m_lastWorld;
  bool m_open = false;
};

void addLines(const DataSet& set, const GraphStyle& style, const GraphRange& range, const PlotRect& rect,
              Rgb colour, std::vector<GraphPolyline>& out) {
  LineBuilder builder(range, rect, colour, out);
  for (const DataPoint& p : set.points()) builder.add(plottedPoint(p, style.plotType, set.isPolar()));
}

void addDots(const DataSet& set, const GraphStyle& style, const GraphRange& range, const PlotRect& rect,
             Rgb colour, std::vector<GraphDots>& out) {
  GraphDots dots{colour, {}};
  const std::int64_t area = std::int64_t{rect.width} * rect.height;
  std::vector<bool> seen;
  if (area > 0 && area <= kMostTrackedPixels) seen.assign(static_cast<std::size_t>(area), false);
  for (const DataPoint& p : set.points()) {
    const auto world = plottedPoint(p, style.plotType, set.isPolar());
    if (!world) continue;
    const auto device = worldToDevice(*world, range, rect);
    // Strictly inside: a point on the frame is not drawn (its line is).
    if (!device || device->x <= rect.left || device->x >= rect.right() || device->y <= rect.top ||
        device->y >= rect.bottom())
      continue;
    if (!seen.empty()) {
      const auto cell =
          static_cast<std::size_t>(std::int64_t{device->y - rect.top} * rect.width + (device->x - rect.left));
      if (seen[cell]) continue;
      seen[cell] = true;
    } else if (!dots.centres.empty() && dots.centres.back() == *device) {
      continue;
    }
    dots.centres.push_back(*device);
  }
  if (!dots.centres.empty()) out.push_back(std::move(dots));
}

}  // namespace

GraphStyle graphStyleFromSettings(const SettingsStore& store) {
  GraphStyle style;
  style.setType = store.GetSetType();
  style.plotType = store.GetPlotType();
  style.showPoints = store.GetShowPts();
  style.showLine = store.GetShowLine();
  style.showXAxis = store.GetShowXAxis();
  style.showYAxis = store.GetShowYAxis();
  style.showXLabels = store.GetShowXLabels();
  style.showYLabels = store.GetShowYLabels();
  style.frameType = store.GetFrameType();
  style.settingsRange = store.GetGraphRange();
  style.autoScaleX = store.GetAutoScaleX();
  style.autoScaleY = store.GetAutoScaleY();
  return style;
}

std::optional<PlanePoint> plottedPoint(const DataPoint& point, std::uint32_t plotType, bool polar) {
  PlanePoint p;
  switch (plotType) {
    case 0:
      p = polar ? PlanePoint{point.cartX, point.cartY} : PlanePoint{point.x, point.y};
      break;
    case 1:
      p = {point.x, point.derivative};
      break;
    case 2:
      p = {point.x, point.integral};
      break;
    default:
      return std::nullopt;
  }
  if (p.x == kAbsent || p.y == kAbsent || !std::isfinite(p.x) || !std::isfinite(p.y)) return std::nullopt;
  return p;
}

std::optional<std::size_t> pointNearestX(const DataSet& set, double x) {
  const std::size_t n = set.count();
  if (n == 0) return std::nullopt;
  const bool polar = set.isPolar();
  const auto xAt = [&](std::size_t i) { return polar ? set.at(i).cartX : set.at(i).x; };
  for (std::size_t i = 0; i + 1 < n; ++i) {
    const double next = xAt(i + 1);
    if (next < x) continue;
    return next - x <= x - xAt(i) ? i + 1 : i;
  }
  return n - 1;
}

void placeCursor(GraphScene& scene, const DataSet& source, std::uint32_t plotType, std::int32_t cursor) {
  scene.cursor.reset();
  if (scene.empty || cursor < 0 || static_cast<std::size_t>(cursor) >= source.count()) return;
  const auto world = plottedPoint(source.at(static_cast<std::size_t>(cursor)), plotType, source.isPolar());
  if (!world) return;
  const auto device = worldToDevice(*world, scene.range, scene.rect);
  const PlotRect& rect = scene.rect;
  if (device && device->x >= rect.left - kCursorRingDiameter &&
      device->x <= rect.right() + kCursorRingDiameter && device->y >= rect.top - kCursorRingDiameter &&
      device->y <= rect.bottom() + kCursorRingDiameter)
    scene.cursor = device;
}

GraphScene buildGraphScene(const std::array<DataSet, 4>& slots, const GraphStyle& style, const PlotRect& rect,
                           std::int32_t cursor) {
  GraphScene scene;
  scene.rect = rect;
  const std::size_t selected = selectedSlot(style.setType);
  const DataSet& source = slots[selected];
  if (!source.hasData() || rect.width <= 0 || rect.height <= 0) return scene;
  scene.empty = false;
  scene.range = graphRange(style.settingsRange, style.autoScaleX, style.autoScaleY, source, source.isPolar());
  scene.yLabelFactor = graphYLabelFactor(scene.range);

  const auto yAxisAt = yAxisPosition(scene.range, rect);
  const auto xAxisAt = xAxisPosition(scene.range, rect);
  const auto right = static_cast<std::int32_t>(rect.right());
  const auto bottom = static_cast<std::int32_t>(rect.bottom());
  if (style.showXAxis && xAxisAt) scene.axes.push_back({{rect.left, *xAxisAt}, {right, *xAxisAt}});
  if (style.showYAxis && yAxisAt) scene.axes.push_back({{*yAxisAt, rect.top}, {*yAxisAt, bottom}});
  const std::vector<Tick> xs = xTicks(scene.range, rect, yAxisAt);
  const std::vector<Tick> ys = yTicks(scene.range, rect, xAxisAt, scene.yLabelFactor);
  scene.marks = xTickMarks(xs, rect, style.frameType);
  for (const DeviceLine& mark : yTickMarks(ys, rect, style.frameType)) scene.marks.push_back(mark);
  if (style.showXLabels)
    for (const Tick& tick : xs)
      scene.xLabels.push_back(
          {{tick.position, bottom}, withDecimalSign(tickLabel(tick.value), style.decimalSign)});
  if (style.showYLabels)
    for (const Tick& tick : ys)
      scene.yLabels.push_back(
          {{rect.left, tick.position}, withDecimalSign(tickLabel(tick.value), style.decimalSign)});

  // Data sets 1 and 2 are drawn together, the one not played in yellow; the sum
  // and the difference alone.
  struct Drawn {
    std::size_t slot;
    Rgb line;
    Rgb dot;
  };
  std::vector<Drawn> drawn;
  if (selected == DataSet::Sum) {
    drawn.push_back({DataSet::Sum, kBlack, kCyan});
  } else if (selected == DataSet::Difference) {
    drawn.push_back({DataSet::Difference, kBlack, kBlue});
  } else {
    const bool pair = style.setType <= 1;
    for (const std::size_t slot : {std::size_t{0}, std::size_t{1}}) {
      const bool other = pair && slot != selected;
      drawn.push_back({slot, other ? kYellow : kBlack, other ? kYellow : kRed});
    }
  }
  for (const Drawn& d : drawn)
    if (style.showLine && slots[d.slot].hasData())
      addLines(slots[d.slot], style, scene.range, rect, d.line, scene.lines);
  for (const Drawn& d : drawn)
    if (style.showPoints && slots[d.slot].hasData())
      addDots(slots[d.slot], style, scene.range, rect, d.dot, scene.dots);

  placeCursor(scene, source, style.plotType, cursor);
  return scene;
}

}  // namespace sonalyx

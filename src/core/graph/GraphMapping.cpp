#include "core/graph/GraphMapping.h"

#include <cmath>
#include <limits>
#include <stdexcept>

namespace sonalyx {

namespace {

bool isUsableSpan(double span) {
  return span > 0.0 && std::isfinite(span);
}

std::int32_t toDevice(double v) {
  if (v < -kDeviceLimit) return -kDeviceLimit;
  if (v > kDeviceLimit) return kDeviceLimit;
  return static_cast<std::int32_t>(v);
}

// Both device coordinates are computed here so that the axis positions and the
// point mapping cannot drift apart.
std::optional<double> deviceX(double x, const GraphRange& range, const PlotRect& rect) {
  const double span = range.right - range.left;
  if (!isUsableSpan(span)) return std::nullopt;
  const double fx = (x - range.left) / span;
  const double px = roundHalfDown(rect.width * fx + rect.left);
  if (std::isnan(px)) return std::nullopt;
  return px;
}

std::optional<double> deviceY(double y, const GraphRange& range, const PlotRect& rect) {
  const double span = range.top - range.bottom;
  if (!isUsableSpan(span)) return std::nullopt;
  const double fy = (y - range.bottom) / span;
  const double py = rect.height - roundHalfDown(rect.height * fy - rect.top);
  if (std::isnan(py)) return std::nullopt;
  return py;
}

std::int32_t checkedInt32(double v) {
  if (!(v >= std::numeric_limits<std::int32_t>::min() && v <= std::numeric_limits<std::int32_t>::max())) {
    throw std::invalid_argument("The print size is too large for the printer.");
  }
  return static_cast<std::int32_t>(v);
}

}  // namespace

double roundHalfDown(double v) {
  const double down = std::floor(v);
  const double up = std::ceil(v);
  return (v - down > up - v) ? up : down;
}

std::optional<DevicePoint> worldToDevice(PlanePoint world, const GraphRange& range, const PlotRect& rect) {
  const auto px = deviceX(world.x, range, rect);
  const auto py = deviceY(world.y, range, rect);
  if (!px || !py) return std::nullopt;
  return DevicePoint{toDevice(*px), toDevice(*py)};
}

std::optional<PlanePoint> deviceToWorld(DevicePoint device, const GraphRange& range, const PlotRect& rect) {
  const double spanX = range.right - range.left;
  const double spanY = range.top - range.bottom;
  if (!isUsableSpan(spanX) || !isUsableSpan(spanY) || rect.width <= 0 || rect.height <= 0) {
    return std::nullopt;
  }
  const double fx = (static_cast<double>(device.x) - rect.left) / rect.width;
  const double fy = (static_cast<double>(rect.height) + rect.top - device.y) / rect.height;
  return PlanePoint{range.left + fx * spanX, range.bottom + fy * spanY};
}

std::optional<std::int32_t> yAxisPosition(const GraphRange& range, const PlotRect& rect) {
  if (!(range.left <= 0.0 && 0.0 <= range.right)) return std::nullopt;
  const auto px = deviceX(0.0, range, rect);
  if (!px) return std::nullopt;
  return toDevice(*px);
}

std::optional<std::int32_t> xAxisPosition(const GraphRange& range, const PlotRect& rect) {
  if (!(range.bottom <= 0.0 && 0.0 <= range.top)) return std::nullopt;
  const auto py = deviceY(0.0, range, rect);
  if (!py) return std::nullopt;
  return toDevice(*py);
}

float acceptedZoom(float requested) {
  // Compared in single precision, so that 0.01 itself (as near as a float holds it)
  // is accepted.
  if (!std::isfinite(requested) || requested < 0.01f) return 1.0f;
  return requested;
}

PlotRect printLayout(std::int32_t extentX, std::int32_t extentY, double widthInches, double heightInches,
                     double pageWidthInches, double pageHeightInches) {
  const auto positive = [](double v) { return v > 0.0 && std::isfinite(v); };
  if (extentX <= 0 || extentY <= 0 || !positive(pageWidthInches) || !positive(pageHeightInches)) {
    throw std::invalid_argument("The page has no printable area.");
  }
  if (!positive(widthInches) || !positive(heightInches)) {
    throw std::invalid_argument("The print width and height must be greater than zero.");
  }
  const std::int32_t w = checkedInt32(std::trunc(extentX * widthInches / pageWidthInches));
  const std::int32_t h = checkedInt32(std::trunc(extentY * heightInches / pageHeightInches));
  const std::int64_t labelRoom = static_cast<std::int64_t>(std::trunc(w * 0.1));
  PlotRect rect;
  // Integer halves truncate, as the page's centre does.
  rect.left = checkedInt32(static_cast<double>(std::int64_t{extentX} / 2 + labelRoom - w / 2));
  rect.top = extentY / 2 - h / 2;
  rect.width = checkedInt32(static_cast<double>(w - labelRoom));
  rect.height = h;
  return rect;
}

double printUnitsPerMillimetre(std::int32_t extentX, double pageWidthInches) {
  if (!(pageWidthInches > 0.0 && std::isfinite(pageWidthInches))) {
    throw std::invalid_argument("The page has no printable area.");
  }
  return extentX / (pageWidthInches * 25.4);
}

}  // namespace sonalyx

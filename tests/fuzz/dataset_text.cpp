// Data-set text, as files and the clipboard give it: the reader must either refuse
// it with a DataSetTextError or read points that the writer writes back to text the
// reader reads again as the same number of points with the same values to 10
// significant digits (NaN and infinities by kind).

#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <sstream>
#include <string>
#include <vector>

#include "core/files/DataSetFile.h"

namespace {

bool sameTo10Digits(double a, double b) {
  if (std::isnan(a) || std::isnan(b)) return std::isnan(a) && std::isnan(b);
  if (std::isinf(a) || std::isinf(b)) return a == b;
  // The writer keeps 10 significant digits; a value may also round up to infinity.
  return std::fabs(a - b) <= std::fabs(a) * 1e-9 + 1e-300;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string text(reinterpret_cast<const char*>(data), size);
  std::vector<sonalyx::DataPoint> points;
  try {
    points = sonalyx::readDataSetText(text);
  } catch (const sonalyx::DataSetTextError&) {
    return 0;
  }
  if (points.empty()) std::abort();  // text without points must be refused
  sonalyx::DataSet set;
  set.assign(points);
  std::ostringstream written;
  sonalyx::writeDataSet(written, set);
  const std::vector<sonalyx::DataPoint> again = sonalyx::readDataSetText(written.str());
  if (again.size() != points.size()) std::abort();
  for (std::size_t i = 0; i < points.size(); ++i) {
    const bool overflowed = std::isinf(again[i].x) || std::isinf(again[i].y);
    if (overflowed) continue;  // 1.7976931349e+308 written from the largest double
    if (!sameTo10Digits(points[i].x, again[i].x) || !sameTo10Digits(points[i].y, again[i].y)) std::abort();
  }
  return 0;
}

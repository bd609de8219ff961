#include "core/files/ClipboardText.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

namespace sonalyx {
namespace {

DataSet setOf(const std::vector<std::pair<double, double>>& xy) {
  DataSet s;
  for (const auto& [x, y] : xy) s.append(DataPoint{x, y});
  return s;
}

TEST(ClipboardText, OneTabSeparatedLinePerPoint) {
  struct Case {
    const char* name;
    std::vector<std::pair<double, double>> points;
    const char* text;
  };
  const Case cases[] = {
      {"two points", {{0.1, -3}, {2, 4}}, "0.1\t-3\r\n2\t4\r\n"},
      {"empty set", {}, ""},
      {"three-digit exponents", {{1e-7, 123456789012.0}}, "1e-007\t1.23456789e+011\r\n"},
      {"ten digits, no padding", {{3.14159265358979, -1234567890.4}}, "3.141592654\t-1234567890\r\n"},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    EXPECT_EQ(clipboardText(setOf(c.points)), c.text);
  }
}

}  // namespace
}  // namespace sonalyx

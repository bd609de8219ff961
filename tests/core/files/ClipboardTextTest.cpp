#include "core/files/ClipboardText.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include "core/utility/DecimalText.h"
#include "support/NumericCompare.h"

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
      {"order kept", {{5, 1}, {-5, 2}, {0, 3}}, "5\t1\r\n-5\t2\r\n0\t3\r\n"},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    EXPECT_EQ(clipboardText(setOf(c.points)), c.text);
  }
}

// What another program pasting the text would read back.
std::vector<std::pair<double, double>> parseTable(const std::string& text) {
  std::vector<std::pair<double, double>> rows;
  std::size_t start = 0;
  while (start < text.size()) {
    const std::size_t end = text.find("\r\n", start);
    if (end == std::string::npos) {
      ADD_FAILURE() << "line without CR LF at " << start;
      break;
    }
    const std::string line = text.substr(start, end - start);
    const std::size_t tab = line.find('\t');
    if (tab == std::string::npos || line.find('\t', tab + 1) != std::string::npos) {
      ADD_FAILURE() << "not two columns: " << line;
      break;
    }
    std::size_t usedX = 0, usedY = 0;
    const double x = decimalToDouble(line.substr(0, tab), &usedX);
    const double y = decimalToDouble(line.substr(tab + 1), &usedY);
    EXPECT_EQ(usedX, tab) << line;
    EXPECT_EQ(usedY, line.size() - tab - 1) << line;
    rows.emplace_back(x, y);
    start = end + 2;
  }
  return rows;
}

TEST(ClipboardText, ReadsBackToTenDigits) {
  std::mt19937_64 random(20240611);
  std::uniform_real_distribution<double> mantissa(1.0, 10.0);
  std::uniform_int_distribution<int> exponent(-300, 300);
  std::vector<std::pair<double, double>> points = {{1e-7, 1e300}, {-1e300, -1e-7}, {0.0, -0.0}};
  auto value = [&] {
    const double sign = random() % 2 == 0 ? 1.0 : -1.0;
    return sign * mantissa(random) * std::pow(10.0, exponent(random));
  };
  for (int i = 0; i < 500; ++i) points.emplace_back(value(), value());
  const auto rows = parseTable(clipboardText(setOf(points)));
  ASSERT_EQ(rows.size(), points.size());
  for (std::size_t i = 0; i < rows.size(); ++i) {
    EXPECT_TRUE(test::agreesTo(rows[i].first, points[i].first, 10)) << "x of " << i;
    EXPECT_TRUE(test::agreesTo(rows[i].second, points[i].second, 10)) << "y of " << i;
  }
}

}  // namespace
}  // namespace sonalyx

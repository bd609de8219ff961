#include "core/utility/NumberFormat.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <stdexcept>

namespace sonalyx {
namespace {

struct FormatCase {
  double value;
  const char* conversion;
  const char* expected;
};

TEST(NumberFormat, WritesTheConversionsTheProgramUses) {
  const double inf = std::numeric_limits<double>::infinity();
  const FormatCase cases[] = {
      {1e-7, "%.10g", "1e-007"},
      {123456789012.0, "%.10g", "1.23456789e+011"},
      {1.5e300, "%.10g", "1.5e+300"},
      {-2.5, "%-10.10g", "-2.5      "},
      {3.14159265358979, "%10.10g", "3.141592654"},
      {1e-7, "%10.10g", "    1e-007"},
      {2.0 / 3.0, "%.14g", "0.66666666666667"},
      {0.0, "%g", "0"},
      {7.0, "%05.1f", "007.0"},
      {-7.0, "%06.1f", "-007.0"},
      {inf, "%.10g", "Infinity"},
      {-inf, "%.10g", "-Infinity"},
      {std::nan(""), "%10.10g", "     Error"},
      {-inf, "%-10.10g", "-Infinity "},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(formatNumber(c.value, c.conversion), c.expected) << c.conversion << " of " << c.value;
  }
  // 301 digits, longer than the first buffer.
  EXPECT_EQ(formatNumber(1e300, "%.2f").size(), 304u);
}

TEST(NumberFormat, FormatGIsThePrecisionShorthand) {
  EXPECT_EQ(formatG(3.14159265, 5), "3.1416");
  EXPECT_EQ(formatG(1e-12, 3), "1e-012");
}

TEST(NumberFormat, RejectsConversionsItDoesNotKnow) {
  for (const char* bad : {"", "%", "%d", "%.10gx", "10g", "%s", "%.10l"}) {
    EXPECT_THROW(formatNumber(1.0, bad), std::invalid_argument) << bad;
  }
}

}  // namespace
}  // namespace sonalyx

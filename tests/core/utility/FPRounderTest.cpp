#include "core/utility/FPRounder.h"

#include <gtest/gtest.h>

#include <cstdint>

namespace sonalyx {
namespace {

TEST(FPRounder, RoundsEachFractionCorrectly) {
  const struct {
    const char* text;
    std::uint16_t digits;
    const char* expected;
  } cases[] = {
      {"x = 1.23456, y = -0.5", 3, "x = 1.235, y = -0.5"},
      {"3.969", 2, "3.97"},
      // The carry runs into the whole part, across nines and past the first digit.
      {"2.9996", 3, "3.000"},
      {"0.99996", 4, "1.0000"},
      {"3.96", 1, "4.0"},
      {"-99.96", 1, "-100.0"},
      {".96", 1, "1.0"},
      // Halves go away from zero, decided on the written digits.
      {"0.125", 2, "0.13"},
      {"2.675", 2, "2.68"},
      // No more digits than asked for: left alone, not padded.
      {"0.12", 2, "0.12"},
      // No decimals: the separator goes too.
      {"3.5", 0, "4"},
      {".4", 0, "0"},
      {"0.123456 and 5.123456", 2, "0.12 and 5.12"},
      {"Total 5.", 0, "Total 5."},
      {"1.23456e-007", 2, "1.23e-007"},
      {"1..56", 1, "1..6"},
      // Text around the numbers keeps its bytes, UTF-8 included.
      {"\xcf\x80 \xe2\x89\x88 3.14159265", 4, "\xcf\x80 \xe2\x89\x88 3.1416"},
      {"0.333333333", 65535, "0.333333333"},
      {"0.99999999999999999999999", 2, "1.00"},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(FPRounder::round(c.text, c.digits), c.expected) << '"' << c.text << "\" with " << c.digits;
  }
}

}  // namespace
}  // namespace sonalyx

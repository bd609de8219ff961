#include "core/utility/FPRounder.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <locale>

namespace sonalyx {
namespace {

struct RoundCase {
  const char* text;
  std::uint16_t digits;
  const char* expected;
};

TEST(FPRounder, RewritesEachFractionToTheChosenDecimals) {
  const RoundCase cases[] = {
      {"x = 1.23456, y = -0.5", 3, "x = 1.235, y = -0.5"},
      // One decimal truncates, two or more round.
      {"3.96", 1, "3.9"},
      {"3.969", 2, "3.97"},
      // A fraction that rounds up to a whole unit does not carry.
      {"2.9996", 3, "2.000"},
      // No more digits than asked for: left alone, not padded.
      {"0.12", 2, "0.12"},
      // No decimals: the whole fraction and its separator go.
      {"3.5", 0, "3"},
      {".5", 0, ""},
      // Equal fractions: each replaces the first occurrence still unchanged.
      {"0.123456 and 5.123456", 2, "0.12 and 5.12"},
      // Separators without digits, and texts without separators.
      {"Total 5.", 0, "Total 5."},
      {"no numbers here", 2, "no numbers here"},
      // Whole numbers and exponents are not numbers to it; only fractions count.
      {"1.23456e-007", 2, "1.23e-007"},
      {"Version 1.2.3", 0, "Version 1"},
      // The scan resumes two characters after a separator, so the fraction right
      // after a lone one is skipped...
      {"1..56", 1, "1..56"},
      // ...and a later equal fraction's replacement lands on the first occurrence.
      {"1..56 and 2.56", 1, "1..5 and 2.56"},
      // Text around the numbers keeps its bytes, UTF-8 included.
      {"\xcf\x80 \xe2\x89\x88 3.14159265", 4, "\xcf\x80 \xe2\x89\x88 3.1416"},
      // More digits than any fraction has.
      {"0.333333333", 65535, "0.333333333"},
      // Long fractions still round from their leading digits.
      {"0.99999999999999999999999", 2, "0.00"},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(FPRounder::round(c.text, c.digits), c.expected) << '"' << c.text << "\" with " << c.digits;
  }
}

// A user locale with a decimal comma, as a German or French desktop has it.
class CommaDecimals : public std::numpunct<char> {
 protected:
  char do_decimal_point() const override { return ','; }
  std::string do_grouping() const override { return "\3"; }
  char do_thousands_sep() const override { return '.'; }
};

class GlobalLocaleGuard {
 public:
  explicit GlobalLocaleGuard(const std::locale& replacement) : m_previous(std::locale::global(replacement)) {}
  ~GlobalLocaleGuard() { std::locale::global(m_previous); }

 private:
  std::locale m_previous;
};

TEST(FPRounder, IgnoresTheUserLocale) {
  const GlobalLocaleGuard guard(std::locale(std::locale::classic(), new CommaDecimals));
  EXPECT_EQ(FPRounder::round("x = 12.3456789", 4), "x = 12.3457");
}

}  // namespace
}  // namespace sonalyx

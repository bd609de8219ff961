#include "core/speech/CoordinatePhrase.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>

#include "core/math/FitText.h"
#include "core/pages/PrintSetupForm.h"
#include "core/speech/Catalogue.h"

namespace sonalyx {
namespace {

TEST(CoordinatePhrase, SpeaksEachValueWithTheChosenDecimals) {
  const double inf = std::numeric_limits<double>::infinity();
  const struct {
    double x;
    double y;
    int numDec;
    const char* expected;
  } cases[] = {
      {3.14159265, -2.0, 5, "x = 3.14159, y = -2"},
      {123.4, 0.05, 1, "x = 123.4, y = 0.1"},
      {2.0, 0.333333, 3, "x = 2, y = 0.333"},
      {0.0, -4.0, 5, "x = 0, y = -4"},
      {2.5, -2.5, 0, "x = 3, y = -3"},
      {-0.0, 1.0 / 3.0, 99, "x = 0, y = 0.333333333333333"},
      // Too small for the decimals: as many significant digits instead.
      {0.0000123456, -0.004, 3, "x = 0.0000123, y = -0.004"},
      {0.0004, 0.3, 0, "x = 0.0004, y = 0.3"},
      // Beyond 1e15 and below 1e-15 a power of ten, in words.
      {1.5e20, -2.5e-16, 5, "x = 1.5 times ten to the 20, y = -2.5 times ten to the minus 16"},
      {9.9996e15, 1e15, 3, "x = 1 times ten to the 16, y = 1 times ten to the 15"},
      {999999999999999.0, 1e-15, 2, "x = 999999999999999, y = 0.000000000000001"},
      {std::nan(""), inf, 5, "x = Error, y = Infinity"},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(coordinatePhrase(c.x, c.y, c.numDec), c.expected) << c.x << ", " << c.y << " with " << c.numDec;
  }
}

TEST(CoordinatePhrase, TranslatesThePowerOfTenWords) {
  const auto french = [](const std::string& text) {
    return text == "times ten to the" ? "fois dix puissance" : text == "minus" ? "moins" : text;
  };
  EXPECT_EQ(spokenValue(-1.5e-20, 5, french), "-1.5 fois dix puissance moins 20");
}

// What is written for a person takes the language's decimal sign, from the
// translator every phrase builder is given; what it means stays the same.
TEST(CoordinatePhrase, NumbersForAPersonTakeTheLanguagesDecimalSign) {
  const struct {
    const char* locale;  // of the language file; none for English
    const char* coordinate;
    const char* fitLine;
    const char* sizeLine;
  } cases[] = {
      {nullptr, "x = -2.5, y = 1.5 times ten to the minus 20", "Mean value of x: 0.125", "8.5 x 11.0 inches"},
      {"sv_SE", "x = -2,5, y = 1,5 times ten to the minus 20", "Mean value of x: 0,125", "8,5 x 11,0 inches"},
      {"fr_FR", "x = -2,5, y = 1,5 times ten to the minus 20", "Mean value of x: 0,125", "8,5 x 11,0 inches"},
      {"de_DE", "x = -2,5, y = 1,5 times ten to the minus 20", "Mean value of x: 0,125", "8,5 x 11,0 inches"},
      {"es_ES", "x = -2,5, y = 1,5 times ten to the minus 20", "Mean value of x: 0,125", "8,5 x 11,0 inches"},
  };
  for (const auto& c : cases) {
    const Catalogue catalogue =
        c.locale
            ? Catalogue::fromTsText(std::string("<TS version=\"2.1\" language=\"") + c.locale + "\"></TS>")
            : Catalogue();
    const Translator translate = catalogue.translator();
    EXPECT_EQ(coordinatePhrase(-2.5, 1.5e-20, 5, translate), c.coordinate) << c.locale;
    EXPECT_EQ(FitText(translate).valueLine("Mean value of x:", 0.125), c.fitLine) << c.locale;
    EXPECT_EQ(PrintSetupForm::sizeLine(translate, 8.5, 11.0), c.sizeLine) << c.locale;
    // Whole numbers and the words for a failed value have no decimal sign.
    EXPECT_EQ(coordinatePhrase(3.0, std::nan(""), 2, translate), "x = 3, y = Error") << c.locale;
  }
}

}  // namespace
}  // namespace sonalyx

#include "core/engines/CalcKeyPress.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <string>

namespace sonalyx {
namespace {

// Presses keys by command id and returns the display.
std::string pressAll(CCalcEngine& engine, std::initializer_list<int> ids) {
  for (const int id : ids) pressCalcKey(engine, id);
  return engine.displayText;
}

constexpr int kDigit0 = 1120;
constexpr int kPlus = 1133;
constexpr int kEquals = 1134;

TEST(CalcKeyPress, KeysCallTheEngine) {
  struct Case {
    std::initializer_list<int> ids;
    const char* display;
  };
  const Case cases[] = {
      {{1127, 1131, 1122, kPlus, 1124, kEquals}, "18"},              // 7 x 2 + 4 =
      {{1129, 1130, 1124, 1132, 1121, kEquals}, "1.25"},             // 9 ÷ 4 - 1 =
      {{1137, 1122, kPlus, 1123, 1138, 1116, 1122, kEquals}, "25"},  // (2+3) x^y 2 =
      {{1122, 1136, 1125, 1135}, "-2.5"},                            // 2 . 5 +/-
      {{1122, 1092, 1123, kEquals}, "2000"},                         // 2 EE 3 =
      {{1122, 1123, 1093}, "2"},                                     // backspace
      {{1122, kPlus, 1123, 1094, 1125, kEquals}, "7"},               // CE
      {{1122, kPlus, 1123, 1095}, "0"},                              // C
      {{1139}, "3.14159265358979"},                                  // π
      {{1121, 1122, 1102, 1121, 1120, kEquals}, "8"},                // 12 and 10
      {{1121, 1122, 1103, 1123, kEquals}, "15"},                     // 12 or 3
      {{1121, 1122, 1104, 1121, 1120, kEquals}, "6"},                // 12 xor 10
      {{1127, 1106, 1124, kEquals}, "3"},                            // 7 mod 4
      {{1125, 1105}, "-6"},                                          // not
      {{1125, 1107}, "10"},                                          // lsh
      {{1123, 1120, 1108}, "0.5"},                                   // sin 30
      {{1126, 1120, 1109}, "0.5"},                                   // cos 60
      {{1124, 1125, 1110}, "1"},                                     // tan 45
      {{1120, 1111}, "1"},                                           // e^x
      {{1121, 1112}, "0"},                                           // ln
      {{1121, 1120, 1120, 1113}, "2"},                               // log
      {{1123, 1114}, "9"},                                           // X²
      {{1123, 1115}, "27"},                                          // X³
      {{1122, 1125, 1117}, "5"},                                     // sqrt
      {{1124, 1118}, "0.25"},                                        // 1/x
      {{1124, 1119}, "24"},                                          // n!
      {{1122, 1123, 1091}, "2.3e+001"},                              // F-E
      {{1125, 1140, 1095, 1143}, "5"},                               // MS C MR
      {{1125, 1140, 1122, 1141, 1172}, "7"},                         // MS, M+, recall shortcut
      {{1125, 1140, 1142, 1143}, "0"},                               // MC
      {{1147, 1129, 1114}, "3"},                                     // Inverse command, then X²
      {{1146, 1121, 1109}, "1.54308063481524"},                      // Hyperbolic command: cosh 1
      {{1147, 1147, 1129, 1114}, "81"},                              // toggled back off
  };
  for (const auto& c : cases) {
    CCalcEngine engine;
    std::string ids;
    for (const int id : c.ids) ids += std::to_string(id) + " ";
    EXPECT_EQ(pressAll(engine, c.ids), c.display) << "ids: " << ids;
  }
}

TEST(CalcKeyPress, RightShiftIsInverseLeftShiftAndChecksInverseBack) {
  CCalcEngine engine;
  EXPECT_EQ(pressAll(engine, {1128, 1169}), "4");
  EXPECT_FALSE(engine.inverse);
  // With Inverse ticked, right shift becomes a left shift.
  engine.inverse = true;
  EXPECT_EQ(pressAll(engine, {1169}), "8");
  EXPECT_FALSE(engine.inverse);
}

TEST(CalcKeyPress, ReportsWhatThePageDoesAfterwards) {
  struct Case {
    int id;
    bool unary;
    bool speak;
  };
  // Results are said: "=", functions, memory recall, the notation switched.
  const Case cases[] = {
      {1108, true, true},   {1105, true, true},      {1107, true, true},   {1169, true, true},
      {1116, true, false},  {1119, true, true},      {1114, true, true},   {kPlus, false, false},
      {1137, false, false}, {1135, false, false},    {1143, false, true},  {1172, false, true},
      {1140, false, false}, {kDigit0, false, false}, {1095, false, false}, {kEquals, false, true},
      {1091, false, true},
  };
  for (const auto& c : cases) {
    CCalcEngine engine;
    const CalcKeyPress press = pressCalcKey(engine, c.id);
    EXPECT_TRUE(press.performed) << c.id;
    EXPECT_EQ(press.unary, c.unary) << c.id;
    EXPECT_EQ(press.speakDisplay, c.speak) << c.id;
  }
  // An error is said by every key that leaves it on the display.
  CCalcEngine engine;
  pressAll(engine, {1121, 1130, kDigit0, kEquals});
  for (const int id : {kPlus, 1140, 1093}) EXPECT_TRUE(pressCalcKey(engine, id).speakDisplay) << id;
  EXPECT_FALSE(pressCalcKey(engine, 1122).speakDisplay);
}

TEST(CalcKeyPress, DigitsTheBaseLacks) {
  CCalcEngine engine;
  engine.SetNumberBaseState(2);
  pressAll(engine, {1121});
  // 5 in binary is ignored entirely: not performed at all.
  const CalcKeyPress five = pressCalcKey(engine, 1125);
  EXPECT_FALSE(five.performed);
  EXPECT_EQ(engine.displayText, "1");
  engine.SetNumberBaseState(8);
  EXPECT_FALSE(pressCalcKey(engine, 1128).performed);
  EXPECT_TRUE(pressCalcKey(engine, 1127).performed);
  EXPECT_EQ(engine.displayText, "7");
  // A to F outside hexadecimal only refresh the display.
  const CalcKeyPress a = pressCalcKey(engine, 1096);
  EXPECT_TRUE(a.performed);
  EXPECT_EQ(engine.displayText, "7");
  engine.SetNumberBaseState(16);
  pressAll(engine, {1096, 1101});
  EXPECT_EQ(engine.displayText, "AF");
}

TEST(CalcKeyPress, UnknownIdsAreNotPerformed) {
  CCalcEngine engine;
  pressAll(engine, {1125});
  for (const int id : {0, 1090, 1144, 1145, 1168, 1170, 1173}) {
    EXPECT_FALSE(pressCalcKey(engine, id).performed) << id;
  }
  EXPECT_EQ(engine.displayText, "5");
}

TEST(CalcKeyPress, KeysEnabledPerBase) {
  struct Case {
    int id;
    bool hex, dec, oct, bin;
  };
  const Case cases[] = {
      {1096, true, false, false, false},  // A
      {1101, true, false, false, false},  // F
      {1136, false, true, false, false},  // .
      {1091, false, true, false, false},  // F-E
      {1092, false, true, false, false},  // EE
      {1120, true, true, true, true},     // 0
      {1121, true, true, true, true},     // 1
      {1122, true, true, true, false},    // 2
      {1127, true, true, true, false},    // 7
      {1128, true, true, false, false},   // 8
      {1129, true, true, false, false},   // 9
      {1108, true, true, true, true},     // sin
      {1139, true, true, true, true},     // π
  };
  for (const auto& c : cases) {
    EXPECT_EQ(isCalcKeyEnabled(c.id, 16), c.hex) << c.id;
    EXPECT_EQ(isCalcKeyEnabled(c.id, 10), c.dec) << c.id;
    EXPECT_EQ(isCalcKeyEnabled(c.id, 8), c.oct) << c.id;
    EXPECT_EQ(isCalcKeyEnabled(c.id, 2), c.bin) << c.id;
  }
}

}  // namespace
}  // namespace sonalyx

#include "core/settings/SettingsStore.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <functional>
#include <limits>
#include <memory>
#include <string>
#include <variant>
#include <vector>

#include "RecordingBackend.h"
#include "TempFolder.h"
#include "core/settings/RegFileBackend.h"
#include "support/NumericCompare.h"

namespace sonalyx {
namespace {

using Result = std::variant<bool, std::uint32_t, double, std::string>;
using Getter = std::function<Result(const SettingsStore&)>;

void expectSameResult(const Result& actual, const Result& expected, const std::string& label) {
  ASSERT_EQ(actual.index(), expected.index()) << label;
  if (const auto* number = std::get_if<double>(&expected)) {
    EXPECT_TRUE(test::agreesTo(std::get<double>(actual), *number, 15)) << label;
  } else {
    EXPECT_EQ(actual, expected) << label;
  }
}

// UTF-16LE of an ASCII text with the zero character and one character of padding.
std::vector<std::uint8_t> storedAscii(const std::string& text) {
  std::vector<std::uint8_t> bytes;
  for (const char c : text) bytes.insert(bytes.end(), {static_cast<std::uint8_t>(c), 0});
  bytes.insert(bytes.end(), {0, 0, 0, 0});
  return bytes;
}

RegistryValue raw(std::uint32_t type, std::vector<std::uint8_t> data) {
  return RegistryValue{type, std::move(data)};
}

RegistryValue sz(const std::string& text) {
  return raw(kRegSz, storedAscii(text));
}

RegistryValue word(std::uint32_t value) {
  return raw(kRegDword, {static_cast<std::uint8_t>(value), static_cast<std::uint8_t>(value >> 8),
                         static_cast<std::uint8_t>(value >> 16), static_cast<std::uint8_t>(value >> 24)});
}

struct AbsentCase {
  const char* label;
  Getter get;
  Result expected;
  RegistryValue written;
};

TEST(SettingsStore, AbsentValueReadsAsItsDefaultAndWritesItBack) {
  const AbsentCase cases[] = {
      {"bool true", [](const SettingsStore& s) -> Result { return s.GetBool("v", true); }, true, word(1)},
      {"bool false", [](const SettingsStore& s) -> Result { return s.GetBool("v", false); }, false, word(0)},
      {"int", [](const SettingsStore& s) -> Result { return s.GetInt("v", 501); }, std::uint32_t{501},
       word(501)},
      {"int max", [](const SettingsStore& s) -> Result { return s.GetInt("v", 0xFFFFFFFFu); },
       std::uint32_t{0xFFFFFFFFu}, word(0xFFFFFFFFu)},
      {"text", [](const SettingsStore& s) -> Result { return s.GetText("v", "Sam"); }, std::string("Sam"),
       sz("Sam")},
      {"empty text", [](const SettingsStore& s) -> Result { return s.GetText("v", ""); }, std::string(),
       raw(kRegSz, {0, 0, 0, 0})},
      {"real", [](const SettingsStore& s) -> Result { return s.GetReal("v", "-10"); }, -10.0, sz("-10")},
      // The default text is stored as given, not reformatted.
      {"real exponent", [](const SettingsStore& s) -> Result { return s.GetReal("v", "1e-005"); }, 1e-5,
       sz("1e-005")},
  };
  for (const auto& c : cases) {
    auto backend = std::make_shared<test::RecordingBackend>();
    const SettingsStore store(backend);
    expectSameResult(c.get(store), c.expected, c.label);
    ASSERT_EQ(backend->writes.size(), 1u) << c.label;
    EXPECT_EQ(backend->writes[0].name, "v") << c.label;
    EXPECT_EQ(backend->writes[0].value, c.written) << c.label;
    // Once written, the next read finds it and writes nothing more.
    expectSameResult(c.get(store), c.expected, c.label);
    EXPECT_EQ(backend->writes.size(), 1u) << c.label;
  }
}

struct PresentCase {
  const char* label;
  RegistryValue stored;
  Getter get;
  Result expected;
};

TEST(SettingsStore, PresentValueIsReadByTypeAndNeverOverwritten) {
  const PresentCase cases[] = {
      {"dword", word(7), [](const SettingsStore& s) -> Result { return s.GetInt("v", 9); }, std::uint32_t{7}},
      // The bytes are taken as they lie, with no byte swap.
      {"big-endian dword", raw(kRegDwordBigEndian, {0, 0, 0, 7}),
       [](const SettingsStore& s) -> Result { return s.GetInt("v", 9); }, std::uint32_t{0x07000000}},
      {"long dword", raw(kRegDword, {1, 2, 0, 0, 9, 9}),
       [](const SettingsStore& s) -> Result { return s.GetInt("v", 9); }, std::uint32_t{0x0201}},
      {"text for int", sz("7"), [](const SettingsStore& s) -> Result { return s.GetInt("v", 9); },
       std::uint32_t{0}},
      {"binary for int", raw(kRegBinary, {1, 0, 0, 0}),
       [](const SettingsStore& s) -> Result { return s.GetInt("v", 9); }, std::uint32_t{0}},
      {"short dword", raw(kRegDword, {1, 0}),
       [](const SettingsStore& s) -> Result { return s.GetInt("v", 9); }, std::uint32_t{0}},
      {"bool on", word(5), [](const SettingsStore& s) -> Result { return s.GetBool("v", false); }, true},
      {"bool high byte", word(0x01000000),
       [](const SettingsStore& s) -> Result { return s.GetBool("v", false); }, true},
      {"bool off", word(0), [](const SettingsStore& s) -> Result { return s.GetBool("v", true); }, false},
      {"text for bool, default on", sz("0"),
       [](const SettingsStore& s) -> Result { return s.GetBool("v", true); }, true},
      {"text for bool, default off", sz("1"),
       [](const SettingsStore& s) -> Result { return s.GetBool("v", false); }, false},
      {"text", sz("Anna"), [](const SettingsStore& s) -> Result { return s.GetText("v", "Sam"); },
       std::string("Anna")},
      {"expand string unexpanded", RegistryValue::fromText("%HOME%", kRegExpandSz),
       [](const SettingsStore& s) -> Result { return s.GetText("v", "Sam"); }, std::string("%HOME%")},
      {"link", RegistryValue::fromText("target", kRegLink),
       [](const SettingsStore& s) -> Result { return s.GetText("v", "Sam"); }, std::string("target")},
      {"multi-string up to the first zero", raw(kRegMultiSz, {'a', 0, 0, 0, 'b', 0, 0, 0, 0, 0}),
       [](const SettingsStore& s) -> Result { return s.GetText("v", "Sam"); }, std::string("a")},
      {"string without terminator", raw(kRegSz, {'o', 0, 'k', 0}),
       [](const SettingsStore& s) -> Result { return s.GetText("v", "Sam"); }, std::string("ok")},
      {"odd byte dropped", raw(kRegSz, {'o', 0, 'k'}),
       [](const SettingsStore& s) -> Result { return s.GetText("v", "Sam"); }, std::string("o")},
      {"dword for text", word(1), [](const SettingsStore& s) -> Result { return s.GetText("v", "Sam"); },
       std::string("Sam")},
      {"real", sz("2.5"), [](const SettingsStore& s) -> Result { return s.GetReal("v", "0"); }, 2.5},
      {"real exponent", sz("1e-005"), [](const SettingsStore& s) -> Result { return s.GetReal("v", "0"); },
       1e-5},
      {"real with tail", sz(" -3.5x"), [](const SettingsStore& s) -> Result { return s.GetReal("v", "9"); },
       -3.5},
      {"real not a number", sz("abc"), [](const SettingsStore& s) -> Result { return s.GetReal("v", "10"); },
       0.0},
      {"real empty", sz(""), [](const SettingsStore& s) -> Result { return s.GetReal("v", "10"); }, 0.0},
      {"real written as Error", sz("Error"),
       [](const SettingsStore& s) -> Result { return s.GetReal("v", "10"); }, 0.0},
      {"dword for real", word(3), [](const SettingsStore& s) -> Result { return s.GetReal("v", "10"); },
       10.0},
  };
  for (const auto& c : cases) {
    auto backend = std::make_shared<test::RecordingBackend>();
    backend->values.push_back({"v", c.stored});
    const SettingsStore store(backend);
    expectSameResult(c.get(store), c.expected, c.label);
    EXPECT_TRUE(backend->writes.empty()) << c.label;
    EXPECT_EQ(*backend->stored("v"), c.stored) << c.label;
  }
}

struct SetCase {
  const char* label;
  std::function<bool(const SettingsStore&)> set;
  RegistryValue written;
};

TEST(SettingsStore, SettersHandTheRegistryItsTypeAndBytes) {
  const double nan = std::numeric_limits<double>::quiet_NaN();
  const SetCase cases[] = {
      // Three characters, the zero character and one more: 10 bytes.
      {"real 2.5", [](const SettingsStore& s) { return s.SetReal("v", 2.5); },
       raw(kRegSz, {'2', 0, '.', 0, '5', 0, 0, 0, 0, 0})},
      {"real -10", [](const SettingsStore& s) { return s.SetReal("v", -10.0); }, sz("-10")},
      {"real small", [](const SettingsStore& s) { return s.SetReal("v", 1e-5); }, sz("1e-005")},
      {"real ten digits", [](const SettingsStore& s) { return s.SetReal("v", 1.0 / 3.0); },
       sz("0.3333333333")},
      {"real NaN", [nan](const SettingsStore& s) { return s.SetReal("v", nan); }, sz("Error")},
      {"empty text", [](const SettingsStore& s) { return s.SetText("v", ""); }, raw(kRegSz, {0, 0, 0, 0})},
      {"accented text", [](const SettingsStore& s) { return s.SetText("v", "\xC3\xA9"); },
       raw(kRegSz, {0xE9, 0, 0, 0, 0, 0})},
      // A character outside the basic plane takes two UTF-16 units, so 2 x 2 + 4 bytes.
      {"surrogate pair", [](const SettingsStore& s) { return s.SetText("v", "\xF0\x9D\x84\x9E"); },
       raw(kRegSz, {0x34, 0xD8, 0x1E, 0xDD, 0, 0, 0, 0})},
      {"bool on", [](const SettingsStore& s) { return s.SetBool("v", true); }, word(1)},
      {"bool off", [](const SettingsStore& s) { return s.SetBool("v", false); }, word(0)},
      {"int", [](const SettingsStore& s) { return s.SetInt("v", 0xA0B0C0D0u); },
       raw(kRegDword, {0xD0, 0xC0, 0xB0, 0xA0})},
  };
  for (const auto& c : cases) {
    auto backend = std::make_shared<test::RecordingBackend>();
    const SettingsStore store(backend);
    EXPECT_TRUE(c.set(store)) << c.label;
    ASSERT_EQ(backend->writes.size(), 1u) << c.label;
    EXPECT_EQ(backend->writes[0].name, "v") << c.label;
    EXPECT_EQ(backend->writes[0].value, c.written) << c.label;
  }
}

TEST(SettingsStore, FxNumPtsIsStoredAsAtLeastTwo) {
  const struct {
    std::uint32_t given;
    std::uint32_t stored;
  } cases[] = {{0, 2}, {1, 2}, {2, 2}, {3, 3}, {501, 501}, {0xFFFFFFFFu, 0xFFFFFFFFu}};
  for (const auto& c : cases) {
    auto backend = std::make_shared<test::RecordingBackend>();
    const SettingsStore store(backend);
    EXPECT_TRUE(store.SetFxNumPts(c.given));
    ASSERT_NE(backend->stored("fxNumPts"), nullptr) << c.given;
    EXPECT_EQ(*backend->stored("fxNumPts"), word(c.stored)) << c.given;
    EXPECT_EQ(store.GetFxNumPts(), c.stored) << c.given;
  }
  // Only the setter keeps the minimum: a 0 put there by someone else reads as 0.
  auto backend = std::make_shared<test::RecordingBackend>();
  backend->values.push_back({"fxNumPts", word(0)});
  EXPECT_EQ(SettingsStore(backend).GetFxNumPts(), 0u);
}

struct RangeCase {
  const char* label;
  std::vector<NamedValue> stored;
  GraphRange expected;  // top, left, bottom, right
};

TEST(SettingsStore, GraphRangeIsReadInOrderAndNormalisedButNotCorrected) {
  const double inf = std::numeric_limits<double>::infinity();
  const RangeCase cases[] = {
      {"defaults", {}, {10, -10, -10, 10}},
      {"x exchanged",
       {{"yMax", sz("4")}, {"xMin", sz("5")}, {"yMin", sz("-4")}, {"xMax", sz("-5")}},
       {4, -5, -4, 5}},
      {"y exchanged",
       {{"yMax", sz("-3")}, {"xMin", sz("0")}, {"yMin", sz("7")}, {"xMax", sz("1")}},
       {7, 0, -3, 1}},
      {"not a number",
       {{"yMax", sz("2")}, {"xMin", sz("abc")}, {"yMin", sz("1")}, {"xMax", sz("1e-005")}},
       {2, 0, 1, 1e-5}},
      {"infinite",
       {{"yMax", sz("1e999")}, {"xMin", sz("5")}, {"yMin", sz("-1e999")}, {"xMax", sz("-1e999")}},
       {inf, -inf, -inf, 5}},
  };
  for (const auto& c : cases) {
    auto backend = std::make_shared<test::RecordingBackend>();
    backend->values = c.stored;
    const SettingsStore store(backend);
    const GraphRange range = store.GetGraphRange();
    EXPECT_TRUE(test::agreesTo(range.top, c.expected.top, 15)) << c.label;
    EXPECT_TRUE(test::agreesTo(range.left, c.expected.left, 15)) << c.label;
    EXPECT_TRUE(test::agreesTo(range.bottom, c.expected.bottom, 15)) << c.label;
    EXPECT_TRUE(test::agreesTo(range.right, c.expected.right, 15)) << c.label;
    EXPECT_EQ(backend->reads, (std::vector<std::string>{"yMax", "xMin", "yMin", "xMax"})) << c.label;
    if (!c.stored.empty()) {
      EXPECT_TRUE(backend->writes.empty()) << c.label;
      EXPECT_EQ(backend->values, c.stored) << c.label;
    }
  }
}

TEST(SettingsStore, SetGraphRangeWritesTheFourValuesInOrder) {
  auto backend = std::make_shared<test::RecordingBackend>();
  const SettingsStore store(backend);
  EXPECT_TRUE(store.SetGraphRange(10, -2.5, std::numeric_limits<double>::quiet_NaN(), 1e-5));
  const std::vector<NamedValue> expected = {
      {"yMax", sz("10")}, {"xMin", sz("-2.5")}, {"yMin", sz("Error")}, {"xMax", sz("1e-005")}};
  EXPECT_EQ(backend->writes, expected);
  // "Error" reads back as 0.
  const GraphRange range = store.GetGraphRange();
  EXPECT_TRUE(test::agreesTo(range.bottom, 0.0, 15));
  EXPECT_TRUE(test::agreesTo(range.right, 1e-5, 15));
}

struct GraphRangeCase {
  const char* label;
  std::function<void(GraphRange&)> change;
  GraphRange expected;
};

TEST(SettingsStore, GraphRangeComparisonWithNaNSwapsNothing) {
  const double nan = std::numeric_limits<double>::quiet_NaN();
  const GraphRangeCase cases[] = {
      {"all four", [nan](GraphRange& r) { r.set(nan, 5, 7, -5); }, {nan, -5, 7, 5}},
      {"NaN left", [nan](GraphRange& r) { r.setX(nan, -3); }, {0, nan, 0, -3}},
      {"NaN right", [nan](GraphRange& r) { r.setX(4, nan); }, {0, 4, 0, nan}},
      {"NaN top", [nan](GraphRange& r) { r.setY(3, nan); }, {nan, 0, 3, 0}},
      {"x only", [](GraphRange& r) { r.setX(4, 1); }, {0, 1, 0, 4}},
      {"y only", [](GraphRange& r) { r.setY(6, -6); }, {6, 0, -6, 0}},
  };
  for (const auto& c : cases) {
    GraphRange range;
    c.change(range);
    EXPECT_TRUE(test::agreesTo(range.top, c.expected.top, 15)) << c.label;
    EXPECT_TRUE(test::agreesTo(range.left, c.expected.left, 15)) << c.label;
    EXPECT_TRUE(test::agreesTo(range.bottom, c.expected.bottom, 15)) << c.label;
    EXPECT_TRUE(test::agreesTo(range.right, c.expected.right, 15)) << c.label;
  }
}

TEST(SettingsStore, OpenSettingsKeyWritesYMaxOnlyIntoAMissingOrEmptyKey) {
  const struct {
    const char* label;
    std::vector<NamedValue> values;
    bool hasSubkey;
    bool writesYMax;
  } cases[] = {
      {"missing or empty", {}, false, true},
      {"with a value", {{"voice", sz("Anna")}}, false, false},
      {"with only a subkey", {}, true, false},
  };
  for (const auto& c : cases) {
    auto backend = std::make_shared<test::RecordingBackend>();
    backend->values = c.values;
    backend->hasSubkey = c.hasSubkey;
    SettingsStore(backend).OpenSettingsKey();
    if (c.writesYMax) {
      EXPECT_EQ(backend->writes, (std::vector<NamedValue>{{"yMax", sz("10")}})) << c.label;
    } else {
      EXPECT_TRUE(backend->writes.empty()) << c.label;
    }
  }
}

TEST(SettingsStore, FailedWritesAreSilent) {
  auto backend = std::make_shared<test::RecordingBackend>();
  backend->failWrites = true;
  const SettingsStore store(backend);
  EXPECT_TRUE(store.GetShowPts());
  EXPECT_EQ(store.GetVoice(), "Sam");
  EXPECT_TRUE(test::agreesTo(store.GetXMin(), -10.0, 15));
  EXPECT_FALSE(store.SetShowPts(false));
  EXPECT_FALSE(store.SetGraphRange(1, 2, 3, 4));
  EXPECT_FALSE(store.DeleteSettings());
  // Every read tried to write its default; SetGraphRange tried all four.
  EXPECT_EQ(backend->writes.size(), 3u + 1u + 4u);
  EXPECT_TRUE(backend->values.empty());
}

TEST(SettingsStore, DeleteSettingsEmptiesTheKeyAndTheGettersRefillIt) {
  test::TempFolder folder;
  const auto file = folder / "Settings.reg";
  const SettingsStore store(std::make_shared<RegFileBackend>(file));
  EXPECT_TRUE(store.SetVoice("Anna"));
  EXPECT_TRUE(store.SetFxNumPts(99));
  EXPECT_TRUE(store.SetShowPts(false));

  EXPECT_TRUE(store.DeleteSettings("voice"));
  EXPECT_EQ(store.ListValues().size(), 2u);
  EXPECT_EQ(store.GetFxNumPts(), 99u);

  EXPECT_TRUE(store.DeleteSettings());
  EXPECT_TRUE(store.ListValues().empty());
  EXPECT_FALSE(store.backend().keyHasContent());
  EXPECT_EQ(store.GetVoice(), "Sam");
  EXPECT_EQ(store.GetFxNumPts(), 501u);
  EXPECT_TRUE(store.GetShowPts());
  const std::vector<NamedValue> refilled = {
      {"voice", sz("Sam")}, {"fxNumPts", word(501)}, {"showPts", word(1)}};
  EXPECT_EQ(store.ListValues(), refilled);
}

struct ValueTextCase {
  const char* name;
  RegistryValue value;
  const char* text;
};

TEST(SettingsStore, ValueTextShowsWhatTheGetterWouldReturn) {
  const ValueTextCase cases[] = {
      {"showPts", word(0), "0"},
      {"showPts", word(2), "1"},
      {"showPts", sz("0"), "1"},  // wrong type: the default
      {"playTime", sz("7"), "0"},
      {"playTime", word(7), "7"},
      {"fxX0", sz("2.50"), "2.5"},
      {"fxX0", sz("abc"), "0"},
      {"fxX0", word(3), "-10"},
      {"yMax", sz("0.00001"), "1e-005"},
      {"voice", word(1), "Sam"},
      {"voice", RegistryValue::fromText("Anna", kRegExpandSz), "Anna"},
      {"SHOWPTS", word(0), "0"},  // names are found as the registry finds them
      {"Major", word(3), "3"},
      {"appName", sz("sonalyx"), "sonalyx"},
      {"unknown", word(10), "10"},
      {"unknown", sz("text"), "text"},
      {"unknown", raw(kRegBinary, {0x01, 0xFF}), "01,ff"},
      {"unknown", raw(kRegQword, {}), ""},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(SettingsStore::ValueText(c.name, c.value), c.text) << c.name;
  }
}

TEST(SettingsStore, ValueTextOfAKeyGoesThroughItsGetter) {
  auto backend = std::make_shared<test::RecordingBackend>();
  backend->values.push_back({"fxX1", sz("2.50")});
  const SettingsStore store(backend);
  EXPECT_EQ(store.GetValueText(setting::kFxX1), "2.5");
  EXPECT_EQ(store.GetValueText(setting::kFxX0), "-10");
  EXPECT_EQ(store.GetValueText(setting::kShowLine), "0");
  EXPECT_EQ(store.GetValueText(setting::kExpr1), "");
  EXPECT_EQ(store.GetValueText(setting::kMajor), std::nullopt);
  // The absent ones with a default were written back, the version was not.
  EXPECT_EQ(backend->writes,
            (std::vector<NamedValue>{{"fxX0", sz("-10")}, {"showLine", word(0)}, {"expr1", sz("")}}));
}

}  // namespace
}  // namespace sonalyx

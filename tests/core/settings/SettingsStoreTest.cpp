#include "core/settings/SettingsStore.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <variant>
#include <vector>

#include "RecordingBackend.h"
#include "core/settings/RegFileBackend.h"
#include "support/NumericCompare.h"
#include "support/TempFolder.h"

namespace sonalyx {
namespace {

using Result = std::variant<bool, std::uint32_t, double, std::string>;
enum class Kind { Bool, Int, Real, Text };

// Reads the value "v" with the getter of `kind` and the given default.
Result get(const SettingsStore& s, Kind kind, const char* byDefault) {
  switch (kind) {
    case Kind::Bool:
      return s.GetBool("v", std::string_view(byDefault) == "1");
    case Kind::Int:
      return s.GetInt("v", static_cast<std::uint32_t>(std::stoul(byDefault)));
    case Kind::Real:
      return s.GetReal("v", byDefault);
    case Kind::Text:
      return s.GetText("v", byDefault);
  }
  return {};
}

void expectSameResult(const Result& actual, const Result& expected, const std::string& label) {
  ASSERT_EQ(actual.index(), expected.index()) << label;
  if (const auto* number = std::get_if<double>(&expected)) {
    EXPECT_TRUE(test::agreesTo(std::get<double>(actual), *number, 15)) << label;
  } else {
    EXPECT_EQ(actual, expected) << label;
  }
}

RegistryValue raw(std::uint32_t type, std::vector<std::uint8_t> data) {
  return RegistryValue{type, std::move(data)};
}

// UTF-16LE of an ASCII text with the zero character and one character of padding.
RegistryValue sz(const std::string& text) {
  std::vector<std::uint8_t> bytes;
  for (const char c : text) bytes.insert(bytes.end(), {static_cast<std::uint8_t>(c), 0});
  bytes.insert(bytes.end(), {0, 0, 0, 0});
  return raw(kRegSz, bytes);
}

RegistryValue dword(std::uint32_t value) {
  return raw(kRegDword, {static_cast<std::uint8_t>(value), static_cast<std::uint8_t>(value >> 8),
                         static_cast<std::uint8_t>(value >> 16), static_cast<std::uint8_t>(value >> 24)});
}

// A value present is read by its type and never overwritten; an absent one reads as
// its default and writes that back, once.
TEST(SettingsStore, GettersReadByTypeAndWriteBackOnlyAnAbsentDefault) {
  const struct {
    const char* label;
    std::optional<RegistryValue> stored;  // none: absent
    Kind kind;
    const char* byDefault;
    Result expected;
  } cases[] = {
      {"absent bool", std::nullopt, Kind::Bool, "1", true},
      {"absent int", std::nullopt, Kind::Int, "501", std::uint32_t{501}},
      {"absent text", std::nullopt, Kind::Text, "", std::string()},
      // The default text is stored as given, not reformatted.
      {"absent real", std::nullopt, Kind::Real, "1e-005", 1e-5},
      {"dword", dword(7), Kind::Int, "9", std::uint32_t{7}},
      // The bytes are taken as they lie, with no byte swap.
      {"big-endian dword", raw(kRegDwordBigEndian, {0, 0, 0, 7}), Kind::Int, "9", std::uint32_t{0x07000000}},
      {"long dword", raw(kRegDword, {1, 2, 0, 0, 9, 9}), Kind::Int, "9", std::uint32_t{0x0201}},
      {"short dword", raw(kRegDword, {1, 0}), Kind::Int, "9", std::uint32_t{0}},
      {"text for int", sz("7"), Kind::Int, "9", std::uint32_t{0}},
      {"bool high byte", dword(0x01000000), Kind::Bool, "0", true},
      {"bool off", dword(0), Kind::Bool, "1", false},
      {"text for bool", sz("0"), Kind::Bool, "1", true},
      {"expand string unexpanded", RegistryValue::fromText("%HOME%", kRegExpandSz), Kind::Text, "Sam",
       std::string("%HOME%")},
      {"multi-string up to the first zero", raw(kRegMultiSz, {'a', 0, 0, 0, 'b', 0, 0, 0}), Kind::Text, "Sam",
       std::string("a")},
      {"string without terminator", raw(kRegSz, {'o', 0, 'k', 0}), Kind::Text, "Sam", std::string("ok")},
      {"odd byte dropped", raw(kRegSz, {'o', 0, 'k'}), Kind::Text, "Sam", std::string("o")},
      {"dword for text", dword(1), Kind::Text, "Sam", std::string("Sam")},
      {"real with tail", sz(" -3.5x"), Kind::Real, "9", -3.5},
      {"real written as Error", sz("Error"), Kind::Real, "10", 0.0},
      {"dword for real", dword(3), Kind::Real, "10", 10.0},
  };
  for (const auto& c : cases) {
    auto backend = std::make_shared<test::RecordingBackend>();
    if (c.stored) backend->values.push_back({"v", *c.stored});
    const SettingsStore store(backend);
    expectSameResult(get(store, c.kind, c.byDefault), c.expected, c.label);
    expectSameResult(get(store, c.kind, c.byDefault), c.expected, c.label);
    // A default goes back as a double word for Booleans and integers, as its text otherwise.
    const bool asWord = c.kind == Kind::Bool || c.kind == Kind::Int;
    const RegistryValue stored = c.stored ? *c.stored
                                 : asWord ? dword(static_cast<std::uint32_t>(std::stoul(c.byDefault)))
                                          : sz(c.byDefault);
    EXPECT_EQ(backend->values, (std::vector<NamedValue>{{"v", stored}})) << c.label;
    EXPECT_EQ(backend->writes.size(), c.stored ? 0u : 1u) << c.label;
  }
}

TEST(SettingsStore, SettersHandTheRegistryItsTypeAndBytes) {
  const struct {
    const char* label;
    bool (*set)(const SettingsStore&);
    RegistryValue written;
  } cases[] = {
      // Three characters, the zero character and one more: 10 bytes.
      {"real 2.5", [](const SettingsStore& s) { return s.SetReal("v", 2.5); },
       raw(kRegSz, {'2', 0, '.', 0, '5', 0, 0, 0, 0, 0})},
      {"real small", [](const SettingsStore& s) { return s.SetReal("v", 1e-5); }, sz("1e-005")},
      {"real ten digits", [](const SettingsStore& s) { return s.SetReal("v", 1.0 / 3.0); },
       sz("0.3333333333")},
      {"real NaN", [](const SettingsStore& s) { return s.SetReal("v", std::nan("")); }, sz("Error")},
      {"accented text", [](const SettingsStore& s) { return s.SetText("v", "\xC3\xA9"); },
       raw(kRegSz, {0xE9, 0, 0, 0, 0, 0})},
      // A character outside the basic plane takes two UTF-16 units, so 2 x 2 + 4 bytes.
      {"surrogate pair", [](const SettingsStore& s) { return s.SetText("v", "\xF0\x9D\x84\x9E"); },
       raw(kRegSz, {0x34, 0xD8, 0x1E, 0xDD, 0, 0, 0, 0})},
      {"bool on", [](const SettingsStore& s) { return s.SetBool("v", true); }, dword(1)},
      {"int", [](const SettingsStore& s) { return s.SetInt("v", 0xA0B0C0D0u); },
       raw(kRegDword, {0xD0, 0xC0, 0xB0, 0xA0})},
  };
  for (const auto& c : cases) {
    auto backend = std::make_shared<test::RecordingBackend>();
    EXPECT_TRUE(c.set(SettingsStore(backend))) << c.label;
    EXPECT_EQ(backend->writes, (std::vector<NamedValue>{{"v", c.written}})) << c.label;
  }
}

TEST(SettingsStore, GraphRangeIsReadInOrderAndNormalisedButNotCorrected) {
  const struct {
    const char* label;
    std::vector<NamedValue> stored;
    GraphRange expected;  // top, left, bottom, right
  } cases[] = {
      {"defaults", {}, {10, -10, -10, 10}},
      {"exchanged",
       {{"yMax", sz("-3")}, {"xMin", sz("5")}, {"yMin", sz("7")}, {"xMax", sz("-5")}},
       {7, -5, -3, 5}},
  };
  for (const auto& c : cases) {
    auto backend = std::make_shared<test::RecordingBackend>();
    backend->values = c.stored;
    const GraphRange range = SettingsStore(backend).GetGraphRange();
    const double got[] = {range.top, range.left, range.bottom, range.right};
    const double want[] = {c.expected.top, c.expected.left, c.expected.bottom, c.expected.right};
    for (int k = 0; k < 4; ++k) EXPECT_TRUE(test::agreesTo(got[k], want[k], 15)) << c.label << ' ' << k;
    EXPECT_EQ(backend->reads, (std::vector<std::string>{"yMax", "xMin", "yMin", "xMax"})) << c.label;
    if (!c.stored.empty()) {
      EXPECT_EQ(backend->values, c.stored) << c.label;
    }
  }

  auto backend = std::make_shared<test::RecordingBackend>();
  EXPECT_TRUE(SettingsStore(backend).SetGraphRange(10, -2.5, std::nan(""), 1e-5));
  const std::vector<NamedValue> written = {
      {"yMax", sz("10")}, {"xMin", sz("-2.5")}, {"yMin", sz("Error")}, {"xMax", sz("1e-005")}};
  EXPECT_EQ(backend->writes, written);
}

TEST(SettingsStore, OpenSettingsKeyWritesYMaxOnlyIntoAMissingOrEmptyKey) {
  const struct {
    const char* label;
    std::vector<NamedValue> values;
    bool hasSubkey;
    std::vector<NamedValue> written;
  } cases[] = {
      {"missing or empty", {}, false, {{"yMax", sz("10")}}},
      {"with a value", {{"voice", sz("Anna")}}, false, {}},
      {"with only a subkey", {}, true, {}},
  };
  for (const auto& c : cases) {
    auto backend = std::make_shared<test::RecordingBackend>();
    backend->values = c.values;
    backend->hasSubkey = c.hasSubkey;
    SettingsStore(backend).OpenSettingsKey();
    EXPECT_EQ(backend->writes, c.written) << c.label;
  }
}

TEST(SettingsStore, FailedWritesAreSilent) {
  auto backend = std::make_shared<test::RecordingBackend>();
  backend->failWrites = true;
  const SettingsStore store(backend);
  EXPECT_TRUE(store.GetShowPts());
  EXPECT_EQ(store.GetVoice(), "Sam");
  EXPECT_FALSE(store.SetShowPts(false));
  EXPECT_FALSE(store.SetGraphRange(1, 2, 3, 4));
  EXPECT_FALSE(store.DeleteSettings());
  // Every read tried to write its default; SetGraphRange tried all four.
  EXPECT_EQ(backend->writes.size(), 2u + 1u + 4u);
  EXPECT_TRUE(backend->values.empty());
}

TEST(SettingsStore, DeleteSettingsEmptiesTheKeyAndTheGettersRefillIt) {
  test::TempFolder folder;
  const SettingsStore store(std::make_shared<RegFileBackend>(folder / "Settings.reg"));
  EXPECT_TRUE(store.SetVoice("Anna"));
  EXPECT_TRUE(store.SetFxNumPts(99));
  EXPECT_TRUE(store.DeleteSettings("voice"));
  EXPECT_EQ(store.ListValues(), (std::vector<NamedValue>{{"fxNumPts", dword(99)}}));
  EXPECT_TRUE(store.DeleteSettings());
  EXPECT_FALSE(store.backend().keyHasContent());
  EXPECT_EQ(store.GetVoice(), "Sam");
  EXPECT_EQ(store.GetFxNumPts(), 501u);
  EXPECT_EQ(store.ListValues(), (std::vector<NamedValue>{{"voice", sz("Sam")}, {"fxNumPts", dword(501)}}));
}

TEST(SettingsStore, ValueTextShowsWhatTheGetterWouldReturn) {
  const struct {
    const char* name;
    RegistryValue value;
    const char* text;
  } cases[] = {
      {"showPts", dword(2), "1"},
      {"showPts", sz("0"), "1"},  // wrong type: the default
      {"playTime", sz("7"), "0"},
      {"fxX0", sz("2.50"), "2.5"},
      {"fxX0", dword(3), "-10"},
      {"yMax", sz("0.00001"), "1e-005"},
      {"voice", dword(1), "Sam"},
      {"SHOWPTS", dword(0), "0"},  // names are found as the registry finds them
      {"Major", dword(3), "3"},
      {"unknown", sz("text"), "text"},
      {"unknown", raw(kRegBinary, {0x01, 0xFF}), "01,ff"},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(SettingsStore::ValueText(c.name, c.value), c.text) << c.name;
  }

  // Through the getters: absent ones with a default are written back, the version is not.
  auto backend = std::make_shared<test::RecordingBackend>();
  backend->values.push_back({"fxX1", sz("2.50")});
  const SettingsStore store(backend);
  EXPECT_EQ(store.GetValueText(setting::kFxX1), "2.5");
  EXPECT_EQ(store.GetValueText(setting::kShowLine), "0");
  EXPECT_EQ(store.GetValueText(setting::kExpr1), "");
  EXPECT_EQ(store.GetValueText(setting::kMajor), std::nullopt);
  EXPECT_EQ(backend->writes, (std::vector<NamedValue>{{"showLine", dword(0)}, {"expr1", sz("")}}));
}

}  // namespace
}  // namespace sonalyx

#include "core/settings/SettingKeys.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <memory>
#include <string>
#include <type_traits>
#include <vector>

#include "RecordingBackend.h"
#include "core/settings/SettingsStore.h"
#include "support/NumericCompare.h"

namespace sonalyx {
namespace {

using Store = SettingsStore;

// One named accessor pair: the stored name, the default as the table writes it,
// the getter and the setter.
template <typename Value, typename Argument = Value>
struct Row {
  const char* name;
  const char* defaultText;
  Value (Store::*get)() const;
  bool (Store::*set)(Argument) const;
};

template <typename Value>
::testing::AssertionResult same(const Value& actual, const Value& expected) {
  if constexpr (std::is_same_v<Value, double>) {
    return test::agreesTo(actual, expected, 15);
  } else {
    if (actual == expected) return ::testing::AssertionSuccess();
    return ::testing::AssertionFailure() << "actual " << actual << ", expected " << expected;
  }
}

// The table row, the getter's default written back under the row's name with the
// registry type of its kind, and a setter that stores what the getter returns.
template <typename Value, typename Argument>
void checkRow(const Row<Value, Argument>& row, SettingType type, Value byDefault, Argument other,
              Value otherRead) {
  SCOPED_TRACE(row.name);
  const SettingKey* key = findSettingKey(row.name);
  ASSERT_NE(key, nullptr);
  EXPECT_EQ(key->name, row.name);
  EXPECT_EQ(key->type, type);
  EXPECT_STREQ(key->defaultText, row.defaultText);
  auto backend = std::make_shared<test::RecordingBackend>();
  const Store store(backend);
  EXPECT_TRUE(same((store.*row.get)(), byDefault));
  ASSERT_NE(backend->stored(row.name), nullptr);
  EXPECT_EQ(Store::ValueText(row.name, *backend->stored(row.name)), row.defaultText);
  EXPECT_TRUE((store.*row.set)(other));
  EXPECT_TRUE(same((store.*row.get)(), otherRead));
  const std::uint32_t registryType =
      type == SettingType::Boolean || type == SettingType::Integer ? kRegDword : kRegSz;
  for (const auto& value : backend->values) {
    EXPECT_EQ(value.name, row.name);
    EXPECT_EQ(value.value.type, registryType);
  }
  for (const auto& read : backend->reads) EXPECT_EQ(read, row.name);
}

TEST(SettingKeys, TableAndNamedAccessorsAgreeWithEveryKey) {
  const Row<bool> bools[] = {
      {"autoScaleX", "0", &Store::GetAutoScaleX, &Store::SetAutoScaleX},
      {"autoScaleY", "0", &Store::GetAutoScaleY, &Store::SetAutoScaleY},
      {"showPts", "1", &Store::GetShowPts, &Store::SetShowPts},
      {"showLine", "0", &Store::GetShowLine, &Store::SetShowLine},
      {"showEBars", "0", &Store::GetShowEBars, &Store::SetShowEBars},
      {"showXAxis", "1", &Store::GetShowXAxis, &Store::SetShowXAxis},
      {"showXLabels", "1", &Store::GetShowXLabels, &Store::SetShowXLabels},
      {"showYAxis", "1", &Store::GetShowYAxis, &Store::SetShowYAxis},
      {"showYLabels", "1", &Store::GetShowYLabels, &Store::SetShowYLabels},
      {"data1IsPolar", "0", &Store::GetData1IsPolar, &Store::SetData1IsPolar},
      {"data2IsPolar", "0", &Store::GetData2IsPolar, &Store::SetData2IsPolar},
      {"playTicks", "0", &Store::GetPlayTicks, &Store::SetPlayTicks},
      {"YThreshOn", "0", &Store::GetYThreshOn, &Store::SetYThreshOn},
      {"isMono", "1", &Store::GetIsMono, &Store::SetIsMono},
      {"autoSpeak", "0", &Store::GetAutoSpeak, &Store::SetAutoSpeak},
      {"sfxOn", "0", &Store::GetSfxOn, &Store::SetSfxOn},
      {"ttsOn", "0", &Store::GetTtsOn, &Store::SetTtsOn},
      {"isAutoReturn", "0", &Store::GetIsAutoReturn, &Store::SetIsAutoReturn},
  };
  const Row<std::uint32_t> ints[] = {
      {"setType", "0", &Store::GetSetType, &Store::SetSetType},
      {"plotType", "0", &Store::GetPlotType, &Store::SetPlotType},
      {"frameType", "0", &Store::GetFrameType, &Store::SetFrameType},
      {"waveVolume", "50", &Store::GetWaveVolume, &Store::SetWaveVolume},
      {"tickVolume", "40", &Store::GetTickVolume, &Store::SetTickVolume},
      {"numTicks", "10", &Store::GetNumTicks, &Store::SetNumTicks},
      {"minFreq", "60", &Store::GetMinFreq, &Store::SetMinFreq},
      {"maxFreq", "2000", &Store::GetMaxFreq, &Store::SetMaxFreq},
      {"rate", "50", &Store::GetRate, &Store::SetRate},
      {"pitch", "50", &Store::GetPitch, &Store::SetPitch},
      {"vol", "50", &Store::GetVol, &Store::SetVol},
      {"numDec", "5", &Store::GetNumDec, &Store::SetNumDec},
  };
  const Row<double> reals[] = {
      {"fxX0", "-10", &Store::GetFxX0, &Store::SetFxX0},
      {"fxX1", "10", &Store::GetFxX1, &Store::SetFxX1},
      {"yMax", "10", &Store::GetYMax, &Store::SetYMax},
      {"xMin", "-10", &Store::GetXMin, &Store::SetXMin},
      {"yMin", "-10", &Store::GetYMin, &Store::SetYMin},
      {"xMax", "10", &Store::GetXMax, &Store::SetXMax},
      {"YThresh", "0", &Store::GetYThresh, &Store::SetYThresh},
  };
  const Row<std::string, std::string_view> texts[] = {
      {"expr1", "", &Store::GetExpr1, &Store::SetExpr1},
      {"expr2", "", &Store::GetExpr2, &Store::SetExpr2},
      {"voice", "Sam", &Store::GetVoice, &Store::SetVoice},
      {"ttsEngine", "espeak-ng", &Store::GetTtsEngine, &Store::SetTtsEngine},
      {"lexicon", "", &Store::GetLexicon, &Store::SetLexicon},
  };
  for (const auto& row : bools) {
    checkRow(row, SettingType::Boolean, *row.defaultText == '1', *row.defaultText != '1',
             *row.defaultText != '1');
  }
  for (const auto& row : ints) {
    checkRow<std::uint32_t, std::uint32_t>(row, SettingType::Integer, std::stoul(row.defaultText), 1234567,
                                           1234567);
  }
  // Values with a most: a choice of three, the points a data set holds, the
  // longest play time.
  const struct {
    Row<std::uint32_t> row;
    std::uint32_t most;
  } bounded[] = {
      {{"ttsMode", "2", &Store::GetTtsMode, &Store::SetTtsMode}, 2},
      {{"fxNumPts", "501", &Store::GetFxNumPts, &Store::SetFxNumPts}, 1000001},
      {{"playTime", "4", &Store::GetPlayTime, &Store::SetPlayTime}, 600},
  };
  for (const auto& b : bounded)
    checkRow<std::uint32_t, std::uint32_t>(b.row, SettingType::Integer, std::stoul(b.row.defaultText),
                                           1234567, b.most);
  for (const auto& row : reals) {
    checkRow(row, SettingType::Real, std::stod(row.defaultText), -0.125, -0.125);
  }
  for (const auto& row : texts) {
    checkRow<std::string, std::string_view>(row, SettingType::Text, row.defaultText, "Ärlig \"test\"",
                                            "Ärlig \"test\"");
  }
  // The values written at every start have setters only, and write without reading.
  const SettingType integer = SettingType::Integer, text = SettingType::Text;
  const struct {
    const char* name;
    SettingType type;
    bool (*set)(const Store&);
    RegistryValue stored;
  } versionKeys[] = {
      {"Major", integer, [](const Store& s) { return s.SetMajor(3); }, RegistryValue::fromDword(3)},
      {"Minor", integer, [](const Store& s) { return s.SetMinor(0); }, RegistryValue::fromDword(0)},
      {"Rev", integer, [](const Store& s) { return s.SetRev(15); }, RegistryValue::fromDword(15)},
      {"appName", text, [](const Store& s) { return s.SetAppName("sonalyx"); },
       RegistryValue::fromText("sonalyx")},
      {"updateURL", text, [](const Store& s) { return s.SetUpdateURL("https://x.org/u"); },
       RegistryValue::fromText("https://x.org/u")},
  };
  for (const auto& row : versionKeys) {
    const SettingKey* key = findSettingKey(row.name);
    ASSERT_NE(key, nullptr) << row.name;
    EXPECT_EQ(key->type, row.type) << row.name;
    EXPECT_FALSE(key->hasDefault()) << row.name;
    auto backend = std::make_shared<test::RecordingBackend>();
    EXPECT_TRUE(row.set(Store(backend))) << row.name;
    EXPECT_EQ(backend->writes, (std::vector<NamedValue>{{row.name, row.stored}})) << row.name;
    EXPECT_TRUE(backend->reads.empty()) << row.name;
  }
  EXPECT_EQ(allSettingKeys().size(), std::size(bools) + std::size(ints) + std::size(bounded) +
                                         std::size(reals) + std::size(texts) + std::size(versionKeys));
}

TEST(SettingKeys, OnlyFxNumPtsHasAMinimumAndOnlyItsSetterKeepsIt) {
  for (const SettingKey& key : allSettingKeys()) {
    EXPECT_EQ(key.minimum, key.name == "fxNumPts" ? 2u : 0u) << key.name;
  }
  const struct { std::uint32_t given, stored; } cases[] = {{0, 2}, {1, 2}, {3, 3}};
  for (const auto& c : cases) {
    auto backend = std::make_shared<test::RecordingBackend>();
    EXPECT_TRUE(Store(backend).SetFxNumPts(c.given));
    ASSERT_NE(backend->stored("fxNumPts"), nullptr) << c.given;
    EXPECT_EQ(*backend->stored("fxNumPts"), RegistryValue::fromDword(c.stored)) << c.given;
  }
  // A 0 put there by someone else reads as 0.
  auto backend = std::make_shared<test::RecordingBackend>();
  backend->values.push_back({"fxNumPts", RegistryValue::fromDword(0)});
  EXPECT_EQ(Store(backend).GetFxNumPts(), 0u);
}

TEST(SettingKeys, NamesAreFoundWithoutRegardToCase) {
  const struct {
    const char* asked;
    const char* found;  // nullptr: not a setting
  } cases[] = {
      {"FXNUMPTS", "fxNumPts"}, {"ythresh", "YThresh"}, {"YThreshOn", "YThreshOn"},
      {"fxNumPt", nullptr},     {"", nullptr},          {"fxNumPts ", nullptr},
  };
  for (const auto& c : cases) {
    const SettingKey* key = findSettingKey(c.asked);
    EXPECT_EQ(key == nullptr ? "(none)" : key->name, c.found == nullptr ? "(none)" : c.found) << c.asked;
  }
}

}  // namespace
}  // namespace sonalyx

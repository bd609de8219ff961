#include "core/settings/SettingKeys.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "RecordingBackend.h"
#include "core/settings/SettingsStore.h"
#include "support/NumericCompare.h"

namespace sonalyx {
namespace {

using Store = SettingsStore;

// Each row: the stored name, the default, the named getter and setter, and a value
// other than the default for the setter.
struct BoolRow {
  const char* name;
  bool byDefault;
  bool (Store::*get)() const;
  bool (Store::*set)(bool) const;
};
struct IntRow {
  const char* name;
  std::uint32_t byDefault;
  std::uint32_t minimum;  // the least value the setter stores
  std::uint32_t (Store::*get)() const;
  bool (Store::*set)(std::uint32_t) const;
};
struct RealRow {
  const char* name;
  const char* defaultText;
  double byDefault;
  double (Store::*get)() const;
  bool (Store::*set)(double) const;
};
struct TextRow {
  const char* name;
  const char* byDefault;
  std::string (Store::*get)() const;
  bool (Store::*set)(std::string_view) const;
};

const BoolRow kBools[] = {
    {"autoScaleX", false, &Store::GetAutoScaleX, &Store::SetAutoScaleX},
    {"autoScaleY", false, &Store::GetAutoScaleY, &Store::SetAutoScaleY},
    {"showPts", true, &Store::GetShowPts, &Store::SetShowPts},
    {"showLine", false, &Store::GetShowLine, &Store::SetShowLine},
    {"showEBars", false, &Store::GetShowEBars, &Store::SetShowEBars},
    {"showXAxis", true, &Store::GetShowXAxis, &Store::SetShowXAxis},
    {"showXLabels", true, &Store::GetShowXLabels, &Store::SetShowXLabels},
    {"showYAxis", true, &Store::GetShowYAxis, &Store::SetShowYAxis},
    {"showYLabels", true, &Store::GetShowYLabels, &Store::SetShowYLabels},
    {"data1IsPolar", false, &Store::GetData1IsPolar, &Store::SetData1IsPolar},
    {"data2IsPolar", false, &Store::GetData2IsPolar, &Store::SetData2IsPolar},
    {"playTicks", false, &Store::GetPlayTicks, &Store::SetPlayTicks},
    {"YThreshOn", false, &Store::GetYThreshOn, &Store::SetYThreshOn},
    {"isMono", true, &Store::GetIsMono, &Store::SetIsMono},
    {"autoSpeak", false, &Store::GetAutoSpeak, &Store::SetAutoSpeak},
    {"sfxOn", false, &Store::GetSfxOn, &Store::SetSfxOn},
    {"ttsOn", false, &Store::GetTtsOn, &Store::SetTtsOn},
    {"isAutoReturn", false, &Store::GetIsAutoReturn, &Store::SetIsAutoReturn},
};
const IntRow kInts[] = {
    {"setType", 0, 0, &Store::GetSetType, &Store::SetSetType},
    {"fxNumPts", 501, 2, &Store::GetFxNumPts, &Store::SetFxNumPts},
    {"plotType", 0, 0, &Store::GetPlotType, &Store::SetPlotType},
    {"frameType", 0, 0, &Store::GetFrameType, &Store::SetFrameType},
    {"waveVolume", 50, 0, &Store::GetWaveVolume, &Store::SetWaveVolume},
    {"tickVolume", 40, 0, &Store::GetTickVolume, &Store::SetTickVolume},
    {"numTicks", 10, 0, &Store::GetNumTicks, &Store::SetNumTicks},
    {"playTime", 4, 0, &Store::GetPlayTime, &Store::SetPlayTime},
    {"minFreq", 60, 0, &Store::GetMinFreq, &Store::SetMinFreq},
    {"maxFreq", 2000, 0, &Store::GetMaxFreq, &Store::SetMaxFreq},
    {"rate", 50, 0, &Store::GetRate, &Store::SetRate},
    {"pitch", 50, 0, &Store::GetPitch, &Store::SetPitch},
    {"vol", 50, 0, &Store::GetVol, &Store::SetVol},
    {"numDec", 5, 0, &Store::GetNumDec, &Store::SetNumDec},
};
const RealRow kReals[] = {
    {"fxX0", "-10", -10.0, &Store::GetFxX0, &Store::SetFxX0},
    {"fxX1", "10", 10.0, &Store::GetFxX1, &Store::SetFxX1},
    {"yMax", "10", 10.0, &Store::GetYMax, &Store::SetYMax},
    {"xMin", "-10", -10.0, &Store::GetXMin, &Store::SetXMin},
    {"yMin", "-10", -10.0, &Store::GetYMin, &Store::SetYMin},
    {"xMax", "10", 10.0, &Store::GetXMax, &Store::SetXMax},
    {"YThresh", "0", 0.0, &Store::GetYThresh, &Store::SetYThresh},
};
const TextRow kTexts[] = {
    {"expr1", "", &Store::GetExpr1, &Store::SetExpr1},
    {"expr2", "", &Store::GetExpr2, &Store::SetExpr2},
    {"voice", "Sam", &Store::GetVoice, &Store::SetVoice},
};

// The values written at every start: setters only.
const struct {
  const char* name;
  SettingType type;
} kVersionKeys[] = {
    {"Major", SettingType::Integer}, {"Minor", SettingType::Integer},  {"Rev", SettingType::Integer},
    {"appName", SettingType::Text},  {"updateURL", SettingType::Text},
};

// The single path through the store that a named accessor must take: nothing read
// or written under any other name, and the registry type of the key's kind.
void expectOnly(const test::RecordingBackend& backend, const std::string& name, std::uint32_t type) {
  ASSERT_FALSE(backend.values.empty()) << name;
  for (const auto& value : backend.values) {
    EXPECT_EQ(value.name, name);
    EXPECT_EQ(value.value.type, type) << name;
  }
  for (const auto& read : backend.reads) EXPECT_EQ(read, name);
}

const SettingKey& rowOf(const char* name) {
  const SettingKey* key = findSettingKey(name);
  EXPECT_NE(key, nullptr) << name;
  static const SettingKey none{"", SettingType::Text, nullptr};
  return key != nullptr ? *key : none;
}

TEST(SettingKeys, TableAndNamedAccessorsAgreeWithEveryKey) {
  std::size_t rows = 0;
  for (const auto& row : kBools) {
    const SettingKey& key = rowOf(row.name);
    EXPECT_EQ(key.name, row.name);
    EXPECT_EQ(key.type, SettingType::Boolean) << row.name;
    EXPECT_STREQ(key.defaultText, row.byDefault ? "1" : "0") << row.name;
    auto backend = std::make_shared<test::RecordingBackend>();
    const Store store(backend);
    EXPECT_EQ((store.*row.get)(), row.byDefault) << row.name;
    EXPECT_EQ(*backend->stored(row.name), RegistryValue::fromDword(row.byDefault ? 1 : 0)) << row.name;
    EXPECT_TRUE((store.*row.set)(!row.byDefault)) << row.name;
    EXPECT_EQ((store.*row.get)(), !row.byDefault) << row.name;
    expectOnly(*backend, row.name, kRegDword);
    ++rows;
  }
  for (const auto& row : kInts) {
    const SettingKey& key = rowOf(row.name);
    EXPECT_EQ(key.name, row.name);
    EXPECT_EQ(key.type, SettingType::Integer) << row.name;
    EXPECT_EQ(key.defaultText, std::to_string(row.byDefault)) << row.name;
    EXPECT_EQ(key.minimum, row.minimum) << row.name;
    auto backend = std::make_shared<test::RecordingBackend>();
    const Store store(backend);
    EXPECT_EQ((store.*row.get)(), row.byDefault) << row.name;
    EXPECT_EQ(*backend->stored(row.name), RegistryValue::fromDword(row.byDefault)) << row.name;
    EXPECT_TRUE((store.*row.set)(1234567)) << row.name;
    EXPECT_EQ((store.*row.get)(), 1234567u) << row.name;
    EXPECT_TRUE((store.*row.set)(0)) << row.name;
    EXPECT_EQ((store.*row.get)(), row.minimum) << row.name;
    expectOnly(*backend, row.name, kRegDword);
    ++rows;
  }
  for (const auto& row : kReals) {
    const SettingKey& key = rowOf(row.name);
    EXPECT_EQ(key.name, row.name);
    EXPECT_EQ(key.type, SettingType::Real) << row.name;
    EXPECT_STREQ(key.defaultText, row.defaultText) << row.name;
    auto backend = std::make_shared<test::RecordingBackend>();
    const Store store(backend);
    EXPECT_TRUE(test::agreesTo((store.*row.get)(), row.byDefault, 15)) << row.name;
    EXPECT_EQ(*backend->stored(row.name), RegistryValue::fromText(row.defaultText)) << row.name;
    EXPECT_TRUE((store.*row.set)(-0.125)) << row.name;
    EXPECT_TRUE(test::agreesTo((store.*row.get)(), -0.125, 15)) << row.name;
    expectOnly(*backend, row.name, kRegSz);
    ++rows;
  }
  for (const auto& row : kTexts) {
    const SettingKey& key = rowOf(row.name);
    EXPECT_EQ(key.name, row.name);
    EXPECT_EQ(key.type, SettingType::Text) << row.name;
    EXPECT_STREQ(key.defaultText, row.byDefault) << row.name;
    auto backend = std::make_shared<test::RecordingBackend>();
    const Store store(backend);
    EXPECT_EQ((store.*row.get)(), row.byDefault) << row.name;
    EXPECT_EQ(*backend->stored(row.name), RegistryValue::fromText(row.byDefault)) << row.name;
    EXPECT_TRUE((store.*row.set)("Ärlig \"test\"")) << row.name;
    EXPECT_EQ((store.*row.get)(), "Ärlig \"test\"") << row.name;
    expectOnly(*backend, row.name, kRegSz);
    ++rows;
  }
  for (const auto& row : kVersionKeys) {
    const SettingKey& key = rowOf(row.name);
    EXPECT_EQ(key.name, row.name);
    EXPECT_EQ(key.type, row.type) << row.name;
    EXPECT_FALSE(key.hasDefault()) << row.name;
    ++rows;
  }
  EXPECT_EQ(allSettingKeys().size(), rows);
  EXPECT_EQ(rows, 47u);
}

TEST(SettingKeys, VersionSettersWriteTheirValues) {
  auto backend = std::make_shared<test::RecordingBackend>();
  const Store store(backend);
  EXPECT_TRUE(store.SetMajor(3));
  EXPECT_TRUE(store.SetMinor(0));
  EXPECT_TRUE(store.SetRev(15));
  EXPECT_TRUE(store.SetAppName("sonalyx"));
  EXPECT_TRUE(store.SetUpdateURL("https://example.org/update.xml"));
  const std::vector<NamedValue> expected = {
      {"Major", RegistryValue::fromDword(3)},
      {"Minor", RegistryValue::fromDword(0)},
      {"Rev", RegistryValue::fromDword(15)},
      {"appName", RegistryValue::fromText("sonalyx")},
      {"updateURL", RegistryValue::fromText("https://example.org/update.xml")},
  };
  EXPECT_EQ(backend->writes, expected);
  EXPECT_TRUE(backend->reads.empty());
}

TEST(SettingKeys, NamesAreFoundWithoutRegardToCase) {
  const struct {
    const char* asked;
    const char* found;  // nullptr: not a setting
  } cases[] = {
      {"fxNumPts", "fxNumPts"},
      {"FXNUMPTS", "fxNumPts"},
      {"ythresh", "YThresh"},
      {"YThreshOn", "YThreshOn"},
      {"updateurl", "updateURL"},
      {"fxNumPt", nullptr},
      {"", nullptr},
      {"fxNumPts ", nullptr},
  };
  for (const auto& c : cases) {
    const SettingKey* key = findSettingKey(c.asked);
    if (c.found == nullptr) {
      EXPECT_EQ(key, nullptr) << c.asked;
    } else {
      ASSERT_NE(key, nullptr) << c.asked;
      EXPECT_EQ(key->name, c.found);
    }
  }
}

}  // namespace
}  // namespace sonalyx

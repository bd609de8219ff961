#include "core/settings/SettingKeys.h"

#include <algorithm>

namespace sonalyx {

namespace {

using namespace setting;

constexpr SettingKey kTable[] = {
    kMajor,      kMinor,       kRev,       kAppName,      kUpdateURL,    kSetType,      kFxX0,
    kFxX1,       kFxNumPts,    kYMax,      kXMin,         kYMin,         kXMax,         kAutoScaleX,
    kAutoScaleY, kPlotType,    kShowPts,   kShowLine,     kShowEBars,    kShowXAxis,    kShowXLabels,
    kShowYAxis,  kShowYLabels, kFrameType, kData1IsPolar, kData2IsPolar, kExpr1,        kExpr2,
    kWaveVolume, kTickVolume,  kPlayTicks, kNumTicks,     kYThreshOn,    kYThresh,      kPlayTime,
    kIsMono,     kMinFreq,     kMaxFreq,   kAutoSpeak,    kSfxOn,        kTtsOn,        kTtsMode,
    kVoice,      kRate,        kPitch,     kVol,          kNumDec,       kIsAutoReturn, kTtsEngine,
    kLexicon,
};

char lower(char c) {
  return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

}  // namespace

std::span<const SettingKey> allSettingKeys() {
  return kTable;
}

const SettingKey* findSettingKey(std::string_view name) {
  const auto found = std::find_if(std::begin(kTable), std::end(kTable), [&](const SettingKey& key) {
    return key.name.size() == name.size() && std::equal(name.begin(), name.end(), key.name.begin(),
                                                        [](char a, char b) { return lower(a) == lower(b); });
  });
  return found == std::end(kTable) ? nullptr : found;
}

}  // namespace sonalyx

#pragma once

#include <span>
#include <string_view>

#include "core/limits/Limits.h"
#include "core/settings/SettingKey.h"

// Every setting the program keeps: its stored name, type and default. The named
// getters and setters of SettingsStore and the command line's settings command
// both take names, types and defaults from here.
namespace sonalyx::setting {

using enum SettingType;

// Written at every start for the external updater; never read back.
inline constexpr SettingKey kMajor{"Major", Integer, nullptr};
inline constexpr SettingKey kMinor{"Minor", Integer, nullptr};
inline constexpr SettingKey kRev{"Rev", Integer, nullptr};
inline constexpr SettingKey kAppName{"appName", Text, nullptr};
inline constexpr SettingKey kUpdateURL{"updateURL", Text, nullptr};

// Which data set is plotted and played: 0 data set 1, 1 data set 2, 2 sum, 3 difference.
inline constexpr SettingKey kSetType{"setType", Integer, "0"};
// The function's x domain and its number of sample points.
inline constexpr SettingKey kFxX0{"fxX0", Real, "-10"};
inline constexpr SettingKey kFxX1{"fxX1", Real, "10"};
inline constexpr SettingKey kFxNumPts{"fxNumPts", Integer, "501", 2,
                                      static_cast<std::uint32_t>(limits::kMostPoints)};
// The graph range.
inline constexpr SettingKey kYMax{"yMax", Real, "10"};
inline constexpr SettingKey kXMin{"xMin", Real, "-10"};
inline constexpr SettingKey kYMin{"yMin", Real, "-10"};
inline constexpr SettingKey kXMax{"xMax", Real, "10"};
inline constexpr SettingKey kAutoScaleX{"autoScaleX", Boolean, "0"};
inline constexpr SettingKey kAutoScaleY{"autoScaleY", Boolean, "0"};
// 0 the function values, 1 the derivative, 2 the integral.
inline constexpr SettingKey kPlotType{"plotType", Integer, "0"};
inline constexpr SettingKey kShowPts{"showPts", Boolean, "1"};
inline constexpr SettingKey kShowLine{"showLine", Boolean, "0"};
inline constexpr SettingKey kShowEBars{"showEBars", Boolean, "0"};
inline constexpr SettingKey kShowXAxis{"showXAxis", Boolean, "1"};
inline constexpr SettingKey kShowXLabels{"showXLabels", Boolean, "1"};
inline constexpr SettingKey kShowYAxis{"showYAxis", Boolean, "1"};
inline constexpr SettingKey kShowYLabels{"showYLabels", Boolean, "1"};
// 0 no tick marks, 1 tick marks, 2 grid lines.
inline constexpr SettingKey kFrameType{"frameType", Integer, "0"};
inline constexpr SettingKey kData1IsPolar{"data1IsPolar", Boolean, "0"};
inline constexpr SettingKey kData2IsPolar{"data2IsPolar", Boolean, "0"};
inline constexpr SettingKey kExpr1{"expr1", Text, ""};
inline constexpr SettingKey kExpr2{"expr2", Text, ""};
// Sound: volumes in percent, the play time in seconds, frequencies in Hz.
inline constexpr SettingKey kWaveVolume{"waveVolume", Integer, "50"};
inline constexpr SettingKey kTickVolume{"tickVolume", Integer, "40"};
inline constexpr SettingKey kPlayTicks{"playTicks", Boolean, "0"};
inline constexpr SettingKey kNumTicks{"numTicks", Integer, "10"};
inline constexpr SettingKey kYThreshOn{"YThreshOn", Boolean, "0"};
inline constexpr SettingKey kYThresh{"YThresh", Real, "0"};
inline constexpr SettingKey kPlayTime{"playTime", Integer, "4", 0, limits::kLongestPlayTime};
inline constexpr SettingKey kIsMono{"isMono", Boolean, "1"};
inline constexpr SettingKey kMinFreq{"minFreq", Integer, "60"};
inline constexpr SettingKey kMaxFreq{"maxFreq", Integer, "2000"};
inline constexpr SettingKey kAutoSpeak{"autoSpeak", Boolean, "0"};
inline constexpr SettingKey kSfxOn{"sfxOn", Boolean, "0"};
// Self-voicing starts off so that it never talks over a screen reader unasked.
inline constexpr SettingKey kTtsOn{"ttsOn", Boolean, "0"};
// What self-voicing says beside a screen reader (see VoicingMode): 0 everything, 1
// only what the screen reader cannot know, 2 automatic (as 1 while one runs).
inline constexpr SettingKey kTtsMode{"ttsMode", Integer, "2", 0, 2};
// Speech: rate, pitch and volume in percent; decimals voiced for a number.
inline constexpr SettingKey kVoice{"voice", Text, "Sam"};
inline constexpr SettingKey kRate{"rate", Integer, "50"};
inline constexpr SettingKey kPitch{"pitch", Integer, "50"};
inline constexpr SettingKey kVol{"vol", Integer, "50"};
inline constexpr SettingKey kNumDec{"numDec", Integer, "5"};
inline constexpr SettingKey kIsAutoReturn{"isAutoReturn", Boolean, "0"};
// The speech engine by the name SONALYX_SPEECH takes ("espeak-ng", "system"); the
// variable, when set, wins for that run.
inline constexpr SettingKey kTtsEngine{"ttsEngine", Text, "espeak-ng"};
// The pronunciation list the voice applies before speaking (see PronunciationLexicon).
inline constexpr SettingKey kLexicon{"lexicon", Text, ""};

}  // namespace sonalyx::setting

namespace sonalyx {

// Every row above, in the order listed.
std::span<const SettingKey> allSettingKeys();
// The row of a stored name, found as the registry finds names (ASCII case does not
// matter); nullptr for a name the program does not use.
const SettingKey* findSettingKey(std::string_view name);

}  // namespace sonalyx

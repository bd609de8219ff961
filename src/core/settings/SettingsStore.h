#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/graph/GraphRange.h"
#include "core/settings/SettingKeys.h"
#include "core/settings/SettingsBackend.h"

namespace sonalyx {

// Typed access to the settings key. The store keeps nothing between calls: every
// getter reads the backend at the moment of use, so nobody holds a stale copy and
// two running programs share their settings value by value.
//
// Reading a value that is absent writes its default back and returns it, so the key
// fills with every setting the program has read. A value of a type the getter does
// not accept is left as it is: an integer getter returns 0, a Boolean or text getter
// its default. Backend failures are never reported: a setter returns false and a
// failed read counts as absent.
class SettingsStore {
 public:
  explicit SettingsStore(std::shared_ptr<SettingsBackend> backend);

  // The store over this user's settings file (see defaultSettingsPath()).
  static SettingsStore openDefault();

  SettingsBackend& backend() const { return *m_backend; }

  bool GetBool(std::string_view name, bool defaultValue) const;
  bool SetBool(std::string_view name, bool value) const;  // stored as 0 or 1
  std::uint32_t GetInt(std::string_view name, std::uint32_t defaultValue) const;
  bool SetInt(std::string_view name, std::uint32_t value) const;
  std::string GetText(std::string_view name, std::string_view defaultValue) const;
  bool SetText(std::string_view name, std::string_view text) const;
  // The stored text read as a decimal number; text that is not a number reads as 0.
  double GetReal(std::string_view name, std::string_view defaultText) const;
  // Stored as text with "%.10g".
  bool SetReal(std::string_view name, double value) const;

  // The same through a row of the settings table, with the row's name, default and
  // (for integers) minimum.
  bool GetBool(const SettingKey& key) const { return GetBool(key.name, key.defaultBool()); }
  bool SetBool(const SettingKey& key, bool value) const { return SetBool(key.name, value); }
  std::uint32_t GetInt(const SettingKey& key) const { return GetInt(key.name, key.defaultInt()); }
  bool SetInt(const SettingKey& key, std::uint32_t value) const;
  std::string GetText(const SettingKey& key) const { return GetText(key.name, key.defaultString()); }
  bool SetText(const SettingKey& key, std::string_view text) const { return SetText(key.name, text); }
  double GetReal(const SettingKey& key) const { return GetReal(key.name, key.defaultString()); }
  bool SetReal(const SettingKey& key, double value) const { return SetReal(key.name, value); }

  // A setting's value as its getter returns it, as text: a Boolean or an integer as
  // a decimal number, a real with "%.10g", a text as it is. An absent value's
  // default is written back as by the getter. Nothing for an absent value of a row
  // without a default (those are never read back).
  std::optional<std::string> GetValueText(const SettingKey& key) const;
  // A stored value as its getter would return it, without writing anything; values
  // without a getter follow their registry type (double words as decimal numbers,
  // texts as they are, anything else as the export's hex bytes "0a,ff").
  static std::string ValueText(std::string_view name, const RegistryValue& value);
  // Every stored value in stored order.
  std::vector<NamedValue> ListValues() const { return m_backend->listValues(); }

  // Run once at start: a missing or empty key gets yMax with its default, which
  // creates it.
  void OpenSettingsKey() const;
  // Deletes the whole key with everything below it; given a name, only that value.
  bool DeleteSettings(std::string_view valueName = {}) const;

  // Reads yMax, xMin, yMin and xMax in this order and normalises them.
  GraphRange GetGraphRange() const;
  bool SetGraphRange(double yMax, double xMin, double yMin, double xMax) const;

  bool SetMajor(std::uint32_t value) const { return SetInt(setting::kMajor, value); }
  bool SetMinor(std::uint32_t value) const { return SetInt(setting::kMinor, value); }
  bool SetRev(std::uint32_t value) const { return SetInt(setting::kRev, value); }
  bool SetAppName(std::string_view text) const { return SetText(setting::kAppName, text); }
  bool SetUpdateURL(std::string_view text) const { return SetText(setting::kUpdateURL, text); }

  std::uint32_t GetSetType() const { return GetInt(setting::kSetType); }
  bool SetSetType(std::uint32_t value) const { return SetInt(setting::kSetType, value); }
  double GetFxX0() const { return GetReal(setting::kFxX0); }
  bool SetFxX0(double value) const { return SetReal(setting::kFxX0, value); }
  double GetFxX1() const { return GetReal(setting::kFxX1); }
  bool SetFxX1(double value) const { return SetReal(setting::kFxX1, value); }
  std::uint32_t GetFxNumPts() const { return GetInt(setting::kFxNumPts); }
  bool SetFxNumPts(std::uint32_t value) const { return SetInt(setting::kFxNumPts, value); }  // at least 2
  double GetYMax() const { return GetReal(setting::kYMax); }
  bool SetYMax(double value) const { return SetReal(setting::kYMax, value); }
  double GetXMin() const { return GetReal(setting::kXMin); }
  bool SetXMin(double value) const { return SetReal(setting::kXMin, value); }
  double GetYMin() const { return GetReal(setting::kYMin); }
  bool SetYMin(double value) const { return SetReal(setting::kYMin, value); }
  double GetXMax() const { return GetReal(setting::kXMax); }
  bool SetXMax(double value) const { return SetReal(setting::kXMax, value); }
  bool GetAutoScaleX() const { return GetBool(setting::kAutoScaleX); }
  bool SetAutoScaleX(bool value) const { return SetBool(setting::kAutoScaleX, value); }
  bool GetAutoScaleY() const { return GetBool(setting::kAutoScaleY); }
  bool SetAutoScaleY(bool value) const { return SetBool(setting::kAutoScaleY, value); }
  std::uint32_t GetPlotType() const { return GetInt(setting::kPlotType); }
  bool SetPlotType(std::uint32_t value) const { return SetInt(setting::kPlotType, value); }
  bool GetShowPts() const { return GetBool(setting::kShowPts); }
  bool SetShowPts(bool value) const { return SetBool(setting::kShowPts, value); }
  bool GetShowLine() const { return GetBool(setting::kShowLine); }
  bool SetShowLine(bool value) const { return SetBool(setting::kShowLine, value); }
  bool GetShowEBars() const { return GetBool(setting::kShowEBars); }
  bool SetShowEBars(bool value) const { return SetBool(setting::kShowEBars, value); }
  bool GetShowXAxis() const { return GetBool(setting::kShowXAxis); }
  bool SetShowXAxis(bool value) const { return SetBool(setting::kShowXAxis, value); }
  bool GetShowXLabels() const { return GetBool(setting::kShowXLabels); }
  bool SetShowXLabels(bool value) const { return SetBool(setting::kShowXLabels, value); }
  bool GetShowYAxis() const { return GetBool(setting::kShowYAxis); }
  bool SetShowYAxis(bool value) const { return SetBool(setting::kShowYAxis, value); }
  bool GetShowYLabels() const { return GetBool(setting::kShowYLabels); }
  bool SetShowYLabels(bool value) const { return SetBool(setting::kShowYLabels, value); }
  std::uint32_t GetFrameType() const { return GetInt(setting::kFrameType); }
  bool SetFrameType(std::uint32_t value) const { return SetInt(setting::kFrameType, value); }
  bool GetData1IsPolar() const { return GetBool(setting::kData1IsPolar); }
  bool SetData1IsPolar(bool value) const { return SetBool(setting::kData1IsPolar, value); }
  bool GetData2IsPolar() const { return GetBool(setting::kData2IsPolar); }
  bool SetData2IsPolar(bool value) const { return SetBool(setting::kData2IsPolar, value); }
  std::string GetExpr1() const { return GetText(setting::kExpr1); }
  bool SetExpr1(std::string_view text) const { return SetText(setting::kExpr1, text); }
  std::string GetExpr2() const { return GetText(setting::kExpr2); }
  bool SetExpr2(std::string_view text) const { return SetText(setting::kExpr2, text); }
  std::uint32_t GetWaveVolume() const { return GetInt(setting::kWaveVolume); }
  bool SetWaveVolume(std::uint32_t value) const { return SetInt(setting::kWaveVolume, value); }
  std::uint32_t GetTickVolume() const { return GetInt(setting::kTickVolume); }
  bool SetTickVolume(std::uint32_t value) const { return SetInt(setting::kTickVolume, value); }
  bool GetPlayTicks() const { return GetBool(setting::kPlayTicks); }
  bool SetPlayTicks(bool value) const { return SetBool(setting::kPlayTicks, value); }
  std::uint32_t GetNumTicks() const { return GetInt(setting::kNumTicks); }
  bool SetNumTicks(std::uint32_t value) const { return SetInt(setting::kNumTicks, value); }
  bool GetYThreshOn() const { return GetBool(setting::kYThreshOn); }
  bool SetYThreshOn(bool value) const { return SetBool(setting::kYThreshOn, value); }
  double GetYThresh() const { return GetReal(setting::kYThresh); }
  bool SetYThresh(double value) const { return SetReal(setting::kYThresh, value); }
  std::uint32_t GetPlayTime() const { return GetInt(setting::kPlayTime); }
  bool SetPlayTime(std::uint32_t value) const { return SetInt(setting::kPlayTime, value); }
  bool GetIsMono() const { return GetBool(setting::kIsMono); }
  bool SetIsMono(bool value) const { return SetBool(setting::kIsMono, value); }
  std::uint32_t GetMinFreq() const { return GetInt(setting::kMinFreq); }
  bool SetMinFreq(std::uint32_t value) const { return SetInt(setting::kMinFreq, value); }
  std::uint32_t GetMaxFreq() const { return GetInt(setting::kMaxFreq); }
  bool SetMaxFreq(std::uint32_t value) const { return SetInt(setting::kMaxFreq, value); }
  bool GetAutoSpeak() const { return GetBool(setting::kAutoSpeak); }
  bool SetAutoSpeak(bool value) const { return SetBool(setting::kAutoSpeak, value); }
  bool GetSfxOn() const { return GetBool(setting::kSfxOn); }
  bool SetSfxOn(bool value) const { return SetBool(setting::kSfxOn, value); }
  bool GetTtsOn() const { return GetBool(setting::kTtsOn); }
  bool SetTtsOn(bool value) const { return SetBool(setting::kTtsOn, value); }
  std::uint32_t GetTtsMode() const { return GetInt(setting::kTtsMode); }
  bool SetTtsMode(std::uint32_t value) const { return SetInt(setting::kTtsMode, value); }
  std::string GetVoice() const { return GetText(setting::kVoice); }
  bool SetVoice(std::string_view text) const { return SetText(setting::kVoice, text); }
  std::uint32_t GetRate() const { return GetInt(setting::kRate); }
  bool SetRate(std::uint32_t value) const { return SetInt(setting::kRate, value); }
  std::uint32_t GetPitch() const { return GetInt(setting::kPitch); }
  bool SetPitch(std::uint32_t value) const { return SetInt(setting::kPitch, value); }
  std::uint32_t GetVol() const { return GetInt(setting::kVol); }
  bool SetVol(std::uint32_t value) const { return SetInt(setting::kVol, value); }
  std::uint32_t GetNumDec() const { return GetInt(setting::kNumDec); }
  bool SetNumDec(std::uint32_t value) const { return SetInt(setting::kNumDec, value); }
  bool GetIsAutoReturn() const { return GetBool(setting::kIsAutoReturn); }
  bool SetIsAutoReturn(bool value) const { return SetBool(setting::kIsAutoReturn, value); }
  std::string GetTtsEngine() const { return GetText(setting::kTtsEngine); }
  bool SetTtsEngine(std::string_view text) const { return SetText(setting::kTtsEngine, text); }
  std::string GetLexicon() const { return GetText(setting::kLexicon); }
  bool SetLexicon(std::string_view text) const { return SetText(setting::kLexicon, text); }

 private:
  std::shared_ptr<SettingsBackend> m_backend;
};

}  // namespace sonalyx

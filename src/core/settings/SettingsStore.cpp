#include "core/settings/SettingsStore.h"

#include <algorithm>
#include <cstdio>

#include "core/settings/RegFileBackend.h"
#include "core/settings/SettingsPath.h"
#include "core/utility/DecimalText.h"
#include "core/utility/NumberFormat.h"

namespace sonalyx {

namespace {

std::string hexBytes(const std::vector<std::uint8_t>& data) {
  std::string text;
  char buffer[4];
  for (std::size_t i = 0; i < data.size(); ++i) {
    std::snprintf(buffer, sizeof buffer, "%02x", static_cast<unsigned>(data[i]));
    if (i > 0) text += ',';
    text += buffer;
  }
  return text;
}

std::string realText(double value) {
  return formatNumber(value, "%.10g");
}

}  // namespace

SettingsStore::SettingsStore(std::shared_ptr<SettingsBackend> backend) : m_backend(std::move(backend)) {}

SettingsStore SettingsStore::openDefault() {
  return SettingsStore(std::make_shared<RegFileBackend>(defaultSettingsPath()));
}

bool SettingsStore::GetBool(std::string_view name, bool defaultValue) const {
  const auto stored = m_backend->readValue(name);
  if (!stored) {
    SetBool(name, defaultValue);
    return defaultValue;
  }
  const auto word = stored->dword();
  return word ? *word != 0 : defaultValue;
}

bool SettingsStore::SetBool(std::string_view name, bool value) const {
  return SetInt(name, value ? 1 : 0);
}

std::uint32_t SettingsStore::GetInt(std::string_view name, std::uint32_t defaultValue) const {
  const auto stored = m_backend->readValue(name);
  if (!stored) {
    SetInt(name, defaultValue);
    return defaultValue;
  }
  return stored->dword().value_or(0);
}

bool SettingsStore::SetInt(std::string_view name, std::uint32_t value) const {
  return m_backend->writeValue(name, RegistryValue::fromDword(value));
}

bool SettingsStore::SetInt(const SettingKey& key, std::uint32_t value) const {
  return SetInt(key.name, std::clamp(value, key.minimum, key.maximum));
}

std::string SettingsStore::GetText(std::string_view name, std::string_view defaultValue) const {
  const auto stored = m_backend->readValue(name);
  if (!stored) {
    SetText(name, defaultValue);
    return std::string(defaultValue);
  }
  auto text = stored->text();
  return text ? std::move(*text) : std::string(defaultValue);
}

bool SettingsStore::SetText(std::string_view name, std::string_view text) const {
  return m_backend->writeValue(name, RegistryValue::fromText(text));
}

double SettingsStore::GetReal(std::string_view name, std::string_view defaultText) const {
  return decimalToDouble(GetText(name, defaultText));
}

bool SettingsStore::SetReal(std::string_view name, double value) const {
  return SetText(name, realText(value));
}

std::optional<std::string> SettingsStore::GetValueText(const SettingKey& key) const {
  if (!key.hasDefault()) {
    const auto stored = m_backend->readValue(key.name);
    if (!stored) return std::nullopt;
    return ValueText(key.name, *stored);
  }
  switch (key.type) {
    case SettingType::Boolean:
      return GetBool(key) ? "1" : "0";
    case SettingType::Integer:
      return std::to_string(GetInt(key));
    case SettingType::Real:
      return realText(GetReal(key));
    case SettingType::Text:
      return GetText(key);
  }
  return std::nullopt;
}

std::string SettingsStore::ValueText(std::string_view name, const RegistryValue& value) {
  const auto word = value.dword();
  const auto text = value.text();
  const SettingKey* key = findSettingKey(name);
  if (key != nullptr && key->hasDefault()) {
    switch (key->type) {
      case SettingType::Boolean:
        return (word ? *word != 0 : key->defaultBool()) ? "1" : "0";
      case SettingType::Integer:
        return std::to_string(word.value_or(0));
      case SettingType::Real:
        return realText(decimalToDouble(text.value_or(std::string(key->defaultString()))));
      case SettingType::Text:
        return text.value_or(std::string(key->defaultString()));
    }
  }
  if (word) return std::to_string(*word);
  if (text) return *text;
  return hexBytes(value.data);
}

void SettingsStore::OpenSettingsKey() const {
  if (!m_backend->keyHasContent()) SetText(setting::kYMax.name, setting::kYMax.defaultString());
}

bool SettingsStore::DeleteSettings(std::string_view valueName) const {
  return valueName.empty() ? m_backend->deleteKey() : m_backend->deleteValue(valueName);
}

GraphRange SettingsStore::GetGraphRange() const {
  const double yMax = GetYMax();
  const double xMin = GetXMin();
  const double yMin = GetYMin();
  const double xMax = GetXMax();
  GraphRange range;
  range.set(yMax, xMin, yMin, xMax);
  return range;
}

bool SettingsStore::SetGraphRange(double yMax, double xMin, double yMin, double xMax) const {
  // Every value is written even when an earlier one failed, as four separate setters would.
  const bool top = SetYMax(yMax);
  const bool left = SetXMin(xMin);
  const bool bottom = SetYMin(yMin);
  const bool right = SetXMax(xMax);
  return top && left && bottom && right;
}

}  // namespace sonalyx

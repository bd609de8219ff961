#pragma once

#include <algorithm>
#include <string>
#include <vector>

#include "core/settings/SettingsBackend.h"

namespace sonalyx::test {

// A key in memory that remembers every call, so a test can see exactly what the
// store handed over. `failWrites` makes every change fail, as a read-only registry would.
class RecordingBackend : public SettingsBackend {
 public:
  std::vector<NamedValue> values;
  std::vector<NamedValue> writes;  // every writeValue call, in order
  std::vector<std::string> reads;  // every readValue call, in order
  bool hasSubkey = false;
  bool failWrites = false;

  std::optional<RegistryValue> readValue(std::string_view name) override {
    reads.emplace_back(name);
    const auto found = find(name);
    if (found == values.end()) return std::nullopt;
    return found->value;
  }
  bool writeValue(std::string_view name, const RegistryValue& value) override {
    writes.push_back({std::string(name), value});
    if (failWrites) return false;
    const auto found = find(name);
    if (found == values.end()) {
      values.push_back({std::string(name), value});
    } else {
      found->value = value;
    }
    return true;
  }
  std::vector<NamedValue> listValues() override { return values; }
  bool keyHasContent() override { return !values.empty() || hasSubkey; }
  bool deleteKey() override {
    if (failWrites) return false;
    values.clear();
    hasSubkey = false;
    return true;
  }
  bool deleteValue(std::string_view name) override {
    if (failWrites) return false;
    const auto found = find(name);
    if (found != values.end()) values.erase(found);
    return true;
  }

  const RegistryValue* stored(std::string_view name) {
    const auto found = find(name);
    return found == values.end() ? nullptr : &found->value;
  }

 private:
  std::vector<NamedValue>::iterator find(std::string_view name) {
    return std::find_if(values.begin(), values.end(), [&](const NamedValue& v) { return v.name == name; });
  }
};

}  // namespace sonalyx::test

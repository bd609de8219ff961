#pragma once

#include <filesystem>
#include <functional>
#include <optional>
#include <string>

#include "core/settings/RegFileDocument.h"
#include "core/settings/SettingsBackend.h"

namespace sonalyx {

// The settings key kept in one registry export file, where there is no registry.
//
// Every change locks "<file>.lock" (an advisory flock on a file of its own, which
// the rename below cannot replace), re-reads the file, changes the one value,
// writes a temporary file in the same folder, flushes it to the disk and renames it
// over the file. Readers therefore see the old or the new file, never half of one,
// and two programs writing different values at once both keep theirs.
//
// A missing file is an empty key. A file with unreadable lines still gives every
// value it can; before the first change over it, its bytes are copied once to
// "<file>.bad" (an existing copy is kept). A file that exists but cannot be read is
// never written over.
class RegFileBackend : public SettingsBackend {
 public:
  explicit RegFileBackend(std::filesystem::path file);

  const std::filesystem::path& file() const { return m_file; }

  std::optional<RegistryValue> readValue(std::string_view name) override;
  bool writeValue(std::string_view name, const RegistryValue& value) override;
  std::vector<NamedValue> listValues() override;
  bool keyHasContent() override;
  bool deleteKey() override;
  bool deleteValue(std::string_view name) override;

  // The key's name as its section in the file.
  static std::string keyPath();

 private:
  // Nothing when the file exists but cannot be read.
  std::optional<RegFileDocument> load(const std::filesystem::path& file) const;
  // `change` returns false when it changed nothing; then nothing is written.
  // Without `creates`, a missing folder means there is nothing to change.
  bool modify(bool creates, const std::function<bool(RegFileDocument&)>& change);

  std::filesystem::path m_file;
};

}  // namespace sonalyx

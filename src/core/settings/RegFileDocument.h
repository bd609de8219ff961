#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/settings/RegistryValue.h"
#include "core/settings/SettingsBackend.h"

namespace sonalyx {

// A text file in the registry editor's export format, held line by line so that a
// rewrite changes only the value it was asked to change: other keys, values the
// program does not know, comments, order and unreadable lines stay as they were.
//
//   Windows Registry Editor Version 5.00
//
//   [HKEY_CURRENT_USER\Software\...\Settings]
//   "voice"="Sam"
//   "rate"=dword:00000032
//   "path"=hex(2):25,00,00,00
//
// Keys and value names compare without regard to ASCII case, as in the registry;
// when a value appears twice the later one counts, as when the file is imported.
class RegFileDocument {
 public:
  static constexpr std::string_view kHeader = "Windows Registry Editor Version 5.00";

  // Accepts UTF-8 with or without a byte-order mark and UTF-16LE with one, line
  // ends LF or CR LF. Never fails: what cannot be read is kept as it stands and
  // marks the document damaged.
  static RegFileDocument parse(std::string_view bytes);
  // UTF-8 without a byte-order mark and LF line ends, which Linux tools (grep,
  // diff, editors) read as plain text.
  std::string serialize() const;

  // True when the file held lines that could not be read, or bytes that were not
  // text in its encoding.
  bool damaged() const { return m_damaged; }

  std::optional<RegistryValue> value(std::string_view key, std::string_view name) const;
  std::vector<NamedValue> values(std::string_view key) const;
  // False when the key holds no value and has no subkey.
  bool keyHasContent(std::string_view key) const;

  // Replaces the value where it stands, or adds it at the end of its key, adding
  // the key (and the file's first line) when missing.
  void setValue(std::string_view key, std::string_view name, const RegistryValue& value);
  // Both return false when there was nothing to remove.
  bool removeValue(std::string_view key, std::string_view name);
  bool removeKey(std::string_view key);  // with its subkeys

  // One value as the export writes it: "name"="text" for a plain string,
  // "name"=dword:0000000a, otherwise hex bytes ("hex:" or "hex(N):") in lines of at
  // most 80 characters continued with ",\" and two leading blanks.
  static std::string valueText(std::string_view name, const RegistryValue& value);

 private:
  enum class Kind { Header, Other, Section, Value, Removal, Unreadable };
  struct Entry {
    Kind kind = Kind::Other;
    std::string raw;   // the physical lines, joined with '\n'
    std::string name;  // the key of a Section, the name of a Value or Removal
    RegistryValue value;
  };
  struct Block {
    std::size_t begin;  // the section line
    std::size_t end;    // the next section line or the end
  };

  std::vector<Block> blocks(std::string_view key, bool withSubkeys) const;

  std::vector<Entry> m_entries;
  bool m_damaged = false;
};

}  // namespace sonalyx

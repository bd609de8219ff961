#pragma once

#include <string>
#include <vector>

namespace sonalyx {

// Which installed voices the program offers. The entries name the voices of the
// engines the program was first made for: a name passes if it equals an exact
// entry or contains one of the others (case matters in both). An engine none of
// whose voices pass names its voices some other way, so then all of them are
// offered rather than none.
class VoiceFilter {
 public:
  struct Entry {
    std::string text;
    bool exact;
  };

  // "Sam", "Mary" and "Mike" exactly; "L&H" and "ATT " anywhere in the name (the
  // blank after ATT is part of the entry).
  VoiceFilter();

  const std::vector<Entry>& entries() const { return m_entries; }
  bool passes(const std::string& name) const;

  // The voices that pass, in the engine's order; all of them when none pass.
  std::vector<std::string> offered(const std::vector<std::string>& voices) const;

 private:
  std::vector<Entry> m_entries;
};

}  // namespace sonalyx

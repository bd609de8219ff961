#pragma once

#include <optional>
#include <string>
#include <vector>

namespace sonalyx {

// The entries typed on a calculation page since the program started, oldest
// first, recalled with the Up and Down arrows.
//
// The two keys are deliberately unlike: Up shows the entry at the current
// position and then steps back (stopping at the first), Down steps forward and
// then shows, or empties the box past the newest. So right after an entry, Up
// recalls that entry and Down gives an empty box.
class EntryHistory {
 public:
  // Appends an entry and points at it, so that Up recalls it first even when the
  // user had stepped back before typing it.
  void add(std::string entry);

  // The text for the expression box, or nothing at all while the history is empty.
  std::optional<std::string> up();
  // As up(); an empty text past the newest entry.
  std::optional<std::string> down();

  const std::vector<std::string>& entries() const { return m_entries; }
  // -1 while empty.
  int index() const { return m_index; }

 private:
  std::vector<std::string> m_entries;
  int m_index = -1;
};

}  // namespace sonalyx

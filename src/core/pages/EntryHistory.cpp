#include "core/pages/EntryHistory.h"

#include <utility>

namespace sonalyx {

void EntryHistory::add(std::string entry) {
  m_entries.push_back(std::move(entry));
  m_index = static_cast<int>(m_entries.size()) - 1;
}

std::optional<std::string> EntryHistory::up() {
  if (m_entries.empty()) return std::nullopt;
  std::string shown = m_entries[static_cast<std::size_t>(m_index)];
  if (m_index >= 1) --m_index;
  return shown;
}

std::optional<std::string> EntryHistory::down() {
  if (m_entries.empty()) return std::nullopt;
  if (m_index < static_cast<int>(m_entries.size()) - 1) {
    ++m_index;
    return m_entries[static_cast<std::size_t>(m_index)];
  }
  return std::string();
}

}  // namespace sonalyx

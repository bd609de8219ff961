#pragma once

#include <functional>
#include <span>
#include <string>

namespace sonalyx::ui {

class CCommandTable;

using TextTranslator = std::function<std::string(const std::string&)>;

// A menu item's text in the dictionary's terms: an item with a key ("&Larger\tF8")
// is looked up with "TAB" in place of each tab, and each "TAB" of the translation
// becomes a tab again.
std::string translateMenuText(const std::string& text, const TextTranslator& translate);

// The commands whose menu items are translated, in the order they are translated.
std::span<const int> translatedCommands();

// Translates the menu bar once at start: the four popup titles by position, the
// "&Plot" and "&Wave" submenus at positions 5 and 7 of "&Options", then the items
// of translatedCommands() that have a place in the menu.
void translateMenu(CCommandTable& table, const TextTranslator& translate);

}  // namespace sonalyx::ui

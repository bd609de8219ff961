#pragma once

#include <QString>
#include <vector>

#include "core/speech/Translator.h"

namespace sonalyx::ui {

// One line of the key list: the keys as the user presses them and what they do.
struct KeyListEntry {
  QString keys;
  QString action;
};

// A part of the key list, with the anchor and the page of its own it is found by.
struct KeyListSection {
  QString id;  // "panel", "commands", "graph", "menus", "calculator", "pages"
  QString title;
  std::vector<KeyListEntry> entries;
};

// Every key the program answers to, made from the program's own tables so that the
// list never drifts from them: the hot keys and the menus of the command table, the
// Calculator page's accelerators and shifted keys, and the keys every page shares.
// Every word passes through `translate` (English when it is empty).
std::vector<KeyListSection> keyListSections(const Translator& translate = {});

// One HTML page of the sections whose ids are given (all of them when none are),
// in the language whose code is `languageCode`.
QString keyListPage(const std::vector<KeyListSection>& sections, const QStringList& ids,
                    const QString& languageCode, const Translator& translate = {});

// The key-list pages a help folder holds: the whole list, and the three the Help
// menu's hot-key commands open.
struct KeyListFile {
  const char* fileName;
  const char* title;
  std::vector<const char*> sectionIds;
};
const std::vector<KeyListFile>& keyListFiles();

}  // namespace sonalyx::ui

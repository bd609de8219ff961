#include <gtest/gtest.h>

#include <QFile>
#include <QKeySequence>
#include <QRegularExpression>
#include <QString>
#include <set>

#include "core/pages/CalculatorKeyboard.h"
#include "ui/UiTestSupport.h"
#include "ui/app/CommandTable.h"
#include "ui/app/KeyList.h"

namespace sonalyx::ui {
namespace {

const KeyListSection* section(const std::vector<KeyListSection>& sections, const QString& id) {
  for (const KeyListSection& each : sections)
    if (each.id == id) return &each;
  return nullptr;
}

// Whether some line of the list names `keys` (alone or among others) with words
// for what they do.
bool listed(const std::vector<KeyListSection>& sections, const QString& keys) {
  for (const KeyListSection& each : sections)
    for (const KeyListEntry& entry : each.entries) {
      const QStringList named = entry.keys.split(QRegularExpression(QStringLiteral(", | or ")));
      if (named.contains(keys) && !entry.action.trimmed().isEmpty()) return true;
    }
  return false;
}

// Every command of the command table that a key or a menu reaches, and every key
// of the Calculator page's tables, is in the key list, each with what it does; the
// pages the build wrote into the help are that list, word for word.
TEST(KeyList, CoversEveryCommandAndEveryPageKey) {
  const std::vector<KeyListSection> sections = keyListSections();
  int commandKeys = 0;
  for (const CommandSpec& command : CCommandTable::commands()) {
    for (int i = 0; i < command.keyCount; ++i) {
      const QString keys = QKeySequence(command.keys[i])
                               .toString(QKeySequence::PortableText)
                               .replace(QStringLiteral("PgUp"), QStringLiteral("Page Up"))
                               .replace(QStringLiteral("PgDown"), QStringLiteral("Page Down"));
      EXPECT_TRUE(listed(sections, keys)) << command.id << " " << keys.toStdString();
      ++commandKeys;
    }
  }
  EXPECT_GE(commandKeys, 20);

  // Each menu item by its letters, the way Alt and the underlined letters reach it.
  const KeyListSection* menus = section(sections, "menus");
  ASSERT_NE(menus, nullptr);
  std::set<QString> items;
  for (const KeyListEntry& entry : menus->entries) items.insert(entry.action);
  int menuItems = 0;
  for (const MenuLine& line : CCommandTable::menuLayout()) {
    if (line.kind != MenuLine::Command) continue;
    ++menuItems;
    QString words =
        QString::fromUtf8(CCommandTable::find(line.id)->menuText).section(QLatin1Char('\t'), 0, 0);
    words.remove(QLatin1Char('&'));
    EXPECT_TRUE(items.count(words.trimmed())) << words.toStdString();
  }
  EXPECT_EQ(menus->entries.size(), static_cast<std::size_t>(menuItems));
  const auto menuLine = [&](const char* keys, const char* words) {
    for (const KeyListEntry& entry : menus->entries)
      if (entry.keys == keys) return entry.action == words;
    return false;
  };
  EXPECT_TRUE(menuLine("Alt+O, P, S", "Source"));
  EXPECT_TRUE(menuLine("Alt+F, R", "Print Graph"));
  EXPECT_TRUE(menuLine("Alt+H, A", "About the Sonalyx ..."));

  for (const CalcAccelerator& accelerator : calculatorAccelerators())
    EXPECT_TRUE(listed(sections, QString::fromLatin1(accelerator.keys))) << accelerator.keys;
  for (const CalcShiftedKey& shifted : calculatorShiftedKeys()) {
    const bool letter = shifted.character >= 'A' && shifted.character <= 'Z';
    const QString keys = (letter ? QStringLiteral("Shift+") : QString()) + QChar(shifted.character);
    EXPECT_TRUE(listed(sections, keys)) << keys.toStdString();
  }

  for (const KeyListFile& page : keyListFiles()) {
    QStringList ids;
    for (const char* id : page.sectionIds) ids << QString::fromLatin1(id);
    QFile built(QStringLiteral(SONALYX_BUILT_HELP_DIR "/en/") + QString::fromLatin1(page.fileName));
    ASSERT_TRUE(built.open(QIODevice::ReadOnly)) << page.fileName;
    EXPECT_EQ(QString::fromUtf8(built.readAll()), keyListPage(sections, ids, QStringLiteral("en")))
        << page.fileName;
  }
}

// Every word of the list passes through the dictionary: the generator knows no
// language of its own.
TEST(KeyList, SpeaksTheLanguageItIsGiven) {
  const auto marked = [](const std::string& english) { return "[" + english + "]"; };
  const std::vector<KeyListSection> sections = keyListSections(marked);
  for (const KeyListSection& each : sections) {
    EXPECT_TRUE(each.title.startsWith('[')) << each.title.toStdString();
    for (const KeyListEntry& entry : each.entries)
      EXPECT_TRUE(entry.action.contains('[') || each.id == "calculator") << entry.action.toStdString();
  }
  EXPECT_TRUE(listed(sections, "[Ctrl]+P"));
  EXPECT_TRUE(keyListPage(sections, {}, "sv", marked).contains("<html lang=\"sv\">"));
}

}  // namespace
}  // namespace sonalyx::ui

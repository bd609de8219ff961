#include <gtest/gtest.h>

#include <QAction>
#include <QFile>
#include <QMap>
#include <QMenu>
#include <QMenuBar>
#include <QSet>
#include <QXmlStreamReader>
#include <string>
#include <vector>

#include "ui/UiTestSupport.h"
#include "ui/app/CTranslationDictionary.h"
#include "ui/app/CommandIds.h"
#include "ui/app/CommandTable.h"
#include "ui/app/MenuTranslation.h"

namespace sonalyx::ui {
namespace {

// The source texts of a Linguist file's one context.
QSet<QString> catalogueKeys(const QString& path, QString* context) {
  QFile file(path);
  QSet<QString> keys;
  if (!file.open(QIODevice::ReadOnly)) return keys;
  QXmlStreamReader xml(&file);
  while (!xml.atEnd()) {
    xml.readNext();
    if (!xml.isStartElement()) continue;
    if (xml.name() == QStringLiteral("name")) *context = xml.readElementText();
    if (xml.name() == QStringLiteral("source")) keys.insert(xml.readElementText());
  }
  return keys;
}

TEST(Translation, EveryLanguageFileListsEveryMenuText) {
  QSet<QString> menuKeys;
  for (const MenuLine& line : CCommandTable::menuLayout())
    if (line.kind == MenuLine::BeginPopup) menuKeys.insert(QString::fromUtf8(line.text));
  // The keys exactly as the menu translation asks for them.
  const auto askedKey = [](const char* text) {
    std::string asked;
    translateMenuText(text, [&](const std::string& key) {
      asked = key;
      return key;
    });
    return QString::fromStdString(asked);
  };
  for (const CommandSpec& command : CCommandTable::commands())
    if (command.menuText && command.id != cmd::kHideGraph) menuKeys.insert(askedKey(command.menuText));
  // The graph item's two texts are looked up without their keys when it changes.
  menuKeys << "&Show Graph"
           << "&Hide Graph";
  EXPECT_TRUE(menuKeys.contains("Self-&VoicingTABCtrl+Q, Alt+S"));
  ASSERT_GE(menuKeys.size(), 45);
  for (const char* language : {"sv", "fr", "de", "es"}) {
    QString context;
    const QSet<QString> keys =
        catalogueKeys(QStringLiteral(SONALYX_TRANSLATIONS_DIR "/sonalyx_%1.ts").arg(language), &context);
    EXPECT_EQ(context, CTranslationDictionary::kContext) << language;
    for (const QString& key : menuKeys)
      EXPECT_TRUE(keys.contains(key)) << language << ": " << key.toStdString();
  }
}

TEST(Translation, TheDictionaryGivesTheKeyBackWhereItHasNoTranslation) {
  const struct {
    Language language;
    bool hasCatalogue;
  } cases[] = {{Language::English, false},
               {Language::Swedish, true},
               {Language::French, true},
               {Language::German, true},
               {Language::Spanish, true}};
  for (const auto& c : cases) {
    CTranslationDictionary dictionary;
    EXPECT_TRUE(dictionary.Init(c.language));
    EXPECT_EQ(dictionary.catalogueFor(c.language).empty(), !c.hasCatalogue);
    // English gives every text back; a catalogue a text it does not list.
    for (const std::string key : {"&Calculator", "Self-voicing activated.", "no such text"}) {
      if (c.hasCatalogue && key != "no such text") continue;
      std::string result = "stale";
      dictionary.Lookup(key, result);
      EXPECT_EQ(result, key);
    }
  }
}

// The letter after a single "&", lower case; none for "&&" alone.
QChar accelerator(const QString& text) {
  for (qsizetype i = 0; i + 1 < text.size(); ++i) {
    if (text[i] != QLatin1Char('&')) continue;
    if (text[i + 1] != QLatin1Char('&')) return text[i + 1].toLower();
    ++i;
  }
  return {};
}

TEST(Translation, MenuAcceleratorsStayUniqueWithinEachMenuInEveryLanguage) {
  for (const Language language :
       {Language::English, Language::Swedish, Language::French, Language::German, Language::Spanish}) {
    CTranslationDictionary dictionary;
    ASSERT_TRUE(dictionary.Init(language));
    const auto translate = [&](const std::string& key) { return dictionary.Translate(key); };
    CCommandTable table(nullptr);
    translateMenu(table, translate);
    // Each menu's item texts; the graph popup twice, once with each of its swapped items.
    std::vector<QStringList> menus;
    std::vector<const QWidget*> pending{table.menuBar()};
    while (!pending.empty()) {
      const QWidget* menu = pending.back();
      pending.pop_back();
      QStringList texts;
      for (const QAction* action : menu->actions()) {
        if (action->isSeparator()) continue;
        texts << action->text();
        if (action->menu()) pending.push_back(action->menu());
      }
      menus.push_back(texts);
      if (menu == table.graphPopup()) {
        texts.replace(texts.indexOf(table.action(cmd::kShowGraph)->text()),
                      QString::fromStdString(translate("&Hide Graph")));
        menus.push_back(texts);
      }
    }
    ASSERT_EQ(menus.size(), 8u);  // the bar, four popups, two submenus, the graph popup again
    for (const QStringList& texts : menus) {
      QMap<QChar, QString> taken;
      for (const QString& text : texts) {
        const QChar letter = accelerator(text);
        EXPECT_FALSE(letter.isNull()) << static_cast<int>(language) << ": " << text.toStdString();
        if (letter.isNull()) continue;
        EXPECT_FALSE(taken.contains(letter)) << static_cast<int>(language) << ": " << text.toStdString()
                                             << " and " << taken.value(letter).toStdString();
        taken.insert(letter, text);
      }
    }
  }
}

TEST(Translation, TheDictionaryTranslatesFinishedEntriesOfItsOneContext) {
  CTranslationDictionary dictionary;
  ASSERT_TRUE(dictionary.Load(":/test-i18n/sonalyx_test.qm"));
  const struct {
    const char* key;
    const char* expected;
  } cases[] = {
      {"Self-voicing activated.", "Självröstning aktiverad."},
      {"Auto return: enabled.", "Auto return: enabled."},  // unfinished
      {"Plot", "Plot"},                                    // another context's
      {"Matrix", "Matrix"},                                // absent
  };
  for (const auto& c : cases) EXPECT_EQ(dictionary.Translate(c.key), c.expected) << c.key;
  EXPECT_EQ(translateMenuText("P&rint Graph\tCtrl+P",
                              [&](const std::string& k) { return dictionary.Translate(k); }),
            "Sk&riv ut graf\tCtrl+P");
  EXPECT_FALSE(dictionary.Load(":/test-i18n/missing.qm"));
}

TEST(Translation, TheLanguageComesFromTheLocaleUnlessTheCommandLineNamesOne) {
  const struct {
    const char* locale;
    int langId;  // -1: none on the command line
    Language expected;
  } cases[] = {
      {"sv_SE.UTF-8", -1, Language::Swedish}, {"es_MX", -1, Language::Spanish},
      {"sv_FI", -1, Language::English},       {"C", -1, Language::English},
      {"en_US", 2058, Language::Spanish},     {"de_DE", 1033, Language::English},
      {"fr_FR", 2077, Language::English},
  };
  for (const auto& c : cases) {
    test::TempSettings settings;
    test::ScopedEnv all("LC_ALL", c.locale);
    ProgramOptions options;
    if (c.langId >= 0) options.langId = c.langId;
    CGraphCalcApp app(options);
    EXPECT_EQ(app.dictionary().language(), c.expected) << c.locale << " " << c.langId;
  }
}

}  // namespace
}  // namespace sonalyx::ui

#include "core/speech/Catalogue.h"

#include <gtest/gtest.h>

namespace sonalyx {
namespace {

constexpr const char* kFrench = R"(<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR" sourcelanguage="en_US">
<context>
    <name>Sonalyx</name>
    <message>
        <location filename="../src/core/speech/SymbolExpander.cpp" line="20"/>
        <source> plus </source>
        <translation> plus </translation>
    </message>
    <message>
        <source>x = %1, y = %2</source>
        <translation>x = %1 ; y = %2</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation type="unfinished">&amp;Fichier</translation>
    </message>
    <message>
        <source>Unexpected &quot;%s&quot;.</source>
        <translation>&#xab; %s &#187; inattendu.</translation>
    </message>
    <message>
        <source>Result is undefined</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Overflow</source>
        <translation type="unfinished"/>
    </message>
    <message>
        <source>Gone</source>
        <translation type="vanished">Parti</translation>
    </message>
</context>
</TS>
)";

TEST(Catalogue, LooksUpTheEnglishTextAndFallsBackToIt) {
  const Catalogue french = Catalogue::fromTsText(kFrench);
  std::string unknownEntity = kFrench;
  unknownEntity.replace(unknownEntity.find("&amp;Fichier"), 5, "&bogus;");
  const Catalogue broken = Catalogue::fromTsText(unknownEntity);
  const struct {
    const Catalogue& catalogue;
    const char* english;
    const char* expected;
  } cases[] = {
      {french, " plus ", " plus "},
      {french, "x = %1, y = %2", "x = %1 ; y = %2"},
      // An unfinished entry with a text is used, as the compiled catalogue does.
      {french, "&File", "&Fichier"},
      {french, "Unexpected \"%s\".", "\xC2\xAB %s \xC2\xBB inattendu."},
      {french, "Result is undefined", "Result is undefined"},
      {french, "Overflow", "Overflow"},
      {french, "Gone", "Gone"},
      {french, "Not in the file", "Not in the file"},
      // A file it cannot read all of gives English throughout, never half of it.
      {broken, "x = %1, y = %2", "x = %1, y = %2"},
  };
  for (const auto& c : cases) EXPECT_EQ(c.catalogue.translate(c.english), c.expected) << c.english;
  EXPECT_EQ(french.size(), 5u);  // and the decimal sign
  EXPECT_EQ(broken.size(), 0u);
  EXPECT_EQ(french.translator()("x = %1, y = %2"), "x = %1 ; y = %2");
  EXPECT_FALSE(Catalogue::fromTsText("not a language file").translator());
}

}  // namespace
}  // namespace sonalyx

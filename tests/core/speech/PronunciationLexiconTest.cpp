#include "core/speech/PronunciationLexicon.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace sonalyx {
namespace {

TEST(PronunciationLexicon, ReplacesWholeWordsInAnyCaseTheLongestFirst) {
  PronunciationLexicon lexicon;
  ASSERT_TRUE(lexicon.set(" sinh ", "shine"));
  ASSERT_TRUE(lexicon.set("sin", "sine"));
  ASSERT_TRUE(lexicon.set("x^2", "x squared"));
  ASSERT_TRUE(lexicon.set("Pi", "pie"));
  ASSERT_FALSE(lexicon.set("  ", "nothing"));
  const struct {
    const char* text;
    const char* spoken;
  } rows[] = {
      {"sin(x)", "sine(x)"},
      {"SINH of 2", "shine of 2"},
      {"sinus", "sinus"},       // not a whole word
      {"cosine", "cosine"},     // inside a word
      {"pi, 2pi", "pie, 2pi"},  // 2pi is one word
      {"y = x^2 + 1", "y = x squared + 1"},
      {"x^23", "x^23"},  // would run on into the digit
      {"sine", "sine"},  // a replacement is not looked at again
      {"", ""},
      {"π sin", "π sine"},  // letters beyond ASCII stand apart by blanks
  };
  for (const auto& row : rows) EXPECT_EQ(lexicon.apply(row.text), row.spoken) << row.text;
}

TEST(PronunciationLexicon, KeepsItsListInOneSettingAndReadsItBackExactly) {
  PronunciationLexicon lexicon;
  lexicon.set("a=b", "a equals b");
  lexicon.set("c;d", "c then d");
  lexicon.set("back\\slash", "backslash");
  lexicon.set("SIN", "sine");
  lexicon.set("sin", "sign");  // the same word: its spoken form changes
  EXPECT_EQ(lexicon.entries().size(), 4u);
  EXPECT_EQ(lexicon.entries()[3], (PronunciationLexicon::Entry{"SIN", "sign"}));
  const std::string stored = lexicon.storedText();
  EXPECT_EQ(stored, "a\\=b=a equals b;c\\;d=c then d;back\\\\slash=backslash;SIN=sign");
  EXPECT_EQ(PronunciationLexicon::fromStoredText(stored).entries(), lexicon.entries());
  lexicon.remove(0);
  lexicon.remove(9);
  EXPECT_EQ(lexicon.entries().size(), 3u);
  // What cannot be read is left out: no "=", an empty word.
  EXPECT_EQ(PronunciationLexicon::fromStoredText("junk;=x;ok=fine;;").entries(),
            (std::vector<PronunciationLexicon::Entry>{{"ok", "fine"}}));
}

}  // namespace
}  // namespace sonalyx

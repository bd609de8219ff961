#include "core/speech/CalculatorKeyTable.h"

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

#include "core/speech/CalculatorKeyIds.h"

namespace sonalyx {
namespace {

TEST(CalculatorKeyTable, DigitAndLetterKeysHaveTheIdsOfTheirValues) {
  const CalculatorKeyTable table;
  const char* const hexDigits = "0123456789ABCDEF";
  for (int value = 0; value < 16; ++value) {
    const int id = value < 10 ? 1120 + value : 1096 + (value - 10);
    EXPECT_EQ(value < 10 ? digitKeyId(value) : hexLetterKeyId(value), id) << value;
    const CalculatorKey* key = table.find(id);
    ASSERT_NE(key, nullptr) << value;
    EXPECT_EQ(key->label, std::string(1, hexDigits[value])) << value;
    EXPECT_EQ(key->spokenText(), key->label) << value;
  }
}

TEST(CalculatorKeyTable, MainBlockRunsInColumnsOfSix) {
  // The last four columns as the calculator's face shows them.
  const std::vector<std::string> lastColumns = {
      "7", "4", "1", "+/-", "(",        "MS", "8",        "5", "2", "0", ")", "M+",
      "9", "6", "3", ".",   "\xcf\x80", "MC", "\xc3\xb7", "x", "-", "+", "=", "MR",
  };
  const CalculatorKeyTable table;
  const auto& block = table.mainBlock();
  ASSERT_EQ(block.size(), 48u);
  for (std::size_t i = 0; i < lastColumns.size(); ++i) {
    EXPECT_EQ(block[24 + i].label, lastColumns[i]) << "position " << 24 + i;
  }
  const std::vector<std::string> topRow = {"F-E", "EE", "<\xe2\x80\x94", "CE", "C"};
  ASSERT_EQ(table.topRow().size(), topRow.size());
  for (std::size_t i = 0; i < topRow.size(); ++i) EXPECT_EQ(table.topRow()[i].label, topRow[i]) << i;
}

struct SpokenCase {
  int id;
  const char* label;
  const char* spoken;
};

TEST(CalculatorKeyTable, KeysSpeakTheirNameOrElseTheirLabel) {
  const SpokenCase cases[] = {
      {1093, "<\xe2\x80\x94", "backspace"},
      {1139, "\xcf\x80", "pie"},
      {1131, "x", "times"},
      {1130, "\xc3\xb7", "\xc3\xb7"},
      {1107, "lsh", "left shift"},
      {1135, "+/-", "plus minus"},
      {1095, "C", "C"},
      {1098, "C", "C"},
  };
  const CalculatorKeyTable table;
  for (const auto& c : cases) {
    const CalculatorKey* key = table.find(c.id);
    ASSERT_NE(key, nullptr) << c.id;
    EXPECT_EQ(key->label, c.label) << c.id;
    EXPECT_EQ(key->spokenText(), c.spoken) << c.id;
  }
  for (const int unknown : {0, -1, 1090, 1144, 1169}) EXPECT_EQ(table.find(unknown), nullptr) << unknown;
}

// 53 keys with distinct ids covering 1091..1143; the spoken names are translated
// once each, the labels never.
TEST(CalculatorKeyTable, HoldsFiftyThreeKeysAndTranslatesOnlyTheirSpokenNames) {
  int calls = 0;
  const CalculatorKeyTable table([&calls](const std::string& english) {
    ++calls;
    return "<" + english + ">";
  });
  const CalculatorKeyTable english;
  EXPECT_EQ(table.topRow().size(), 5u);
  EXPECT_EQ(table.mainBlock().size(), 48u);
  std::vector<const CalculatorKey*> keys;
  for (const auto& key : table.topRow()) keys.push_back(&key);
  for (const auto& key : table.mainBlock()) keys.push_back(&key);
  std::set<int> ids;
  int named = 0;
  for (const CalculatorKey* key : keys) {
    EXPECT_TRUE(ids.insert(key->id).second) << "id " << key->id << " used twice";
    EXPECT_EQ(table.find(key->id), key) << key->id;
    ASSERT_NE(english.find(key->id), nullptr) << key->id;
    EXPECT_EQ(key->label, english.find(key->id)->label) << key->id;
    if (key->spokenName.empty()) {
      EXPECT_EQ(key->spokenText(), key->label) << key->id;
    } else {
      ++named;
      EXPECT_EQ(key->spokenName, "<" + english.find(key->id)->spokenName + ">") << key->id;
    }
  }
  ASSERT_EQ(ids.size(), 53u);
  EXPECT_EQ(*ids.begin(), 1091);
  EXPECT_EQ(*ids.rbegin(), 1143);
  EXPECT_EQ(named, 15);
  EXPECT_EQ(calls, named);
}

}  // namespace
}  // namespace sonalyx

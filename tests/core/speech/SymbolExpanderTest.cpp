#include "core/speech/SymbolExpander.h"

#include <gtest/gtest.h>

#include <string>

namespace sonalyx {
namespace {

struct ExpandCase {
  const char* text;
  const char* expected;
};

TEST(SymbolExpander, ReadsExpressionSymbolsAsWords) {
  const ExpandCase cases[] = {
      {"[1,2;3,4]^2", " begin matrix 1 column 2 row 3 column 4 end matrix  to the power of 2"},
      {"a-b+c/d", "a minus b plus c divide d"},
      {"(x)", " open paren x close paren "},
      {"--", " minus  minus "},
      // Exponents are powers of ten; a hexadecimal E or a lone e is a letter.
      {"1.5e-007", "1.5 times ten to the minus 7"},
      {"2e+020*x", "2 times ten to the 20 times x"},
      {"1e0", "1 times ten to the 0"},
      {"1E5 e-3 1e+", "1E5 e minus 3 1e plus "},
      {"", ""},
      // Characters of several bytes are kept whole, next to symbols too.
      {"\xcf\x80*2", "\xcf\x80 times 2"},
      {"\xf0\x9d\x91\xa5+1", "\xf0\x9d\x91\xa5 plus 1"},
      // A broken sequence loses no byte.
      {"\xcf-", "\xcf minus "},
      {"-\xe2\x88", " minus \xe2\x88"},
  };
  SymbolExpander expander;
  expander.BuildSymbolMap();
  for (const auto& c : cases) {
    std::string text = c.text;
    expander.ExpandSymbols(text);
    EXPECT_EQ(text, c.expected) << '"' << c.text << '"';
  }
}

TEST(SymbolExpander, LeavesTextAloneUntilTheMapIsBuilt) {
  SymbolExpander expander;
  std::string text = "[1,2]";
  expander.ExpandSymbols(text);
  EXPECT_EQ(text, "[1,2]");
  expander.BuildSymbolMap();
  expander.ExpandSymbols(text);
  EXPECT_EQ(text, " begin matrix 1 column 2 end matrix ");
}

TEST(SymbolExpander, CopiesTheTableUpToItsEmptyRow) {
  struct TableCase {
    std::vector<SymbolWords> table;
    const char* text;
    const char* expected;
    std::size_t mapSize;
  };
  const TableCase cases[] = {
      {{{"a", " A "}, {"", ""}, {"b", " B "}}, "ab", " A b", 1},
      {{{"", " nothing "}, {"a", " A "}}, "ab", "ab", 0},
      {{}, "ab", "ab", 0},
  };
  for (const auto& c : cases) {
    SymbolExpander expander(c.table);
    expander.BuildSymbolMap();
    std::string text = c.text;
    expander.ExpandSymbols(text);
    EXPECT_EQ(text, c.expected) << c.text;
    EXPECT_EQ(expander.symbolMap().size(), c.mapSize) << c.text;
  }
}

TEST(SymbolExpander, TranslatesEachReplacementOnceWhenBuilt) {
  int calls = 0;
  SymbolExpander expander(expressionSymbolTable(), [&calls](const std::string& english) {
    ++calls;
    return english == " times " ? std::string(" mal ") : english;
  });
  expander.BuildSymbolMap();
  expander.BuildSymbolMap();
  std::string text = "2*3-1";
  expander.ExpandSymbols(text);
  EXPECT_EQ(text, "2 mal 3 minus 1");
  EXPECT_EQ(calls, 14);  // 11 symbols, "times ten to the", "minus" and the decimal sign
}

TEST(SymbolExpander, ReadsNumbersWithTheLanguagesDecimalSign) {
  const Translator french = [](const std::string& text) { return text == kDecimalSignKey ? "," : text; };
  SymbolExpander expander(expressionSymbolTable(), french);
  expander.BuildSymbolMap();
  const struct {
    const char* text;
    const char* expected;
  } cases[] = {
      {"0.5+x", "0,5 plus x"},
      {"2.5e-007", "2,5 times ten to the minus 7"},
      {"1/3 = 0,33", "1 divide 3 = 0,33"},                    // a shown result
      {"[1,2.5]", " begin matrix 1 column 2,5 end matrix "},  // a matrix keeps its columns
      {"a,b", "a column b"},
      {"end.", "end."},
  };
  for (const auto& c : cases) {
    std::string text = c.text;
    expander.ExpandSymbols(text);
    EXPECT_EQ(text, c.expected) << c.text;
  }
}

}  // namespace
}  // namespace sonalyx

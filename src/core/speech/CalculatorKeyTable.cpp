#include "core/speech/CalculatorKeyTable.h"

#include <iterator>
#include <span>

#include "core/speech/CalculatorKeyIds.h"
#include "core/speech/TranslationMarker.h"

namespace sonalyx {

namespace {

struct KeyEntry {
  int id;
  const char* label;
  const char* spokenName;  // "" speaks the label
};

// "<" and an em dash; the plain "<-" of a keyboard reads badly.
constexpr KeyEntry kTopRow[] = {
    {kKeyFixedExponent, "F-E", ""},
    {kKeyEnterExponent, "EE", ""},
    {kKeyBackspace, "<\u2014", SLX_TR("backspace")},
    {kKeyClearEntry, "CE", ""},
    {kKeyClear, "C", ""},
};

// "pie" makes speech engines say the letter's name rather than "pee".
constexpr KeyEntry kMainBlock[] = {
    {kKeyHexA, "A", ""},
    {kKeyHexB, "B", ""},
    {kKeyHexC, "C", ""},
    {kKeyHexD, "D", ""},
    {kKeyHexE, "E", ""},
    {kKeyHexF, "F", ""},
    {kKeyAnd, "and", ""},
    {kKeyOr, "or", ""},
    {kKeyXor, "xor", ""},
    {kKeyNot, "not", ""},
    {kKeyMod, "mod", ""},
    {kKeyLeftShift, "lsh", SLX_TR("left shift")},
    {kKeySin, "sin", ""},
    {kKeyCos, "cos", ""},
    {kKeyTan, "tan", ""},
    {kKeyExp, "e^x", SLX_TR("e to the x")},
    {kKeyLn, "ln", ""},
    {kKeyLog, "log", ""},
    {kKeySquare, "X\u00b2", ""},
    {kKeyCube, "X\u00b3", ""},
    {kKeyPower, "x^y", SLX_TR("x to the power y")},
    {kKeySquareRoot, "sqrt", SLX_TR("square root")},
    {kKeyReciprocal, "1/x", SLX_TR("one over x")},
    {kKeyFactorial, "n!", SLX_TR("n factorial")},
    {kKeyDigit7, "7", ""},
    {kKeyDigit4, "4", ""},
    {kKeyDigit1, "1", ""},
    {kKeyChangeSign, "+/-", SLX_TR("plus minus")},
    {kKeyOpenParen, "(", ""},
    {kKeyMemoryStore, "MS", SLX_TR("memory store")},
    {kKeyDigit8, "8", ""},
    {kKeyDigit5, "5", ""},
    {kKeyDigit2, "2", ""},
    {kKeyDigit0, "0", ""},
    {kKeyCloseParen, ")", ""},
    {kKeyMemoryPlus, "M+", SLX_TR("memory plus")},
    {kKeyDigit9, "9", ""},
    {kKeyDigit6, "6", ""},
    {kKeyDigit3, "3", ""},
    {kKeyPoint, ".", ""},
    {kKeyPi, "\u03c0", SLX_TR("pie")},
    {kKeyMemoryClear, "MC", SLX_TR("memory clear")},
    {kKeyDivide, "\u00f7", ""},
    {kKeyTimes, "x", SLX_TR("times")},
    {kKeyMinus, "-", SLX_TR("minus")},
    {kKeyPlus, "+", ""},
    {kKeyEquals, "=", ""},
    {kKeyMemoryRecall, "MR", SLX_TR("memory recall")},
};

static_assert(std::size(kTopRow) == CalculatorKeyTable::kTopRowSize);
static_assert(std::size(kMainBlock) == CalculatorKeyTable::kMainBlockSize);

std::vector<CalculatorKey> buildKeys(std::span<const KeyEntry> entries, const Translator& translator) {
  std::vector<CalculatorKey> keys;
  keys.reserve(entries.size());
  for (const KeyEntry& entry : entries) {
    CalculatorKey key{entry.id, entry.label, entry.spokenName};
    if (!key.spokenName.empty()) key.spokenName = translateWith(translator, key.spokenName);
    keys.push_back(std::move(key));
  }
  return keys;
}

}  // namespace

CalculatorKeyTable::CalculatorKeyTable(const Translator& translator)
    : m_topRow(buildKeys(kTopRow, translator)), m_mainBlock(buildKeys(kMainBlock, translator)) {}

const CalculatorKey* CalculatorKeyTable::find(int id) const {
  for (const auto* keys : {&m_topRow, &m_mainBlock}) {
    for (const CalculatorKey& key : *keys) {
      if (key.id == id) return &key;
    }
  }
  return nullptr;
}

}  // namespace sonalyx

#include "core/settings/RegFileDocument.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

namespace sonalyx {
namespace {

const std::string kKey = "HKEY_CURRENT_USER\\Software\\Quillmont\\SLX3\\CurrentVersion\\Settings";
const std::string kHead = "Windows Registry Editor Version 5.00\n\n[" + kKey + "]\n";

RegistryValue raw(std::uint32_t type, std::vector<std::uint8_t> data) {
  return RegistryValue{type, std::move(data)};
}

// Little-endian bytes of UTF-16 units, as a Windows editor saves a file.
std::string utf16Bytes(std::u16string_view units) {
  std::string bytes;
  for (const char16_t unit : units) {
    bytes += static_cast<char>(unit & 0xFF);
    bytes += static_cast<char>(unit >> 8);
  }
  return bytes;
}

std::vector<std::string> linesOf(const std::string& text) {
  std::vector<std::string> lines;
  std::size_t start = 0;
  while (start < text.size()) {
    const std::size_t end = text.find('\n', start);
    lines.push_back(text.substr(start, end - start));
    start = end + 1;
  }
  return lines;
}

struct RoundTripCase {
  const char* label;
  std::string name;
  RegistryValue value;
  const char* line;
};

TEST(RegFileDocument, EveryValueTypeIsWrittenInTheExportFormatAndReadBack) {
  const RoundTripCase cases[] = {
      {"text", "voice", RegistryValue::fromText("Sam"), "\"voice\"=\"Sam\""},
      {"escapes", "expr1", RegistryValue::fromText("a\\b\"c"), "\"expr1\"=\"a\\\\b\\\"c\""},
      {"non-ASCII text", "voice", RegistryValue::fromText("\xC3\x84rlig"), "\"voice\"=\"\xC3\x84rlig\""},
      {"escaped name", "we\"ird\\name", RegistryValue::fromText("x"), "\"we\\\"ird\\\\name\"=\"x\""},
      {"default value", "", RegistryValue::fromText("x"), "@=\"x\""},
      // Strings the quoted form cannot give back byte for byte keep their bytes.
      {"line break in text", "v", RegistryValue::fromText("a\nb"),
       "\"v\"=hex(1):61,00,0a,00,62,00,00,00,00,00"},
      {"single terminator", "v", raw(kRegSz, {'a', 0, 0, 0}), "\"v\"=hex(1):61,00,00,00"},
      {"dword", "rate", RegistryValue::fromDword(10), "\"rate\"=dword:0000000a"},
      {"short dword", "rate", raw(kRegDword, {1, 0}), "\"rate\"=hex(4):01,00"},
      {"big-endian dword", "v", raw(kRegDwordBigEndian, {0, 0, 0, 10}), "\"v\"=hex(5):00,00,00,0a"},
      {"expand string", "v", RegistryValue::fromText("%A%", kRegExpandSz),
       "\"v\"=hex(2):25,00,41,00,25,00,00,00,00,00"},
      {"multi-string", "v", raw(kRegMultiSz, {'a', 0, 0, 0, 'b', 0, 0, 0, 0, 0}),
       "\"v\"=hex(7):61,00,00,00,62,00,00,00,00,00"},
      {"binary", "v", raw(kRegBinary, {0x01, 0xFF}), "\"v\"=hex:01,ff"},
      {"empty binary", "v", raw(kRegBinary, {}), "\"v\"=hex:"},
      {"unknown type", "v", raw(0x1234, {0xAB}), "\"v\"=hex(1234):ab"},
  };
  for (const auto& c : cases) {
    RegFileDocument document;
    document.setValue(kKey, c.name, c.value);
    const std::string text = document.serialize();
    EXPECT_EQ(text, kHead + c.line + "\n") << c.label;
    const RegFileDocument again = RegFileDocument::parse(text);
    EXPECT_FALSE(again.damaged()) << c.label;
    EXPECT_EQ(again.value(kKey, c.name), c.value) << c.label;
    EXPECT_EQ(again.serialize(), text) << c.label;
  }
}

TEST(RegFileDocument, LongHexValuesAreContinuedOnLinesOfAtMostEightyCharacters) {
  const std::size_t sizes[] = {23, 24, 1000};
  for (const std::size_t size : sizes) {
    RegistryValue value{kRegMultiSz, {}};
    for (std::size_t i = 0; i < size; ++i) value.data.push_back(static_cast<std::uint8_t>(i * 7));
    RegFileDocument document;
    document.setValue(kKey, "v", value);
    const std::string text = document.serialize();
    const auto lines = linesOf(text.substr(kHead.size()));
    ASSERT_FALSE(lines.empty());
    EXPECT_TRUE(lines[0].starts_with("\"v\"=hex(7):")) << size;
    for (std::size_t i = 0; i < lines.size(); ++i) {
      EXPECT_LE(lines[i].size(), 80u) << size << " line " << i;
      if (i + 1 < lines.size()) {
        EXPECT_TRUE(lines[i].ends_with(",\\")) << size << " line " << i;
      }
      if (i > 0) {
        EXPECT_TRUE(lines[i].starts_with("  ") && lines[i][2] != ' ') << size << " line " << i;
      }
    }
    EXPECT_EQ(lines.size() > 1, size > 23) << size;
    const RegFileDocument again = RegFileDocument::parse(text);
    EXPECT_FALSE(again.damaged());
    EXPECT_EQ(again.value(kKey, "v"), value) << size;
    EXPECT_EQ(again.serialize(), text) << size;
  }
}

struct EncodingCase {
  const char* label;
  std::string bytes;
  bool damaged;
  std::optional<std::string> voice;
  std::optional<std::uint32_t> rate;
};

TEST(RegFileDocument, ReadsUtf8AndUtf16WithAByteOrderMark) {
  const std::u16string text = u"Windows Registry Editor Version 5.00\r\n\r\n[" +
                              std::u16string(kKey.begin(), kKey.end()) +
                              u"]\r\n\"voice\"=\"\u00C4rlig\"\r\n\"rate\"=dword:00000020\r\n";
  const std::string utf8 = kHead + "\"voice\"=\"\xC3\x84rlig\"\n\"rate\"=dword:00000020\n";
  std::string crlf;
  for (const char c : utf8) crlf += c == '\n' ? std::string("\r\n") : std::string(1, c);
  const std::string ansi = kHead + "\"voice\"=\"\xC4rlig\"\n\"rate\"=dword:00000020\n";
  const EncodingCase cases[] = {
      {"UTF-8", utf8, false, "\xC3\x84rlig", 32},
      {"UTF-8 with mark", "\xEF\xBB\xBF" + crlf, false, "\xC3\x84rlig", 32},
      {"UTF-16LE with mark", "\xFF\xFE" + utf16Bytes(text), false, "\xC3\x84rlig", 32},
      {"UTF-16LE, odd last byte", "\xFF\xFE" + utf16Bytes(text) + "x", true, "\xC3\x84rlig", 32},
      {"UTF-16LE, lone surrogate", "\xFF\xFE" + utf16Bytes(text + u"; \xD800\r\n"), true, "\xC3\x84rlig", 32},
      {"UTF-16LE without mark", utf16Bytes(text), true, std::nullopt, std::nullopt},
      // A Latin-1 byte is not UTF-8: that line is unreadable, the others are not.
      {"Latin-1 line", ansi, true, std::nullopt, 32},
  };
  for (const auto& c : cases) {
    const RegFileDocument document = RegFileDocument::parse(c.bytes);
    EXPECT_EQ(document.damaged(), c.damaged) << c.label;
    const auto voice = document.value(kKey, "voice");
    EXPECT_EQ(voice ? voice->text() : std::nullopt, c.voice) << c.label;
    const auto rate = document.value(kKey, "rate");
    EXPECT_EQ(rate ? rate->dword() : std::nullopt, c.rate) << c.label;
  }
}

TEST(RegFileDocument, ARewriteChangesOnlyTheValueItSets) {
  const std::string before =
      "Windows Registry Editor Version 5.00\n"
      "\n"
      "; kept by hand\n"
      "[HKEY_CURRENT_USER\\Software\\Other]\n"
      "\"voice\"=\"not ours\"\n"
      "\n"
      "[HKEY_CURRENT_USER\\Software\\Quillmont\\SLX3\\CurrentVersion\\Settings]\n"
      "\"future\"=hex(b):01,00,00,00,00,00,00,00\n"
      "\"voice\"=\"Sam\"\n"
      "  ; a note on the rate\n"
      "\"rate\"=dword:00000032\n"
      "   \n"
      "@=\"unnamed\"\n"
      "\"gone\"=-\n"
      "\"spaced\" = dword:0000000A\n"
      "\"upper\"=HEX(2):41,00,00,00\n"
      "\"short\"=dword:a\n"
      "\"joined\"=hex:01,\\\n"
      "02\n"
      "\"list\"=hex(7):61,00,00,00,62,00,00,00,\\\n"
      "  00,00\n"
      "\n"
      "[HKEY_CURRENT_USER\\Software\\Quillmont\\SLX3\\CurrentVersion\\Settings\\Sub]\n"
      "\"deep\"=dword:00000001\n";
  std::string after = before;
  after.replace(after.find("\"Sam\""), 5, "\"Anna\"");
  after.insert(after.rfind("\n["), "\"pitch\"=dword:00000007\n");  // the end of its key
  RegFileDocument document = RegFileDocument::parse(before);
  EXPECT_FALSE(document.damaged());
  EXPECT_EQ(document.serialize(), before);
  const std::vector<NamedValue> values = {
      {"future", raw(kRegQword, {1, 0, 0, 0, 0, 0, 0, 0})},
      {"voice", RegistryValue::fromText("Sam")},
      {"rate", RegistryValue::fromDword(50)},
      {"", RegistryValue::fromText("unnamed")},
      {"spaced", RegistryValue::fromDword(10)},
      {"upper", raw(kRegExpandSz, {0x41, 0, 0, 0})},
      {"short", RegistryValue::fromDword(10)},
      {"joined", raw(kRegBinary, {1, 2})},
      {"list", raw(kRegMultiSz, {0x61, 0, 0, 0, 0x62, 0, 0, 0, 0, 0})},
  };
  EXPECT_EQ(document.values(kKey), values);
  // Names are found as the registry finds them, and keep the spelling they were stored with.
  document.setValue(kKey, "VOICE", RegistryValue::fromText("Anna"));
  document.setValue(kKey, "pitch", RegistryValue::fromDword(7));
  EXPECT_EQ(document.serialize(), after);
}

struct DamageCase {
  const char* label;
  std::string line;
};

TEST(RegFileDocument, UnreadableLinesCountAsAbsentAndAreKept) {
  const DamageCase cases[] = {
      {"unterminated text", "\"fxX0\"=\"abc"},
      {"unknown escape", "\"fxX0\"=\"a\\qb\""},
      {"text after the quote", "\"fxX0\"=\"1\" 2"},
      {"nine hex digits", "\"fxX0\"=dword:123456789"},
      {"bad byte", "\"fxX0\"=hex:01,zz"},
      {"unclosed type", "\"fxX0\"=hex(7:00"},
      {"no equals sign", "\"fxX0\" \"12\""},
      {"section without bracket", "[HKEY_CURRENT_USER\\Software"},
      {"zero byte", std::string("\"fxX0\"=\"1\0\"", 10)},
      {"not UTF-8", "\"fxX0\"=\"\xFF\""},
      {"continuation into a value", "\"fxX0\"=hex:01,\\"},
  };
  for (const auto& c : cases) {
    const std::string text = kHead + "\"voice\"=\"Anna\"\n" + c.line + "\n\"rate\"=dword:00000001\n";
    RegFileDocument document = RegFileDocument::parse(text);
    EXPECT_TRUE(document.damaged()) << c.label;
    EXPECT_EQ(document.value(kKey, "fxX0"), std::nullopt) << c.label;
    EXPECT_EQ(document.value(kKey, "voice"), RegistryValue::fromText("Anna")) << c.label;
    EXPECT_EQ(document.value(kKey, "rate"), RegistryValue::fromDword(1)) << c.label;
    EXPECT_EQ(document.values(kKey).size(), 2u) << c.label;
    document.setValue(kKey, "fxX0", RegistryValue::fromText("-10"));
    EXPECT_EQ(document.serialize(), text + "\"fxX0\"=\"-10\"\n") << c.label;
  }
}

TEST(RegFileDocument, WhatIsWrittenReadsBackToItself) {
  const std::string cases[] = {
      kHead + "\"rate\"=dword:00000001\n",
      // Carriage returns before the line end, kept in an unreadable line, came back
      // one fewer on every rewrite (found by fuzzing).
      kHead + "\"fxX0\"=\"abc\r\r\n",
      std::string("\x57\x69\x6e\x6f\x65\x73\x72\x69\x56\x72\x00\x72\x56\x65\x72\x73\x69\x00\x00\x00\x00\x00\x00\x00\x30\x69\x0d\x0d\x0a\x27\x0a\x7e\x5b\x48\x4b\x73\x45\x74\x69\x00\x00\x00\xf1\xf1\xf1\xf1\xf1\x45", 48),
  };
  for (const std::string& text : cases) {
    RegFileDocument document = RegFileDocument::parse(text);
    document.setValue(kKey, "rate", RegistryValue::fromDword(50));
    const std::string once = document.serialize();
    EXPECT_EQ(RegFileDocument::parse(once).serialize(), once);
  }
}

TEST(RegFileDocument, TheLaterOfTwoMentionsCounts) {
  const std::string text = kHead +
                           "\"a\"=dword:00000001\n"
                           "\"b\"=dword:00000001\n"
                           "\"c\"=dword:00000001\n"
                           "[" +
                           kKey +
                           "]\n"
                           "\"A\"=dword:00000002\n"
                           "\"b\"=-\n";
  RegFileDocument document = RegFileDocument::parse(text);
  EXPECT_EQ(document.value(kKey, "a"), RegistryValue::fromDword(2));
  EXPECT_EQ(document.value(kKey, "b"), std::nullopt);
  const std::vector<NamedValue> expected = {{"a", RegistryValue::fromDword(2)},
                                            {"c", RegistryValue::fromDword(1)}};
  EXPECT_EQ(document.values(kKey), expected);
  // Setting replaces the later mention, which is the one that counts.
  document.setValue(kKey, "b", RegistryValue::fromDword(3));
  document.setValue(kKey, "a", RegistryValue::fromDword(4));
  EXPECT_EQ(document.value(kKey, "b"), RegistryValue::fromDword(3));
  EXPECT_EQ(document.value(kKey, "a"), RegistryValue::fromDword(4));
  EXPECT_TRUE(document.serialize().ends_with("\"A\"=dword:00000004\n\"b\"=dword:00000003\n"));
  // Removing a value removes every mention of it.
  EXPECT_TRUE(document.removeValue(kKey, "a"));
  EXPECT_EQ(document.value(kKey, "a"), std::nullopt);
  EXPECT_FALSE(document.removeValue(kKey, "a"));
}

TEST(RegFileDocument, RemovingTheKeyTakesItsSubkeysAndNothingElse) {
  const std::string other = "[HKEY_CURRENT_USER\\Software\\Other]\n\"x\"=\"1\"\n\n";
  const std::string sibling = "[" + kKey + "Old]\n\"y\"=\"2\"\n";
  const std::string text = "Windows Registry Editor Version 5.00\n\n" + other + "[" + kKey +
                           "]\n\"voice\"=\"Anna\"\n\n[" + kKey + "\\Sub]\n\"z\"=\"3\"\n[" + kKey +
                           "\\Sub\\Deeper]\n\n" + sibling;
  RegFileDocument document = RegFileDocument::parse(text);
  EXPECT_TRUE(document.removeKey(kKey));
  EXPECT_EQ(document.serialize(), "Windows Registry Editor Version 5.00\n\n" + other + sibling);
  EXPECT_FALSE(document.keyHasContent(kKey));
  EXPECT_FALSE(document.removeKey(kKey));
  EXPECT_EQ(document.value("HKEY_CURRENT_USER\\Software\\Other", "x"), RegistryValue::fromText("1"));
}

TEST(RegFileDocument, KeyHasContentWhenItHoldsAValueOrASubkey) {
  const struct {
    const char* label;
    std::string text;
    bool hasContent;
  } cases[] = {
      {"empty key", kHead, false},
      {"only a removed value", kHead + "\"a\"=-\n", false},
      {"only an unreadable line", kHead + "junk\n", false},
      {"a value", kHead + "\"a\"=\"\"\n", true},
      {"only a subkey", "[" + kKey + "\\Sub]\n", true},
      {"a longer sibling name", "[" + kKey + "X]\n\"a\"=\"\"\n", false},
      {"other case", "[hkey_current_user\\software\\quillmont\\slx3\\currentversion\\settings]\n\"a\"=\"\"\n",
       true},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(RegFileDocument::parse(c.text).keyHasContent(kKey), c.hasContent) << c.label;
  }
}

TEST(RegFileDocument, AFileWithoutTheFirstLineGetsItWhenWritten) {
  const struct {
    const char* label;
    std::string before;
    std::string after;
  } cases[] = {
      {"empty", "", kHead + "\"a\"=dword:00000001\n"},
      {"values only", "[" + kKey + "]\n",
       "Windows Registry Editor Version 5.00\n\n[" + kKey + "]\n\"a\"=dword:00000001\n"},
      {"other key, no blank line", kHead + "\"b\"=\"\"\n[X]\n",
       kHead + "\"b\"=\"\"\n\"a\"=dword:00000001\n[X]\n"},
      {"only other key", "Windows Registry Editor Version 5.00\n\n[X]\n",
       "Windows Registry Editor Version 5.00\n\n[X]\n\n[" + kKey + "]\n\"a\"=dword:00000001\n"},
  };
  for (const auto& c : cases) {
    RegFileDocument document = RegFileDocument::parse(c.before);
    document.setValue(kKey, "a", RegistryValue::fromDword(1));
    EXPECT_EQ(document.serialize(), c.after) << c.label;
  }
}

}  // namespace
}  // namespace sonalyx

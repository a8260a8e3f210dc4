#include <string>

#include <gmock/gmock.h>

#include "Printable.hpp"
#include "Utf8.hpp"

namespace solvane::tool {
namespace {

std::string encoded(char32_t codePoint) {
  if (codePoint < 0x80) return {static_cast<char>(codePoint)};
  if (codePoint < 0x800) {
    return {static_cast<char>(0xC0U | codePoint >> 6U),
            static_cast<char>(0x80U | (codePoint & 0x3FU))};
  }
  return {static_cast<char>(0xE0U | codePoint >> 12U),
          static_cast<char>(0x80U | (codePoint >> 6U & 0x3FU)),
          static_cast<char>(0x80U | (codePoint & 0x3FU))};
}

TEST(Printable, LeavesOrdinaryTextAlone) {
  for (const std::string text : {"", "So What", "Sigur Rós – Ágætis byrjun", "東京事変", "🎵 \\o/",
                                 "שלום", "\u00A0", "\u2029", "\u2065", "\u206A"}) {
    EXPECT_EQ(printable(text), text);
  }
}

TEST(Printable, EscapesEveryControlCharacter) {
  for (char32_t codePoint = 0; codePoint < 0xA0; ++codePoint) {
    const bool control = codePoint < 0x20 || codePoint >= 0x7F;
    const auto shown = printable(encoded(codePoint));
    EXPECT_EQ(shown.starts_with("\\u00"), control) << static_cast<unsigned>(codePoint);
    EXPECT_EQ(shown.size(), control ? 6U : 1U) << static_cast<unsigned>(codePoint);
  }
  EXPECT_EQ(printable("\x1b[2J"), "\\u001b[2J");
  EXPECT_EQ(printable("a\u009Bb"), "a\\u009bb");
}

TEST(Printable, EscapesWhatTurnsTheDirectionOfWriting) {
  for (char32_t codePoint = 0x2028; codePoint < 0x2070; ++codePoint) {
    const bool turns = (codePoint >= 0x202A && codePoint <= 0x202E) ||
                       (codePoint >= 0x2066 && codePoint <= 0x2069);
    EXPECT_EQ(printable(encoded(codePoint)).starts_with("\\u20"), turns)
        << static_cast<unsigned>(codePoint);
  }
  EXPECT_EQ(printable("\u202Egpj.exe"), "\\u202egpj.exe");
}

TEST(Printable, ReplacesWhatIsNotUtf8) {
  EXPECT_EQ(printable("caf\xE9"), "caf\uFFFD");
  EXPECT_EQ(printable("\x9B"
                      "31m"),
            "\uFFFD"
            "31m");
  EXPECT_EQ(printable("\xF0\x9F\x8E"), "\uFFFD");
}

TEST(Printable, OfAnyBytesMakesPlainUtf8) {
  std::string bytes;
  unsigned state = 12345;
  for (int i = 0; i < 20000; ++i) {
    state = state * 1103515245U + 12345U;
    bytes += static_cast<char>(state >> 16U);
  }
  const auto shown = printable(bytes);
  EXPECT_EQ(findInvalidUtf8(shown), std::nullopt);
  EXPECT_EQ(printable(shown), shown) << "nothing is left to escape";
}

TEST(Printable, KeepsTheLayoutOfJsonAndEscapesTheRest) {
  EXPECT_EQ(printableJson("{\n  \"a\": \"\x7F\u0085\u202E\"\n}"),
            "{\n  \"a\": \"\\u007f\\u0085\\u202e\"\n}");
}

}  // namespace
}  // namespace solvane::tool

#include <string>

#include <gmock/gmock.h>

#include "Utf8.hpp"

namespace solvane::tool {
namespace {

using ::testing::Eq;
using ::testing::Optional;

TEST(Utf8, ReadsCharactersOfEveryLength) {
  EXPECT_THAT(firstCharacter("a!").codePoint, Optional(U'a'));
  EXPECT_THAT(firstCharacter("é!").codePoint, Optional(U'é'));
  EXPECT_THAT(firstCharacter("曲!").codePoint, Optional(U'曲'));
  EXPECT_THAT(firstCharacter("🎵!").codePoint, Optional(U'🎵'));
  EXPECT_EQ(firstCharacter("🎵!").length, 4U);
}

TEST(Utf8, TakesTheBoundariesOfEachLength) {
  for (const std::string text :
       {"\x7F", "\xC2\x80", "\xDF\xBF", "\xE0\xA0\x80", "\xED\x9F\xBF", "\xEE\x80\x80",
        "\xEF\xBF\xBF", "\xF0\x90\x80\x80", "\xF4\x8F\xBF\xBF"}) {
    EXPECT_EQ(findInvalidUtf8(text), std::nullopt);
  }
}

TEST(Utf8, RefusesOverlongFormsSurrogatesAndWhatIsTooLarge) {
  for (const std::string text :
       {"\xC0\x80", "\xC1\xBF", "\xE0\x9F\xBF", "\xF0\x8F\xBF\xBF", "\xED\xA0\x80", "\xED\xBF\xBF",
        "\xF4\x90\x80\x80", "\x80", "\xBF", "\xF8\x88\x80\x80\x80", "\xFF", "\xE6\x9B",
        "\xF0\x9F\x8E", "\xC3"}) {
    EXPECT_THAT(findInvalidUtf8(text), Optional(Eq(0U)));
    EXPECT_GE(firstCharacter(text).length, 1U);
  }
}

TEST(Utf8, FindsTheByteWhereATextGoesWrong) {
  EXPECT_THAT(findInvalidUtf8("caf\xC3\xA9 caf\xE9!"), Optional(Eq(9U)));
}

TEST(Utf8, ABrokenSequenceDoesNotSwallowWhatFollows) {
  EXPECT_EQ(firstCharacter("\xE6\x9B!").length, 2U);
  EXPECT_EQ(firstCharacter("\xF0\"").length, 1U);
}

}  // namespace
}  // namespace solvane::tool

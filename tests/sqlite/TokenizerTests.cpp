#include <gtest/gtest.h>

#include "detail/Connection.hpp"
#include "detail/IndexedText.hpp"
#include "detail/Tokenizer.hpp"

namespace solvane {
namespace {

using std::chrono::milliseconds;
using Words = std::vector<std::string>;

class TokenizerTest : public testing::Test {
 protected:
  sqlite::Connection connection{":memory:", sqlite::Connection::Access::write, milliseconds{0}};
  sqlite::Tokenizer tokenizer{connection};
};

std::string utf8(char32_t point) {
  const auto part = [&](int shift, unsigned mask, unsigned mark) {
    return static_cast<char>(((point >> shift) & mask) | mark);
  };
  if (point < 0x80) return {static_cast<char>(point)};
  if (point < 0x800) return {part(6, 0x1f, 0xc0), part(0, 0x3f, 0x80)};
  if (point < 0x10000) return {part(12, 0xf, 0xe0), part(6, 0x3f, 0x80), part(0, 0x3f, 0x80)};
  return {part(18, 7, 0xf0), part(12, 0x3f, 0x80), part(6, 0x3f, 0x80), part(0, 0x3f, 0x80)};
}

TEST_F(TokenizerTest, SplitsAtWhatIsNeitherLetterNorDigit) {
  EXPECT_EQ(tokenizer.words("Rock'n'Roll, 1999 (live)!"),
            (Words{"rock", "n", "roll", "1999", "live"}));
}

TEST_F(TokenizerTest, FoldsCaseAndAccents) {
  EXPECT_EQ(tokenizer.words("BJÖRK Ágætis Ωmega"), (Words{"bjork", "agætis", "ωmega"}));
}

TEST_F(TokenizerTest, FindsNothingInNothing) {
  EXPECT_EQ(tokenizer.words(""), Words{});
  EXPECT_EQ(tokenizer.words(std::string_view{}), Words{});
  EXPECT_EQ(tokenizer.words(" \t?!\"*"), Words{});
}

TEST_F(TokenizerTest, StopsAtTheLimit) {
  EXPECT_EQ(tokenizer.words("one two three four", 2), (Words{"one", "two"}));
  EXPECT_EQ(tokenizer.words("one two", 2), (Words{"one", "two"}));
}

TEST_F(TokenizerTest, TakesABareZeroForASeparator) {
  EXPECT_EQ(tokenizer.words(std::string_view{"one\0two", 7}), (Words{"one", "two"}));
}

// What is searched for is split a second time, inside the expression.
TEST_F(TokenizerTest, LeavesWordsThatItMadeAsTheyAre) {
  for (char32_t point = 1; point < 0x30000; ++point) {
    if (point >= 0xd800 && point < 0xe000) continue;
    const auto letter = utf8(point);
    auto text = letter;
    text.append(" a").append(letter).append("b");
    const auto words = tokenizer.words(text);
    for (const auto& word : words) {
      ASSERT_EQ(tokenizer.words(word), Words{word}) << "U+" << std::hex << std::uint32_t{point};
      ASSERT_EQ(word.find('"'), std::string::npos);
    }
  }
}

TEST_F(TokenizerTest, TakesAJoinedNameForOneWord) {
  const auto name = sqlite::joinedName(tokenizer.words("Whole Lotta Love"));
  EXPECT_EQ(tokenizer.words(name), Words{name});
  EXPECT_EQ(sqlite::joinedName({}), "");
}

}  // namespace
}  // namespace solvane

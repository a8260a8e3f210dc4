#include <array>
#include <random>

#include <solvane/detail/format.hpp>

#include <gtest/gtest.h>

namespace solvane::detail {
namespace {

const std::array<std::string_view, 2> two{"one", "two"};

TEST(Format, FillsPlaceholdersInOrder) {
  EXPECT_EQ(format("%@ and %@", two), "one and two");
  EXPECT_EQ(format("%@%@", two), "onetwo");
}

TEST(Format, DropsArgumentsBeyondThePlaceholders) {
  EXPECT_EQ(format("%@ alone", two), "one alone");
  EXPECT_EQ(format("none", two), "none");
  EXPECT_EQ(format("", two), "");
}

TEST(Format, LeavesPlaceholdersBeyondTheArgumentsAsTheyStand) {
  EXPECT_EQ(format("%@ %@ %@ %@", two), "one two %@ %@");
  EXPECT_EQ(format("%@", {}), "%@");
}

TEST(Format, MakesADoubledPercentSignASingleOne) {
  EXPECT_EQ(format("100%% %@", two), "100% one");
  EXPECT_EQ(format("%%@", two), "%@");
  EXPECT_EQ(format("%%%@", two), "%one");
  EXPECT_EQ(format("%%%%", two), "%%");
}

TEST(Format, LeavesStrayPercentSignsAsTheyStand) {
  EXPECT_EQ(format("100% of %@", two), "100% of one");
  EXPECT_EQ(format("%s %d %n %x", two), "%s %d %n %x");
  EXPECT_EQ(format("%@ ends in %", two), "one ends in %");
  EXPECT_EQ(format("%", two), "%");
}

TEST(Format, FillsPlaceholdersByTheirPosition) {
  EXPECT_EQ(format("%2$@ before %1$@", two), "two before one");
  EXPECT_EQ(format("%1$@ %1$@", two), "one one");
}

TEST(Format, LeavesPositionsWithoutAnArgumentAsTheyStand) {
  EXPECT_EQ(format("%3$@", two), "%3$@");
  EXPECT_EQ(format("%0$@", two), "%0$@");
  EXPECT_EQ(format("%99999999999999999999999$@", two), "%99999999999999999999999$@");
  EXPECT_EQ(format("%1$", two), "%1$");
  EXPECT_EQ(format("%1", two), "%1");
  EXPECT_EQ(format("%-1$@", two), "%-1$@");
}

TEST(Format, TakesArgumentsVerbatim) {
  EXPECT_EQ(format("<%@> <%@>", std::array<std::string_view, 2>{"%@", "%%"}), "<%@> <%%>");
}

TEST(Format, KeepsTextWithoutPercentSignsByteForByte) {
  using namespace std::string_view_literals;
  const auto text = "Künstler\0auf\xFF"sv;
  EXPECT_EQ(format(text, two), text);
}

TEST(Format, GivesAnAnswerForAnyPattern) {
  std::mt19937 random{20};
  constexpr std::string_view alphabet = "%%%@$0123 a";
  for (int round = 0; round < 20'000; ++round) {
    std::string pattern;
    for (auto length = random() % 12; length > 0; --length) {
      pattern += alphabet[random() % alphabet.size()];
    }
    const auto text = format(pattern, two);
    // At most every two bytes of it are replaced by three.
    EXPECT_LE(text.size(), pattern.size() / 2 * 3 + 1) << pattern;
    if (pattern.find('%') == std::string::npos) {
      EXPECT_EQ(text, pattern);
    }
  }
}

}  // namespace
}  // namespace solvane::detail

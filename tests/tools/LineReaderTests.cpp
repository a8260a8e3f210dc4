#include <sstream>
#include <string>
#include <vector>

#include <gmock/gmock.h>

#include "LineReader.hpp"

namespace solvane::tool {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

std::vector<std::string> lines(const std::string& text) {
  std::istringstream in{text};
  LineReader reader{in};
  std::vector<std::string> result;
  while (const auto line = reader.next()) {
    EXPECT_EQ(line->number, result.size() + 1);
    result.push_back(line->text);
  }
  return result;
}

TEST(LineReader, TakesBothLineEndsAndALastLineWithout) {
  EXPECT_THAT(lines("a\nb\r\nc"), ElementsAre("a", "b", "c"));
  EXPECT_THAT(lines("a\r\n"), ElementsAre("a"));
  EXPECT_THAT(lines("a\r"), ElementsAre("a"));
}

TEST(LineReader, CountsEmptyLines) { EXPECT_THAT(lines("\n\na\n"), ElementsAre("", "", "a")); }

TEST(LineReader, AnEmptyTextHasNoLines) { EXPECT_THAT(lines(""), IsEmpty()); }

TEST(LineReader, DropsAByteOrderMarkAtTheBeginningOnly) {
  EXPECT_THAT(lines("\xEF\xBB\xBF"
                    "a\n\xEF\xBB\xBF"
                    "b"),
              ElementsAre("a",
                          "\xEF\xBB\xBF"
                          "b"));
}

TEST(LineReader, KeepsZeroBytesAndCarriageReturnsInsideALine) {
  EXPECT_THAT(lines(std::string{"a\0b\rc\n", 6}), ElementsAre(std::string{"a\0b\rc", 5}));
}

TEST(LineReader, StopsAtALineThatIsTooLong) {
  std::istringstream in{"12345\n123456\n1\n"};
  LineReader reader{in, 5};
  EXPECT_FALSE(reader.next()->tooLong);
  EXPECT_TRUE(reader.next()->tooLong);
  EXPECT_FALSE(reader.next());
}

}  // namespace
}  // namespace solvane::tool

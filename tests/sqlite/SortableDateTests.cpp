#include <limits>

#include <gtest/gtest.h>

#include "detail/SortableDate.hpp"

namespace solvane {
namespace {

using sqlite::SortableDate;

using Seconds = std::numeric_limits<std::int64_t>;

const Date ascending[] = {
    Date::fromUnixTime(Seconds::min()),
    Date::fromUnixTime(Seconds::min(), 1),
    Date::fromUnixTime(-256),
    Date::fromUnixTime(-1),
    Date::fromUnixTime(-1, 999'999'999),
    Date::fromUnixTime(0),
    Date::fromUnixTime(0, 1),
    Date::fromUnixTime(0, 256),
    Date::fromUnixTime(1),
    Date::fromUnixTime(255),
    Date::fromUnixTime(256),
    Date::fromUnixTime(1'700'000'000, 123'456'789),
    Date::fromUnixTime(Seconds::max()),
    Date::fromUnixTime(Seconds::max(), 999'999'999),
};

TEST(SortableDate, GivesTheDateBackToTheNanosecond) {
  for (const auto date : ascending) {
    EXPECT_EQ(SortableDate::decode(SortableDate{date}.bytes()), date);
  }
}

TEST(SortableDate, ComparesAsTheDatesDo) {
  for (std::size_t i = 1; i < std::size(ascending); ++i) {
    EXPECT_LT(SortableDate{ascending[i - 1]}.bytes(), SortableDate{ascending[i]}.bytes()) << i;
  }
}

TEST(SortableDate, RefusesBytesThatAreNoDate) {
  EXPECT_FALSE(SortableDate::decode(""));
  EXPECT_FALSE(SortableDate::decode("elevenbytes"));
  EXPECT_FALSE(SortableDate::decode("12345678\xff\xff\xff\xff"));
}

}  // namespace
}  // namespace solvane

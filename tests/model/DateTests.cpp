#include <limits>

#include <solvane/testing/printing.hpp>

#include <gtest/gtest.h>

namespace solvane {
namespace {

using namespace std::chrono;
using namespace std::chrono_literals;

TEST(Date, IsTheEpochByDefault) { EXPECT_EQ(Date{}, Date{sys_seconds{0s}}); }

TEST(Date, KeepsTheNanosecondsOfTheClock) {
  const auto now = system_clock::now();
  const Date date = now;
  EXPECT_EQ(seconds{date.secondsSinceEpoch()} + nanoseconds{date.nanoseconds()},
            now.time_since_epoch());
}

TEST(Date, CountsNanosecondsForwardFromTheSecondBeforeTheEpochToo) {
  const Date date = sys_time<nanoseconds>{-1ns};
  EXPECT_EQ(date, Date::fromUnixTime(-1, 999'999'999));
}

TEST(Date, ReachesBeyondTheYearsOfTheClock) {
  const Date distantPast = sys_days{year{1} / 1 / 1};
  const Date distantFuture = sys_days{year{4001} / 1 / 1};
  EXPECT_EQ(distantPast.secondsSinceEpoch(), -62'135'596'800);
  EXPECT_EQ(distantFuture.secondsSinceEpoch(), 64'092'211'200);
  EXPECT_LT(distantPast, distantFuture);
}

TEST(Date, RoundsDurationsFinerThanANanosecondTowardsThePast) {
  using Picoseconds = duration<std::int64_t, std::pico>;
  EXPECT_EQ(Date{sys_time<Picoseconds>{Picoseconds{1999}}}, Date::fromUnixTime(0, 1));
  EXPECT_EQ(Date{sys_time<Picoseconds>{Picoseconds{-1}}}, Date::fromUnixTime(-1, 999'999'999));
}

TEST(Date, OrdersBySecondsThenNanoseconds) {
  EXPECT_LT(Date::fromUnixTime(1, 5), Date::fromUnixTime(1, 6));
  EXPECT_LT(Date::fromUnixTime(-2, 999'999'999), Date::fromUnixTime(-1, 0));
}

TEST(Date, AddsIntervalsAcrossTheSecondBothWays) {
  const auto date = Date::fromUnixTime(10, 900'000'000);
  EXPECT_EQ(date + 200ms, Date::fromUnixTime(11, 100'000'000));
  EXPECT_EQ(date - 1s, Date::fromUnixTime(9, 900'000'000));
  EXPECT_EQ(date - 10'900'000'001ns, Date::fromUnixTime(-1, 999'999'999));
  EXPECT_EQ(date + weeks{2}, Date::fromUnixTime(10 + 14 * 86'400, 900'000'000));
}

TEST(Date, OfNowLiesBetweenTwoReadingsOfTheClock) {
  const Date before = system_clock::now();
  const Date now = Date::now();
  EXPECT_LE(before, now);
  EXPECT_LE(now, Date{system_clock::now()});
}

}  // namespace
}  // namespace solvane

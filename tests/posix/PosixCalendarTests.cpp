#include <cstdlib>
#include <ctime>
#include <limits>
#include <random>

#include <solvane/posix/PosixCalendar.hpp>
#include <solvane/testing/printing.hpp>

#include <gtest/gtest.h>
#include <support/TimeZone.hpp>

namespace solvane {
namespace {

using namespace std::chrono;
using namespace std::chrono_literals;

std::optional<Date> twoWeeksAfter(Date date) {
  DateComponents twoWeeks;
  twoWeeks.weekOfYear = 2;
  return PosixCalendar{}.dateByAddingComponents(twoWeeks, date);
}

TEST(PosixCalendar, KeepsTheLocalTimeWhenClocksGoForward) {
  const TimeZone zone{"Europe/Berlin"};  // on 2024-03-31, at 02:00
  EXPECT_EQ(twoWeeksAfter(sys_days{2024y / 3 / 20} + 9h), Date{sys_days{2024y / 4 / 3} + 8h});
}

TEST(PosixCalendar, KeepsTheLocalTimeWhenClocksGoBack) {
  const TimeZone zone{"Europe/Berlin"};  // on 2024-10-27, at 03:00
  EXPECT_EQ(twoWeeksAfter(sys_days{2024y / 10 / 20} + 8h), Date{sys_days{2024y / 11 / 3} + 9h});
}

TEST(PosixCalendar, AddsExactly336HoursWithoutAChangeOfClocks) {
  const TimeZone zone{"Europe/Berlin"};
  const auto time = sys_days{2024y / 7 / 1} + 8h + 5ns;
  EXPECT_EQ(twoWeeksAfter(time), Date{time + 336h});
}

TEST(PosixCalendar, AddsExactly336HoursInAZoneWithoutDaylightSaving) {
  const TimeZone zone{"Asia/Tokyo"};
  for (auto day = sys_days{2024y / 1 / 1}; day < sys_days{2025y / 1 / 1}; day += days{1}) {
    EXPECT_EQ(twoWeeksAfter(day + 1h), Date{day + 1h + 336h});
  }
}

TEST(PosixCalendar, CountsTheLeapDay) {
  const TimeZone zone{"UTC"};
  EXPECT_EQ(twoWeeksAfter(sys_days{2024y / 2 / 20}), Date{sys_days{2024y / 3 / 5}});
  EXPECT_EQ(twoWeeksAfter(sys_days{2023y / 2 / 20}), Date{sys_days{2023y / 3 / 6}});
  EXPECT_EQ(twoWeeksAfter(sys_days{2024y / 2 / 29} + 10h), Date{sys_days{2024y / 3 / 14} + 10h});
}

TEST(PosixCalendar, CrossesTheEndOfAYear) {
  const TimeZone zone{"America/New_York"};
  EXPECT_EQ(twoWeeksAfter(sys_days{2024y / 12 / 25} + 15h), Date{sys_days{2025y / 1 / 8} + 15h});
}

TEST(PosixCalendar, MovesALocalTimeThatDoesNotOccurForwardByTheGap) {
  const TimeZone zone{"Europe/Berlin"};
  // 02:30 on 2024-03-17, to a day on which the clock jumps from 02:00 to 03:00: 03:30.
  EXPECT_EQ(twoWeeksAfter(sys_days{2024y / 3 / 17} + 1h + 30min),
            Date{sys_days{2024y / 3 / 31} + 1h + 30min});
}

TEST(PosixCalendar, TakesTheOccurrenceWithTheOldOffsetOfALocalTimeThatOccursTwice) {
  const TimeZone zone{"Europe/Berlin"};
  // 02:30 summer time on 2024-10-13, to a day that has 02:30 in summer and in winter time.
  EXPECT_EQ(twoWeeksAfter(sys_days{2024y / 10 / 13} + 30min),
            Date{sys_days{2024y / 10 / 27} + 30min});
}

TEST(PosixCalendar, CrossesADayThatAZoneLeftOut) {
  const TimeZone zone{"Pacific/Apia"};  // which had no 2011-12-30
  EXPECT_EQ(twoWeeksAfter(sys_days{2011y / 12 / 20} + 20h), Date{sys_days{2012y / 1 / 2} + 20h});
  EXPECT_EQ(twoWeeksAfter(sys_days{2011y / 12 / 16} + 20h), Date{sys_days{2011y / 12 / 30} + 20h});
}

TEST(PosixCalendar, KeepsEveryNanosecondAlsoBeforeTheEpoch) {
  const TimeZone zone{"UTC"};
  EXPECT_EQ(twoWeeksAfter(Date::fromUnixTime(-1, 999'999'999)),
            Date::fromUnixTime(14 * 86'400 - 1, 999'999'999));
}

TEST(PosixCalendar, FollowsAChangeOfZoneAtOnce) {
  const auto time = sys_days{2024y / 3 / 20} + 9h;
  const TimeZone zone{"Europe/Berlin"};
  EXPECT_EQ(twoWeeksAfter(time), Date{time + 335h});
  TimeZone::set("UTC");
  EXPECT_EQ(twoWeeksAfter(time), Date{time + 336h});
  TimeZone::set("America/New_York");  // whose clocks went forward ten days before
  EXPECT_EQ(twoWeeksAfter(time), Date{time + 336h});
  TimeZone::set("Europe/Berlin");
  EXPECT_EQ(twoWeeksAfter(time), Date{time + 335h});
}

TEST(PosixCalendar, AgreesWithTheCLibrarysOwnArithmeticOnLocalTimes) {
  std::mt19937_64 random{14};
  for (const char* name :
       {"Europe/Berlin", "America/New_York", "Australia/Lord_Howe", "Asia/Kathmandu", "UTC"}) {
    const TimeZone zone{name};
    for (int round = 0; round < 5000; ++round) {
      const auto start = static_cast<std::time_t>(random() % 2'000'000'000);
      std::tm local{};
      ::localtime_r(&start, &local);
      const std::tm wanted = local;
      local.tm_mday += 14;
      local.tm_isdst = -1;
      const std::time_t end = ::mktime(&local);
      // Where the time does not occur, or occurs twice, the two may choose differently.
      local.tm_isdst = wanted.tm_isdst;
      const auto date = twoWeeksAfter(Date::fromUnixTime(start));
      ASSERT_TRUE(date.has_value());
      const bool ordinary = local.tm_hour == wanted.tm_hour && local.tm_min == wanted.tm_min;
      const auto difference = std::abs(date->secondsSinceEpoch() - end);
      if (ordinary && difference != 0) {
        std::tm ours{};
        const std::time_t moment = date->secondsSinceEpoch();
        ::localtime_r(&moment, &ours);
        EXPECT_EQ(ours.tm_hour, wanted.tm_hour) << name << " " << start;
        EXPECT_EQ(ours.tm_min, wanted.tm_min) << name << " " << start;
        EXPECT_LE(difference, 3600) << name << " " << start;
      }
    }
  }
}

TEST(PosixCalendar, HasNoDateForComponentsOtherThanWeeks) {
  DateComponents components;
  components.weekOfYear = 2;
  components.month = 1;
  EXPECT_EQ(PosixCalendar{}.dateByAddingComponents(components, Date{}), std::nullopt);
}

TEST(PosixCalendar, HasNoDateBeyondTheYearsOfTheCLibrary) {
  EXPECT_EQ(twoWeeksAfter(Date::fromUnixTime(std::numeric_limits<std::int64_t>::max())),
            std::nullopt);
  EXPECT_EQ(twoWeeksAfter(Date::fromUnixTime(std::numeric_limits<std::int64_t>::min())),
            std::nullopt);
  EXPECT_EQ(twoWeeksAfter(Date::fromUnixTime(67'768'036'191'676'799)), std::nullopt);
  DateComponents components;
  components.weekOfYear = std::numeric_limits<Integer>::max();
  EXPECT_EQ(PosixCalendar{}.dateByAddingComponents(components, Date{}), std::nullopt);
}

TEST(PosixCalendar, TellsThePresentMoment) {
  const Date before = Date::now();
  const Date now = PosixCalendar{}.now();
  EXPECT_LE(before, now);
  EXPECT_LE(now, Date::now());
}

}  // namespace
}  // namespace solvane

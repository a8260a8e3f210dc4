#include <chrono>
#include <cstdint>
#include <limits>
#include <string>

#include <gmock/gmock.h>

#include "Iso8601.hpp"

namespace solvane::tool {
namespace {

using namespace std::chrono;
using ::testing::HasSubstr;

Date parsed(const std::string& text) {
  const auto date = parseIso8601(text);
  EXPECT_TRUE(date) << text << ' ' << (date ? "" : date.error().message);
  return date ? *date : Date{};
}

std::string problem(const std::string& text) {
  const auto date = parseIso8601(text);
  return date ? "parsed as " + formatIso8601(*date) : date.error().message;
}

TEST(Iso8601, ADateIsItsFirstMomentInUtc) {
  EXPECT_EQ(parsed("1959-08-17"), Date{sys_days{1959y / 8 / 17}});
  EXPECT_EQ(parsed("1970-01-01"), Date{});
}

TEST(Iso8601, TakesInstantsInUtcWithAndWithoutSeconds) {
  const Date expected = sys_days{1959y / 8 / 17} + 20h + 30min;
  EXPECT_EQ(parsed("1959-08-17T20:30Z"), expected);
  EXPECT_EQ(parsed("1959-08-17T20:30:00Z"), expected);
  EXPECT_EQ(parsed("1959-08-17T20:30:59Z"), expected + 59s);
}

TEST(Iso8601, AnOffsetIsTakenOffTheWrittenTime) {
  const Date expected = sys_days{2024y / 3 / 1} + 1h;
  EXPECT_EQ(parsed("2024-03-01T03:00+02:00"), expected);
  EXPECT_EQ(parsed("2024-02-29T19:30:00-05:30"), expected);
}

TEST(Iso8601, KeepsFractionsToTheNanosecond) {
  const Date whole = sys_days{2024y / 1 / 1};
  EXPECT_EQ(parsed("2024-01-01T00:00:00.5Z"), whole + 500ms);
  EXPECT_EQ(parsed("2024-01-01T00:00:00.000000001Z"), whole + 1ns);
  EXPECT_EQ(parsed("1969-12-31T23:59:59.999999999Z"), Date{} - 1ns);
}

TEST(Iso8601, ReachesBeyondTheRangeOfNanosecondClocks) {
  EXPECT_EQ(parsed("0000-01-01"), Date::fromUnixTime(-62'167'219'200));
  EXPECT_EQ(parsed("9999-12-31T23:59:59.999999999Z"),
            Date::fromUnixTime(253'402'300'799, 999'999'999));
}

TEST(Iso8601, RefusesDatesAndTimesThatDoNotExist) {
  for (const std::string text :
       {"2023-02-29", "2023-04-31", "2023-00-10", "2023-13-10", "2023-01-00", "2023-01-32",
        "2023-01-01T24:00Z", "2023-01-01T00:60Z", "2023-01-01T00:00:60Z", "2023-01-01T00:00+24:00",
        "1900-02-29"}) {
    EXPECT_THAT(problem(text), HasSubstr("does not exist")) << text;
  }
}

TEST(Iso8601, TakesLeapDays) {
  EXPECT_EQ(parsed("2000-02-29"), Date{sys_days{2000y / 2 / 29}});
  EXPECT_EQ(parsed("2024-02-29"), Date{sys_days{2024y / 2 / 29}});
}

TEST(Iso8601, RefusesWhatIsWrittenDifferently) {
  for (const std::string text :
       {"", "1959", "1959-08", "59-08-17", "17.08.1959", "1959-8-17", "1959-08-17 ", " 1959-08-17",
        "1959-08-17 20:30Z", "1959-08-17t20:30Z", "1959-08-17T20Z", "1959-08-17T20:30:Z",
        "1959-08-17T20:30:00.Z", "1959-08-17T20:30:00.1234567890Z", "1959-08-17T20:30:00+2",
        "1959-08-17T20:30:00+0200", "1959-08-17T20:30Z+02:00", "+1959-08-17", "1959-08-1７"}) {
    EXPECT_THAT(problem(text), HasSubstr("is not an ISO 8601 date")) << text;
  }
}

TEST(Iso8601, AsksForTheZoneOfATimeWithoutOne) {
  EXPECT_THAT(problem("1959-08-17T20:30"), HasSubstr("without a zone"));
  EXPECT_THAT(problem("1959-08-17T20:30:15.25"), HasSubstr("without a zone"));
}

TEST(Iso8601, WritesWhatItReads) {
  for (const std::string text :
       {"1959-08-17T20:30:15Z", "2024-01-01T00:00:00.000000001Z", "0000-01-01T00:00:00Z",
        "9999-12-31T23:59:59.999999999Z", "1969-12-31T23:59:59.900000000Z"}) {
    EXPECT_EQ(formatIso8601(parsed(text)), text);
  }
}

TEST(Iso8601, WritesSecondsWhereTheNotationEnds) {
  EXPECT_EQ(formatIso8601(Date::fromUnixTime(253'402'300'800)), "@253402300800");
  EXPECT_EQ(formatIso8601(Date::fromUnixTime(-62'167'219'201)), "@-62167219201");
  EXPECT_EQ(formatIso8601(Date::fromUnixTime(std::numeric_limits<std::int64_t>::max(), 5)),
            "@9223372036854775807.000000005");
}

TEST(Iso8601, LocalTimeFallsBackToUtcWhenNoCalendarHasTheYear) {
  EXPECT_EQ(formatLocalTime(Date::fromUnixTime(std::numeric_limits<std::int64_t>::max())),
            "@9223372036854775807");
}

TEST(Iso8601, LocalTimeNamesTheMinuteAndTheZone) {
  EXPECT_THAT(formatLocalTime(parsed("2024-06-15T12:34:56Z")),
              ::testing::MatchesRegex("2024-06-1[0-9] [0-9]+:[0-9]+ .+"));
}

}  // namespace
}  // namespace solvane::tool

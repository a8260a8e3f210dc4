#include <solvane/config/SolvaneConfig.hpp>
#include <solvane/posix/PosixCalendar.hpp>
#include <solvane/testing/FixedCalendar.hpp>
#include <solvane/testing/ScopedPlatform.hpp>
#include <solvane/testing/printing.hpp>

#include <gtest/gtest.h>
#include <support/TimeZone.hpp>
#include <support/log.hpp>

namespace solvane {
namespace {

using namespace std::chrono;
using namespace std::chrono_literals;

class ExpirationDate : public ::testing::Test {
 protected:
  std::shared_ptr<testing::FixedCalendar> calendar = std::make_shared<testing::FixedCalendar>();
  testing::ScopedPlatform platform{{.calendar = calendar}};
  SolvaneConfig config;
};

TEST_F(ExpirationDate, IsFourteenDaysAfterTheRead) {
  const Date now = sys_days{2024y / 2 / 29} + 10h + 1ns;
  calendar->setNow(now);
  EXPECT_EQ(config.searchableItemExpirationDate(), Date{sys_days{2024y / 3 / 14} + 10h + 1ns});
}

TEST_F(ExpirationDate, IsTheSameLocalTimeFourteenDaysLaterWhenTheClocksChange) {
  // The system's calendar at a moment that stands still.
  struct StandingStill : PosixCalendar {
    explicit StandingStill(Date moment) : _moment(moment) {}
    Date now() const override { return _moment; }
    Date _moment;
  };
  const TimeZone zone{"Europe/Berlin"};
  const auto expirationOf = [this](Date moment) {
    const testing::ScopedPlatform scoped{{.calendar = std::make_shared<StandingStill>(moment)}};
    return config.searchableItemExpirationDate();
  };
  // 10:00 to 10:00, into summer time, out of it, and within it.
  EXPECT_EQ(expirationOf(sys_days{2024y / 3 / 20} + 9h), Date{sys_days{2024y / 4 / 3} + 8h});
  EXPECT_EQ(expirationOf(sys_days{2024y / 10 / 20} + 8h), Date{sys_days{2024y / 11 / 3} + 9h});
  EXPECT_EQ(expirationOf(sys_days{2024y / 7 / 1} + 8h), Date{sys_days{2024y / 7 / 15} + 8h});
}

TEST_F(ExpirationDate, IsComputedAnewAtEveryRead) {
  const Date first = config.searchableItemExpirationDate();
  calendar->advance(1ns);
  EXPECT_EQ(config.searchableItemExpirationDate(), first + 1ns);
}

TEST_F(ExpirationDate, AsksTheCalendarForTwoWeeksOfTheYearAndNothingElse) {
  struct Asked : Calendar {
    Date now() const override { return Date::fromUnixTime(7); }
    std::optional<Date> dateByAddingComponents(const DateComponents& components,
                                               Date date) const override {
      asked = components;
      from = date;
      return Date::fromUnixTime(9);
    }
    mutable DateComponents asked;
    mutable Date from;
  };
  const auto asked = std::make_shared<Asked>();
  const testing::ScopedPlatform scoped{{.calendar = asked}};
  EXPECT_EQ(config.searchableItemExpirationDate(), Date::fromUnixTime(9));
  DateComponents twoWeeks;
  twoWeeks.weekOfYear = 2;
  EXPECT_EQ(asked->asked, twoWeeks);
  EXPECT_EQ(asked->from, Date::fromUnixTime(7));
}

TEST_F(ExpirationDate, IsTheMomentOfTheReadWithOneLogLineWhenTheCalendarYieldsNone) {
  calendar->yieldNoDate();
  EXPECT_EQ(config.searchableItemExpirationDate(), calendar->now());
  EXPECT_EQ(capturedLog().claim(),
            std::vector<std::string>{"SearchAPI: Could not produce expiration date"});
}

TEST_F(ExpirationDate, LogsNothingWhenTheCalendarYieldsADate) {
  EXPECT_NE(config.searchableItemExpirationDate(), calendar->now());
  EXPECT_TRUE(capturedLog().claim().empty());
}

}  // namespace
}  // namespace solvane

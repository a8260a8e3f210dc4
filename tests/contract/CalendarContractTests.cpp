#include <memory>
#include <ostream>

#include <solvane/posix/PosixCalendar.hpp>
#include <solvane/testing/FixedCalendar.hpp>
#include <solvane/testing/printing.hpp>

#include <contract/backendName.hpp>
#include <gtest/gtest.h>
namespace solvane {
namespace {

struct CalendarBackend {
  const char* name;
  std::shared_ptr<Calendar> (*make)();

  friend std::ostream& operator<<(std::ostream& out, const CalendarBackend& backend) {
    return out << backend.name;
  }
};

class AnyCalendar : public ::testing::TestWithParam<CalendarBackend> {
 protected:
  [[nodiscard]] std::optional<Date> addWeeks(Integer weeks, Date date) const {
    DateComponents components;
    components.weekOfYear = weeks;
    return calendar->dateByAddingComponents(components, date);
  }

  std::shared_ptr<Calendar> calendar = GetParam().make();
};

TEST_P(AnyCalendar, NeverGoesBack) {
  const Date first = calendar->now();
  EXPECT_LE(first, calendar->now());
}

TEST_P(AnyCalendar, AddsWeeksToTheNanosecond) {
  // Far from any change of clocks, in every zone in use.
  const Date date = Date::fromUnixTime(1'735'689'600, 123'456'789);
  EXPECT_EQ(addWeeks(2, date), date + std::chrono::weeks{2});
}

TEST_P(AnyCalendar, TakesNegativeWeeksBack) {
  const Date date = Date::fromUnixTime(1'735'689'600);
  const auto later = addWeeks(2, date);
  ASSERT_TRUE(later.has_value());
  EXPECT_EQ(addWeeks(-2, *later), date);
}

TEST_P(AnyCalendar, AddsNothingWhenNothingIsToBeAdded) {
  const Date date = Date::fromUnixTime(-5, 1);
  EXPECT_EQ(addWeeks(0, date), date);
  EXPECT_EQ(calendar->dateByAddingComponents({}, date), date);
}

INSTANTIATE_TEST_SUITE_P(
    Every, AnyCalendar,
    ::testing::Values(CalendarBackend{"posix",
                                      []() -> std::shared_ptr<Calendar> {
                                        return std::make_shared<PosixCalendar>();
                                      }},
                      CalendarBackend{"fixed",
                                      []() -> std::shared_ptr<Calendar> {
                                        return std::make_shared<testing::FixedCalendar>();
                                      }}),
    backendName);

}  // namespace
}  // namespace solvane

#pragma once

#include <memory>
#include <optional>
#include <string>

#include <solvane/model/Integer.hpp>

namespace solvane {

class Calendar;

/// A set of calendar components, each absent until it is set.
struct DateComponents {
  std::shared_ptr<const Calendar> calendar;
  std::optional<std::string> timeZone;
  std::optional<Integer> era;
  std::optional<Integer> year;
  std::optional<Integer> month;
  std::optional<Integer> day;
  std::optional<Integer> hour;
  std::optional<Integer> minute;
  std::optional<Integer> second;
  std::optional<Integer> nanosecond;
  std::optional<Integer> weekday;
  std::optional<Integer> weekdayOrdinal;
  std::optional<Integer> quarter;
  std::optional<Integer> weekOfMonth;
  std::optional<Integer> weekOfYear;
  std::optional<Integer> yearForWeekOfYear;

  friend bool operator==(const DateComponents&, const DateComponents&) = default;
};

}  // namespace solvane

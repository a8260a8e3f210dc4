#include <solvane/testing/FixedCalendar.hpp>

namespace solvane::testing {

void FixedCalendar::setNow(Date now) {
  const std::lock_guard lock{_mutex};
  _now = now;
}

void FixedCalendar::advance(std::chrono::nanoseconds interval) {
  const std::lock_guard lock{_mutex};
  _now = _now + interval;
}

void FixedCalendar::yieldNoDate() {
  const std::lock_guard lock{_mutex};
  _yieldsDates = false;
}

Date FixedCalendar::now() const {
  const std::lock_guard lock{_mutex};
  return _now;
}

std::optional<Date> FixedCalendar::dateByAddingComponents(const DateComponents& components,
                                                          Date date) const {
  const std::lock_guard lock{_mutex};
  if (!_yieldsDates) return std::nullopt;
  return date + std::chrono::weeks{components.weekOfYear.value_or(0)};
}

}  // namespace solvane::testing

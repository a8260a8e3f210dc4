#pragma once

#include <chrono>
#include <mutex>
#include <optional>

#include <solvane/platform/Calendar.hpp>

namespace solvane::testing {

/// A calendar whose present moment stands still until the test moves it, in a zone without
/// daylight saving: a week is always 168 hours. Any thread.
class FixedCalendar final : public Calendar {
 public:
  explicit FixedCalendar(Date now = std::chrono::sys_days{std::chrono::year{2024} / 2 / 29})
      : _now(now) {}

  void setNow(Date now);
  void advance(std::chrono::nanoseconds interval);

  /// From now on no date can be computed.
  void yieldNoDate();

  [[nodiscard]] Date now() const override;
  [[nodiscard]] std::optional<Date> dateByAddingComponents(const DateComponents& components,
                                                           Date date) const override;

 private:
  mutable std::mutex _mutex;
  Date _now;
  bool _yieldsDates = true;
};

}  // namespace solvane::testing

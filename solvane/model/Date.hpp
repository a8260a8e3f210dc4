#pragma once

#include <chrono>
#include <compare>
#include <cstdint>

namespace solvane {

/// A point in time, exact to the nanosecond, over the whole range of a 64-bit count of seconds.
///
/// A plain 16-byte value that every part of the library hands through unchanged. It converts
/// implicitly from any `std::chrono::sys_time`, so that a host writes
///
///     using namespace std::chrono;
///     solvane::Date released = sys_days{1959y / August / 17};
///
/// The clock's own 64-bit nanoseconds end in the year 2262 and begin in 1677; catalogues and other
/// platforms' "distant past" do not, hence a type of our own.
class Date {
 public:
  /// 1970-01-01T00:00:00Z.
  constexpr Date() noexcept = default;

  /// Exact for durations of a nanosecond or coarser; finer ones are rounded towards the past.
  template <class Duration>
  constexpr Date(std::chrono::sys_time<Duration> time) noexcept {
    const auto whole = std::chrono::floor<std::chrono::seconds>(time);
    _seconds = whole.time_since_epoch().count();
    _nanoseconds = static_cast<std::int32_t>(
        std::chrono::floor<std::chrono::nanoseconds>(time - whole).count());
  }

  /// `seconds` since 1970-01-01T00:00:00Z (negative before) plus `nanoseconds` in [0, 999'999'999].
  static constexpr Date fromUnixTime(std::int64_t seconds, std::int32_t nanoseconds = 0) noexcept {
    Date date;
    date._seconds = seconds;
    date._nanoseconds = nanoseconds;
    return date;
  }

  /// The system clock's present moment.
  static Date now() noexcept { return std::chrono::system_clock::now(); }

  /// Whole seconds since 1970-01-01T00:00:00Z, rounded towards the past.
  [[nodiscard]] constexpr std::int64_t secondsSinceEpoch() const noexcept { return _seconds; }

  /// The part of a second after `secondsSinceEpoch()`, in [0, 999'999'999].
  [[nodiscard]] constexpr std::int32_t nanoseconds() const noexcept { return _nanoseconds; }

  friend constexpr auto operator<=>(const Date&, const Date&) noexcept = default;

  /// The sum must lie within the range of the type.
  friend constexpr Date operator+(Date date, std::chrono::nanoseconds interval) noexcept {
    const auto fine =
        std::chrono::nanoseconds{date._nanoseconds} + interval % std::chrono::seconds{1};
    const auto carry = std::chrono::floor<std::chrono::seconds>(fine);
    const auto whole = std::chrono::duration_cast<std::chrono::seconds>(interval) + carry;
    return fromUnixTime(date._seconds + whole.count(),
                        static_cast<std::int32_t>((fine - carry).count()));
  }

  friend constexpr Date operator-(Date date, std::chrono::nanoseconds interval) noexcept {
    return date + -interval;
  }

 private:
  std::int64_t _seconds = 0;
  std::int32_t _nanoseconds = 0;
};

}  // namespace solvane

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdlib>
#include <ctime>
#include <mutex>
#include <string_view>

#include <solvane/posix/PosixCalendar.hpp>

namespace solvane {
namespace {

constexpr std::int64_t secondsPerWeek = std::int64_t{7} * 24 * 60 * 60;

std::optional<std::int64_t> offsetFromUTC(std::int64_t time) {
  const std::time_t moment{time};
  std::tm local{};
  if (localtime_r(&moment, &local) == nullptr) return std::nullopt;
  return local.tm_gmtoff;
}

// The second that lies `weeks` after `second` at the same local time.
std::optional<std::int64_t> addWeeks(Integer weeks, std::int64_t second) {
  std::int64_t sameInterval = 0;
  if (__builtin_mul_overflow(weeks, secondsPerWeek, &sameInterval) ||
      __builtin_add_overflow(sameInterval, second, &sameInterval)) {
    return std::nullopt;
  }
  // localtime_r need not notice a change of zone by itself. The C library has a lock of its own for
  // this, which thread sanitizers do not see.
  {
    static std::mutex settingZone;
    const std::lock_guard lock{settingZone};
    tzset();
  }
  const auto before = offsetFromUTC(second);
  const auto after = offsetFromUTC(sameInterval);
  if (!before || !after) return std::nullopt;

  const std::int64_t sameClock = sameInterval + *before - *after;
  const bool occurs = offsetFromUTC(sameClock) == after;
  return occurs ? sameClock : sameInterval;
}

// The last answer that a thread was given. Items are built by the hundred thousand in a second, and
// asking the C library for each would take several times as long as everything else about them.
// Trivial to destroy, so that it may still be asked when the thread's other variables are gone.
class LastAnswer {
 public:
  std::optional<std::int64_t> addWeeks(Integer weeks, std::int64_t second) {
    const char* const variable = std::getenv("TZ");
    const std::string_view zone = variable ? variable : noZone;
    if (!_known || weeks != _weeks || second != _second || zone != _zone.data()) {
      _answer = solvane::addWeeks(weeks, second);
      _weeks = weeks;
      _second = second;
      _known = zone.size() < _zone.size();
      if (_known) *std::ranges::copy(zone, _zone.begin()).out = '\0';
    }
    return _answer;
  }

 private:
  // No zone has this name, and an unset variable differs from an empty one, which means UTC.
  static constexpr std::string_view noZone = "\n";

  bool _known = false;
  std::array<char, 64> _zone{};
  Integer _weeks = 0;
  std::int64_t _second = 0;
  std::optional<std::int64_t> _answer;
};

bool hasOnlyWeeks(const DateComponents& components) {
  const auto& [calendar, timeZone, era, year, month, day, hour, minute, second, nanosecond, weekday,
               weekdayOrdinal, quarter, weekOfMonth, weekOfYear, yearForWeekOfYear] = components;
  return !(calendar || timeZone || era || year || month || day || hour || minute || second ||
           nanosecond || weekday || weekdayOrdinal || quarter || weekOfMonth || yearForWeekOfYear);
}

}  // namespace

Date PosixCalendar::now() const { return Date::now(); }

std::optional<Date> PosixCalendar::dateByAddingComponents(const DateComponents& components,
                                                          Date date) const {
  if (!hasOnlyWeeks(components)) return std::nullopt;
  thread_local LastAnswer last;
  const auto second = last.addWeeks(components.weekOfYear.value_or(0), date.secondsSinceEpoch());
  if (!second) return std::nullopt;
  return Date::fromUnixTime(*second, date.nanoseconds());
}

}  // namespace solvane

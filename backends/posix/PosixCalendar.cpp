#include <cstdint>
#include <ctime>
#include <limits>

#include <solvane/posix/PosixCalendar.hpp>

namespace solvane {
namespace {

constexpr std::int64_t secondsPerWeek = 7 * 24 * 60 * 60;

std::optional<std::int64_t> offsetFromUTC(std::int64_t time) {
  const std::time_t moment{time};
  std::tm local{};
  if (localtime_r(&moment, &local) == nullptr) return std::nullopt;
  return local.tm_gmtoff;
}

bool hasOnlyWeeks(DateComponents components) {
  components.weekOfYear.reset();
  return components == DateComponents{};
}

}  // namespace

Date PosixCalendar::now() const { return Date::now(); }

std::optional<Date> PosixCalendar::dateByAddingComponents(const DateComponents& components,
                                                          Date date) const {
  if (!hasOnlyWeeks(components)) return std::nullopt;
  std::int64_t sameInterval = 0;
  if (__builtin_mul_overflow(components.weekOfYear.value_or(0), secondsPerWeek, &sameInterval) ||
      __builtin_add_overflow(sameInterval, date.secondsSinceEpoch(), &sameInterval)) {
    return std::nullopt;
  }
  tzset();  // localtime_r need not notice a new TZ by itself
  const auto before = offsetFromUTC(date.secondsSinceEpoch());
  const auto after = offsetFromUTC(sameInterval);
  if (!before || !after) return std::nullopt;

  const std::int64_t sameClock = sameInterval + *before - *after;
  const bool occurs = offsetFromUTC(sameClock) == after;
  return Date::fromUnixTime(occurs ? sameClock : sameInterval, date.nanoseconds());
}

}  // namespace solvane

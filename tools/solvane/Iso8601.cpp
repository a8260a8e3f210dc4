#include "Iso8601.hpp"

#include <array>
#include <chrono>
#include <cstdint>
#include <cstdio>
#include <ctime>
#include <optional>

namespace solvane::tool {
namespace {

using namespace std::chrono;

/// Takes the parts of a date off the front of a text. Once something is missing, `failed` stays.
class Scanner {
 public:
  explicit Scanner(std::string_view text) : _rest(text) {}

  int digits(std::size_t count) {
    int value = 0;
    for (std::size_t i = 0; i < count; ++i) {
      const char digit = _rest.empty() ? '\0' : _rest.front();
      if (digit < '0' || digit > '9') return fail();
      value = value * 10 + (digit - '0');
      _rest.remove_prefix(1);
    }
    return value;
  }

  bool accept(char expected) {
    if (!_rest.starts_with(expected)) return false;
    _rest.remove_prefix(1);
    return true;
  }

  void expect(char expected) {
    if (!accept(expected)) fail();
  }

  nanoseconds fraction() {
    std::int64_t value = 0;
    std::int64_t unit = 1'000'000'000;
    do {
      value = value * 10 + digits(1);
      unit /= 10;
    } while (!_failed && unit > 1 && startsWithDigit());
    return nanoseconds{value * unit};
  }

  [[nodiscard]] bool startsWithDigit() const {
    return !_rest.empty() && _rest.front() >= '0' && _rest.front() <= '9';
  }
  [[nodiscard]] bool failed() const { return _failed; }
  [[nodiscard]] bool atEnd() const { return _rest.empty(); }

 private:
  int fail() {
    _failed = true;
    _rest = {};
    return 0;
  }

  std::string_view _rest;
  bool _failed = false;
};

Error malformed() {
  return {1, "is not an ISO 8601 date; write 1959-08-17, or 1959-08-17T20:30:00Z"};
}

Error impossible() { return {1, "is a date or time that does not exist; correct it"}; }

year_month_day scanDay(Scanner& scanner) {
  const year y{scanner.digits(4)};
  scanner.expect('-');
  const month m{static_cast<unsigned>(scanner.digits(2))};
  scanner.expect('-');
  return {y, m, day{static_cast<unsigned>(scanner.digits(2))}};
}

/// Hours and minutes; absent when no clock shows them.
std::optional<minutes> scanClock(Scanner& scanner) {
  const int h = scanner.digits(2);
  scanner.expect(':');
  const int m = scanner.digits(2);
  if (h > 23 || m > 59) return std::nullopt;
  return hours{h} + minutes{m};
}

/// Seconds and their fraction, if given; absent when no clock shows them.
std::optional<nanoseconds> scanSeconds(Scanner& scanner) {
  if (!scanner.accept(':')) return nanoseconds{0};
  const int s = scanner.digits(2);
  const auto fraction = scanner.accept('.') ? scanner.fraction() : nanoseconds{0};
  if (s > 59) return std::nullopt;
  return seconds{s} + fraction;
}

/// How far the written time is ahead of UTC; absent when no zone is.
std::optional<minutes> scanOffset(Scanner& scanner) {
  if (scanner.accept('Z')) return minutes{0};
  const bool behind = scanner.accept('-');
  if (!behind) scanner.expect('+');
  const auto offset = scanClock(scanner);
  if (!offset) return std::nullopt;
  return behind ? -*offset : *offset;
}

}  // namespace

Result<Date> parseIso8601(std::string_view text) {
  Scanner scanner{text};
  const auto day = scanDay(scanner);
  std::optional<minutes> clock{0};
  std::optional<nanoseconds> second{0};
  std::optional<minutes> offset{0};
  if (scanner.accept('T')) {
    clock = scanClock(scanner);
    second = scanSeconds(scanner);
    if (scanner.atEnd() && !scanner.failed()) {
      return Error{1, "is a time without a zone; end it with Z or an offset such as +02:00"};
    }
    offset = scanOffset(scanner);
  }
  if (scanner.failed() || !scanner.atEnd()) return malformed();
  if (!day.ok() || !clock || !second || !offset) return impossible();
  const Date wholeMinute = sys_days{day} + *clock - *offset;
  return wholeMinute + *second;
}

std::string formatIso8601(Date date) {
  constexpr std::int64_t firstSecond = -62'167'219'200;  // 0000-01-01T00:00:00Z
  constexpr std::int64_t endSecond = 253'402'300'800;    // 10000-01-01T00:00:00Z
  const auto whole = date.secondsSinceEpoch();
  std::array<char, 48> text{};
  std::array<char, 16> fraction{};
  if (date.nanoseconds() != 0) {
    std::snprintf(fraction.data(), fraction.size(), ".%09d", static_cast<int>(date.nanoseconds()));
  }
  if (whole < firstSecond || whole >= endSecond) {
    return '@' + std::to_string(whole) + fraction.data();
  }
  const sys_seconds moment{seconds{whole}};
  const year_month_day day{floor<days>(moment)};
  const hh_mm_ss clock{moment - floor<days>(moment)};
  std::snprintf(text.data(), text.size(), "%04d-%02u-%02uT%02d:%02d:%02d%sZ",
                static_cast<int>(day.year()), static_cast<unsigned>(day.month()),
                static_cast<unsigned>(day.day()), static_cast<int>(clock.hours().count()),
                static_cast<int>(clock.minutes().count()),
                static_cast<int>(clock.seconds().count()), fraction.data());
  return text.data();
}

std::string formatLocalTime(Date date) {
  const auto moment = static_cast<std::time_t>(date.secondsSinceEpoch());
  std::tm local{};
  std::array<char, 64> text{};
  if (::localtime_r(&moment, &local) == nullptr ||
      std::strftime(text.data(), text.size(), "%Y-%m-%d %H:%M %Z", &local) == 0) {
    return formatIso8601(date);
  }
  return text.data();
}

}  // namespace solvane::tool

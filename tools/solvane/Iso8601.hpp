#pragma once

#include <string>
#include <string_view>

#include <solvane/model/Date.hpp>
#include <solvane/sqlite/Result.hpp>

namespace solvane::tool {

/// A date, 1959-08-17, which is its first moment in UTC, or an instant, 1959-08-17T20:30Z, with
/// seconds and up to nine digits of a fraction if need be, and Z or an offset such as +02:00.
[[nodiscard]] Result<Date> parseIso8601(std::string_view text);

/// The instant in UTC, exact. Outside the years 0000 to 9999, which the notation cannot write, the
/// seconds since 1970 behind an @.
[[nodiscard]] std::string formatIso8601(Date date);

/// The moment on the user's clock, to the minute, with the name of the time zone.
[[nodiscard]] std::string formatLocalTime(Date date);

}  // namespace solvane::tool

#pragma once

#include <optional>

#include <solvane/platform/Calendar.hpp>

namespace solvane {

/// The Gregorian calendar in the local time zone (`TZ`, or else the system's), and the system's
/// clock. A change of `TZ` is followed at once, one of the system's zone within a second.
class PosixCalendar : public Calendar {
 public:
  [[nodiscard]] Date now() const override;

  /// Adds `weekOfYear`; with any other component set there is no date, nor is there one beyond the
  /// years that the C library can tell.
  ///
  /// The local time of day stays the same, to the nanosecond. Where the clock is set back and that
  /// time occurs twice, it is the occurrence with the offset of `date`, or else the only one that
  /// keeps the new offset; where the clock is set forward and the time does not occur, the result
  /// is as much later on the clock as the clock was set forward (02:30 becomes 03:30).
  [[nodiscard]] std::optional<Date> dateByAddingComponents(const DateComponents& components,
                                                           Date date) const override;
};

}  // namespace solvane

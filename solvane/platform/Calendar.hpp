#pragma once

#include <optional>

#include <solvane/model/Date.hpp>
#include <solvane/platform/DateComponents.hpp>

namespace solvane {

/// The user's current calendar with its time zone, and the present moment.
///
/// Called from any thread, several at once, once or twice for every item that is built: keep it
/// quick. Implementations do not throw.
class Calendar {
 public:
  Calendar() = default;
  Calendar(const Calendar&) = delete;
  Calendar& operator=(const Calendar&) = delete;
  virtual ~Calendar() = default;

  [[nodiscard]] virtual Date now() const = 0;

  /// The date that lies the components after `date` on this calendar, at the same local time of
  /// day; none when it cannot be computed. The library asks for `weekOfYear` alone.
  [[nodiscard]] virtual std::optional<Date> dateByAddingComponents(const DateComponents& components,
                                                                   Date date) const = 0;
};

}  // namespace solvane

#pragma once

#include <string_view>

namespace solvane {

/// The system's log.
///
/// Called from any thread. The library writes one line to it in its whole life, and only when the
/// calendar yields no date. Implementations do not throw.
class SystemLog {
 public:
  SystemLog() = default;
  SystemLog(const SystemLog&) = delete;
  SystemLog& operator=(const SystemLog&) = delete;
  virtual ~SystemLog() = default;

  /// Writes `line` (without a line end) as it is: a percent sign in it means itself.
  virtual void write(std::string_view line) = 0;
};

}  // namespace solvane

#pragma once

#include <chrono>
#include <cstddef>
#include <functional>
#include <ostream>

namespace solvane::tool {

/// One line on a terminal that fills up, for work long enough that a person wonders. Removes
/// itself.
class ProgressBar {
 public:
  using Clock = std::function<std::chrono::steady_clock::time_point()>;

  /// Draws nothing when `out` is no `terminal`.
  ProgressBar(std::ostream& out, bool terminal, std::size_t total,
              Clock now = &std::chrono::steady_clock::now);
  ProgressBar(const ProgressBar&) = delete;
  ProgressBar& operator=(const ProgressBar&) = delete;
  ~ProgressBar();

  /// `done` of the total are done.
  void update(std::size_t done);

 private:
  std::ostream& _out;
  bool _terminal;
  std::size_t _total;
  Clock _now;
  std::chrono::steady_clock::time_point _begin;
  bool _drawn = false;
};

}  // namespace solvane::tool

#pragma once

#include <csignal>

namespace solvane {

/// For a thread that is about to start others of the library: while this lives, what it starts
/// leaves the process's signals to the host's own threads. Signals that report a fault of the
/// thread itself stay with it, so that crash reporters and sanitizers see them.
class BackgroundSignals {
 public:
  BackgroundSignals() noexcept;
  BackgroundSignals(const BackgroundSignals&) = delete;
  BackgroundSignals& operator=(const BackgroundSignals&) = delete;
  ~BackgroundSignals();

 private:
  sigset_t _before;
};

}  // namespace solvane

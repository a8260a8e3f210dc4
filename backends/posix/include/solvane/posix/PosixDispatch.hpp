#pragma once

#include <chrono>
#include <memory>
#include <string>

#include <solvane/platform/DispatchQueue.hpp>

namespace solvane {

/// Concurrent queues over one process-wide pool of threads.
///
/// The pool starts as many threads as the machine has cores, when they are first needed, and adds
/// more, up to 64 or twice the cores, while every thread is taken and no task gets to start, so
/// that tasks which block do not hold up the others. The pool is never destroyed: tasks that wait
/// or run when `main` returns do not keep the process from ending, and are cut off when it does.
class PosixDispatch final : public Dispatch {
 public:
  [[nodiscard]] std::shared_ptr<DispatchQueue> makeConcurrentQueue(std::string label) override;

  /// Waits until no task of any queue waits or runs: for a host that is about to end, say. False
  /// when `timeout` passed first, or at once when called from a task. Any thread.
  static bool waitUntilIdle(std::chrono::milliseconds timeout = std::chrono::milliseconds::max());
};

}  // namespace solvane

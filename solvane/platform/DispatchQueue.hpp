#pragma once

#include <memory>
#include <string>

#include <solvane/platform/UniqueFunction.hpp>

namespace solvane {

/// A concurrent work queue.
///
/// Any thread submits, tasks themselves included. Tasks start in the order of their submission, run
/// at the same time where there are threads for them, and finish in any order. Releasing the queue
/// neither waits for its tasks nor drops them: they run all the same. Tasks do not throw.
class DispatchQueue {
 public:
  using Task = UniqueFunction<void()>;

  DispatchQueue() = default;
  DispatchQueue(const DispatchQueue&) = delete;
  DispatchQueue& operator=(const DispatchQueue&) = delete;
  virtual ~DispatchQueue() = default;

  /// Submits a task and returns without waiting for it. The task is never run inside this call.
  virtual void async(Task task) = 0;
};

/// Makes the queues, one for each service.
class Dispatch {
 public:
  Dispatch() = default;
  Dispatch(const Dispatch&) = delete;
  Dispatch& operator=(const Dispatch&) = delete;
  virtual ~Dispatch() = default;

  /// A new concurrent queue of default quality of service, without a target queue. `label` is a
  /// reverse-DNS name for debuggers.
  [[nodiscard]] virtual std::shared_ptr<DispatchQueue> makeConcurrentQueue(std::string label) = 0;
};

}  // namespace solvane

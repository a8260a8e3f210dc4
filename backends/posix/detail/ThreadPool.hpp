#pragma once

#include <chrono>
#include <condition_variable>
#include <cstddef>
#include <cstdint>
#include <deque>
#include <mutex>

#include <solvane/platform/DispatchQueue.hpp>

namespace solvane::detail {

/// The threads that run the tasks of every queue of the process.
class ThreadPool {
 public:
  using Task = DispatchQueue::Task;

  /// The one pool; never destroyed.
  static ThreadPool& shared();

  void submit(Task task);
  bool waitUntilIdle(std::chrono::milliseconds timeout);

 private:
  ThreadPool();

  void work();
  void watch();
  void addWorker();
  [[nodiscard]] bool isBehind() const { return _waiting.size() > _idleWorkers; }

  const std::size_t _cores;
  const std::size_t _mostWorkers;
  std::mutex _mutex;
  std::condition_variable _taskWaits;
  std::condition_variable _fellBehind;
  std::condition_variable _becameIdle;
  std::deque<Task> _waiting;
  std::size_t _workers = 0;
  std::size_t _idleWorkers = 0;
  std::size_t _unfinishedTasks = 0;
  std::uint64_t _startedTasks = 0;
  bool _watched = false;
};

}  // namespace solvane::detail

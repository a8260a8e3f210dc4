#include "ThreadPool.hpp"

#include <algorithm>
#include <exception>
#include <thread>
#include <utility>

#include <solvane/posix/BackgroundSignals.hpp>

#include <pthread.h>

namespace solvane::detail {
namespace {

using namespace std::chrono_literals;

// How long all threads may be taken, without a task that starts, before one more is added; and how
// long a thread beyond the cores stays without work.
constexpr auto patience = 10ms;
constexpr auto retirement = 5s;

thread_local bool insideTask = false;

// False when the system has no thread to give.
bool startDetached(auto body) noexcept {
  const BackgroundSignals background;
  try {
    std::thread thread{body};
    pthread_setname_np(thread.native_handle(), "solvane");
    thread.detach();
    return true;
  } catch (const std::exception&) {
    return false;
  }
}

}  // namespace

ThreadPool& ThreadPool::shared() {
  static auto& pool = *new ThreadPool;
  return pool;
}

ThreadPool::ThreadPool()
    : _cores(std::max(1U, std::thread::hardware_concurrency())),
      _mostWorkers(std::max<std::size_t>(64, 2 * _cores)) {}

void ThreadPool::submit(Task task) {
  const std::lock_guard lock{_mutex};
  _waiting.push_back(std::move(task));
  ++_unfinishedTasks;
  if (!isBehind()) {
    _taskWaits.notify_one();
  } else if (_workers < _cores) {
    addWorker();
  } else if (_watched) {
    _fellBehind.notify_one();
  } else {
    _watched = startDetached([this] { watch(); });
  }
}

bool ThreadPool::waitUntilIdle(std::chrono::milliseconds timeout) {
  if (insideTask) return false;
  const auto isIdle = [this] { return _unfinishedTasks == 0; };
  std::unique_lock lock{_mutex};
  if (_workers == 0 && isBehind()) addWorker();
  // The longest waits would overflow the clock, and they mean "for ever".
  if (timeout > std::chrono::hours{24 * 365}) {
    _becameIdle.wait(lock, isIdle);
    return true;
  }
  return _becameIdle.wait_for(lock, timeout, isIdle);
}

void ThreadPool::work() {
  std::unique_lock lock{_mutex};
  while (true) {
    ++_idleWorkers;
    const bool hasTask =
        _taskWaits.wait_for(lock, retirement, [this] { return !_waiting.empty(); });
    --_idleWorkers;
    if (!hasTask && _workers <= _cores) continue;
    if (!hasTask) break;

    Task task = std::move(_waiting.front());
    _waiting.pop_front();
    ++_startedTasks;
    lock.unlock();
    insideTask = true;
    task();
    task = nullptr;  // What it holds is released before the task counts as finished.
    insideTask = false;
    lock.lock();
    if (--_unfinishedTasks == 0) _becameIdle.notify_all();
  }
  --_workers;
}

void ThreadPool::watch() {
  std::unique_lock lock{_mutex};
  while (true) {
    _fellBehind.wait(lock, [this] { return isBehind(); });
    const auto before = _startedTasks;
    // Not woken by anything: what matters is whether a task has started by the end of it.
    lock.unlock();
    std::this_thread::sleep_for(patience);
    lock.lock();
    if (isBehind() && _startedTasks == before && _workers < _mostWorkers) addWorker();
  }
}

// Where no thread is to be had, the task waits for one that is at work, or for the next submission
// or wait to try again.
void ThreadPool::addWorker() {
  if (startDetached([this] { work(); })) ++_workers;
}

}  // namespace solvane::detail

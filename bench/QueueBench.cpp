#include <atomic>
#include <future>
#include <thread>
#include <vector>

#include <solvane/posix/PosixDispatch.hpp>

#include <benchmark/benchmark.h>

#include "BenchPlatform.hpp"

namespace solvane::bench {
namespace {

constexpr int batch = 1000;

void throughQueue(int count) {
  static const auto queue = PosixDispatch{}.makeConcurrentQueue("bench");
  std::atomic<int> runs = 0;
  for (int i = 0; i < count; ++i) queue->async([&] { ++runs; });
  PosixDispatch::waitUntilIdle();
}

void throughThreads(int count) {
  std::atomic<int> runs = 0;
  std::vector<std::jthread> threads;
  threads.reserve(static_cast<std::size_t>(count));
  for (int i = 0; i < count; ++i) threads.emplace_back([&] { ++runs; });
}

void throughStdAsync(int count) {
  std::atomic<int> runs = 0;
  std::vector<std::future<void>> futures;
  futures.reserve(static_cast<std::size_t>(count));
  for (int i = 0; i < count; ++i) {
    futures.push_back(std::async(std::launch::async, [&] { ++runs; }));
  }
}

// Hands `count` tasks over and waits for them, three ways in turn within one run. The time shown is
// the queue's; the ratios are how many times as long the others take.
void handOverAndWait(benchmark::State& state) {
  const auto count = static_cast<int>(state.range(0));
  double queue = 0;
  double threads = 0;
  double stdAsync = 0;
  for (auto _ : state) {
    const double seconds = secondsOf([&] { throughQueue(count); });
    queue += seconds;
    threads += secondsOf([&] { throughThreads(count); });
    stdAsync += secondsOf([&] { throughStdAsync(count); });
    state.SetIterationTime(seconds);
  }
  state.counters["tasks_per_s"] = static_cast<double>(state.iterations()) * count / queue;
  state.counters["thread_to_queue"] = threads / queue;
  state.counters["async_to_queue"] = stdAsync / queue;
}

BENCHMARK(handOverAndWait)
    ->Name("queueLatency")
    ->Arg(1)
    ->UseManualTime()
    ->Unit(benchmark::kMicrosecond);
BENCHMARK(handOverAndWait)
    ->Name("queueThroughput")
    ->Arg(batch)
    ->UseManualTime()
    ->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace solvane::bench

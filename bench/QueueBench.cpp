#include <atomic>
#include <future>
#include <thread>
#include <vector>

#include <solvane/posix/PosixDispatch.hpp>

#include <benchmark/benchmark.h>

namespace solvane::bench {
namespace {

constexpr int batch = 1000;

// How many tasks a second go through, when a thousand are handed over and waited for.
void throughputOfTheQueue(benchmark::State& state) {
  const auto queue = PosixDispatch{}.makeConcurrentQueue("bench");
  std::atomic<int> runs = 0;
  for (auto _ : state) {
    for (int i = 0; i < batch; ++i) queue->async([&] { ++runs; });
    PosixDispatch::waitUntilIdle();
  }
  state.SetItemsProcessed(state.iterations() * batch);
}

void throughputOfThreads(benchmark::State& state) {
  std::atomic<int> runs = 0;
  for (auto _ : state) {
    std::vector<std::jthread> threads;
    threads.reserve(batch);
    for (int i = 0; i < batch; ++i) threads.emplace_back([&] { ++runs; });
  }
  state.SetItemsProcessed(state.iterations() * batch);
}

void throughputOfStdAsync(benchmark::State& state) {
  std::atomic<int> runs = 0;
  for (auto _ : state) {
    std::vector<std::future<void>> futures;
    futures.reserve(batch);
    for (int i = 0; i < batch; ++i) {
      futures.push_back(std::async(std::launch::async, [&] { ++runs; }));
    }
  }
  state.SetItemsProcessed(state.iterations() * batch);
}

// From the hand-over of one task to its end, as its submitter sees it.
void latencyOfTheQueue(benchmark::State& state) {
  const auto queue = PosixDispatch{}.makeConcurrentQueue("bench");
  for (auto _ : state) {
    std::atomic<bool> done = false;
    queue->async([&] { done = true, done.notify_one(); });
    done.wait(false);
    PosixDispatch::waitUntilIdle();
  }
}

void latencyOfAThread(benchmark::State& state) {
  for (auto _ : state) {
    std::atomic<bool> done = false;
    std::jthread{[&] { done = true, done.notify_one(); }}.join();
  }
}

void latencyOfStdAsync(benchmark::State& state) {
  for (auto _ : state) {
    std::atomic<bool> done = false;
    std::async(std::launch::async, [&] { done = true, done.notify_one(); }).get();
  }
}

BENCHMARK(throughputOfTheQueue)->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK(throughputOfThreads)->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK(throughputOfStdAsync)->UseRealTime()->Unit(benchmark::kMillisecond);
BENCHMARK(latencyOfTheQueue)->UseRealTime()->Unit(benchmark::kMicrosecond);
BENCHMARK(latencyOfAThread)->UseRealTime()->Unit(benchmark::kMicrosecond);
BENCHMARK(latencyOfStdAsync)->UseRealTime()->Unit(benchmark::kMicrosecond);

}  // namespace
}  // namespace solvane::bench

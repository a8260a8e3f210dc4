#include <atomic>
#include <csignal>
#include <future>
#include <latch>
#include <thread>
#include <vector>

#include <solvane/posix/PosixDispatch.hpp>

#include <gtest/gtest.h>

namespace solvane {
namespace {

using namespace std::chrono_literals;

class PosixDispatchTest : public ::testing::Test {
 protected:
  static void drain() { ASSERT_TRUE(PosixDispatch::waitUntilIdle(1min)); }

  std::shared_ptr<DispatchQueue> queue = PosixDispatch{}.makeConcurrentQueue("test");
};

TEST_F(PosixDispatchTest, RunsEveryTaskOnceOnAnotherThread) {
  constexpr int count = 10'000;
  std::vector<std::atomic<int>> runs(count);
  std::atomic<bool> onCallersThread = false;
  const auto caller = std::this_thread::get_id();
  for (int i = 0; i < count; ++i) {
    queue->async([&, i] {
      ++runs[static_cast<std::size_t>(i)];
      if (std::this_thread::get_id() == caller) onCallersThread = true;
    });
  }
  drain();
  for (const auto& run : runs) EXPECT_EQ(run, 1);
  EXPECT_FALSE(onCallersThread);
}

TEST_F(PosixDispatchTest, RunsTasksOfOneQueueInParallel) {
  std::latch everybody{2};
  for (int i = 0; i < 2; ++i) queue->async([&] { everybody.arrive_and_wait(); });
  drain();
}

TEST_F(PosixDispatchTest, GrowsWhileTasksBlockAndServesFurtherWorkAfterwards) {
  constexpr int blocked = 48;
  std::latch everybody{blocked};
  for (int i = 0; i < blocked; ++i) queue->async([&] { everybody.arrive_and_wait(); });
  drain();
  std::atomic<int> after = 0;
  for (int i = 0; i < 100; ++i) queue->async([&] { ++after; });
  drain();
  EXPECT_EQ(after, 100);
}

TEST_F(PosixDispatchTest, ReleasesWhatATaskHoldsBeforeItIsIdle) {
  auto held = std::make_shared<int>(1);
  const std::weak_ptr watch = held;
  queue->async([held = std::move(held)] {});
  drain();
  EXPECT_TRUE(watch.expired());
}

TEST_F(PosixDispatchTest, IsNotIdleWhileATaskRuns) {
  std::latch release{1};
  queue->async([&] { release.wait(); });
  EXPECT_FALSE(PosixDispatch::waitUntilIdle(20ms));
  release.count_down();
  drain();
}

TEST_F(PosixDispatchTest, DoesNotLetATaskWaitForItself) {
  std::promise<bool> answer;
  queue->async([&] { answer.set_value(PosixDispatch::waitUntilIdle()); });
  EXPECT_FALSE(answer.get_future().get());
  drain();
}

TEST_F(PosixDispatchTest, LeavesSignalsToTheHostsThreadsAndKeepsItsOwnFaults) {
  std::promise<bool> blocked;
  queue->async([&] {
    sigset_t mask;
    ::pthread_sigmask(SIG_SETMASK, nullptr, &mask);
    blocked.set_value(::sigismember(&mask, SIGINT) == 1 && ::sigismember(&mask, SIGTERM) == 1 &&
                      ::sigismember(&mask, SIGSEGV) == 0 && ::sigismember(&mask, SIGABRT) == 0);
  });
  EXPECT_TRUE(blocked.get_future().get());
  sigset_t mask;
  ::pthread_sigmask(SIG_SETMASK, nullptr, &mask);
  EXPECT_EQ(::sigismember(&mask, SIGINT), 0);
  drain();
}

TEST_F(PosixDispatchTest, TakesTasksFromManyThreadsAtOnce) {
  std::atomic<int> runs = 0;
  {
    std::vector<std::jthread> threads;
    for (int t = 0; t < 8; ++t) {
      threads.emplace_back([&] {
        for (int i = 0; i < 1000; ++i) queue->async([&] { ++runs; });
      });
    }
  }
  drain();
  EXPECT_EQ(runs, 8000);
}

}  // namespace
}  // namespace solvane

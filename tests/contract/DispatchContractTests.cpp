#include <atomic>
#include <functional>
#include <memory>
#include <ostream>
#include <string>
#include <thread>
#include <vector>

#include <solvane/posix/PosixDispatch.hpp>
#include <solvane/testing/ManualQueue.hpp>

#include <contract/backendName.hpp>
#include <gtest/gtest.h>
namespace solvane {
namespace {

// Queues of some backend, and a way to have everything done that was submitted to them.
struct DispatchWorld {
  std::shared_ptr<Dispatch> dispatch;
  std::function<void()> settle;
};

struct DispatchBackend {
  const char* name;
  DispatchWorld (*make)();

  friend std::ostream& operator<<(std::ostream& out, const DispatchBackend& backend) {
    return out << backend.name;
  }
};

DispatchWorld posixWorld() {
  return {std::make_shared<PosixDispatch>(),
          [] { ASSERT_TRUE(PosixDispatch::waitUntilIdle(std::chrono::minutes{1})); }};
}

DispatchWorld manualWorld() {
  const auto manual = std::make_shared<testing::ManualQueue>();
  return {manual, [manual] { manual->runAll(); }};
}

class AnyDispatch : public ::testing::TestWithParam<DispatchBackend> {
 protected:
  DispatchWorld world = GetParam().make();
  std::shared_ptr<DispatchQueue> queue = world.dispatch->makeConcurrentQueue("org.example.test");
};

TEST_P(AnyDispatch, RunsEveryTaskOnce) {
  std::vector<std::atomic<int>> runs(1000);
  for (auto& run : runs) queue->async([&run] { ++run; });
  world.settle();
  for (const auto& run : runs) EXPECT_EQ(run, 1);
}

TEST_P(AnyDispatch, NeverRunsATaskInsideTheCallThatSubmitsIt) {
  std::atomic<bool> submitting = true;
  std::atomic<bool> ranInside = false;
  const auto caller = std::this_thread::get_id();
  queue->async([&] { ranInside = submitting && std::this_thread::get_id() == caller; });
  submitting = false;
  world.settle();
  EXPECT_FALSE(ranInside);
}

TEST_P(AnyDispatch, RunsTheTasksOfAQueueThatWasReleased) {
  std::atomic<int> runs = 0;
  for (int i = 0; i < 100; ++i) queue->async([&] { ++runs; });
  queue.reset();
  world.settle();
  EXPECT_EQ(runs, 100);
}

TEST_P(AnyDispatch, RunsTasksThatTasksSubmit) {
  std::atomic<int> runs = 0;
  queue->async([&] {
    for (int i = 0; i < 10; ++i) queue->async([&] { ++runs; });
  });
  world.settle();
  EXPECT_EQ(runs, 10);
}

TEST_P(AnyDispatch, RunsTasksThatHoldWhatCannotBeCopiedAndReleasesIt) {
  auto held = std::make_unique<std::shared_ptr<int>>(std::make_shared<int>(7));
  const std::weak_ptr watch = *held;
  std::atomic<int> seen = 0;
  queue->async([&seen, held = std::move(held)] { seen = **held; });
  world.settle();
  EXPECT_EQ(seen, 7);
  EXPECT_TRUE(watch.expired());
}

TEST_P(AnyDispatch, MakesQueuesThatDoNotWaitForOneAnother) {
  const auto other = world.dispatch->makeConcurrentQueue("org.example.other");
  std::atomic<int> runs = 0;
  queue->async([&] { other->async([&] { ++runs; }); });
  other->async([&] { queue->async([&] { ++runs; }); });
  world.settle();
  EXPECT_EQ(runs, 2);
}

INSTANTIATE_TEST_SUITE_P(Every, AnyDispatch,
                         ::testing::Values(DispatchBackend{"posix", posixWorld},
                                           DispatchBackend{"manual", manualWorld}),
                         backendName);

}  // namespace
}  // namespace solvane

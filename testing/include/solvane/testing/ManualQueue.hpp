#pragma once

#include <cstddef>
#include <deque>
#include <memory>
#include <string>
#include <vector>

#include <solvane/platform/DispatchQueue.hpp>

namespace solvane::testing {

/// Makes queues whose tasks wait until the test runs them, on its own thread and one at a time. For
/// one thread.
///
///     auto queue = std::make_shared<solvane::testing::ManualQueue>();
///     solvane::testing::ScopedPlatform platform{{.dispatch = queue}};
///     solvane::Solvane{}.deleteTracks({"track/42"});
///     EXPECT_EQ(queue->waiting(), 1U);
///     queue->runAll();
class ManualQueue final : public Dispatch {
 public:
  [[nodiscard]] std::shared_ptr<DispatchQueue> makeConcurrentQueue(std::string label) override;

  /// The labels of the queues made so far.
  [[nodiscard]] const std::vector<std::string>& labels() const { return _labels; }

  /// How many tasks of all queues wait.
  [[nodiscard]] std::size_t waiting() const { return _tasks->size(); }

  /// Runs the waiting tasks and those that they submit, in the order of their submission; gives
  /// how many have run.
  std::size_t runAll();

 private:
  using Tasks = std::deque<DispatchQueue::Task>;
  class Queue;

  std::vector<std::string> _labels;
  std::shared_ptr<Tasks> _tasks = std::make_shared<Tasks>();
};

}  // namespace solvane::testing

#include <utility>

#include <solvane/testing/ManualQueue.hpp>

namespace solvane::testing {

class ManualQueue::Queue final : public DispatchQueue {
 public:
  explicit Queue(std::shared_ptr<Tasks> tasks) : _tasks(std::move(tasks)) {}

  void async(Task task) override { _tasks->push_back(std::move(task)); }

 private:
  std::shared_ptr<Tasks> _tasks;
};

std::shared_ptr<DispatchQueue> ManualQueue::makeConcurrentQueue(std::string label) {
  _labels.push_back(std::move(label));
  return std::make_shared<Queue>(_tasks);
}

std::size_t ManualQueue::runAll() {
  std::size_t count = 0;
  for (; !_tasks->empty(); ++count) {
    auto task = std::move(_tasks->front());
    _tasks->pop_front();
    task();
  }
  return count;
}

}  // namespace solvane::testing

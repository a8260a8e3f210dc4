#include <utility>

#include <solvane/posix/PosixDispatch.hpp>

#include "detail/ThreadPool.hpp"

namespace solvane {
namespace {

class PosixQueue final : public DispatchQueue {
 public:
  void async(Task task) override { detail::ThreadPool::shared().submit(std::move(task)); }
};

}  // namespace

// The threads serve every queue, so none of them can carry one queue's label.
std::shared_ptr<DispatchQueue> PosixDispatch::makeConcurrentQueue(std::string /*label*/) {
  return std::make_shared<PosixQueue>();
}

bool PosixDispatch::waitUntilIdle(std::chrono::milliseconds timeout) {
  return detail::ThreadPool::shared().waitUntilIdle(timeout);
}

}  // namespace solvane

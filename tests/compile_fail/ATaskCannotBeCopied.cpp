#include <solvane/platform/DispatchQueue.hpp>

solvane::DispatchQueue::Task hand(solvane::DispatchQueue::Task& task) {
#ifdef MUST_NOT_COMPILE
  return task;
#else
  return std::move(task);
#endif
}

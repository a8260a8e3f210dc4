#include <atomic>
#include <mutex>
#include <utility>
#include <vector>

#include <solvane/platform/Platform.hpp>

namespace solvane {
namespace {

struct Installed {
  Installed() : inForce(new Platform(Platform::standard())) {}

  std::atomic<const Platform*> inForce;
  std::mutex installing;
  std::vector<const Platform*> replaced;
};

// Never destroyed, since tasks may outlive main.
Installed& installed() {
  static auto& instance = *new Installed;
  return instance;
}

}  // namespace

const Platform& Platform::current() noexcept {
  return *installed().inForce.load(std::memory_order_acquire);
}

void Platform::install(Platform platform) {
  auto& [inForce, installing, replaced] = installed();
  const std::lock_guard lock{installing};
  const Platform* before = inForce.load(std::memory_order_relaxed);
  if (!platform.searchableIndex) platform.searchableIndex = before->searchableIndex;
  if (!platform.calendar) platform.calendar = before->calendar;
  if (!platform.log) platform.log = before->log;
  if (!platform.dispatch) platform.dispatch = before->dispatch;
  if (!platform.operatingSystemVersion) {
    platform.operatingSystemVersion = before->operatingSystemVersion;
  }
  replaced.push_back(before);
  inForce.store(new Platform(std::move(platform)), std::memory_order_release);
}

}  // namespace solvane

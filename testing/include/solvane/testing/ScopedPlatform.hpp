#pragma once

#include <solvane/platform/Platform.hpp>

namespace solvane::testing {

/// Puts a platform in force for the length of a test, and the one before back in force after it. A
/// member left null keeps the one in force. Let no task be queued or running at either end.
class ScopedPlatform {
 public:
  explicit ScopedPlatform(Platform platform) : _before(Platform::current()) {
    Platform::install(std::move(platform));
  }
  ScopedPlatform(const ScopedPlatform&) = delete;
  ScopedPlatform& operator=(const ScopedPlatform&) = delete;
  ~ScopedPlatform() { Platform::install(std::move(_before)); }

 private:
  Platform _before;
};

}  // namespace solvane::testing

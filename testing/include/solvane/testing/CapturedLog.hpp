#pragma once

#include <mutex>
#include <string>
#include <string_view>
#include <vector>

#include <solvane/platform/SystemLog.hpp>

namespace solvane::testing {

/// A log that keeps its lines until the test claims them. Let every test fail that leaves some
/// behind, and nothing is ever logged unnoticed. Any thread.
class CapturedLog final : public SystemLog {
 public:
  void write(std::string_view line) override;

  /// The lines written since the last claim.
  [[nodiscard]] std::vector<std::string> claim();

 private:
  std::mutex _mutex;
  std::vector<std::string> _lines;
};

}  // namespace solvane::testing

#include <utility>

#include <solvane/testing/CapturedLog.hpp>

namespace solvane::testing {

void CapturedLog::write(std::string_view line) {
  const std::lock_guard lock{_mutex};
  _lines.emplace_back(line);
}

std::vector<std::string> CapturedLog::claim() {
  const std::lock_guard lock{_mutex};
  return std::exchange(_lines, {});
}

}  // namespace solvane::testing

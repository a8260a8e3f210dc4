#pragma once

#include <cstddef>

namespace solvane::bench {

/// How many allocations this thread has made so far.
[[nodiscard]] std::size_t allocationCount() noexcept;

}  // namespace solvane::bench

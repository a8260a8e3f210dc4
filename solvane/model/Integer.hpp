#pragma once

#include <cstddef>

namespace solvane {

/// A signed integer of the platform's natural word size: 64 bits on 64-bit targets.
using Integer = std::ptrdiff_t;

}  // namespace solvane

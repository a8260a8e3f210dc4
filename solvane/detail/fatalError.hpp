#pragma once

#include <string_view>

namespace solvane::detail {

/// Ends the process over a programming fault: writes `message` to the standard error and aborts.
/// For faults alone; bad data never comes here.
[[noreturn]] void fatalError(std::string_view message) noexcept;

}  // namespace solvane::detail

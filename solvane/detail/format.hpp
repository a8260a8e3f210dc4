#pragma once

#include <span>
#include <string>
#include <string_view>

namespace solvane::detail {

/// Fills a host's format string: "%@" is replaced by the next argument, "%2$@" by the second, and a
/// doubled percent sign by a single one.
///
/// Total, whatever the pattern: arguments without a placeholder are dropped, and a placeholder
/// without an argument, like any other percent sign, stays in the text as it stands, where whoever
/// reads the text can see it.
[[nodiscard]] std::string format(std::string_view pattern,
                                 std::span<const std::string_view> arguments);

}  // namespace solvane::detail

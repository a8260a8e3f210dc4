#pragma once

#include <string>
#include <string_view>

namespace solvane::tool {

/// `text` as it may be shown on a terminal, whoever wrote it: control characters and those that
/// turn the direction of writing appear escaped, as in \u001b, and bytes that are not UTF-8 as
/// U+FFFD.
[[nodiscard]] std::string printable(std::string_view text);

/// The same for a finished JSON document, whose line ends and indentation stay. It remains the same
/// document, since these characters occur only inside strings and there the escape means them.
[[nodiscard]] std::string printableJson(std::string_view json);

}  // namespace solvane::tool

#pragma once

#include <ostream>
#include <string>
#include <variant>
#include <vector>

#include "ExitCode.hpp"
#include "Requests.hpp"

namespace solvane::tool {

/// What the arguments, without the program's name, ask for. When they ask for help, or for nothing
/// there is, this answers itself on `out` or `err` and says with which code to end.
[[nodiscard]] std::variant<Request, ExitCode> parseCommandLine(std::vector<std::string> arguments,
                                                               std::ostream& out,
                                                               std::ostream& err);

}  // namespace solvane::tool

#pragma once

#include <istream>
#include <ostream>
#include <string>
#include <vector>

namespace solvane::tool {

/// Runs the command line tool in this process: `arguments` without the program's name. Returns the
/// exit code. `terminal` says that `err` is a terminal.
[[nodiscard]] int runTool(std::vector<std::string> arguments, std::istream& in, std::ostream& out,
                          std::ostream& err, bool terminal = false);

}  // namespace solvane::tool

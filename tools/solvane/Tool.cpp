#include "Tool.hpp"

#include <utility>
#include <variant>

#include "CommandLine.hpp"
#include "Commands.hpp"

namespace solvane::tool {
namespace {

ExitCode execute(std::vector<std::string> arguments, Console& console) {
  auto parsed = parseCommandLine(std::move(arguments), console.out, console.err);
  if (const auto* code = std::get_if<ExitCode>(&parsed)) return *code;
  return std::visit([&](const auto& request) { return run(request, console); },
                    std::get<Request>(parsed));
}

}  // namespace

int runTool(std::vector<std::string> arguments, std::istream& in, std::ostream& out,
            std::ostream& err, bool terminal) {
  Console console{in, out, err, terminal};
  const auto code = execute(std::move(arguments), console);
  if (!out.flush()) {
    err << "solvane: The result cannot be written to the standard output.\n";
    return static_cast<int>(ExitCode::outputFailed);
  }
  return static_cast<int>(code);
}

}  // namespace solvane::tool

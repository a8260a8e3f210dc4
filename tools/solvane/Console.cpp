#include "Console.hpp"

#include "Printable.hpp"

namespace solvane::tool {

ExitCode indexFailure(Console& console, const Error& error) {
  console.err << "solvane: " << printable(error.message) << '\n';
  return ExitCode::indexFailed;
}

}  // namespace solvane::tool

#pragma once

#include <istream>
#include <ostream>

#include <solvane/platform/Error.hpp>

#include "ExitCode.hpp"

namespace solvane::tool {

/// The streams a command works on: results go to `out`, everything else to `err`.
struct Console {
  std::istream& in;
  std::ostream& out;
  std::ostream& err;

  /// Whether `err` is a terminal, on which a line may be drawn over.
  bool terminal = false;
};

/// Says on `err` why the index could not do its part.
[[nodiscard]] ExitCode indexFailure(Console& console, const Error& error);

}  // namespace solvane::tool

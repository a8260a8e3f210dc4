#pragma once

namespace solvane::tool {

/// What a run tells the shell. Documented in `--help` and docs/command-line.md.
enum class ExitCode : int {
  done = 0,
  nothingFound = 1,
  usage = 2,
  badCatalogue = 3,
  indexFailed = 4,
  outputFailed = 5,
};

}  // namespace solvane::tool

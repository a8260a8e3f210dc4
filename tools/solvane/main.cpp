#include <exception>
#include <iostream>
#include <string>
#include <vector>

#include <unistd.h>

#include "ExitCode.hpp"
#include "Tool.hpp"

// Only running out of memory, or the like, comes here as an exception.
int main(int argc, char** argv) try {
  std::ios::sync_with_stdio(false);
  return solvane::tool::runTool({argv + 1, argv + argc}, std::cin, std::cout, std::cerr,
                                ::isatty(STDERR_FILENO) == 1);
} catch (const std::exception& error) {
  std::cerr << "solvane: " << error.what() << '\n';
  return static_cast<int>(solvane::tool::ExitCode::indexFailed);
}

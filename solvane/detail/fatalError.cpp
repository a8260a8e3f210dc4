#include <cstdio>
#include <cstdlib>

#include <solvane/detail/fatalError.hpp>

namespace solvane::detail {

void fatalError(std::string_view message) noexcept {
  std::fprintf(stderr, "Solvane: fatal error: %.*s\n", static_cast<int>(message.size()),
               message.data());
  std::abort();
}

}  // namespace solvane::detail

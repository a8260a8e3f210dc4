#pragma once

#include <string>

namespace solvane {

/// Names the instances of a contract suite after their backends.
inline constexpr auto backendName = [](const auto& instance) {
  return std::string{instance.param.name};
};

}  // namespace solvane

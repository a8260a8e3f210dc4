#pragma once

#include <compare>

#include <solvane/model/Integer.hpp>

namespace solvane {

/// The level of the interfaces that the platform provides, on the scale on which user activities
/// became searchable at 9.0.0. Where the platform is one of our own, it is that level, and not the
/// version of a kernel or distribution.
struct OperatingSystemVersion {
  Integer majorVersion = 0;
  Integer minorVersion = 0;
  Integer patchVersion = 0;

  friend auto operator<=>(const OperatingSystemVersion&, const OperatingSystemVersion&) = default;
};

}  // namespace solvane

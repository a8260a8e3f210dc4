#pragma once

#include <functional>
#include <memory>
#include <ostream>
#include <string>
#include <vector>

#include <solvane/platform/CSSearchableIndex.hpp>
#include <solvane/testing/FixedCalendar.hpp>

namespace solvane {

/// An index of some backend, with what a test needs to look into it.
struct IndexWorld {
  std::shared_ptr<testing::FixedCalendar> clock = std::make_shared<testing::FixedCalendar>();
  std::shared_ptr<CSSearchableIndex> index;

  /// Everything the index shows, in the order of the identifiers' bytes.
  std::function<std::vector<CSSearchableItem>()> contents;

  /// Keeps alive what the index needs, such as the folder of its file.
  std::shared_ptr<void> ground;
};

/// A way to make a world.
struct IndexBackend {
  std::string name;
  IndexWorld (*make)();

  friend std::ostream& operator<<(std::ostream& out, const IndexBackend& backend) {
    return out << backend.name;
  }
};

/// The backends that do what they are asked.
[[nodiscard]] std::vector<IndexBackend> workingBackends();

/// One that never does.
[[nodiscard]] IndexBackend failingBackend();

}  // namespace solvane

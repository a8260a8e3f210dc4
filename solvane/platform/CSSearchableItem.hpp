#pragma once

#include <optional>
#include <string>

#include <solvane/model/Date.hpp>
#include <solvane/platform/CSSearchableItemAttributeSet.hpp>

namespace solvane {

/// One entry of the search index: a plain record that owns its attribute set.
struct CSSearchableItem {
  /// The index holds one item per identifier, whatever the domain.
  std::string uniqueIdentifier;

  std::string domainIdentifier;
  CSSearchableItemAttributeSet attributeSet;

  /// From this moment on the index no longer shows the item, and drops it. Absent: never.
  std::optional<Date> expirationDate{};

  friend bool operator==(const CSSearchableItem&, const CSSearchableItem&) = default;
};

}  // namespace solvane

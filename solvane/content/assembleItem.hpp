#pragma once

#include <string>

#include <solvane/platform/CSSearchableItem.hpp>

namespace solvane::detail {

/// The last step of every builder: the item, stamped with the expiration date of this very moment.
[[nodiscard]] CSSearchableItem assembleItem(std::string uniqueID, std::string domainIdentifier,
                                            CSSearchableItemAttributeSet attributeSet);

/// An attribute set of the content type that all kinds share, related to its own item.
[[nodiscard]] CSSearchableItemAttributeSet audioAttributeSet(std::string uniqueID);

}  // namespace solvane::detail

#pragma once

#include <string>
#include <utility>

#include <solvane/config/SolvaneConfig.hpp>
#include <solvane/platform/CSSearchableItem.hpp>

namespace solvane::detail {

/// The item of an entity, for every kind: under its identifier, in its domain, with the attributes
/// that `makeAttributes` gives it, stamped with the expiration date of this very moment.
template <class Entity>
CSSearchableItem assembleItem(const Entity& entity, std::string uniqueID, std::string&& domain,
                              CSSearchableItemAttributeSet (*makeAttributes)(const Entity&,
                                                                             std::string)) {
  // Every part is made in its place: an attribute set is large, and moving it is not free.
  return {.uniqueIdentifier = uniqueID,
          .domainIdentifier = std::move(domain),
          .attributeSet = makeAttributes(entity, std::move(uniqueID)),
          .expirationDate = SolvaneConfig::sharedInstance()->searchableItemExpirationDate()};
}

/// An attribute set of the content type that all kinds share, related to its own item.
[[nodiscard]] CSSearchableItemAttributeSet audioAttributeSet(std::string uniqueID);

}  // namespace solvane::detail

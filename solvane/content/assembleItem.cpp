#include <utility>

#include <solvane/config/SolvaneConfig.hpp>
#include <solvane/content/assembleItem.hpp>

namespace solvane::detail {

CSSearchableItem assembleItem(std::string uniqueID, std::string domainIdentifier,
                              CSSearchableItemAttributeSet attributeSet) {
  CSSearchableItem item{std::move(uniqueID), std::move(domainIdentifier), std::move(attributeSet)};
  item.expirationDate = SolvaneConfig::sharedInstance()->searchableItemExpirationDate();
  return item;
}

CSSearchableItemAttributeSet audioAttributeSet(std::string uniqueID) {
  CSSearchableItemAttributeSet attributeSet{std::string{kUTTypeAudio}};
  attributeSet.relatedUniqueIdentifier = std::move(uniqueID);
  return attributeSet;
}

}  // namespace solvane::detail

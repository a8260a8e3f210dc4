#include <solvane/content/detail/assembleItem.hpp>

namespace solvane::detail {

CSSearchableItemAttributeSet audioAttributeSet(std::string uniqueID) {
  CSSearchableItemAttributeSet attributeSet{std::string{kUTTypeAudio}};
  attributeSet.relatedUniqueIdentifier = std::move(uniqueID);
  return attributeSet;
}

}  // namespace solvane::detail

#include <utility>

#include <solvane/config/SolvaneConfig.hpp>
#include <solvane/content/assembleItem.hpp>
#include <solvane/model/identifiers.hpp>
#include <solvane/service/Solvane.hpp>

namespace solvane {

CSSearchableItemAttributeSet CSSearchableItemAttributeSet::searchableItemAttributeSetWithPlaylist(
    const Playlist& playlist, std::string uniqueID) {
  auto attributeSet = detail::audioAttributeSet(std::move(uniqueID));
  attributeSet.title = playlist.playlistName();
  attributeSet.thumbnailData = playlist.thumbnailData();
  attributeSet.contentDescription = SolvaneConfig::sharedInstance()->localizations()->playlist();
  attributeSet.keywords.emplace().push_back(playlist.playlistName());
  return attributeSet;
}

CSSearchableItem Solvane::createPlaylistSearchableItem(const Playlist& playlist) {
  auto uniqueID = String::playlist(playlist.playlistID());
  auto attributeSet =
      CSSearchableItemAttributeSet::searchableItemAttributeSetWithPlaylist(playlist, uniqueID);
  auto domain = SolvaneConfig::sharedInstance()->playlistsDomainIdentifier();
  return detail::assembleItem(std::move(uniqueID), std::move(domain), std::move(attributeSet));
}

}  // namespace solvane

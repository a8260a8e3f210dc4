#include <utility>

#include <solvane/config/SolvaneConfig.hpp>
#include <solvane/content/detail/assembleItem.hpp>
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
  return detail::assembleItem(playlist, String::playlist(playlist.playlistID()),
                              SolvaneConfig::sharedInstance()->playlistsDomainIdentifier(),
                              CSSearchableItemAttributeSet::searchableItemAttributeSetWithPlaylist);
}

}  // namespace solvane

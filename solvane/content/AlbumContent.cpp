#include <utility>

#include <solvane/config/SolvaneConfig.hpp>
#include <solvane/content/detail/assembleItem.hpp>
#include <solvane/model/identifiers.hpp>
#include <solvane/service/Solvane.hpp>

namespace solvane {

CSSearchableItemAttributeSet CSSearchableItemAttributeSet::searchableItemAttributeSetWithAlbum(
    const Album& album, std::string uniqueID) {
  const auto& config = *SolvaneConfig::sharedInstance();
  auto attributeSet = detail::audioAttributeSet(std::move(uniqueID));
  attributeSet.title = album.albumName();
  attributeSet.artist = album.artistName();
  attributeSet.thumbnailData = album.thumbnailData();
  attributeSet.recordingDate = album.albumReleaseDate();
  attributeSet.contentDescription = config.localizations()->albumOnAppName(config.appName());

  auto& keywords = attributeSet.keywords.emplace();
  keywords.reserve(2);
  keywords.push_back(album.artistName());
  keywords.push_back(album.albumName());
  return attributeSet;
}

CSSearchableItem Solvane::createAlbumSearchableItem(const Album& album) {
  return detail::assembleItem(album, String::album(album.albumID()),
                              SolvaneConfig::sharedInstance()->albumsDomainIdentifier(),
                              CSSearchableItemAttributeSet::searchableItemAttributeSetWithAlbum);
}

}  // namespace solvane

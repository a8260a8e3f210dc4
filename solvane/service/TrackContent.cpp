#include <utility>

#include <solvane/config/SolvaneConfig.hpp>
#include <solvane/content/detail/assembleItem.hpp>
#include <solvane/model/identifiers.hpp>
#include <solvane/service/Solvane.hpp>

namespace solvane {

CSSearchableItemAttributeSet CSSearchableItemAttributeSet::searchableItemAttributeSetWithTrack(
    const Track& track, std::string uniqueID) {
  auto attributeSet = detail::audioAttributeSet(std::move(uniqueID));
  attributeSet.title = track.trackName();
  attributeSet.artist = track.artistName();
  attributeSet.audioTrackNumber = track.trackIndexInAlbum();
  attributeSet.album = track.albumName();
  attributeSet.musicalGenre = track.genreName();
  attributeSet.thumbnailData = track.thumbnailData();
  attributeSet.recordingDate = track.albumReleaseDate();

  auto& keywords = attributeSet.keywords.emplace();
  keywords.reserve(4);
  keywords.push_back(track.trackName());
  keywords.push_back(track.artistName());
  keywords.push_back(track.albumName());
  if (auto genre = track.genreName()) keywords.push_back(*std::move(genre));
  return attributeSet;
}

CSSearchableItem Solvane::createAudioSearchableItem(const Track& track,
                                                    const std::optional<std::string>& domainID) {
  std::string domain =
      domainID ? *domainID : SolvaneConfig::sharedInstance()->tracksDomainIdentifier();
  return detail::assembleItem(track, String::track(track.trackID()), std::move(domain),
                              CSSearchableItemAttributeSet::searchableItemAttributeSetWithTrack);
}

}  // namespace solvane

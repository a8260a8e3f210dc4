#include <utility>

#include <solvane/config/SolvaneConfig.hpp>
#include <solvane/content/detail/assembleItem.hpp>
#include <solvane/model/identifiers.hpp>
#include <solvane/service/Solvane.hpp>

namespace solvane {
namespace {

std::string describe(const Artist& artist) {
  const auto& config = *SolvaneConfig::sharedInstance();
  const std::string appName = config.appName();
  // Asked for before it is known to be needed: hosts may count on being asked for every artist.
  std::string byDefault = config.localizations()->artistOnAppName(appName);

  if (auto bio = artist.artistBio(); bio && !bio->empty()) return *std::move(bio);
  if (const auto genre = artist.artistGenre(); genre && !genre->empty()) {
    return *genre + " artist on " + appName;
  }
  return byDefault;
}

std::vector<std::string> keywordsOf(const Artist& artist) {
  std::vector<std::string> keywords;
  keywords.reserve(2);
  keywords.push_back(artist.artistName());
  if (auto genre = artist.artistGenre(); genre && !genre->empty()) {
    keywords.push_back(*std::move(genre));
  }
  return keywords;
}

CSSearchableItemAttributeSet attributesOf(const Artist& artist, std::string uniqueID) {
  auto attributeSet = detail::audioAttributeSet(std::move(uniqueID));
  attributeSet.title = artist.artistName();
  attributeSet.thumbnailData = artist.thumbnailData();
  attributeSet.contentDescription = describe(artist);
  attributeSet.keywords = keywordsOf(artist);
  return attributeSet;
}

}  // namespace

ArtistAttributeSet CSSearchableItemAttributeSet::searchableItemAttributeSetWithArtist(
    const Artist& artist, std::string uniqueID) {
  auto attributeSet = attributesOf(artist, std::move(uniqueID));
  auto keywords = *attributeSet.keywords;
  return {std::move(attributeSet), std::move(keywords)};
}

Solvane::ArtistItem Solvane::createArtistSearchableItem(const Artist& artist) {
  // Not through the public factory: it would copy the keyword list for nobody.
  auto uniqueID = String::artist(artist.artistID());
  return {.searchableItem = detail::assembleItem(
              artist, uniqueID, SolvaneConfig::sharedInstance()->artistsDomainIdentifier(),
              attributesOf),
          .uniqueID = uniqueID};
}

}  // namespace solvane

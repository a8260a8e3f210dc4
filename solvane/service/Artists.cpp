#include <solvane/model/identifiers.hpp>
#include <solvane/service/Solvane.hpp>
#include <solvane/service/detail/tasks.hpp>

namespace solvane {

void Solvane::indexArtist(const std::shared_ptr<SearchAPIArtist>& searchAPIArtist,
                          ArtistCompletion completion) {
  indexArtist(detail::structified(searchAPIArtist), std::move(completion));
}

void Solvane::indexArtist(Artist artist, ArtistCompletion completion) {
  if (!Platform::current().searchableIndex->isIndexingAvailable()) return;
  _queue->async([artist = std::move(artist), completion = std::move(completion)]() mutable {
    auto [searchableItem, uniqueID] = createArtistSearchableItem(artist);
    std::vector<CSSearchableItem> items;
    items.push_back(std::move(searchableItem));
    Platform::current().searchableIndex->indexSearchableItems(std::move(items), detail::discard);
    if (completion) completion(std::move(uniqueID));
  });
}

void Solvane::indexArtists(const std::vector<std::shared_ptr<SearchAPIArtist>>& artists) {
  indexArtists(detail::structified(artists));
}

void Solvane::indexArtists(std::vector<Artist> artists) {
  indexRecords(std::move(artists), [](const Artist& artist) {
    return createArtistSearchableItem(artist).searchableItem;
  });
}

void Solvane::deleteArtists(std::vector<std::string> identifiers) {
  deleteItems(std::move(identifiers), String::artist);
}

}  // namespace solvane

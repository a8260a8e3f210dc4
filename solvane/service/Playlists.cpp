#include <solvane/config/SolvaneConfig.hpp>
#include <solvane/model/identifiers.hpp>
#include <solvane/service/Solvane.hpp>
#include <solvane/service/detail/tasks.hpp>

namespace solvane {

void Solvane::indexPlaylists(const std::vector<std::shared_ptr<SearchAPIPlaylist>>& playlists) {
  indexPlaylists(detail::structified(playlists));
}

void Solvane::indexPlaylists(std::vector<Playlist> playlists) {
  indexRecords(std::move(playlists), createPlaylistSearchableItem);
}

void Solvane::removePlaylists(std::vector<std::string> identifiers) {
  queueRemoval(std::move(identifiers), [](std::vector<std::string> list) {
    detail::deleteIdentified(std::move(list), String::playlist);
  });
}

void Solvane::deleteAllPlaylists() {
  deleteAllItemsWithDomains({SolvaneConfig::sharedInstance()->playlistsDomainIdentifier()});
}

}  // namespace solvane

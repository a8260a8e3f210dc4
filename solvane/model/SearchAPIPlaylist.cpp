#include <utility>

#include <solvane/model/SearchAPIPlaylist.hpp>

namespace solvane {

std::optional<std::string> SearchAPIPlaylist::playlistID() const { return _playlistID; }

void SearchAPIPlaylist::setPlaylistID(std::optional<std::string> playlistID) {
  _playlistID = std::move(playlistID);
}

std::optional<std::string> SearchAPIPlaylist::playlistName() const { return _playlistName; }

void SearchAPIPlaylist::setPlaylistName(std::optional<std::string> playlistName) {
  _playlistName = std::move(playlistName);
}

std::optional<Data> SearchAPIPlaylist::thumbnailData() const { return _thumbnailData; }

void SearchAPIPlaylist::setThumbnailData(std::optional<Data> thumbnailData) {
  _thumbnailData = std::move(thumbnailData);
}

Playlist SearchAPIPlaylist::structify() const {
  // Braces, not parentheses: they fix the order in which the readers are called.
  return Playlist{playlistID().value_or(""), playlistName().value_or(""), thumbnailData()};
}

}  // namespace solvane

#include <utility>

#include <solvane/model/SearchAPIAlbum.hpp>

namespace solvane {

std::optional<std::string> SearchAPIAlbum::albumID() const { return _albumID; }

void SearchAPIAlbum::setAlbumID(std::optional<std::string> albumID) {
  _albumID = std::move(albumID);
}

std::optional<std::string> SearchAPIAlbum::albumName() const { return _albumName; }

void SearchAPIAlbum::setAlbumName(std::optional<std::string> albumName) {
  _albumName = std::move(albumName);
}

std::optional<std::string> SearchAPIAlbum::artistName() const { return _artistName; }

void SearchAPIAlbum::setArtistName(std::optional<std::string> artistName) {
  _artistName = std::move(artistName);
}

std::optional<Integer> SearchAPIAlbum::tracksCount() const { return _tracksCount; }

void SearchAPIAlbum::setTracksCount(std::optional<Integer> tracksCount) {
  _tracksCount = tracksCount;
}

std::optional<Date> SearchAPIAlbum::albumReleaseDate() const { return _albumReleaseDate; }

void SearchAPIAlbum::setAlbumReleaseDate(std::optional<Date> albumReleaseDate) {
  _albumReleaseDate = albumReleaseDate;
}

std::optional<Data> SearchAPIAlbum::thumbnailData() const { return _thumbnailData; }

void SearchAPIAlbum::setThumbnailData(std::optional<Data> thumbnailData) {
  _thumbnailData = std::move(thumbnailData);
}

Album SearchAPIAlbum::structify() const {
  // Braces, not parentheses: they fix the order in which the readers are called.
  return Album{albumID().value_or(""), albumName().value_or(""), artistName().value_or(""),
               tracksCount(),          albumReleaseDate(),       thumbnailData()};
}

}  // namespace solvane

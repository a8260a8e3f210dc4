#include <utility>

#include <solvane/model/SearchAPIArtist.hpp>

namespace solvane {

std::optional<std::string> SearchAPIArtist::artistID() const { return _artistID; }

void SearchAPIArtist::setArtistID(std::optional<std::string> artistID) {
  _artistID = std::move(artistID);
}

std::optional<std::string> SearchAPIArtist::artistName() const { return _artistName; }

void SearchAPIArtist::setArtistName(std::optional<std::string> artistName) {
  _artistName = std::move(artistName);
}

std::optional<std::string> SearchAPIArtist::artistBio() const { return _artistBio; }

void SearchAPIArtist::setArtistBio(std::optional<std::string> artistBio) {
  _artistBio = std::move(artistBio);
}

std::optional<std::string> SearchAPIArtist::artistGenre() const { return _artistGenre; }

void SearchAPIArtist::setArtistGenre(std::optional<std::string> artistGenre) {
  _artistGenre = std::move(artistGenre);
}

std::optional<Data> SearchAPIArtist::thumbnailData() const { return _thumbnailData; }

void SearchAPIArtist::setThumbnailData(std::optional<Data> thumbnailData) {
  _thumbnailData = std::move(thumbnailData);
}

Artist SearchAPIArtist::structify() const {
  // Braces, not parentheses: they fix the order in which the readers are called.
  return Artist{artistID().value_or(""), artistName().value_or(""), artistBio(), artistGenre(),
                thumbnailData()};
}

}  // namespace solvane

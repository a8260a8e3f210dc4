#include <utility>

#include <solvane/model/SearchAPITrack.hpp>

namespace solvane {

std::optional<std::string> SearchAPITrack::trackID() const { return _trackID; }

void SearchAPITrack::setTrackID(std::optional<std::string> trackID) {
  _trackID = std::move(trackID);
}

std::optional<std::string> SearchAPITrack::trackName() const { return _trackName; }

void SearchAPITrack::setTrackName(std::optional<std::string> trackName) {
  _trackName = std::move(trackName);
}

double SearchAPITrack::trackDuration() const { return _trackDuration; }

void SearchAPITrack::setTrackDuration(double trackDuration) { _trackDuration = trackDuration; }

Integer SearchAPITrack::trackIndexInAlbum() const { return _trackIndexInAlbum; }

void SearchAPITrack::setTrackIndexInAlbum(Integer trackIndexInAlbum) {
  _trackIndexInAlbum = trackIndexInAlbum;
}

std::optional<std::string> SearchAPITrack::artistName() const { return _artistName; }

void SearchAPITrack::setArtistName(std::optional<std::string> artistName) {
  _artistName = std::move(artistName);
}

std::optional<std::string> SearchAPITrack::albumName() const { return _albumName; }

void SearchAPITrack::setAlbumName(std::optional<std::string> albumName) {
  _albumName = std::move(albumName);
}

std::optional<Date> SearchAPITrack::albumReleaseDate() const { return _albumReleaseDate; }

void SearchAPITrack::setAlbumReleaseDate(std::optional<Date> albumReleaseDate) {
  _albumReleaseDate = albumReleaseDate;
}

std::optional<std::string> SearchAPITrack::genreName() const { return _genreName; }

void SearchAPITrack::setGenreName(std::optional<std::string> genreName) {
  _genreName = std::move(genreName);
}

std::optional<Data> SearchAPITrack::thumbnailData() const { return _thumbnailData; }

void SearchAPITrack::setThumbnailData(std::optional<Data> thumbnailData) {
  _thumbnailData = std::move(thumbnailData);
}

Track SearchAPITrack::structify() const {
  // Braces, not parentheses: they fix the order in which the readers are called.
  return Track{trackID().value_or(""),
               trackName().value_or(""),
               trackDuration(),
               trackIndexInAlbum(),
               artistName().value_or(""),
               albumName().value_or(""),
               albumReleaseDate(),
               genreName(),
               thumbnailData()};
}

}  // namespace solvane

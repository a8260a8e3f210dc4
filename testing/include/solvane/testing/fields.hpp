#pragma once

#include <optional>
#include <string>

#include <solvane/model/Album.hpp>
#include <solvane/model/Artist.hpp>
#include <solvane/model/Playlist.hpp>
#include <solvane/model/Track.hpp>

/// Records for tests: name the fields that matter, and the others take a value of their own.
///
///     solvane::Track track = solvane::testing::TrackFields{.genreName = "Jazz"};
namespace solvane::testing {

struct TrackFields {
  std::string trackID = "track/1";
  std::string trackName = "So What";
  double trackDuration = 545.0;
  Integer trackIndexInAlbum = 1;
  std::string artistName = "Miles Davis";
  std::string albumName = "Kind of Blue";
  std::optional<Date> albumReleaseDate = std::nullopt;
  std::optional<std::string> genreName = std::nullopt;
  std::optional<Data> thumbnailData = std::nullopt;

  operator Track() const {
    return {trackID,   trackName,        trackDuration, trackIndexInAlbum, artistName,
            albumName, albumReleaseDate, genreName,     thumbnailData};
  }
};

struct ArtistFields {
  std::string artistID = "artist/1";
  std::string artistName = "Miles Davis";
  std::optional<std::string> artistBio = std::nullopt;
  std::optional<std::string> artistGenre = std::nullopt;
  std::optional<Data> thumbnailData = std::nullopt;

  operator Artist() const { return {artistID, artistName, artistBio, artistGenre, thumbnailData}; }
};

struct AlbumFields {
  std::string albumID = "album/1";
  std::string albumName = "Kind of Blue";
  std::string artistName = "Miles Davis";
  std::optional<Integer> tracksCount = std::nullopt;
  std::optional<Date> albumReleaseDate = std::nullopt;
  std::optional<Data> thumbnailData = std::nullopt;

  operator Album() const {
    return {albumID, albumName, artistName, tracksCount, albumReleaseDate, thumbnailData};
  }
};

struct PlaylistFields {
  std::string playlistID = "playlist/1";
  std::string playlistName = "Late night";
  std::optional<Data> thumbnailData = std::nullopt;

  operator Playlist() const { return {playlistID, playlistName, thumbnailData}; }
};

}  // namespace solvane::testing

#include <optional>
#include <sstream>
#include <string>
#include <variant>

#include <gmock/gmock.h>

#include "CatalogueReader.hpp"

namespace solvane::tool {
namespace {

Catalogue read(const std::string& text) {
  std::istringstream in{text};
  auto catalogue = CatalogueReader::read("music.jsonl", in, {});
  EXPECT_TRUE(catalogue.problems.none());
  return catalogue;
}

TEST(CatalogueRecord, ReadsEveryKeyOfATrack) {
  const auto catalogue =
      read(R"({"kind": "track", "trackID": "t", "trackName": "So What", "trackDuration": 545.5, )"
           R"("trackIndexInAlbum": 1, "artistName": "Miles Davis", "albumName": "Kind of Blue", )"
           R"("albumReleaseDate": "1970-01-02", "genreName": "Jazz", "thumbnailData": "Zm9v", )"
           R"("domainID": "offline"})");
  ASSERT_EQ(catalogue.entries.size(), 1U);
  const auto& entry = catalogue.entries.front();
  const auto& track = std::get<Track>(entry.record);
  EXPECT_EQ(entry.identifier, "t");
  EXPECT_EQ(entry.domainID, "offline");
  EXPECT_EQ(track.trackID(), "t");
  EXPECT_EQ(track.trackName(), "So What");
  EXPECT_EQ(track.trackDuration(), 545.5);
  EXPECT_EQ(track.trackIndexInAlbum(), 1);
  EXPECT_EQ(track.artistName(), "Miles Davis");
  EXPECT_EQ(track.albumName(), "Kind of Blue");
  EXPECT_EQ(track.albumReleaseDate(), Date::fromUnixTime(86400));
  EXPECT_EQ(track.genreName(), "Jazz");
  EXPECT_EQ(track.thumbnailData(), (Data{'f', 'o', 'o'}));
}

TEST(CatalogueRecord, ReadsEveryKeyOfAnArtist) {
  const auto catalogue =
      read(R"({"kind": "artist", "artistID": "a", "artistName": "Miles Davis", )"
           R"("artistBio": "Born in Alton.", "artistGenre": "Jazz", "thumbnailData": ""})");
  ASSERT_EQ(catalogue.entries.size(), 1U);
  const auto& artist = std::get<Artist>(catalogue.entries.front().record);
  EXPECT_EQ(artist.artistID(), "a");
  EXPECT_EQ(artist.artistName(), "Miles Davis");
  EXPECT_EQ(artist.artistBio(), "Born in Alton.");
  EXPECT_EQ(artist.artistGenre(), "Jazz");
  EXPECT_EQ(artist.thumbnailData(), Data{}) << "empty, and not absent";
}

TEST(CatalogueRecord, ReadsEveryKeyOfAnAlbum) {
  const auto catalogue =
      read(R"({"kind": "album", "albumID": "l", "albumName": "Kind of Blue", )"
           R"("artistName": "Miles Davis", "tracksCount": 5, )"
           R"("albumReleaseDate": "1970-01-01T01:00:00.5+01:00", "thumbnailData": "AA=="})");
  ASSERT_EQ(catalogue.entries.size(), 1U);
  const auto& album = std::get<Album>(catalogue.entries.front().record);
  EXPECT_EQ(album.albumID(), "l");
  EXPECT_EQ(album.albumName(), "Kind of Blue");
  EXPECT_EQ(album.artistName(), "Miles Davis");
  EXPECT_EQ(album.tracksCount(), 5);
  EXPECT_EQ(album.albumReleaseDate(), Date::fromUnixTime(0, 500'000'000));
  EXPECT_EQ(album.thumbnailData(), Data{0});
}

TEST(CatalogueRecord, ReadsEveryKeyOfAPlaylist) {
  const auto catalogue =
      read(R"({"kind": "playlist", "playlistID": "p", "playlistName": "Road trip", )"
           R"("thumbnailData": "AQI="})");
  ASSERT_EQ(catalogue.entries.size(), 1U);
  const auto& playlist = std::get<Playlist>(catalogue.entries.front().record);
  EXPECT_EQ(playlist.playlistID(), "p");
  EXPECT_EQ(playlist.playlistName(), "Road trip");
  EXPECT_EQ(playlist.thumbnailData(), (Data{1, 2}));
}

TEST(CatalogueRecord, AbsentAndNullKeysAreAbsent) {
  const auto catalogue = read(
      R"({"kind": "track", "trackID": "t", "trackName": "n"})"
      "\n"
      R"({"kind": "track", "trackID": "t", "trackName": "n", "genreName": null, "domainID": null, )"
      R"("albumReleaseDate": null, "trackDuration": null, "artistName": null, )"
      R"("thumbnailData": null, "thumbnailPath": null, "trackIndexInAlbum": null})");
  ASSERT_EQ(catalogue.entries.size(), 2U);
  for (const auto& entry : catalogue.entries) {
    const auto& track = std::get<Track>(entry.record);
    EXPECT_EQ(track.trackDuration(), 0);
    EXPECT_EQ(track.trackIndexInAlbum(), 0);
    EXPECT_EQ(track.artistName(), "");
    EXPECT_EQ(track.albumName(), "");
    EXPECT_EQ(track.albumReleaseDate(), std::nullopt);
    EXPECT_EQ(track.genreName(), std::nullopt);
    EXPECT_EQ(track.thumbnailData(), std::nullopt);
    EXPECT_EQ(entry.domainID, std::nullopt);
  }
}

TEST(CatalogueRecord, AnEmptyTextIsNotAnAbsentOne) {
  const auto catalogue = read(
      R"({"kind": "track", "trackID": "t", "trackName": "", "genreName": "", "domainID": ""})");
  ASSERT_EQ(catalogue.entries.size(), 1U);
  EXPECT_EQ(std::get<Track>(catalogue.entries.front().record).genreName(), "");
  EXPECT_EQ(catalogue.entries.front().domainID, "");
}

TEST(CatalogueRecord, KeepsIdentifiersByteForByte) {
  const auto catalogue = read(
      R"({"kind": "artist", "artistID": " \u00c4\ud83c\udfb5\\\"\u0000 ", "artistName": "n"})");
  ASSERT_EQ(catalogue.entries.size(), 1U);
  EXPECT_EQ(catalogue.entries.front().identifier, (std::string{" Ä🎵\\\"\0 ", 11}));
}

}  // namespace
}  // namespace solvane::tool

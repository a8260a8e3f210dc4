#include <cmath>
#include <limits>

#include <solvane/testing/fields.hpp>
#include <solvane/testing/printing.hpp>

#include <gtest/gtest.h>

namespace solvane {
namespace {

const Date release = std::chrono::sys_days{std::chrono::year{1959} / 8 / 17};

TEST(Track, StoresEveryArgumentUnderTheNameOfItsPosition) {
  const Track track{"id", "name", 1.5, 7, "artist", "album", release, "genre", Data{1, 2}};
  EXPECT_EQ(track.trackID(), "id");
  EXPECT_EQ(track.trackName(), "name");
  EXPECT_EQ(track.trackDuration(), 1.5);
  EXPECT_EQ(track.trackIndexInAlbum(), 7);
  EXPECT_EQ(track.artistName(), "artist");
  EXPECT_EQ(track.albumName(), "album");
  EXPECT_EQ(track.albumReleaseDate(), release);
  EXPECT_EQ(track.genreName(), "genre");
  EXPECT_EQ(track.thumbnailData(), (Data{1, 2}));
}

TEST(Artist, StoresEveryArgumentUnderTheNameOfItsPosition) {
  const Artist artist{"id", "name", "bio", "genre", Data{3}};
  EXPECT_EQ(artist.artistID(), "id");
  EXPECT_EQ(artist.artistName(), "name");
  EXPECT_EQ(artist.artistBio(), "bio");
  EXPECT_EQ(artist.artistGenre(), "genre");
  EXPECT_EQ(artist.thumbnailData(), (Data{3}));
}

TEST(Album, StoresEveryArgumentUnderTheNameOfItsPosition) {
  const Album album{"id", "name", "artist", 5, release, Data{4}};
  EXPECT_EQ(album.albumID(), "id");
  EXPECT_EQ(album.albumName(), "name");
  EXPECT_EQ(album.artistName(), "artist");
  EXPECT_EQ(album.tracksCount(), 5);
  EXPECT_EQ(album.albumReleaseDate(), release);
  EXPECT_EQ(album.thumbnailData(), (Data{4}));
}

TEST(Playlist, StoresEveryArgumentUnderTheNameOfItsPosition) {
  const Playlist playlist{"id", "name", Data{5}};
  EXPECT_EQ(playlist.playlistID(), "id");
  EXPECT_EQ(playlist.playlistName(), "name");
  EXPECT_EQ(playlist.thumbnailData(), (Data{5}));
}

TEST(Records, KeepAbsentOptionalsAbsentThroughConstructionAndCopying) {
  const Track track = testing::TrackFields{};
  const Artist artist = testing::ArtistFields{};
  const Album album = testing::AlbumFields{};
  const Playlist playlist = testing::PlaylistFields{};
  for (const Track& one : {track, Track{track}}) {
    EXPECT_EQ(one.albumReleaseDate(), std::nullopt);
    EXPECT_EQ(one.genreName(), std::nullopt);
    EXPECT_EQ(one.thumbnailData(), std::nullopt);
  }
  for (const Artist& one : {artist, Artist{artist}}) {
    EXPECT_EQ(one.artistBio(), std::nullopt);
    EXPECT_EQ(one.artistGenre(), std::nullopt);
    EXPECT_EQ(one.thumbnailData(), std::nullopt);
  }
  for (const Album& one : {album, Album{album}}) {
    EXPECT_EQ(one.tracksCount(), std::nullopt);
    EXPECT_EQ(one.albumReleaseDate(), std::nullopt);
    EXPECT_EQ(one.thumbnailData(), std::nullopt);
  }
  for (const Playlist& one : {playlist, Playlist{playlist}}) {
    EXPECT_EQ(one.thumbnailData(), std::nullopt);
  }
}

TEST(Records, KeepPresentEmptyOptionalsPresentAndEmpty) {
  const Track track = testing::TrackFields{.genreName = "", .thumbnailData = Data{}};
  const Track copy = track;
  ASSERT_TRUE(copy.genreName().has_value());
  EXPECT_EQ(*copy.genreName(), "");
  ASSERT_TRUE(copy.thumbnailData().has_value());
  EXPECT_TRUE(copy.thumbnailData()->empty());
}

TEST(Records, KeepAnEmptyIdentifierEmpty) {
  EXPECT_EQ(Track{testing::TrackFields{.trackID = ""}}.trackID(), "");
  EXPECT_EQ(Artist{testing::ArtistFields{.artistID = ""}}.artistID(), "");
  EXPECT_EQ(Album{testing::AlbumFields{.albumID = ""}}.albumID(), "");
  EXPECT_EQ(Playlist{testing::PlaylistFields{.playlistID = ""}}.playlistID(), "");
}

TEST(Records, CheckNeitherDurationNorIndex) {
  const auto infinity = std::numeric_limits<double>::infinity();
  const auto lowest = std::numeric_limits<Integer>::min();
  const Track track = testing::TrackFields{.trackDuration = -infinity, .trackIndexInAlbum = lowest};
  EXPECT_EQ(track.trackDuration(), -infinity);
  EXPECT_EQ(track.trackIndexInAlbum(), lowest);
  const Track odd = testing::TrackFields{.trackDuration = std::nan("")};
  EXPECT_TRUE(std::isnan(odd.trackDuration()));
}

TEST(Records, HaveIntegersOfTheNaturalWordSize) { EXPECT_EQ(sizeof(Integer), sizeof(void*)); }

TEST(Records, AreUnaffectedByWhatHappensToTheBufferTheyWereBuiltFrom) {
  std::uint8_t buffer[] = {1, 2, 3};
  std::string name = "before";
  const Playlist playlist{"id", name, Data{buffer, sizeof buffer}};
  buffer[0] = 9;
  name = "after";
  EXPECT_EQ(playlist.thumbnailData(), (Data{1, 2, 3}));
  EXPECT_EQ(playlist.playlistName(), "before");
}

TEST(Records, AreIndependentOfTheRecordTheyWereCopiedFrom) {
  Track original = testing::TrackFields{.trackName = "one"};
  const Track copy = original;
  original = testing::TrackFields{.trackName = "two"};
  EXPECT_EQ(copy.trackName(), "one");
  EXPECT_EQ(original.trackName(), "two");
}

TEST(Records, NeverCopyTheBytesOfAThumbnail) {
  const Data thumbnail{1, 2, 3};
  const Track track = testing::TrackFields{.thumbnailData = thumbnail};
  const Track copy = track;
  EXPECT_EQ(copy.thumbnailData()->data(), thumbnail.data());
}

TEST(Records, GiveReadersACopyThatCannotReachThem) {
  const Track track = testing::TrackFields{.trackName = "name"};
  auto name = track.trackName();
  name += " changed";
  EXPECT_EQ(track.trackName(), "name");
}

}  // namespace
}  // namespace solvane

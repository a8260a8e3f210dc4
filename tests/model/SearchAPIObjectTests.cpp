#include <limits>

#include <solvane/model/SearchAPIAlbum.hpp>
#include <solvane/model/SearchAPIArtist.hpp>
#include <solvane/model/SearchAPIPlaylist.hpp>
#include <solvane/model/SearchAPITrack.hpp>
#include <solvane/testing/printing.hpp>

#include <gtest/gtest.h>

namespace solvane {
namespace {

using Names = std::vector<std::string>;

const Date release = std::chrono::sys_days{std::chrono::year{1959} / 8 / 17};

TEST(SearchAPITrack, FreshlyConstructedConvertsToEmptyTextsZeroesAndAbsentOptionals) {
  const Track track = SearchAPITrack{}.structify();
  EXPECT_EQ(track.trackID(), "");
  EXPECT_EQ(track.trackName(), "");
  EXPECT_EQ(track.trackDuration(), 0.0);
  EXPECT_EQ(track.trackIndexInAlbum(), 0);
  EXPECT_EQ(track.artistName(), "");
  EXPECT_EQ(track.albumName(), "");
  EXPECT_EQ(track.albumReleaseDate(), std::nullopt);
  EXPECT_EQ(track.genreName(), std::nullopt);
  EXPECT_EQ(track.thumbnailData(), std::nullopt);
}

TEST(SearchAPITrack, StartsWithEveryOptionalPropertyAbsent) {
  const SearchAPITrack track;
  EXPECT_EQ(track.trackID(), std::nullopt);
  EXPECT_EQ(track.trackName(), std::nullopt);
  EXPECT_EQ(track.artistName(), std::nullopt);
  EXPECT_EQ(track.albumName(), std::nullopt);
}

TEST(SearchAPIArtist, FreshlyConstructedConvertsToEmptyTextsAndAbsentOptionals) {
  const Artist artist = SearchAPIArtist{}.structify();
  EXPECT_EQ(artist.artistID(), "");
  EXPECT_EQ(artist.artistName(), "");
  EXPECT_EQ(artist.artistBio(), std::nullopt);
  EXPECT_EQ(artist.artistGenre(), std::nullopt);
  EXPECT_EQ(artist.thumbnailData(), std::nullopt);
}

TEST(SearchAPIAlbum, FreshlyConstructedConvertsToEmptyTextsAndAbsentOptionals) {
  const Album album = SearchAPIAlbum{}.structify();
  EXPECT_EQ(album.albumID(), "");
  EXPECT_EQ(album.albumName(), "");
  EXPECT_EQ(album.artistName(), "");
  EXPECT_EQ(album.tracksCount(), std::nullopt);
  EXPECT_EQ(album.albumReleaseDate(), std::nullopt);
  EXPECT_EQ(album.thumbnailData(), std::nullopt);
}

TEST(SearchAPIPlaylist, FreshlyConstructedConvertsToEmptyTextsAndAnAbsentThumbnail) {
  const Playlist playlist = SearchAPIPlaylist{}.structify();
  EXPECT_EQ(playlist.playlistID(), "");
  EXPECT_EQ(playlist.playlistName(), "");
  EXPECT_EQ(playlist.thumbnailData(), std::nullopt);
}

TEST(SearchAPITrack, FeedsEveryRecordFieldFromThePropertyOfItsName) {
  SearchAPITrack object;
  object.setTrackID("id");
  object.setTrackName("name");
  object.setTrackDuration(-1.5);
  object.setTrackIndexInAlbum(-7);
  object.setArtistName("artist");
  object.setAlbumName("album");
  object.setAlbumReleaseDate(release);
  object.setGenreName("genre");
  object.setThumbnailData(Data{1});
  const Track track = object.structify();
  EXPECT_EQ(track.trackID(), "id");
  EXPECT_EQ(track.trackName(), "name");
  EXPECT_EQ(track.trackDuration(), -1.5);
  EXPECT_EQ(track.trackIndexInAlbum(), -7);
  EXPECT_EQ(track.artistName(), "artist");
  EXPECT_EQ(track.albumName(), "album");
  EXPECT_EQ(track.albumReleaseDate(), release);
  EXPECT_EQ(track.genreName(), "genre");
  EXPECT_EQ(track.thumbnailData(), (Data{1}));
}

TEST(SearchAPIArtist, FeedsEveryRecordFieldFromThePropertyOfItsName) {
  SearchAPIArtist object;
  object.setArtistID("id");
  object.setArtistName("name");
  object.setArtistBio("bio");
  object.setArtistGenre("genre");
  object.setThumbnailData(Data{2});
  const Artist artist = object.structify();
  EXPECT_EQ(artist.artistID(), "id");
  EXPECT_EQ(artist.artistName(), "name");
  EXPECT_EQ(artist.artistBio(), "bio");
  EXPECT_EQ(artist.artistGenre(), "genre");
  EXPECT_EQ(artist.thumbnailData(), (Data{2}));
}

TEST(SearchAPIAlbum, FeedsEveryRecordFieldFromThePropertyOfItsName) {
  SearchAPIAlbum object;
  object.setAlbumID("id");
  object.setAlbumName("name");
  object.setArtistName("artist");
  object.setTracksCount(5);
  object.setAlbumReleaseDate(release);
  object.setThumbnailData(Data{3});
  const Album album = object.structify();
  EXPECT_EQ(album.albumID(), "id");
  EXPECT_EQ(album.albumName(), "name");
  EXPECT_EQ(album.artistName(), "artist");
  EXPECT_EQ(album.tracksCount(), 5);
  EXPECT_EQ(album.albumReleaseDate(), release);
  EXPECT_EQ(album.thumbnailData(), (Data{3}));
}

TEST(SearchAPIPlaylist, FeedsEveryRecordFieldFromThePropertyOfItsName) {
  SearchAPIPlaylist object;
  object.setPlaylistID("id");
  object.setPlaylistName("name");
  object.setThumbnailData(Data{4});
  const Playlist playlist = object.structify();
  EXPECT_EQ(playlist.playlistID(), "id");
  EXPECT_EQ(playlist.playlistName(), "name");
  EXPECT_EQ(playlist.thumbnailData(), (Data{4}));
}

TEST(SearchAPIObjects, CarryAnEmptyOptionalTextAsPresentAndNullAsAbsent) {
  SearchAPITrack track;
  track.setGenreName("");
  EXPECT_EQ(track.structify().genreName(), "");
  track.setGenreName(std::nullopt);
  EXPECT_EQ(track.structify().genreName(), std::nullopt);

  SearchAPIArtist artist;
  artist.setArtistBio("");
  artist.setArtistGenre("");
  EXPECT_EQ(artist.structify().artistBio(), "");
  EXPECT_EQ(artist.structify().artistGenre(), "");
  artist.setArtistBio(std::nullopt);
  artist.setArtistGenre(std::nullopt);
  EXPECT_EQ(artist.structify().artistBio(), std::nullopt);
  EXPECT_EQ(artist.structify().artistGenre(), std::nullopt);
}

TEST(SearchAPIObjects, CarryAnEmptyBufferAsPresentAndEmpty) {
  SearchAPIPlaylist playlist;
  playlist.setThumbnailData(Data{});
  ASSERT_TRUE(playlist.structify().thumbnailData().has_value());
  EXPECT_TRUE(playlist.structify().thumbnailData()->empty());
}

TEST(SearchAPIObjects, ConvertAnIdentifierSetToNullAfterAValueToTheEmptyText) {
  SearchAPITrack track;
  track.setTrackID("track/1");
  track.setTrackID(std::nullopt);
  EXPECT_EQ(track.trackID(), std::nullopt);
  EXPECT_EQ(track.structify().trackID(), "");
}

TEST(SearchAPIObjects, LeaveARecordUnchangedByLaterWrites) {
  SearchAPITrack object;
  object.setTrackName("before");
  const Track track = object.structify();
  object.setTrackName("after");
  EXPECT_EQ(track.trackName(), "before");
}

TEST(SearchAPIObjects, ConvertTwiceToEqualFields) {
  SearchAPIAlbum object;
  object.setAlbumID("album/1");
  object.setAlbumReleaseDate(release);
  const Album one = object.structify();
  const Album two = object.structify();
  EXPECT_EQ(one.albumID(), two.albumID());
  EXPECT_EQ(one.albumName(), two.albumName());
  EXPECT_EQ(one.artistName(), two.artistName());
  EXPECT_EQ(one.tracksCount(), two.tracksCount());
  EXPECT_EQ(one.albumReleaseDate(), two.albumReleaseDate());
  EXPECT_EQ(one.thumbnailData(), two.thumbnailData());
}

TEST(SearchAPIObjects, KeepTheirOwnCopyOfAnAssignedText) {
  std::string name = "assigned";
  SearchAPITrack track;
  track.setTrackName(name);
  name = "changed";
  EXPECT_EQ(track.trackName(), "assigned");
}

TEST(SearchAPIObjects, PassNonFiniteDurationsOn) {
  SearchAPITrack track;
  track.setTrackDuration(std::numeric_limits<double>::infinity());
  EXPECT_EQ(track.structify().trackDuration(), std::numeric_limits<double>::infinity());
}

// Notes the order in which the conversion calls the readers.
template <class Object>
struct Traced : Object {
  const std::string& note(const char* name) const { return calls.emplace_back(name); }
  mutable Names calls;
};

struct TracedTrack : Traced<SearchAPITrack> {
  std::optional<std::string> trackID() const override { return note("trackID"); }
  std::optional<std::string> trackName() const override { return note("trackName"); }
  double trackDuration() const override { return note("trackDuration"), 1.0; }
  Integer trackIndexInAlbum() const override { return note("trackIndexInAlbum"), 2; }
  std::optional<std::string> artistName() const override { return note("artistName"); }
  std::optional<std::string> albumName() const override { return note("albumName"); }
  std::optional<Date> albumReleaseDate() const override { return note("date"), std::nullopt; }
  std::optional<std::string> genreName() const override { return note("genreName"); }
  std::optional<Data> thumbnailData() const override { return note("thumbnail"), std::nullopt; }
};

struct TracedArtist : Traced<SearchAPIArtist> {
  std::optional<std::string> artistID() const override { return note("artistID"); }
  std::optional<std::string> artistName() const override { return note("artistName"); }
  std::optional<std::string> artistBio() const override { return note("artistBio"); }
  std::optional<std::string> artistGenre() const override { return note("artistGenre"); }
  std::optional<Data> thumbnailData() const override { return note("thumbnail"), std::nullopt; }
};

struct TracedAlbum : Traced<SearchAPIAlbum> {
  std::optional<std::string> albumID() const override { return note("albumID"); }
  std::optional<std::string> albumName() const override { return note("albumName"); }
  std::optional<std::string> artistName() const override { return note("artistName"); }
  std::optional<Integer> tracksCount() const override { return note("tracksCount"), 1; }
  std::optional<Date> albumReleaseDate() const override { return note("date"), std::nullopt; }
  std::optional<Data> thumbnailData() const override { return note("thumbnail"), std::nullopt; }
};

struct TracedPlaylist : Traced<SearchAPIPlaylist> {
  std::optional<std::string> playlistID() const override { return note("playlistID"); }
  std::optional<std::string> playlistName() const override { return note("playlistName"); }
  std::optional<Data> thumbnailData() const override { return note("thumbnail"), std::nullopt; }
};

TEST(SearchAPIObjects, HaveEachPropertyReadOnceInTableOrderThroughItsReader) {
  const TracedTrack track;
  EXPECT_EQ(track.structify().genreName(), "genreName");
  EXPECT_EQ(track.calls, (Names{"trackID", "trackName", "trackDuration", "trackIndexInAlbum",
                                "artistName", "albumName", "date", "genreName", "thumbnail"}));
  const TracedArtist artist;
  EXPECT_EQ(artist.structify().artistBio(), "artistBio");
  EXPECT_EQ(artist.calls,
            (Names{"artistID", "artistName", "artistBio", "artistGenre", "thumbnail"}));
  const TracedAlbum album;
  EXPECT_EQ(album.structify().tracksCount(), 1);
  EXPECT_EQ(album.calls,
            (Names{"albumID", "albumName", "artistName", "tracksCount", "date", "thumbnail"}));
  const TracedPlaylist playlist;
  EXPECT_EQ(playlist.structify().playlistID(), "playlistID");
  EXPECT_EQ(playlist.calls, (Names{"playlistID", "playlistName", "thumbnail"}));
}

TEST(SearchAPIObjects, HandTheValueOfAnOverriddenReaderToTheRecord) {
  struct Fixed : SearchAPIArtist {
    std::optional<std::string> artistName() const override { return "always me"; }
  } artist;
  artist.setArtistName("set");
  EXPECT_EQ(artist.structify().artistName(), "always me");
}

TEST(SearchAPIObjects, AreSharedByReference) {
  const auto mine = std::make_shared<SearchAPIPlaylist>();
  const std::shared_ptr<NSObject> theirs = mine;
  mine->setPlaylistName("Late night");
  EXPECT_EQ(std::static_pointer_cast<SearchAPIPlaylist>(theirs)->playlistName(), "Late night");
  EXPECT_EQ(theirs->shared_from_this(), mine);
}

}  // namespace
}  // namespace solvane

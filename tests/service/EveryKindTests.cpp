#include <solvane/service/Solvane.hpp>

#include <support/RecordedPlatform.hpp>

namespace solvane {
namespace {

// An object that counts its conversions.
template <class Object>
struct Counting : Object {
  auto structify() const -> decltype(std::declval<const Object&>().structify()) override {
    return ++conversions, Object::structify();
  }
  mutable int conversions = 0;
};

class EveryKind : public RecordedPlatform {
 protected:
  Solvane solvane;
};

TEST_F(EveryKind, IsConvertedEvenWhenTheIndexIsUnavailable) {
  index->setAvailable(false);
  const auto track = std::make_shared<Counting<SearchAPITrack>>();
  const auto artist = std::make_shared<Counting<SearchAPIArtist>>();
  const auto album = std::make_shared<Counting<SearchAPIAlbum>>();
  const auto playlist = std::make_shared<Counting<SearchAPIPlaylist>>();
  solvane.indexTracks({track, track}, std::nullopt);
  solvane.indexArtists({artist, artist});
  solvane.indexArtist(artist, nullptr);
  solvane.indexAlbums({album, album});
  solvane.indexPlaylists({playlist, playlist});
  EXPECT_EQ(track->conversions, 2);
  EXPECT_EQ(artist->conversions, 3);
  EXPECT_EQ(album->conversions, 2);
  EXPECT_EQ(playlist->conversions, 2);
  EXPECT_EQ(queue->waiting(), 0U);
}

TEST_F(EveryKind, IgnoresTheSettingsOfAnotherConfiguration) {
  SolvaneConfig other;
  other.setup("Other", std::make_shared<SolvaneLocalizations>("X", "X", "X", "X"));
  solvane.indexArtists(std::vector<Artist>{testing::ArtistFields{}});
  solvane.indexAlbums(std::vector<Album>{testing::AlbumFields{}});
  solvane.indexPlaylists(std::vector<Playlist>{testing::PlaylistFields{}});
  queue->runAll();
  const auto items = index->items();
  ASSERT_EQ(items.size(), 3U);
  EXPECT_EQ(items[0].attributeSet.contentDescription, "Artist on Tamberly");
  EXPECT_EQ(items[1].attributeSet.contentDescription, "Album on Tamberly");
  EXPECT_EQ(items[2].attributeSet.contentDescription, "Playlist");
}

TEST_F(EveryKind, SharesOneNameSpaceOfIdentifiersAndDiffersInItsDomain) {
  solvane.indexTracks({testing::TrackFields{.trackID = "same"}});
  solvane.indexArtists(std::vector<Artist>{testing::ArtistFields{.artistID = "same"}});
  solvane.indexAlbums(std::vector<Album>{testing::AlbumFields{.albumID = "same"}});
  solvane.indexPlaylists(std::vector<Playlist>{testing::PlaylistFields{.playlistID = "same"}});
  queue->runAll();
  std::vector<std::string> domains;
  for (const auto& item : index->items()) {
    EXPECT_EQ(item.uniqueIdentifier, "same");
    domains.push_back(item.domainIdentifier);
  }
  EXPECT_EQ(domains, (std::vector<std::string>{"tracks", "artists", "albums", "playlists"}));
}

}  // namespace
}  // namespace solvane

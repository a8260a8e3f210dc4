#include <solvane/service/Solvane.hpp>

#include <support/RecordedPlatform.hpp>

namespace solvane {
namespace {

using testing::AlbumFields;
using testing::PlaylistFields;
using Strings = std::vector<std::string>;

class AlbumAndPlaylistOperations : public RecordedPlatform {
 protected:
  [[nodiscard]] Strings identifiersOfOnlyCall() const {
    Strings identifiers;
    for (const auto& item : onlyCall().items) identifiers.push_back(item.uniqueIdentifier);
    return identifiers;
  }

  Solvane solvane;
};

TEST_F(AlbumAndPlaylistOperations, HandAlbumsInListOrderToTheIndexInOneCall) {
  solvane.indexAlbums({AlbumFields{.albumID = "b"}, AlbumFields{.albumID = "a"}});
  EXPECT_EQ(queue->runAll(), 1U);
  EXPECT_EQ(identifiersOfOnlyCall(), (Strings{"b", "a"}));
}

TEST_F(AlbumAndPlaylistOperations, HandPlaylistsInListOrderToTheIndexInOneCall) {
  solvane.indexPlaylists({PlaylistFields{.playlistID = "b"}, PlaylistFields{.playlistID = "a"}});
  EXPECT_EQ(queue->runAll(), 1U);
  EXPECT_EQ(identifiersOfOnlyCall(), (Strings{"b", "a"}));
}

TEST_F(AlbumAndPlaylistOperations, ConvertAlbumObjectsOnTheCallersThread) {
  const auto album = std::make_shared<SearchAPIAlbum>();
  album->setAlbumID("before");
  solvane.indexAlbums({album});
  album->setAlbumID("after");
  queue->runAll();
  EXPECT_EQ(identifiersOfOnlyCall(), Strings{"before"});
}

TEST_F(AlbumAndPlaylistOperations, ConvertPlaylistObjectsOnTheCallersThread) {
  const auto playlist = std::make_shared<SearchAPIPlaylist>();
  playlist->setPlaylistID("before");
  solvane.indexPlaylists({playlist});
  playlist->setPlaylistID("after");
  queue->runAll();
  EXPECT_EQ(identifiersOfOnlyCall(), Strings{"before"});
}

TEST_F(AlbumAndPlaylistOperations, AskNothingOfThePlatformWhenThereIsNoRecord) {
  solvane.indexAlbums(std::vector<Album>{});
  solvane.indexAlbums(std::vector<std::shared_ptr<SearchAPIAlbum>>{});
  solvane.deleteAlbums({});
  solvane.indexPlaylists(std::vector<Playlist>{});
  solvane.indexPlaylists(std::vector<std::shared_ptr<SearchAPIPlaylist>>{});
  EXPECT_EQ(index->availabilityQuestions(), 0U);
  EXPECT_EQ(queue->waiting(), 0U);
}

TEST_F(AlbumAndPlaylistOperations, QueueNothingWhenTheIndexIsUnavailable) {
  index->setAvailable(false);
  solvane.indexAlbums(std::vector<Album>{AlbumFields{}});
  solvane.deleteAlbums({"a"});
  solvane.indexPlaylists(std::vector<Playlist>{PlaylistFields{}});
  EXPECT_EQ(queue->waiting(), 0U);
}

TEST_F(AlbumAndPlaylistOperations, DeleteAlbumsByIdentifierAlone) {
  solvane.deleteAlbums({"b", "a"});
  queue->runAll();
  EXPECT_EQ(onlyCall().operation, Operation::deleteIdentifiers);
  EXPECT_EQ(onlyCall().strings, (Strings{"b", "a"}));
}

TEST_F(AlbumAndPlaylistOperations, DiscardTheErrorOfTheIndex) {
  const auto failing = std::make_shared<testing::FailingIndex>();
  const testing::ScopedPlatform scoped{{.searchableIndex = failing}};
  solvane.indexAlbums(std::vector<Album>{AlbumFields{}});
  solvane.indexPlaylists(std::vector<Playlist>{PlaylistFields{}});
  solvane.deleteAlbums({"a"});
  solvane.removePlaylists({"a"});
  solvane.deleteAllPlaylists();
  EXPECT_EQ(queue->runAll(), 5U);
  EXPECT_EQ(failing->calls().size(), 5U);
}

}  // namespace
}  // namespace solvane

#include <solvane/memory/MemoryIndex.hpp>
#include <solvane/service/Solvane.hpp>

#include <support/RecordedPlatform.hpp>

namespace solvane {
namespace {

using Strings = std::vector<std::string>;

class RemovalOperations : public RecordedPlatform {
 protected:
  Solvane solvane;
};

TEST_F(RemovalOperations, QueueATaskThatDoesNothingForAnEmptyListOfPlaylists) {
  solvane.removePlaylists({});
  EXPECT_EQ(queue->waiting(), 1U);
  queue->runAll();
  EXPECT_EQ(index->availabilityQuestions(), 0U);
  EXPECT_TRUE(index->calls().empty());
}

TEST_F(RemovalOperations, QueueATaskThatDoesNothingForAnEmptyListOfDomains) {
  solvane.deleteAllItemsWithDomains({});
  EXPECT_EQ(queue->waiting(), 1U);
  queue->runAll();
  EXPECT_EQ(index->availabilityQuestions(), 0U);
  EXPECT_TRUE(index->calls().empty());
}

TEST_F(RemovalOperations, QueueNothingForAnEmptyListOfAlbums) {
  solvane.deleteAlbums({});
  EXPECT_EQ(queue->waiting(), 0U);
}

TEST_F(RemovalOperations, AskForAvailabilityInTheTaskAndNotBefore) {
  index->setAvailable(false);
  solvane.removePlaylists({"a"});
  solvane.deleteAllItemsWithDomains({"playlists"});
  solvane.deleteAllPlaylists();
  EXPECT_EQ(index->availabilityQuestions(), 0U);
  EXPECT_EQ(queue->waiting(), 3U);
  queue->runAll();
  EXPECT_EQ(index->availabilityQuestions(), 3U);
  EXPECT_TRUE(index->calls().empty());
}

TEST_F(RemovalOperations, FollowAnAvailabilityThatComesBeforeTheTaskRuns) {
  index->setAvailable(false);
  solvane.removePlaylists({"a"});
  index->setAvailable(true);
  queue->runAll();
  EXPECT_EQ(onlyCall().strings, Strings{"a"});
}

TEST_F(RemovalOperations, RemovePlaylistsByIdentifierInOrderInOneCall) {
  solvane.removePlaylists({"b", " A ", "b"});
  queue->runAll();
  EXPECT_EQ(onlyCall().operation, Operation::deleteIdentifiers);
  EXPECT_EQ(onlyCall().strings, (Strings{"b", " A ", "b"}));
}

TEST_F(RemovalOperations, PassDomainsThroughUnchangedIncludingUnknownOnes) {
  solvane.deleteAllItemsWithDomains({"never used", "", "Tracks"});
  queue->runAll();
  EXPECT_EQ(onlyCall().operation, Operation::deleteDomains);
  EXPECT_EQ(onlyCall().strings, (Strings{"never used", "", "Tracks"}));
}

TEST_F(RemovalOperations, ClearTheOneDomainOfPlaylistsWithOneTask) {
  solvane.deleteAllPlaylists();
  EXPECT_EQ(queue->waiting(), 1U);
  queue->runAll();
  EXPECT_EQ(onlyCall().operation, Operation::deleteDomains);
  EXPECT_EQ(onlyCall().strings, Strings{"playlists"});
}

TEST_F(RemovalOperations, ClearPlaylistsThroughTheOverriddenDomainOperation) {
  struct Overriding : Solvane {
    void deleteAllItemsWithDomains(std::vector<std::string> domains) override {
      seen = std::move(domains);
    }
    Strings seen;
  } overriding;
  overriding.deleteAllPlaylists();
  EXPECT_EQ(overriding.seen, Strings{"playlists"});
  EXPECT_EQ(queue->waiting(), 0U);
}

class RemovalFromAnIndex : public RemovalOperations {
 protected:
  RemovalFromAnIndex() {
    solvane.indexTracks({testing::TrackFields{.trackID = "track"}}, "custom domain");
    solvane.indexTracks({testing::TrackFields{.trackID = "plain track"}});
    solvane.indexArtists(std::vector<Artist>{testing::ArtistFields{.artistID = "artist"}});
    solvane.indexAlbums(std::vector<Album>{testing::AlbumFields{.albumID = "album"}});
    solvane.indexPlaylists(std::vector<Playlist>{testing::PlaylistFields{.playlistID = "list"}});
    queue->runAll();
  }

  Strings leftAfter(auto operation) {
    operation();
    queue->runAll();
    Strings identifiers;
    for (const auto& item : memory->list()) identifiers.push_back(item.uniqueIdentifier);
    return identifiers;
  }

  std::shared_ptr<MemoryIndex> memory =
      std::make_shared<MemoryIndex>([this] { return calendar->now(); });
  testing::ScopedPlatform scoped{{.searchableIndex = memory}};
};

TEST_F(RemovalFromAnIndex, DeletesTracksWhateverTheirDomain) {
  EXPECT_EQ(leftAfter([&] {
              solvane.deleteTracks({"track", "plain track"});
            }),
            (Strings{"album", "artist", "list"}));
}

TEST_F(RemovalFromAnIndex, DeletesByIdentifierWhateverTheKindItIsAskedFor) {
  EXPECT_EQ(leftAfter([&] {
              solvane.deleteArtists({"track", "artist"});
            }),
            (Strings{"album", "list", "plain track"}));
}

TEST_F(RemovalFromAnIndex, RemovesPlaylistsWithTheSameEndAsDeletingAlbums) {
  EXPECT_EQ(leftAfter([&] {
              solvane.removePlaylists({"list", "album"});
            }),
            (Strings{"artist", "plain track", "track"}));
  solvane.indexAlbums(std::vector<Album>{testing::AlbumFields{.albumID = "album"}});
  EXPECT_EQ(leftAfter([&] {
              solvane.deleteAlbums({"list", "album"});
            }),
            (Strings{"artist", "plain track", "track"}));
}

TEST_F(RemovalFromAnIndex, ClearsAllPlaylistsAndNothingElse) {
  EXPECT_EQ(leftAfter([&] { solvane.deleteAllPlaylists(); }),
            (Strings{"album", "artist", "plain track", "track"}));
}

TEST_F(RemovalFromAnIndex, LeavesPlaylistsInAnotherDomainWhenClearingAllPlaylists) {
  CSSearchableItem elsewhere{"other list", "my playlists", CSSearchableItemAttributeSet{"x"}};
  memory->indexSearchableItems({elsewhere}, nullptr);
  EXPECT_EQ(leftAfter([&] { solvane.deleteAllPlaylists(); }),
            (Strings{"album", "artist", "other list", "plain track", "track"}));
}

TEST_F(RemovalFromAnIndex, ClearsACustomDomainOfTracksAlone) {
  EXPECT_EQ(leftAfter([&] { solvane.deleteAllItemsWithDomains({"custom domain"}); }),
            (Strings{"album", "artist", "list", "plain track"}));
}

}  // namespace
}  // namespace solvane

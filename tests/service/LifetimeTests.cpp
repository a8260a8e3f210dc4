#include <latch>

#include <solvane/posix/PosixDispatch.hpp>
#include <solvane/service/Solvane.hpp>

#include <support/RecordedPlatform.hpp>

namespace solvane {
namespace {

using testing::TrackFields;

class Lifetime : public RecordedPlatform {};

TEST_F(Lifetime, OfAReleasedServiceLastsUntilItsQueuedIndexTasksHaveRun) {
  auto solvane = std::make_shared<Solvane>();
  const std::weak_ptr watch = solvane;
  solvane->indexTracks({TrackFields{}});
  solvane->indexArtists(std::vector<Artist>{testing::ArtistFields{}});
  solvane.reset();
  EXPECT_FALSE(watch.expired());
  queue->runAll();
  EXPECT_TRUE(watch.expired());
  EXPECT_EQ(index->calls().size(), 2U);
}

TEST_F(Lifetime, OfAReleasedServiceIsNotExtendedByItsQueuedRemovals) {
  auto solvane = std::make_shared<Solvane>();
  const std::weak_ptr watch = solvane;
  solvane->deleteTracks({"a"});
  solvane->deleteArtists({"a"});
  solvane->deleteAlbums({"a"});
  solvane->removePlaylists({"a"});
  solvane->deleteAllItemsWithDomains({"a"});
  solvane->deleteAllPlaylists();
  solvane.reset();
  EXPECT_TRUE(watch.expired());
  queue->runAll();
  EXPECT_EQ(index->calls().size(), 6U);
}

TEST_F(Lifetime, OfAReleasedServiceIsNotExtendedByOneQueuedArtist) {
  auto solvane = std::make_shared<Solvane>();
  const std::weak_ptr watch = solvane;
  std::string reported;
  solvane->indexArtist(Artist{testing::ArtistFields{.artistID = "a1"}},
                       [&](std::string identifier) { reported = std::move(identifier); });
  solvane.reset();
  EXPECT_TRUE(watch.expired());
  queue->runAll();
  EXPECT_EQ(reported, "a1");
}

TEST_F(Lifetime, OfAServiceOnTheStackMayEndWhileItsTasksAreQueued) {
  {
    Solvane solvane;
    solvane.indexTracks({TrackFields{.trackID = "a"}}, "domain");
    solvane.deleteTracks({"b"});
    solvane.deleteAllPlaylists();
  }
  EXPECT_EQ(queue->runAll(), 3U);
  ASSERT_EQ(index->items().size(), 1U);
  EXPECT_EQ(index->items().front().domainIdentifier, "domain");
}

TEST_F(Lifetime, OfAServiceMayEndOnAThreadOfItsOwnQueue) {
  const testing::ScopedPlatform posix{{.dispatch = std::make_shared<PosixDispatch>()}};
  for (int round = 0; round < 200; ++round) {
    auto solvane = std::make_shared<Solvane>();
    const std::weak_ptr watch = solvane;
    solvane->indexTracks({TrackFields{}});
    solvane.reset();
    ASSERT_TRUE(PosixDispatch::waitUntilIdle());
    EXPECT_TRUE(watch.expired());
  }
  EXPECT_EQ(index->calls().size(), 200U);
}

TEST_F(Lifetime, OfTasksOfOneServiceOverlapsInTime) {
  struct Meeting : testing::RecordingIndex {
    void indexSearchableItems(std::vector<CSSearchableItem> items,
                              CompletionHandler completionHandler) override {
      everybody.arrive_and_wait();
      RecordingIndex::indexSearchableItems(std::move(items), std::move(completionHandler));
    }
    std::latch everybody{4};
  };
  const auto meeting = std::make_shared<Meeting>();
  const testing::ScopedPlatform posix{
      {.searchableIndex = meeting, .dispatch = std::make_shared<PosixDispatch>()}};
  Solvane solvane;
  for (int i = 0; i < 4; ++i) solvane.indexTracks({TrackFields{}});
  EXPECT_TRUE(PosixDispatch::waitUntilIdle(std::chrono::minutes{1}));
  EXPECT_EQ(meeting->calls().size(), 4U);
}

}  // namespace
}  // namespace solvane

#include <future>
#include <latch>
#include <thread>

#include <solvane/memory/MemoryIndex.hpp>
#include <solvane/posix/PosixDispatch.hpp>
#include <solvane/service/Solvane.hpp>

#include <support/RecordedPlatform.hpp>

namespace solvane {
namespace {

using namespace std::chrono_literals;
using testing::ArtistFields;
using testing::TrackFields;

class HostCallback : public RecordedPlatform {
 protected:
  // What the callbacks use belongs to the tests: none of them may be left when one ends.
  static void drain() { ASSERT_TRUE(PosixDispatch::waitUntilIdle(1min)); }

  std::shared_ptr<MemoryIndex> memory =
      std::make_shared<MemoryIndex>([this] { return calendar->now(); });
  testing::ScopedPlatform posix{
      {.searchableIndex = memory, .dispatch = std::make_shared<PosixDispatch>()}};
};

TEST_F(HostCallback, RunsOnTheWorkQueueAndNotOnTheCallersThread) {
  std::promise<std::thread::id> thread;
  Solvane{}.indexArtist(Artist{ArtistFields{}},
                        [&](const std::string&) { thread.set_value(std::this_thread::get_id()); });
  EXPECT_NE(thread.get_future().get(), std::this_thread::get_id());
  drain();
}

TEST_F(HostCallback, MayCallEveryOperationOfTheService) {
  auto solvane = std::make_shared<Solvane>();
  std::promise<void> done;
  solvane->indexArtist(Artist{ArtistFields{}}, [&](const std::string& identifier) {
    solvane->indexTracks({TrackFields{}});
    solvane->indexAlbums(std::vector<Album>{testing::AlbumFields{}});
    solvane->indexPlaylists(std::vector<Playlist>{testing::PlaylistFields{}});
    solvane->deleteTracks({"nothing"});
    solvane->deleteAllItemsWithDomains({"nothing"});
    solvane->indexArtist(Artist{ArtistFields{.artistID = identifier + "/again"}},
                         [&](const std::string&) { done.set_value(); });
  });
  ASSERT_EQ(done.get_future().wait_for(1min), std::future_status::ready);
  drain();
  EXPECT_EQ(memory->size(), 5U);
}

TEST_F(HostCallback, MayReleaseTheService) {
  auto solvane = std::make_shared<Solvane>();
  const std::weak_ptr watch = solvane;
  std::latch begin{1};
  std::promise<void> done;
  solvane->indexArtist(Artist{ArtistFields{}}, [&](const std::string&) {
    begin.wait();
    solvane.reset();
    done.set_value();
  });
  begin.count_down();
  ASSERT_EQ(done.get_future().wait_for(1min), std::future_status::ready);
  drain();
  EXPECT_TRUE(watch.expired());
}

TEST_F(HostCallback, ThatIsSlowHoldsUpNoOtherWork) {
  Solvane solvane;
  std::latch release{1};
  const unsigned slow = 4 * std::max(2U, std::thread::hardware_concurrency());
  for (unsigned i = 0; i < slow; ++i) {
    solvane.indexArtist(Artist{ArtistFields{}}, [&](const std::string&) { release.wait(); });
  }
  std::promise<void> done;
  Solvane{}.indexArtist(Artist{ArtistFields{.artistID = "quick"}},
                        [&](const std::string&) { done.set_value(); });
  EXPECT_EQ(done.get_future().wait_for(1min), std::future_status::ready);
  release.count_down();
  drain();
}

TEST_F(HostCallback, MayAskForIdlenessWithoutWaitingForItself) {
  std::promise<bool> answer;
  Solvane{}.indexArtist(Artist{ArtistFields{}}, [&](const std::string&) {
    answer.set_value(PosixDispatch::waitUntilIdle());
  });
  EXPECT_FALSE(answer.get_future().get());
  drain();
}

// What an index calls back is the host's too, where the index is the host's own.
TEST_F(HostCallback, OfTheIndexMayCallTheService) {
  struct Republishing : testing::RecordingIndex {
    void deleteSearchableItemsWithIdentifiers(std::vector<std::string> identifiers,
                                              CompletionHandler completionHandler) override {
      RecordingIndex::deleteSearchableItemsWithIdentifiers(
          std::move(identifiers),
          [this, completionHandler = std::move(completionHandler)](auto error) mutable {
            if (completionHandler) completionHandler(std::move(error));
            solvane->indexTracks({TrackFields{}});
          });
    }
    std::shared_ptr<Solvane> solvane;
  };
  const auto republishing = std::make_shared<Republishing>();
  const testing::ScopedPlatform scoped{{.searchableIndex = republishing}};
  republishing->solvane = std::make_shared<Solvane>();
  republishing->solvane->deleteTracks({"a"});
  drain();
  EXPECT_EQ(republishing->items().size(), 1U);
  republishing->solvane.reset();
}

}  // namespace
}  // namespace solvane

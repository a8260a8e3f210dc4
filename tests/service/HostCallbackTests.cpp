#include <functional>
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
    solvane->deleteTracks({"nothing"});
    solvane->deleteArtists({"nothing"});
    solvane->deleteAlbums({"nothing"});
    solvane->removePlaylists({"nothing"});
    solvane->deleteAllItemsWithDomains({"nothing"});
    solvane->indexTracks({TrackFields{}});
    solvane->indexArtists(std::vector<Artist>{ArtistFields{.artistID = "another"}});
    solvane->indexAlbums(std::vector<Album>{testing::AlbumFields{}});
    solvane->indexPlaylists(std::vector<Playlist>{testing::PlaylistFields{}});
    solvane->indexArtist(Artist{ArtistFields{.artistID = identifier + "/again"}},
                         [&](const std::string&) { done.set_value(); });
  });
  ASSERT_EQ(done.get_future().wait_for(1min), std::future_status::ready);
  drain();
  EXPECT_EQ(memory->size(), 6U);
  solvane->deleteAllPlaylists();
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
  const unsigned slow = std::max(2U, std::thread::hardware_concurrency()) + 8;
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

// An index of the host's own, which does what the host wants when a deletion is complete.
class HostIndex final : public testing::RecordingIndex {
 public:
  explicit HostIndex(std::function<void()> whenDeleted) : _whenDeleted(std::move(whenDeleted)) {}

  void deleteSearchableItemsWithIdentifiers(std::vector<std::string> identifiers,
                                            CompletionHandler completionHandler) override {
    RecordingIndex::deleteSearchableItemsWithIdentifiers(
        std::move(identifiers),
        [this, completionHandler = std::move(completionHandler)](auto error) mutable {
          if (completionHandler) completionHandler(std::move(error));
          _whenDeleted();
        });
  }

 private:
  std::function<void()> _whenDeleted;
};

class HostCompletion : public HostCallback {
 protected:
  std::shared_ptr<HostIndex> use(std::function<void()> whenDeleted) {
    auto host = std::make_shared<HostIndex>(std::move(whenDeleted));
    _installed.emplace(Platform{.searchableIndex = host});
    return host;
  }

 private:
  std::optional<testing::ScopedPlatform> _installed;
};

TEST_F(HostCompletion, MayCallTheService) {
  auto solvane = std::make_shared<Solvane>();
  const auto host = use([&] { solvane->indexTracks({TrackFields{}}); });
  solvane->deleteTracks({"a"});
  drain();
  EXPECT_EQ(host->items().size(), 1U);
}

TEST_F(HostCompletion, MayReleaseTheService) {
  auto solvane = std::make_shared<Solvane>();
  const std::weak_ptr watch = solvane;
  std::latch begin{1};
  const auto host = use([&] {
    begin.wait();
    solvane.reset();
  });
  solvane->deleteTracks({"a"});
  begin.count_down();
  drain();
  EXPECT_TRUE(watch.expired());
}

TEST_F(HostCompletion, ThatIsSlowHoldsUpNoOtherWork) {
  std::latch release{1};
  const auto host = use([&] { release.wait(); });
  Solvane solvane;
  for (unsigned i = 0; i < std::max(2U, std::thread::hardware_concurrency()) + 8; ++i) {
    solvane.deleteTracks({"a"});
  }
  std::promise<void> done;
  solvane.indexArtist(Artist{ArtistFields{}}, [&](const std::string&) { done.set_value(); });
  EXPECT_EQ(done.get_future().wait_for(1min), std::future_status::ready);
  release.count_down();
  drain();
}

}  // namespace
}  // namespace solvane

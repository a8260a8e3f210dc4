#pragma once

#include <chrono>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include <solvane/platform/Platform.hpp>
#include <solvane/testing/fields.hpp>

namespace solvane::bench {

/// Takes everything and does nothing with it.
class NullIndex final : public CSSearchableIndex {
 public:
  [[nodiscard]] bool isIndexingAvailable() const noexcept override { return true; }
  void indexSearchableItems(std::vector<CSSearchableItem> items, CompletionHandler) override {
    last = std::move(items);
  }
  void deleteSearchableItemsWithIdentifiers(std::vector<std::string>, CompletionHandler) override {}
  void deleteSearchableItemsWithDomainIdentifiers(std::vector<std::string>,
                                                  CompletionHandler) override {}

  /// Kept, so that the time to release them is not the library's.
  std::vector<CSSearchableItem> last;
};

/// Keeps the one task that was submitted last.
class KeepingDispatch final : public Dispatch {
 public:
  [[nodiscard]] std::shared_ptr<DispatchQueue> makeConcurrentQueue(std::string) override {
    return std::make_shared<Queue>(_last);
  }
  [[nodiscard]] DispatchQueue::Task& last() { return *_last; }

 private:
  struct Queue final : DispatchQueue {
    explicit Queue(std::shared_ptr<Task> into) : last(std::move(into)) {}
    void async(Task task) override { *last = std::move(task); }
    std::shared_ptr<Task> last;
  };

  std::shared_ptr<DispatchQueue::Task> _last = std::make_shared<DispatchQueue::Task>();
};

/// A platform that measures the library alone: the system's own calendar, and the two above.
struct BenchPlatform {
  BenchPlatform() { Platform::install({.searchableIndex = index, .dispatch = dispatch}); }

  std::shared_ptr<NullIndex> index = std::make_shared<NullIndex>();
  std::shared_ptr<KeepingDispatch> dispatch = std::make_shared<KeepingDispatch>();
};

/// Names of the lengths that catalogues have: some fit into a string itself, most do not.
inline std::vector<Track> someTracks(std::size_t count) {
  std::vector<Track> tracks;
  tracks.reserve(count);
  for (std::size_t i = 0; i < count; ++i) {
    const auto number = std::to_string(i);
    tracks.push_back(testing::TrackFields{.trackID = "track/" + number,
                                          .trackName = "The Song Number " + number,
                                          .artistName = "An Artist of Some Fame",
                                          .albumName = "The Collected Recordings",
                                          .albumReleaseDate = Date::fromUnixTime(-327'283'200),
                                          .genreName = "Jazz"});
  }
  return tracks;
}

/// Seconds that `work` takes.
inline double secondsOf(auto&& work) {
  const auto start = std::chrono::steady_clock::now();
  work();
  return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

}  // namespace solvane::bench

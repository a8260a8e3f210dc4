#include <algorithm>
#include <cstddef>
#include <iterator>
#include <memory>
#include <mutex>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include <solvane/platform/Platform.hpp>

#include <gmock/gmock.h>

#include "Publisher.hpp"

namespace solvane::tool {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;

/// Takes a number of operations and refuses those after them.
class LimitedIndex final : public CSSearchableIndex {
 public:
  explicit LimitedIndex(std::size_t limit) : _limit(limit) {}

  [[nodiscard]] bool isIndexingAvailable() const noexcept override { return _limit != 0; }
  void indexSearchableItems(std::vector<CSSearchableItem> items,
                            CompletionHandler completionHandler) override {
    bool full = false;
    {
      const std::lock_guard lock{_mutex};
      full = _sizes.size() == _limit;
      _sizes.push_back(items.size());
      std::ranges::move(items, std::back_inserter(_items));
    }
    completionHandler(full ? std::optional{Error{5, "The disk is full."}} : std::nullopt);
  }
  void deleteSearchableItemsWithIdentifiers(std::vector<std::string> /*identifiers*/,
                                            CompletionHandler completionHandler) override {
    completionHandler(std::nullopt);
  }
  void deleteSearchableItemsWithDomainIdentifiers(std::vector<std::string> /*domains*/,
                                                  CompletionHandler completionHandler) override {
    completionHandler(std::nullopt);
  }

  [[nodiscard]] std::vector<std::size_t> sizes() const {
    const std::lock_guard lock{_mutex};
    return _sizes;
  }
  [[nodiscard]] std::vector<CSSearchableItem> items() const {
    const std::lock_guard lock{_mutex};
    return _items;
  }

 private:
  std::size_t _limit;
  mutable std::mutex _mutex;
  std::vector<std::size_t> _sizes;
  std::vector<CSSearchableItem> _items;
};

std::vector<Playlist> playlists(int count) {
  std::vector<Playlist> result;
  for (int i = 0; i < count; ++i) result.emplace_back(std::to_string(i), "n", std::nullopt);
  return result;
}

Track track(const std::string& id) {
  return {id, "n", 0, 0, "", "", std::nullopt, std::nullopt, std::nullopt};
}

TEST(Publisher, PublishesInOperationsOfAThousandInOrderAndTellsHowFarItIs) {
  const auto index = std::make_shared<LimitedIndex>(10);
  std::vector<std::size_t> progress;
  Publisher publisher{index};
  const auto outcome = publisher.publish({{playlists(2001), std::nullopt}},
                                         [&](std::size_t done) { progress.push_back(done); });
  EXPECT_EQ(outcome.publishedItems, 2001U);
  EXPECT_THAT(index->sizes(), ElementsAre(1000, 1000, 1));
  EXPECT_THAT(progress, ElementsAre(1000, 2000, 2001));
  const auto items = index->items();
  ASSERT_THAT(items, SizeIs(2001));
  for (std::size_t i = 0; i < items.size(); ++i) {
    ASSERT_EQ(items[i].uniqueIdentifier, std::to_string(i));
  }
}

TEST(Publisher, GivesTracksTheirDomain) {
  const auto index = std::make_shared<LimitedIndex>(10);
  Publisher publisher{index};
  const auto outcome = publisher.publish({{std::vector{track("1")}, std::nullopt},
                                          {std::vector{track("2")}, "offline"},
                                          {std::vector{track("3")}, ""}},
                                         [](std::size_t) {});
  EXPECT_THAT(outcome.errors, IsEmpty());
  std::vector<std::string> domains;
  for (const auto& item : index->items()) domains.push_back(item.domainIdentifier);
  EXPECT_THAT(domains, ElementsAre("tracks", "offline", ""));
}

TEST(Publisher, EndsAtTheFirstFailureAndCountsWhatWasTaken) {
  const auto index = std::make_shared<LimitedIndex>(1);
  Publisher publisher{index};
  const auto outcome =
      publisher.publish({{playlists(3000), std::nullopt}, {std::vector{track("t")}, std::nullopt}},
                        [](std::size_t) {});
  EXPECT_EQ(outcome.publishedItems, 1000U);
  EXPECT_THAT(outcome.errors, ElementsAre(Error{5, "The disk is full."}));
  EXPECT_THAT(index->sizes(), ElementsAre(1000, 1000));
}

TEST(Publisher, AnIndexThatTakesNothingIsAnError) {
  Publisher publisher{std::make_shared<LimitedIndex>(0)};
  const auto outcome = publisher.publish({{playlists(1), std::nullopt}}, [](std::size_t) {});
  EXPECT_EQ(outcome.publishedItems, 0U);
  EXPECT_THAT(outcome.errors, SizeIs(1));
}

TEST(Publisher, LetsGoOfTheIndexAtItsEnd) {
  auto index = std::make_shared<LimitedIndex>(10);
  const std::weak_ptr<LimitedIndex> watched = index;
  {
    Publisher publisher{std::exchange(index, nullptr)};
    EXPECT_THAT(publisher.publish({{playlists(1), std::nullopt}}, [](std::size_t) {}).errors,
                IsEmpty());
    EXPECT_FALSE(watched.expired());
  }
  EXPECT_TRUE(watched.expired());
  EXPECT_FALSE(Platform::current().searchableIndex->isIndexingAvailable());
}

}  // namespace
}  // namespace solvane::tool

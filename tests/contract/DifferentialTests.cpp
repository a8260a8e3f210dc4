#include <algorithm>
#include <atomic>
#include <random>

#include <solvane/testing/printing.hpp>

#include <contract/IndexWorlds.hpp>
#include <gtest/gtest.h>

namespace solvane {
namespace {

// The same random changes for every backend, from one seed.
class RandomChanges {
 public:
  explicit RandomChanges(unsigned seed) : _random(seed) {}

  void apply(const std::vector<IndexWorld>& worlds) {
    switch (below(20)) {
      case 0:
        return advance(worlds, std::chrono::seconds{below(200)});
      case 1:
        return clear(worlds);
      case 2:
      case 3:
      case 4:
      case 5:
        return remove(worlds);
      default:
        return publish(worlds);
    }
  }

 private:
  unsigned below(unsigned limit) { return static_cast<unsigned>(_random() % limit); }
  std::string identifier() { return "id/" + std::to_string(below(3000)); }
  std::string domain() { return "domain" + std::to_string(below(6)); }

  CSSearchableItem item(Date now) {
    CSSearchableItem made{identifier(), domain(), CSSearchableItemAttributeSet{"type"}};
    auto& attributes = made.attributeSet;
    if (below(4) != 0) attributes.title = "Title " + std::to_string(below(100));
    if (below(2) != 0) attributes.artist = "Artist " + std::to_string(below(50));
    if (below(2) != 0) attributes.audioTrackNumber = Integer{below(30)} - 5;
    if (below(8) == 0) attributes.thumbnailData = Data(std::vector<std::uint8_t>(below(50), 7));
    if (below(2) != 0) attributes.keywords = {{"k" + std::to_string(below(20)), "k"}};
    if (below(3) != 0) made.expirationDate = now + std::chrono::seconds{below(40'000)};
    return made;
  }

  void publish(const std::vector<IndexWorld>& worlds) {
    std::vector<CSSearchableItem> items;
    for (auto count = below(4); count > 0; --count) {
      items.push_back(item(worlds.front().clock->now()));
    }
    for (const auto& world : worlds) world.index->indexSearchableItems(items, nullptr);
  }

  void remove(const std::vector<IndexWorld>& worlds) {
    std::vector<std::string> identifiers;
    for (auto count = below(4); count > 0; --count) identifiers.push_back(identifier());
    for (const auto& world : worlds) {
      world.index->deleteSearchableItemsWithIdentifiers(identifiers, nullptr);
    }
  }

  void clear(const std::vector<IndexWorld>& worlds) {
    if (below(20) != 0) return publish(worlds);
    const std::vector<std::string> domains{domain(), domain()};
    for (const auto& world : worlds) {
      world.index->deleteSearchableItemsWithDomainIdentifiers(domains, nullptr);
    }
  }

  static void advance(const std::vector<IndexWorld>& worlds, std::chrono::seconds interval) {
    for (const auto& world : worlds) world.clock->advance(interval);
  }

  std::mt19937 _random;
};

TEST(Backends, HoldTheSameAfter100000RandomChanges) {
  std::vector<IndexWorld> worlds;
  for (const auto& backend : workingBackends()) worlds.push_back(backend.make());
  ASSERT_EQ(worlds.size(), 2U);
  RandomChanges changes{2026};
  std::size_t most = 0;
  for (int round = 1; round <= 100'000; ++round) {
    changes.apply(worlds);
    if (round % 5000 != 0) continue;
    for (const auto& world : worlds) {
      std::atomic<bool> done = false;
      world.index->indexSearchableItems({}, [&](const auto&) {
        done = true;
        done.notify_all();
      });
      done.wait(false);
    }
    const auto expected = worlds[0].contents();
    most = std::max(most, expected.size());
    ASSERT_EQ(worlds[1].contents(), expected) << "after " << round << " changes";
  }
  EXPECT_GT(most, 1000U) << "the changes leave too little to compare";
}

}  // namespace
}  // namespace solvane

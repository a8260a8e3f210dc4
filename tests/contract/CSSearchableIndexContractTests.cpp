#include <atomic>
#include <future>
#include <thread>

#include <solvane/testing/printing.hpp>

#include <contract/IndexWorlds.hpp>
#include <contract/backendName.hpp>
#include <gtest/gtest.h>

namespace solvane {
namespace {

using namespace std::chrono_literals;
using namespace std::string_literals;
using Strings = std::vector<std::string>;

CSSearchableItem item(std::string identifier, std::string domain = "tracks",
                      std::string title = "Title") {
  CSSearchableItem made{std::move(identifier), std::move(domain),
                        CSSearchableItemAttributeSet{std::string{kUTTypeAudio}}};
  made.attributeSet.title = std::move(title);
  return made;
}

CSSearchableItem completeItem() {
  auto made = item("complete");
  auto& attributes = made.attributeSet;
  attributes.relatedUniqueIdentifier = "related";
  attributes.artist = "";
  attributes.audioTrackNumber = -1;
  attributes.album = "Älbum\0\xFF"s;
  attributes.musicalGenre = "Genre";
  attributes.thumbnailData = Data{0, 1, 255};
  attributes.recordingDate = Date::fromUnixTime(-62'135'596'800, 1);
  attributes.contentDescription = "Description";
  attributes.keywords = Strings{"", "a", "a", "日本"};
  made.expirationDate = Date::fromUnixTime(64'092'211'200, 999'999'999);
  return made;
}

// Every backend, each through the same operations, waiting for the completion of each.
class Contract : public ::testing::TestWithParam<IndexBackend> {
 protected:
  using Outcome = std::optional<Error>;

  Outcome index(std::vector<CSSearchableItem> items) {
    return outcomeOf(
        [&](auto done) { world.index->indexSearchableItems(std::move(items), std::move(done)); });
  }
  Outcome deleteIdentifiers(Strings identifiers) {
    return outcomeOf([&](auto done) {
      world.index->deleteSearchableItemsWithIdentifiers(std::move(identifiers), std::move(done));
    });
  }
  Outcome deleteDomains(Strings domains) {
    return outcomeOf([&](auto done) {
      world.index->deleteSearchableItemsWithDomainIdentifiers(std::move(domains), std::move(done));
    });
  }

  [[nodiscard]] Strings identifiers() const {
    Strings list;
    for (const auto& shown : world.contents()) list.push_back(shown.uniqueIdentifier);
    return list;
  }

  IndexWorld world = GetParam().make();

 private:
  static Outcome outcomeOf(const auto& operation) {
    std::promise<Outcome> promise;
    auto outcome = promise.get_future();
    operation([promise = std::move(promise)](Outcome error) mutable {
      promise.set_value(std::move(error));
    });
    return outcome.get();
  }
};

class AnyIndex : public Contract {};

TEST_P(AnyIndex, IsAvailable) { EXPECT_TRUE(world.index->isIndexingAvailable()); }

TEST_P(AnyIndex, CompletesEveryChangeExactlyOnce) {
  std::atomic<int> completions = 0;
  std::atomic<int> waiting = 300;
  std::promise<void> all;
  const auto count = [&](const auto&) {
    ++completions;
    if (--waiting == 0) all.set_value();
  };
  for (int i = 0; i < 100; ++i) {
    world.index->indexSearchableItems({item(std::to_string(i))}, count);
    world.index->deleteSearchableItemsWithIdentifiers({std::to_string(i)}, count);
    world.index->deleteSearchableItemsWithDomainIdentifiers({"tracks"}, count);
  }
  all.get_future().wait();
  index({});
  EXPECT_EQ(completions, 300);
}

TEST_P(AnyIndex, CompletesEmptyChanges) {
  const bool fails = index({}).has_value();
  EXPECT_EQ(deleteIdentifiers({}).has_value(), fails);
  EXPECT_EQ(deleteDomains({}).has_value(), fails);
}

TEST_P(AnyIndex, AcceptsEmptyCompletions) {
  world.index->indexSearchableItems({item("a")}, nullptr);
  world.index->deleteSearchableItemsWithIdentifiers({"a"}, nullptr);
  world.index->deleteSearchableItemsWithDomainIdentifiers({"tracks"}, nullptr);
  index({});
  EXPECT_TRUE(identifiers().empty());
}

TEST_P(AnyIndex, LetsACompletionChangeIt) {
  std::promise<void> done;
  auto finished = done.get_future();
  world.index->indexSearchableItems({item("a")}, [&](const auto&) {
    world.index->indexSearchableItems({item("b")}, [&](const auto&) {
      world.index->deleteSearchableItemsWithIdentifiers({"a", "b"},
                                                        [&](const auto&) { done.set_value(); });
    });
  });
  ASSERT_EQ(finished.wait_for(1min), std::future_status::ready);
  index({});
  EXPECT_TRUE(identifiers().empty());
}

TEST_P(AnyIndex, ReleasesACompletionAfterItWasCalled) {
  auto held = std::make_shared<int>();
  const std::weak_ptr watch = held;
  world.index->indexSearchableItems({}, [held = std::move(held)](const auto&) {});
  index({});
  index({});
  EXPECT_TRUE(watch.expired());
}

class WorkingIndex : public Contract {};

TEST_P(WorkingIndex, IsEmptyAtFirst) { EXPECT_TRUE(world.contents().empty()); }

TEST_P(WorkingIndex, KeepsEveryAttributeExactly) {
  EXPECT_EQ(index({completeItem(), item("plain")}), std::nullopt);
  EXPECT_EQ(world.contents(), (std::vector{completeItem(), item("plain")}));
}

TEST_P(WorkingIndex, DistinguishesAbsentFromEmptyKeywordsAndThumbnails) {
  auto empty = item("empty");
  empty.attributeSet.keywords.emplace();
  empty.attributeSet.thumbnailData = Data{};
  index({empty, item("none")});
  EXPECT_EQ(world.contents(), (std::vector{empty, item("none")}));
}

TEST_P(WorkingIndex, ReplacesAnItemByIdentifier) {
  index({item("a", "tracks", "old"), item("b")});
  index({item("a", "tracks", "new")});
  EXPECT_EQ(world.contents(), (std::vector{item("a", "tracks", "new"), item("b")}));
}

TEST_P(WorkingIndex, ReplacesAnItemOfAnotherDomain) {
  index({item("a", "tracks")});
  index({item("a", "albums")});
  EXPECT_EQ(world.contents(), (std::vector{item("a", "albums")}));
  deleteDomains({"tracks"});
  EXPECT_EQ(identifiers(), Strings{"a"});
}

TEST_P(WorkingIndex, KeepsTheLastOfTheItemsThatShareAnIdentifierInOneList) {
  index({item("a", "tracks", "one"), item("a", "albums", "two"), item("a", "tracks", "three")});
  EXPECT_EQ(world.contents(), (std::vector{item("a", "tracks", "three")}));
}

TEST_P(WorkingIndex, ComparesIdentifiersByteForByte) {
  const Strings all{""s, "A"s, "a"s, "a "s, "a\0b"s, "a\0c"s, "\xC3\xA9"s, "e\xCC\x81"s, "\xFF"s};
  std::vector<CSSearchableItem> items;
  for (const auto& identifier : all) items.push_back(item(identifier));
  index(items);
  EXPECT_EQ(identifiers().size(), all.size());
  deleteIdentifiers({"a\0b"s, "", "\xFF"});
  EXPECT_EQ(identifiers(), (Strings{"A", "a", "a\0c"s, "a ", "e\xCC\x81", "\xC3\xA9"}));
}

TEST_P(WorkingIndex, DeletesByIdentifierWhateverTheDomainAndIgnoresUnknownOnes) {
  index({item("a", "tracks"), item("b", "custom"), item("c", "tracks")});
  EXPECT_EQ(deleteIdentifiers({"b", "unknown", "a", "a"}), std::nullopt);
  EXPECT_EQ(identifiers(), Strings{"c"});
}

TEST_P(WorkingIndex, DeletesDomainsComparedWholeAndByteForByte) {
  index({item("a", "tracks"), item("b", "tracks2"), item("c", "Tracks"), item("d", ""),
         item("e", "tracks\0x"s), item("f", "track")});
  EXPECT_EQ(deleteDomains({"tracks", "unknown"}), std::nullopt);
  EXPECT_EQ(identifiers(), (Strings{"b", "c", "d", "e", "f"}));
  deleteDomains({""});
  EXPECT_EQ(identifiers(), (Strings{"b", "c", "e", "f"}));
}

TEST_P(WorkingIndex, DeletesSeveralDomainsAtOnce) {
  index({item("a", "tracks"), item("b", "albums"), item("c", "artists")});
  deleteDomains({"tracks", "artists", "tracks"});
  EXPECT_EQ(identifiers(), Strings{"b"});
}

TEST_P(WorkingIndex, MayBeFilledAgainAfterADomainWasCleared) {
  index({item("a", "tracks", "old")});
  deleteDomains({"tracks"});
  index({item("a", "tracks", "new")});
  EXPECT_EQ(world.contents(), (std::vector{item("a", "tracks", "new")}));
}

TEST_P(WorkingIndex, ShowsAnItemUntilItsExpirationDateAndNotFromItOn) {
  auto expiring = item("a");
  expiring.expirationDate = world.clock->now() + 10s;
  index({expiring, item("b")});
  world.clock->advance(10s - 1ns);
  EXPECT_EQ(identifiers(), (Strings{"a", "b"}));
  world.clock->advance(1ns);
  EXPECT_EQ(identifiers(), Strings{"b"});
}

TEST_P(WorkingIndex, NeverShowsAnItemThatIsPublishedExpired) {
  auto expired = item("a");
  expired.expirationDate = world.clock->now();
  EXPECT_EQ(index({expired}), std::nullopt);
  EXPECT_TRUE(identifiers().empty());
}

TEST_P(WorkingIndex, ShowsAnItemPublishedAgainByItsNewExpirationDate) {
  auto short_ = item("a");
  short_.expirationDate = world.clock->now() + 10s;
  auto long_ = item("a");
  long_.expirationDate = world.clock->now() + 20s;
  index({short_});
  index({long_});
  world.clock->advance(15s);
  EXPECT_EQ(identifiers(), Strings{"a"});
  index({short_});
  EXPECT_TRUE(identifiers().empty());
}

TEST_P(WorkingIndex, TakesAnExpiredItemThatIsPublishedAgain) {
  auto expiring = item("a");
  expiring.expirationDate = world.clock->now() + 10s;
  index({expiring});
  world.clock->advance(20s);
  index({item("a")});
  EXPECT_EQ(identifiers(), Strings{"a"});
}

TEST_P(WorkingIndex, MakesTheChangesOfOneThreadInTheirOrder) {
  for (int i = 0; i < 50; ++i) {
    world.index->indexSearchableItems({item("a", "tracks", std::to_string(i))}, nullptr);
    if (i % 2 == 0) world.index->deleteSearchableItemsWithIdentifiers({"a"}, nullptr);
  }
  index({});
  EXPECT_EQ(world.contents(), (std::vector{item("a", "tracks", "49")}));
}

TEST_P(WorkingIndex, TakesChangesFromManyThreadsAtOnce) {
  {
    std::vector<std::jthread> threads;
    for (int t = 0; t < 8; ++t) {
      threads.emplace_back([this, t] {
        for (int i = 0; i < 50; ++i) {
          const auto name = std::to_string(t) + "/" + std::to_string(i);
          world.index->indexSearchableItems({item(name), item(name + "/gone")}, nullptr);
          world.index->deleteSearchableItemsWithIdentifiers({name + "/gone"}, nullptr);
        }
      });
    }
  }
  index({});
  EXPECT_EQ(world.contents().size(), 400U);
}

class FailingIndexContract : public Contract {};

TEST_P(FailingIndexContract, GivesEveryCompletionItsError) {
  EXPECT_TRUE(index({item("a")}).has_value());
  EXPECT_TRUE(deleteIdentifiers({"a"}).has_value());
  EXPECT_TRUE(deleteDomains({"tracks"}).has_value());
}

std::vector<IndexBackend> everyBackend() {
  auto backends = workingBackends();
  backends.push_back(failingBackend());
  return backends;
}

INSTANTIATE_TEST_SUITE_P(Every, AnyIndex, ::testing::ValuesIn(everyBackend()), backendName);
INSTANTIATE_TEST_SUITE_P(Every, WorkingIndex, ::testing::ValuesIn(workingBackends()), backendName);
INSTANTIATE_TEST_SUITE_P(Every, FailingIndexContract, ::testing::Values(failingBackend()),
                         backendName);

}  // namespace
}  // namespace solvane

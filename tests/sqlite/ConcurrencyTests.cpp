#include <atomic>
#include <thread>

#include "SQLiteIndexTest.hpp"

namespace solvane {
namespace {

using namespace std::chrono_literals;
using Identifiers = std::vector<std::string>;

using SQLiteIndexConcurrency = SQLiteIndexTest;

TEST_F(SQLiteIndexConcurrency, ServesManyThreadsAtOnce) {
  const auto index = open();
  std::atomic<int> failures = 0;
  const auto work = [&](int thread) {
    const auto domain = "domain " + std::to_string(thread);
    for (int i = 0; i < 50; ++i) {
      const auto identifier = std::to_string(thread) + "/" + std::to_string(i);
      const auto count = [&](std::optional<Error> error) { failures += error.has_value(); };
      index->indexSearchableItems({makeItem(identifier, domain, "Common Title")}, count);
      if (i % 5 == 4) index->deleteSearchableItemsWithIdentifiers({identifier}, count);
      failures += !index->search("common ti") + !index->find(identifier) + !index->statistics();
    }
  };
  std::vector<std::thread> threads;
  for (int thread = 0; thread < 8; ++thread) threads.emplace_back(work, thread);
  for (auto& thread : threads) thread.join();
  ASSERT_TRUE(index->waitUntilIdle());
  EXPECT_EQ(failures, 0);
  EXPECT_EQ(index->statistics()->items, 8u * 40);
  EXPECT_EQ(found(*index, "common ti", {.limit = 1000}).size(), 8u * 40);
}

TEST_F(SQLiteIndexConcurrency, ShowsABatchWholeOrNotAtAll) {
  const auto index = open();
  std::atomic<bool> done = false;
  std::thread writer{[&] {
    for (int round = 0; round < 60; ++round) {
      put(*index, {makeTrack("left"), makeTrack("right")});
      removeItems(*index, {"track left", "track right"});
    }
    done = true;
  }};
  while (!done) {
    const auto count = listed(*index).size();
    EXPECT_TRUE(count == 0 || count == 2) << count;
  }
  writer.join();
}

TEST_F(SQLiteIndexConcurrency, ReadsWhileAnotherProcessWrites) {
  const auto index = open();
  ASSERT_EQ(put(*index, {makeTrack("a")}), std::nullopt);
  RawDatabase other{file()};
  other.execute("BEGIN IMMEDIATE; DELETE FROM items");
  EXPECT_EQ(listed(*index), Identifiers{"track a"});
  EXPECT_EQ(found(*index, "a"), Identifiers{"track a"});
  other.execute("ROLLBACK");
}

TEST_F(SQLiteIndexConcurrency, SharesTheFileWithAnotherIndex) {
  const auto left = open();
  const auto right = open();
  for (int i = 0; i < 20; ++i) {
    ASSERT_EQ(put(*left, {makeItem("left" + std::to_string(i), "both", "Shared")}), std::nullopt);
    ASSERT_EQ(put(*right, {makeItem("right" + std::to_string(i), "both", "Shared")}), std::nullopt);
  }
  EXPECT_EQ(found(*left, "shared", {.limit = 100}).size(), 40u);
  EXPECT_EQ(listed(*left), listed(*right));
  ASSERT_EQ(removeItems(*left, {"right0"}), std::nullopt);
  EXPECT_EQ(*right->find("right0"), std::nullopt);
}

TEST_F(SQLiteIndexConcurrency, IsMadeOnceByThoseWhoOpenItAtTheSameTime) {
  for (int round = 0; round < 10; ++round) {
    const auto path = folder.path() / std::to_string(round) / "index.db";
    std::atomic<int> failures = 0;
    std::vector<std::thread> threads;
    for (int i = 0; i < 4; ++i) {
      threads.emplace_back([&, i] {
        const auto opened = SQLiteIndex::open(path);
        if (!opened || put(**opened, {makeItem(std::to_string(i), "d")})) ++failures;
      });
    }
    for (auto& thread : threads) thread.join();
    EXPECT_EQ(failures, 0);
    EXPECT_EQ(RawDatabase{path}.integer("SELECT count(*) FROM items"), 4);
  }
}

}  // namespace
}  // namespace solvane

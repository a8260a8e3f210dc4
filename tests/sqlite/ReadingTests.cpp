#include "SQLiteIndexTest.hpp"

namespace solvane {
namespace {

using namespace std::chrono_literals;
using Identifiers = std::vector<std::string>;

using SQLiteIndexReading = SQLiteIndexTest;

TEST_F(SQLiteIndexReading, FindsNothingInAnEmptyIndex) {
  const auto index = open();
  EXPECT_EQ(*index->find("1"), std::nullopt);
  EXPECT_EQ(listed(*index), Identifiers{});
  EXPECT_EQ(found(*index, "a"), Identifiers{});
  EXPECT_EQ(index->statistics()->items, 0u);
  EXPECT_TRUE(index->isIndexingAvailable());
}

TEST_F(SQLiteIndexReading, ListsByDomainThenByEntry) {
  const auto index = open();
  ASSERT_EQ(put(*index, {makeItem("4", "b"), makeItem("2", "a"), makeItem("5", "b"),
                         makeItem("1", "a"), makeItem("3", "a\x01")}),
            std::nullopt);
  EXPECT_EQ(listed(*index), (Identifiers{"2", "1", "3", "4", "5"}));
}

TEST_F(SQLiteIndexReading, ListsAReplacedItemInItsOldPlace) {
  const auto index = open();
  ASSERT_EQ(put(*index, {makeItem("1", "a"), makeItem("2", "a")}), std::nullopt);
  ASSERT_EQ(put(*index, {makeItem("1", "a", "New Title")}), std::nullopt);
  EXPECT_EQ(listed(*index), (Identifiers{"1", "2"}));
}

TEST_F(SQLiteIndexReading, ListsPageByPage) {
  const auto index = open();
  std::vector<CSSearchableItem> items;
  for (int i = 10; i < 20; ++i) items.push_back(makeItem(std::to_string(i), i < 15 ? "a" : "b"));
  ASSERT_EQ(put(*index, std::move(items)), std::nullopt);
  EXPECT_EQ(listed(*index, {.limit = 3, .offset = 4}), (Identifiers{"14", "15", "16"}));
  EXPECT_EQ(listed(*index, {.limit = 3, .offset = 9}), Identifiers{"19"});
  EXPECT_EQ(listed(*index, {.limit = 3, .offset = 10}), Identifiers{});
  EXPECT_EQ(listed(*index, {.limit = 0}), Identifiers{});
  EXPECT_EQ(listed(*index, {.limit = SIZE_MAX}).size(), 10u);
  EXPECT_EQ(listed(*index, {.offset = SIZE_MAX}), Identifiers{});
}

TEST_F(SQLiteIndexReading, ListsOneDomain) {
  const auto index = open();
  ASSERT_EQ(put(*index, {makeItem("1", "a"), makeItem("2", ""), makeItem("3", "A")}), std::nullopt);
  EXPECT_EQ(listed(*index, {.domainIdentifier = "a"}), Identifiers{"1"});
  EXPECT_EQ(listed(*index, {.domainIdentifier = ""}), Identifiers{"2"});
  EXPECT_EQ(listed(*index, {.domainIdentifier = "unknown"}), Identifiers{});
}

TEST_F(SQLiteIndexReading, CountsWhatItShows) {
  const auto index = open();
  std::vector<CSSearchableItem> items{makeItem("1", "a"), makeItem("2", "a"), makeItem("3", "b"),
                                      makeItem("4", "c"), makeItem("5", "b")};
  items[0].expirationDate = noon + 2h;
  items[2].expirationDate = noon + 1h + 7ns;
  items[3].expirationDate = noon;
  ASSERT_EQ(put(*index, std::move(items)), std::nullopt);
  const auto statistics = index->statistics();
  ASSERT_TRUE(statistics);
  EXPECT_EQ(statistics->items, 4u);
  EXPECT_EQ(statistics->itemsPerDomain, (std::map<std::string, std::size_t>{{"a", 2}, {"b", 2}}));
  EXPECT_EQ(statistics->firstExpiration, noon + 1h + 7ns);
  EXPECT_EQ(statistics->lastExpiration, noon + 2h);
}

TEST_F(SQLiteIndexReading, KnowsNoExpirationWhereNothingExpires) {
  const auto index = open();
  ASSERT_EQ(put(*index, {makeItem("1", "a")}), std::nullopt);
  EXPECT_EQ(index->statistics()->firstExpiration, std::nullopt);
  EXPECT_EQ(index->statistics()->lastExpiration, std::nullopt);
}

TEST_F(SQLiteIndexReading, CountsTheBytesOfTheFileAndItsLog) {
  const auto index = open();
  ASSERT_EQ(put(*index, {makeItem("1", "a")}), std::nullopt);
  const auto size = std::filesystem::file_size(file());
  const auto logSize = std::filesystem::file_size(file().string() + "-wal");
  EXPECT_GT(logSize, 0u);
  EXPECT_EQ(index->statistics()->bytesOnDisk, size + logSize);
}

}  // namespace
}  // namespace solvane

#include <thread>

#include "SQLiteIndexTest.hpp"

namespace solvane {
namespace {

using namespace std::chrono_literals;
using Identifiers = std::vector<std::string>;

class SQLiteIndexExpiration : public SQLiteIndexTest {
 protected:
  static CSSearchableItem expiring(std::string title, std::optional<Date> date) {
    auto item = makeTrack(std::move(title));
    item.expirationDate = date;
    return item;
  }

  /// Looks into the file until nothing is left in it, or for a minute.
  [[nodiscard]] bool isSoonEmpty() const {
    const auto deadline = std::chrono::steady_clock::now() + 1min;
    while (rowsInFile() > 0) {
      if (std::chrono::steady_clock::now() > deadline) return false;
      std::this_thread::yield();
    }
    return true;
  }

  [[nodiscard]] std::int64_t rowsInFile() const {
    return RawDatabase{file()}.integer("SELECT count(*) FROM items");
  }
};

TEST_F(SQLiteIndexExpiration, HidesAnItemFromTheInstantOn) {
  const auto index = open();
  ASSERT_EQ(put(*index, {expiring("mortal", noon + 1h), makeTrack("lasting")}), std::nullopt);
  clock.set(noon + 1h - 1ns);
  EXPECT_EQ(found(*index, "mortal"), Identifiers{"track mortal"});
  clock.set(noon + 1h);
  EXPECT_EQ(found(*index, "mortal"), Identifiers{});
  EXPECT_EQ(*index->find("track mortal"), std::nullopt);
  EXPECT_EQ(listed(*index), Identifiers{"track lasting"});
  EXPECT_EQ(index->statistics()->items, 1u);
}

TEST_F(SQLiteIndexExpiration, NeverShowsWhatHadExpiredBefore) {
  const auto index = open();
  ASSERT_EQ(put(*index, {expiring("a", noon), expiring("b", noon - 1ns),
                         expiring("c", Date::fromUnixTime(INT64_MIN)), expiring("d", noon + 1ns)}),
            std::nullopt);
  EXPECT_EQ(listed(*index), Identifiers{"track d"});
}

TEST_F(SQLiteIndexExpiration, RemovesItFromTheFileWithTheNextChange) {
  const auto index = open();
  ASSERT_EQ(put(*index, {expiring("mortal", noon + 1h)}), std::nullopt);
  clock.set(noon + 1h);
  ASSERT_EQ(put(*index, {makeTrack("other")}), std::nullopt);
  RawDatabase raw{file()};
  EXPECT_EQ(raw.integer("SELECT count(*) FROM items"), 1);
  EXPECT_EQ(raw.integer("SELECT count(*) FROM texts WHERE texts MATCH 'mortal'"), 0);
}

TEST_F(SQLiteIndexExpiration, RemovesItFromTheFileByItself) {
  const auto index = open();
  ASSERT_EQ(put(*index, {expiring("mortal", noon + 24h)}), std::nullopt);
  EXPECT_EQ(rowsInFile(), 1);
  clock.set(noon + 24h);
  EXPECT_TRUE(isSoonEmpty());
}

TEST_F(SQLiteIndexExpiration, RemovesWhatExpiredWhileTheIndexWasClosed) {
  ASSERT_EQ(put(*open(), {expiring("mortal", noon + 1h)}), std::nullopt);
  clock.set(noon + 2h);
  const auto index = open();
  EXPECT_TRUE(isSoonEmpty());
}

TEST_F(SQLiteIndexExpiration, RemovesManyMoreThanOneTransactionTakes) {
  const auto index = open();
  std::vector<CSSearchableItem> items;
  for (int i = 0; i < 3500; ++i) items.push_back(expiring(std::to_string(i), noon + 1h));
  ASSERT_EQ(put(*index, std::move(items)), std::nullopt);
  clock.set(noon + 1h);
  ASSERT_EQ(put(*index, {}), std::nullopt);
  EXPECT_TRUE(isSoonEmpty());
}

TEST_F(SQLiteIndexExpiration, IsForgottenWhenTheItemIsIndexedAgain) {
  const auto index = open();
  ASSERT_EQ(put(*index, {expiring("revived", noon + 1h)}), std::nullopt);
  clock.set(noon + 2h);
  ASSERT_EQ(put(*index, {expiring("revived", noon + 3h)}), std::nullopt);
  EXPECT_EQ(found(*index, "revived"), Identifiers{"track revived"});
  ASSERT_EQ(put(*index, {expiring("revived", std::nullopt)}), std::nullopt);
  clock.set(noon + 24h * 365);
  EXPECT_EQ(found(*index, "revived"), Identifiers{"track revived"});
}

TEST_F(SQLiteIndexExpiration, LeavesRoomForWhatIsAliveInASearch) {
  const auto index = open();
  std::vector<CSSearchableItem> items{makeItem("alive", "tracks", "Song")};
  for (int i = 0; i < 200; ++i) {
    items.push_back(makeItem(std::to_string(i), "tracks", "Song"));
    items.back().expirationDate = noon + 1h;
  }
  ASSERT_EQ(put(*index, std::move(items)), std::nullopt);
  clock.set(noon + 1h);
  EXPECT_EQ(found(*index, "song", {.limit = 1}), Identifiers{"alive"});
}

}  // namespace
}  // namespace solvane

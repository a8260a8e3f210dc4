#include "RandomAttributes.hpp"
#include "SQLiteIndexTest.hpp"

namespace solvane {
namespace {

using std::string_literals::operator""s;
using Identifiers = std::vector<std::string>;

using SQLiteIndexChanges = SQLiteIndexTest;

TEST_F(SQLiteIndexChanges, GiveEveryItemBackExactly) {
  RandomAttributes random{4711};
  const auto index = open();
  std::vector<CSSearchableItem> items;
  for (int i = 0; i < 300; ++i) {
    items.push_back(
        {"item " + std::to_string(i) + random.string(), random.string(), random.next()});
    if (i % 2 == 0) items.back().expirationDate = noon + std::chrono::nanoseconds{i + 1};
  }
  ASSERT_EQ(put(*index, items), std::nullopt);
  for (const auto& item : items) {
    const auto found = index->find(item.uniqueIdentifier);
    ASSERT_TRUE(found);
    ASSERT_EQ(*found, item);
  }
}

TEST_F(SQLiteIndexChanges, TellAnEmptyThumbnailFromNone) {
  const auto index = open();
  auto item = makeTrack("a");
  item.attributeSet.thumbnailData = Data{};
  ASSERT_EQ(put(*index, {item, makeTrack("b")}), std::nullopt);
  EXPECT_EQ((*index->find("track a"))->attributeSet.thumbnailData, Data{});
  EXPECT_EQ((*index->find("track b"))->attributeSet.thumbnailData, std::nullopt);
}

TEST_F(SQLiteIndexChanges, SurviveReopening) {
  auto item = makeTrack("So What");
  item.attributeSet.thumbnailData = Data{1, 2, 3};
  item.expirationDate = noon + std::chrono::nanoseconds{1};
  ASSERT_EQ(put(*open(), {item}), std::nullopt);
  const auto index = open();
  EXPECT_EQ(**index->find("track So What"), item);
  EXPECT_EQ(found(*index, "so wh"), Identifiers{"track So What"});
}

TEST_F(SQLiteIndexChanges, ReplaceWhatStoodUnderTheIdentifier) {
  const auto index = open();
  ASSERT_EQ(put(*index, {makeItem("1", "tracks", "Before")}), std::nullopt);
  ASSERT_EQ(put(*index, {makeItem("1", "tracks", "After")}), std::nullopt);
  EXPECT_EQ((*index->find("1"))->attributeSet.title, "After");
  EXPECT_EQ(found(*index, "before"), Identifiers{});
  EXPECT_EQ(found(*index, "after"), Identifiers{"1"});
}

TEST_F(SQLiteIndexChanges, ReplaceAThumbnailOrDateAlone) {
  const auto index = open();
  auto item = makeTrack("a");
  ASSERT_EQ(put(*index, {item}), std::nullopt);
  item.attributeSet.thumbnailData = Data{9};
  ASSERT_EQ(put(*index, {item}), std::nullopt);
  EXPECT_EQ(**index->find("track a"), item);
  item.expirationDate = noon + std::chrono::hours{1};
  ASSERT_EQ(put(*index, {item}), std::nullopt);
  EXPECT_EQ(**index->find("track a"), item);
  item.expirationDate.reset();
  ASSERT_EQ(put(*index, {item}), std::nullopt);
  EXPECT_EQ(**index->find("track a"), item);
  EXPECT_EQ(found(*index, "a"), Identifiers{"track a"});
}

TEST_F(SQLiteIndexChanges, MoveAnItemToAnotherDomain) {
  const auto index = open();
  ASSERT_EQ(put(*index, {makeItem("1", "tracks", "Same")}), std::nullopt);
  ASSERT_EQ(put(*index, {makeItem("1", "albums", "Same")}), std::nullopt);
  EXPECT_EQ((*index->find("1"))->domainIdentifier, "albums");
  EXPECT_EQ(found(*index, "same"), Identifiers{"1"});
  EXPECT_EQ(index->statistics()->itemsPerDomain,
            (std::map<std::string, std::size_t>{{"albums", 1}}));
  ASSERT_EQ(removeDomains(*index, {"tracks"}), std::nullopt);
  EXPECT_EQ(listed(*index), Identifiers{"1"});
}

TEST_F(SQLiteIndexChanges, KeepTheLastOfAListThatSharesAnIdentifier) {
  const auto index = open();
  ASSERT_EQ(put(*index, {makeItem("1", "tracks", "First"), makeItem("1", "albums", "Second"),
                         makeItem("1", "tracks", "Third")}),
            std::nullopt);
  EXPECT_EQ(listed(*index), Identifiers{"1"});
  EXPECT_EQ((*index->find("1"))->attributeSet.title, "Third");
  EXPECT_EQ(found(*index, "first"), Identifiers{});
  EXPECT_EQ(found(*index, "second"), Identifiers{});
  EXPECT_EQ(found(*index, "third"), Identifiers{"1"});
}

TEST_F(SQLiteIndexChanges, DeleteByIdentifierWhateverTheDomain) {
  const auto index = open();
  ASSERT_EQ(
      put(*index, {makeItem("1", "a", "x"), makeItem("2", "b", "x"), makeItem("3", "b", "x")}),
      std::nullopt);
  ASSERT_EQ(removeItems(*index, {"1", "2", "unknown", "1"}), std::nullopt);
  EXPECT_EQ(listed(*index), Identifiers{"3"});
  EXPECT_EQ(found(*index, "x"), Identifiers{"3"});
}

TEST_F(SQLiteIndexChanges, DeleteDomainsComparedWholeAndByteForByte) {
  const auto index = open();
  const Identifiers domains{"tracks",    "track", "tracks2", "Tracks",   "tracks\0"s,
                            "\0tracks"s, "",      "\xff",    "\xff\xfe", "tracks "};
  for (const auto& doomed : domains) {
    std::vector<CSSearchableItem> items;
    for (const auto& domain : domains) items.push_back(makeItem("in " + domain, domain, "x"));
    ASSERT_EQ(put(*index, items), std::nullopt);
    ASSERT_EQ(removeDomains(*index, {doomed}), std::nullopt);
    EXPECT_EQ(listed(*index).size(), domains.size() - 1);
    EXPECT_EQ(*index->find("in " + doomed), std::nullopt);
  }
}

TEST_F(SQLiteIndexChanges, KeepIdentifiersApartByteForByte) {
  const auto index = open();
  const Identifiers identifiers{"a",   "A",        "a\0"s,      "a\0b"s, "",
                                "\0"s, "\xc3\xa9", "e\xcc\x81", "\xff"};
  std::vector<CSSearchableItem> items;
  for (const auto& identifier : identifiers) items.push_back(makeItem(identifier, "d", identifier));
  ASSERT_EQ(put(*index, items), std::nullopt);
  EXPECT_EQ(listed(*index), identifiers);
  ASSERT_EQ(removeItems(*index, {"a\0"s}), std::nullopt);
  EXPECT_EQ(listed(*index).size(), identifiers.size() - 1);
  EXPECT_EQ(*index->find("a\0"s), std::nullopt);
}

TEST_F(SQLiteIndexChanges, AreMadeInTheOrderInWhichTheyAreHandedOver) {
  const auto index = open();
  for (int i = 0; i < 100; ++i) {
    index->indexSearchableItems({makeItem("1", "tracks", "Kept")}, nullptr);
    index->deleteSearchableItemsWithIdentifiers({"1"}, nullptr);
    index->indexSearchableItems({makeItem("2", "albums", "Gone")}, nullptr);
    index->deleteSearchableItemsWithDomainIdentifiers({"albums"}, nullptr);
  }
  ASSERT_EQ(put(*index, {makeItem("1", "tracks", "Kept")}), std::nullopt);
  EXPECT_EQ(listed(*index), Identifiers{"1"});
  EXPECT_EQ(found(*index, "kept"), Identifiers{"1"});
  EXPECT_EQ(found(*index, "gone"), Identifiers{});
}

TEST_F(SQLiteIndexChanges, WithNothingInThemSucceed) {
  const auto index = open();
  EXPECT_EQ(put(*index, {}), std::nullopt);
  EXPECT_EQ(removeItems(*index, {}), std::nullopt);
  EXPECT_EQ(removeDomains(*index, {}), std::nullopt);
}

TEST_F(SQLiteIndexChanges, LeaveNoNameOfAnEmptyDomainBehind) {
  const auto index = open();
  ASSERT_EQ(put(*index, {makeItem("1", "secret", "x"), makeItem("2", "open", "x")}), std::nullopt);
  ASSERT_EQ(removeItems(*index, {"1"}), std::nullopt);
  EXPECT_EQ(RawDatabase{file()}.integer("SELECT count(*) FROM domains"), 1);
}

// The text index is told what to forget; it contradicts itself if that is not what it learned.
TEST_F(SQLiteIndexChanges, KeepTheTextIndexTrueThroughAnySequence) {
  RandomAttributes random{31337};
  const auto index = open();
  for (int round = 0; round < 60; ++round) {
    std::vector<CSSearchableItem> items;
    for (int i = 0; i < 20; ++i) {
      items.push_back(
          {std::to_string(random.number(60)), std::to_string(random.number(3)), random.next()});
    }
    index->indexSearchableItems(items, nullptr);
    index->deleteSearchableItemsWithIdentifiers({std::to_string(random.number(60))}, nullptr);
    if (round % 7 == 0) {
      index->deleteSearchableItemsWithDomainIdentifiers({std::to_string(random.number(3))},
                                                        nullptr);
    }
  }
  ASSERT_EQ(removeDomains(*index, {"0", "1", "2", "3"}), std::nullopt);
  ASSERT_EQ(listed(*index), Identifiers{});
  RawDatabase raw{file()};
  raw.execute("INSERT INTO texts(texts) VALUES('integrity-check')");
  raw.execute("INSERT INTO texts(texts) VALUES('optimize')");
  raw.execute("CREATE VIRTUAL TABLE temp.vocabulary USING fts5vocab(main, texts, row)");
  EXPECT_EQ(raw.integer("SELECT count(*) FROM temp.vocabulary"), 0);
  EXPECT_EQ(raw.text("PRAGMA integrity_check"), "ok");
}

}  // namespace
}  // namespace solvane

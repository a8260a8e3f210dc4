#include "SQLiteIndexTest.hpp"

namespace solvane {
namespace {

using Identifiers = std::vector<std::string>;

using SQLiteIndexRanking = SQLiteIndexTest;

CSSearchableItem by(CSSearchableItem item, std::string artist) {
  item.attributeSet.artist = std::move(artist);
  return item;
}

TEST_F(SQLiteIndexRanking, PutsTheSameTitleFirstThenItsBeginningThenItsWordsThenTheRest) {
  const auto index = open();
  ASSERT_EQ(put(*index,
                {by(makeItem("elsewhere", "tracks", "Sky"), "Blue"),
                 makeItem("within", "tracks", "Kind of Blue"),
                 makeItem("beginning", "tracks", "Blue in Green"),
                 makeItem("same", "tracks", "Blue"), makeItem("longer word", "tracks", "Bluesy")}),
            std::nullopt);
  EXPECT_EQ(found(*index, "BLUE"),
            (Identifiers{"same", "longer word", "beginning", "within", "elsewhere"}));
}

TEST_F(SQLiteIndexRanking, PutsArtistsBeforeAlbumsTracksPlaylistsAndTheRest) {
  const auto index = open();
  ASSERT_EQ(put(*index, {makeItem("5", "concerts", "Blue"), makeItem("4", "playlists", "Blue"),
                         makeItem("3", "tracks", "Blue"), makeItem("2", "albums", "Blue"),
                         makeItem("1", "artists", "Blue")}),
            std::nullopt);
  EXPECT_EQ(found(*index, "blue"), (Identifiers{"1", "2", "3", "4", "5"}));
}

TEST_F(SQLiteIndexRanking, PutsAnArtistBeforeTheirOwnTracks) {
  const auto index = open();
  ASSERT_EQ(put(*index, {by(makeItem("track", "tracks", "So What"), "Miles Davis"),
                         makeItem("artist", "artists", "Miles Davis")}),
            std::nullopt);
  EXPECT_EQ(found(*index, "mil"), (Identifiers{"artist", "track"}));
}

TEST_F(SQLiteIndexRanking, PutsATitleBeforeTheKind) {
  const auto index = open();
  ASSERT_EQ(
      put(*index, {makeItem("artist", "artists", "Blue Man"), makeItem("track", "tracks", "Blue")}),
      std::nullopt);
  EXPECT_EQ(found(*index, "blue"), (Identifiers{"track", "artist"}));
}

TEST_F(SQLiteIndexRanking, PutsShorterTitlesFirstAndNewerOnesAtEqualLength) {
  const auto index = open();
  ASSERT_EQ(put(*index, {makeItem("long", "tracks", "Blue and Green and Red"),
                         makeItem("old", "tracks", "Blue and Green"),
                         makeItem("new", "tracks", "Blue and White")}),
            std::nullopt);
  EXPECT_EQ(found(*index, "blue"), (Identifiers{"new", "old", "long"}));
}

TEST_F(SQLiteIndexRanking, ScoresFallFromHitToHit) {
  const auto index = open();
  ASSERT_EQ(put(*index, {by(makeItem("elsewhere", "tracks", "Sky"), "Blue"),
                         makeItem("within", "tracks", "Kind of Blue"),
                         makeItem("beginning", "tracks", "Blue in Green"),
                         makeItem("longer", "albums", "Blue in Green and Red"),
                         makeItem("same", "tracks", "Blue"), makeItem("list", "playlists", "Blue"),
                         makeItem("other", "else", "Blue")}),
            std::nullopt);
  const auto hits = index->search("blue");
  ASSERT_TRUE(hits);
  ASSERT_EQ(hits->size(), 7u);
  for (std::size_t i = 1; i < hits->size(); ++i) {
    EXPECT_GT((*hits)[i - 1].score, (*hits)[i].score) << i;
  }
}

TEST_F(SQLiteIndexRanking, FindsTheSameTitleAmongAnyNumberOfNewerMatches) {
  const auto index = open();
  std::vector<CSSearchableItem> items{makeItem("same", "tracks", "Love Me Do"),
                                      makeItem("beginning", "tracks", "Love Me Do Not")};
  for (int i = 0; i < 500; ++i) {
    const auto number = std::to_string(i);
    items.push_back(makeItem(number, "tracks", "Do Love Me " + number));
  }
  ASSERT_EQ(put(*index, std::move(items)), std::nullopt);
  EXPECT_EQ(found(*index, "love me do", {.limit = 2}), (Identifiers{"same", "beginning"}));
}

TEST_F(SQLiteIndexRanking, LetsNoDomainCrowdOutAnother) {
  const auto index = open();
  std::vector<CSSearchableItem> items{makeItem("artist", "artists", "The Blue")};
  for (int i = 0; i < 500; ++i) {
    const auto number = std::to_string(i);
    items.push_back(makeItem(number, "tracks", "All Blue " + number));
  }
  ASSERT_EQ(put(*index, std::move(items)), std::nullopt);
  EXPECT_EQ(found(*index, "blue", {.limit = 1}), Identifiers{"artist"});
}

TEST_F(SQLiteIndexRanking, LooksAtEveryDomainHoweverManyThereAre) {
  const auto index = open();
  std::vector<CSSearchableItem> items{makeItem("artist", "artists", "The Blue")};
  for (int i = 0; i < 40; ++i) {
    const auto number = std::to_string(i);
    items.push_back(makeItem(number, "domain " + number, "All Blue"));
  }
  ASSERT_EQ(put(*index, std::move(items)), std::nullopt);
  const auto all = found(*index, "blue", {.limit = 100});
  EXPECT_EQ(all.size(), 41u);
  EXPECT_EQ(all.front(), "artist");
}

}  // namespace
}  // namespace solvane

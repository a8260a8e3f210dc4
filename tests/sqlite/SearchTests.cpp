#include <random>

#include "SQLiteIndexTest.hpp"

namespace solvane {
namespace {

using std::string_literals::operator""s;
using Identifiers = std::vector<std::string>;

class SQLiteIndexSearch : public SQLiteIndexTest {
 protected:
  SQLiteIndexSearch() {
    auto track = makeItem("so what", "tracks", "So What");
    track.attributeSet.artist = "Miles Davis";
    track.attributeSet.album = "Kind of Blue";
    track.attributeSet.musicalGenre = "Jazz";
    track.attributeSet.keywords = {"So What", "Miles Davis", "Modal", "Modal", "Jazz"};
    auto artist = makeItem("björk", "artists", "Björk Guðmundsdóttir");
    artist.attributeSet.contentDescription = "A singer from Reykjavík";
    auto album = makeItem("war", "albums", "WAR & Peace (Live, 1999)");
    album.attributeSet.artist = "U2";
    auto playlist = makeItem("nihon", "playlists", "東京 ナイト");
    EXPECT_EQ(put(*index, {track, artist, album, playlist}), std::nullopt);
  }

  const std::shared_ptr<SQLiteIndex> index = open();
};

TEST_F(SQLiteIndexSearch, FindsWhatHasTheWordInAnyField) {
  for (const auto* word : {"what", "miles", "kind", "jazz", "modal"}) {
    EXPECT_EQ(found(*index, word), Identifiers{"so what"}) << word;
  }
  EXPECT_EQ(found(*index, "singer"), Identifiers{"björk"});
}

TEST_F(SQLiteIndexSearch, AsksForAllTheWordsAcrossTheFields) {
  EXPECT_EQ(found(*index, "blue miles so modal"), Identifiers{"so what"});
  EXPECT_EQ(found(*index, "blue miles singer"), Identifiers{});
}

TEST_F(SQLiteIndexSearch, TakesTheLastWordForABeginning) {
  EXPECT_EQ(found(*index, "miles da"), Identifiers{"so what"});
  EXPECT_EQ(found(*index, "m"), Identifiers{"so what"});
  EXPECT_EQ(found(*index, "mil davis"), Identifiers{});
  EXPECT_EQ(found(*index, "miles da "), Identifiers{"so what"});
  EXPECT_EQ(found(*index, "guðmundsdott"), Identifiers{"björk"});
}

TEST_F(SQLiteIndexSearch, IgnoresCaseAccentsAndPunctuation) {
  EXPECT_EQ(found(*index, "BJORK"), Identifiers{"björk"});
  EXPECT_EQ(found(*index, "bjo\xcc\x88rk"), Identifiers{"björk"});
  EXPECT_EQ(found(*index, "reykjavik"), Identifiers{"björk"});
  EXPECT_EQ(found(*index, "war, peace; (LIVE)"), Identifiers{"war"});
  EXPECT_EQ(found(*index, "1999"), Identifiers{"war"});
  EXPECT_EQ(found(*index, "東"), Identifiers{"nihon"});
}

TEST_F(SQLiteIndexSearch, FindsNothingForTextWithoutALetterOrDigit) {
  for (const auto* text : {"", " ", "\"", "*", "&", "(", ")", "'", "--", "^", "\t\n", "!?…"}) {
    EXPECT_EQ(found(*index, text), Identifiers{}) << text;
  }
}

TEST_F(SQLiteIndexSearch, TakesNoTextForAnOperator) {
  EXPECT_EQ(found(*index, "war AND peace"), Identifiers{});
  EXPECT_EQ(found(*index, "war OR miles"), Identifiers{});
  EXPECT_EQ(found(*index, "war NOT miles"), Identifiers{});
  EXPECT_EQ(found(*index, "\"war peace\""), Identifiers{"war"});
  EXPECT_EQ(found(*index, "\"peace war"), Identifiers{"war"});
  EXPECT_EQ(found(*index, "title:war"), Identifiers{});
  EXPECT_EQ(found(*index, "-war +peace* ^live"), Identifiers{"war"});
  EXPECT_EQ(found(*index, "war' OR 1=1 --"), Identifiers{});
  EXPECT_EQ(found(*index, "near(war peace)"), Identifiers{});
}

TEST_F(SQLiteIndexSearch, ReadsPastZerosAndBrokenText) {
  EXPECT_EQ(found(*index, "miles\0davis"s), Identifiers{"so what"});
  EXPECT_EQ(found(*index, "\0"s), Identifiers{});
  EXPECT_TRUE(index->search("\xff\xfe\xc3"));
  EXPECT_TRUE(index->search("miles \xf0\x9f"));
}

TEST_F(SQLiteIndexSearch, AnswersAnyBytes) {
  std::mt19937 random{12345};
  const std::string alphabet = "ab\"'*()^:-+{}, \0\xc3\xa9\xff\xe6\x9d\xb1\xcc\x81"s;
  for (int i = 0; i < 3000; ++i) {
    std::string text(random() % 24, ' ');
    for (auto& byte : text) byte = alphabet[random() % alphabet.size()];
    const auto hits = index->search(text);
    ASSERT_TRUE(hits) << hits.error().message;
  }
}

TEST_F(SQLiteIndexSearch, AnswersTextOfAnyLength) {
  std::string text;
  for (int i = 0; i < 20'000; ++i) text += "miles davis ";
  EXPECT_EQ(found(*index, text), Identifiers{"so what"});
  EXPECT_EQ(found(*index, std::string(3'000'000, 'm')), Identifiers{});
}

TEST_F(SQLiteIndexSearch, FindsEveryTitleByItselfWhateverItsBytes) {
  std::mt19937 random{777};
  std::vector<CSSearchableItem> items;
  for (int i = 0; i < 300; ++i) {
    std::string title = "x";
    for (int byte = 0; byte < 20; ++byte) title += static_cast<char>(random());
    items.push_back(makeItem(std::to_string(i), "random", title));
  }
  ASSERT_EQ(put(*index, items), std::nullopt);
  for (const auto& item : items) {
    const auto hits = found(*index, *item.attributeSet.title, {.limit = 1});
    ASSERT_EQ(hits, Identifiers{item.uniqueIdentifier});
  }
}

TEST_F(SQLiteIndexSearch, KeepsToADomain) {
  ASSERT_EQ(put(*index, {makeItem("other", "Tracks", "So What"), makeItem("none", "", "So What")}),
            std::nullopt);
  EXPECT_EQ(found(*index, "so what", {.domainIdentifier = "tracks"}), Identifiers{"so what"});
  EXPECT_EQ(found(*index, "so what", {.domainIdentifier = "Tracks"}), Identifiers{"other"});
  EXPECT_EQ(found(*index, "so what", {.domainIdentifier = ""}), Identifiers{"none"});
  EXPECT_EQ(found(*index, "so what", {.domainIdentifier = "track"}), Identifiers{});
  EXPECT_EQ(found(*index, "so what").size(), 3u);
}

TEST_F(SQLiteIndexSearch, KeepsToTheLimit) {
  std::vector<CSSearchableItem> items;
  for (int i = 0; i < 150; ++i) items.push_back(makeItem(std::to_string(i), "many", "Zebra"));
  ASSERT_EQ(put(*index, std::move(items)), std::nullopt);
  EXPECT_EQ(found(*index, "zebra").size(), 20u);
  EXPECT_EQ(found(*index, "zebra", {.limit = 0}), Identifiers{});
  EXPECT_EQ(found(*index, "zebra", {.limit = 7}).size(), 7u);
  EXPECT_EQ(found(*index, "zebra", {.limit = SIZE_MAX}).size(), 150u);
}

TEST_F(SQLiteIndexSearch, GivesTheWholeItem) {
  auto item = makeItem("whole", "tracks", "Whole");
  item.attributeSet.thumbnailData = Data{1, 2, 3};
  item.expirationDate = Date::fromUnixTime(noon.secondsSinceEpoch() + 60, 1);
  ASSERT_EQ(put(*index, {item}), std::nullopt);
  const auto hits = index->search("whole");
  ASSERT_TRUE(hits);
  ASSERT_EQ(hits->size(), 1u);
  EXPECT_EQ(hits->front().item, item);
}

}  // namespace
}  // namespace solvane

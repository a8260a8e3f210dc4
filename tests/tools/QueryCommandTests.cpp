#include <filesystem>
#include <string>

#include <gmock/gmock.h>

#include "ToolRun.hpp"

namespace solvane::tool {
namespace {

using ::testing::HasSubstr;
using ::testing::StartsWith;

class QueryCommand : public ::testing::Test {
 protected:
  QueryCommand() { EXPECT_EQ(_tool({"index", "-"}, milesCatalogue).code, 0); }

  ToolRun _tool;
};

TEST_F(QueryCommand, SearchShowsTheNumberTitleDomainArtistAlbumAndIdentifier) {
  const auto result = _tool({"search", "so", "wh"});
  EXPECT_EQ(result.code, 0);
  EXPECT_EQ(result.err, "");
  EXPECT_EQ(result.out, "   1. So What\n      tracks · Miles Davis – Kind of Blue · track/1\n");
}

TEST_F(QueryCommand, SearchFindsInOneDomainOnly) {
  const auto document = _tool({"search", "miles", "--domain", "artists", "--json"}).json();
  EXPECT_EQ(document.at("words"), "miles");
  ASSERT_EQ(document.at("hits").size(), 1U);
  const auto& hit = document.at("hits").at(0);
  EXPECT_EQ(hit.at("uniqueIdentifier"), "artist/1");
  EXPECT_EQ(hit.at("domainIdentifier"), "artists");
  EXPECT_TRUE(hit.at("score").is_number());
}

TEST_F(QueryCommand, SearchSaysWhenThereIsMoreThanItShows) {
  const auto result = _tool({"search", "miles", "--limit", "1", "--json"});
  EXPECT_EQ(result.code, 0);
  EXPECT_EQ(result.json().at("hits").size(), 1U);
  EXPECT_EQ(result.err, "More items match than are shown; raise --limit to see them.\n");
  EXPECT_EQ(_tool({"search", "miles", "--limit", "3"}).err, "");
}

TEST_F(QueryCommand, ASearchWithoutAResultEndsWithOne) {
  const auto result = _tool({"search", "coltrane", "giant"});
  EXPECT_EQ(result.code, 1);
  EXPECT_EQ(result.out, "");
  EXPECT_EQ(result.err, "Nothing found for \"coltrane giant\".\n");
  const auto json = _tool({"search", "coltrane", "--json"});
  EXPECT_EQ(json.code, 1);
  EXPECT_TRUE(json.json().at("hits").empty());
}

TEST_F(QueryCommand, SearchTakesAnyWords) {
  for (const std::string words : {"", " ", "\"", "*", "a OR b", "NEAR(", "-", "[a,b]", "\xFF\xFE",
                                  "title:so", "^so", "'; DROP TABLE items; --"}) {
    const auto result = _tool({"search", "--json", "--", words});
    EXPECT_TRUE(result.code == 0 || result.code == 1) << words << result.err;
    EXPECT_TRUE(result.json().at("hits").is_array()) << words;
  }
}

TEST_F(QueryCommand, ListGoesByDomainAndByPages) {
  const auto first = _tool({"list", "--limit", "2"});
  EXPECT_EQ(first.code, 0);
  EXPECT_EQ(first.out,
            "   1. Kind of Blue\n      albums · Miles Davis · album/1\n"
            "   2. Miles Davis\n      artists · artist/1\n");
  EXPECT_EQ(first.err, "These are 2 of 5; --offset 2 shows the next.\n");
  const auto rest = _tool({"list", "--offset", "2"});
  EXPECT_THAT(rest.out, StartsWith("   3. Blue in Green\n      offline · track/2\n"));
  EXPECT_EQ(rest.err, "");
}

TEST_F(QueryCommand, ListOfOneDomain) {
  const auto document = _tool({"list", "--domain", "offline", "--json"}).json();
  EXPECT_EQ(document.at("total"), 1);
  EXPECT_EQ(document.at("offset"), 0);
  EXPECT_EQ(document.at("items").at(0).at("title"), "Blue in Green");
}

TEST_F(QueryCommand, ListSaysWhyThereIsNothing) {
  const auto domain = _tool({"list", "--domain", "none"});
  EXPECT_EQ(domain.code, 1);
  EXPECT_EQ(domain.err, "The domain \"none\" is empty.\n");
  const auto beyond = _tool({"list", "--offset", "5"});
  EXPECT_EQ(beyond.code, 1);
  EXPECT_EQ(beyond.err, "The index has only 5 items.\n");
}

TEST_F(QueryCommand, ShowTellsEveryAttribute) {
  _tool({"index", "-"},
        R"({"kind": "track", "trackID": "t", "trackName": "So What", "trackIndexInAlbum": 1, )"
        R"("artistName": "Miles Davis", "albumName": "Kind of Blue", "genreName": "Jazz", )"
        R"("albumReleaseDate": "1959-08-17", "thumbnailData": "Zm9v"})");
  const auto text = _tool({"show", "t"});
  EXPECT_EQ(text.code, 0);
  EXPECT_THAT(text.out, StartsWith("Identifier      t\n"
                                   "Domain          tracks\n"
                                   "Content type    public.audio\n"
                                   "Related item    t\n"
                                   "Title           So What\n"
                                   "Artist          Miles Davis\n"
                                   "Album           Kind of Blue\n"
                                   "Track number    1\n"
                                   "Genre           Jazz\n"
                                   "Recorded        1959-08-17T00:00:00Z\n"
                                   "Keywords        So What | Miles Davis | Kind of Blue | Jazz\n"
                                   "Thumbnail       3 bytes\n"
                                   "Findable until  2"));
  auto document = _tool({"show", "t", "--json"}).json();
  EXPECT_TRUE(document.at("expirationDate").is_string());
  document.erase("expirationDate");
  EXPECT_EQ(document, nlohmann::json::parse(R"({
    "uniqueIdentifier": "t", "domainIdentifier": "tracks", "contentType": "public.audio",
    "relatedUniqueIdentifier": "t", "title": "So What", "artist": "Miles Davis",
    "audioTrackNumber": 1, "album": "Kind of Blue", "musicalGenre": "Jazz",
    "recordingDate": "1959-08-17T00:00:00Z",
    "keywords": ["So What", "Miles Davis", "Kind of Blue", "Jazz"],
    "thumbnailSize": 3, "thumbnailData": "Zm9v"})"));
}

TEST_F(QueryCommand, ShowTellsADescription) {
  EXPECT_THAT(_tool({"show", "playlist/1"}).out, HasSubstr("Description     Playlist\n"));
}

TEST_F(QueryCommand, ListsTellTheSizeOfAThumbnailAndNotItsBytes) {
  _tool({"index", "-"},
        R"({"kind": "artist", "artistID": "a", "artistName": "Ann", "thumbnailData": "Zm9v"})");
  const auto item = _tool({"search", "ann", "--json"}).json().at("hits").at(0);
  EXPECT_EQ(item.at("thumbnailSize"), 3);
  EXPECT_FALSE(item.contains("thumbnailData"));
}

TEST_F(QueryCommand, ShowOfAnUnknownItemEndsWithOne) {
  const auto result = _tool({"show", "track/99"});
  EXPECT_EQ(result.code, 1);
  EXPECT_EQ(result.out, "");
  EXPECT_EQ(result.err, "Not in the index: track/99\n");
}

TEST_F(QueryCommand, StatsCountsItemsByDomain) {
  const auto result = _tool({"stats"});
  EXPECT_EQ(result.code, 0);
  EXPECT_THAT(result.out, StartsWith("Index           " + _tool.index().string() + "\nSize  "));
  EXPECT_THAT(result.out, HasSubstr("\nItems           5\n"
                                    "         1  albums\n"
                                    "         1  artists\n"
                                    "         1  offline\n"
                                    "         1  playlists\n"
                                    "         1  tracks\n"
                                    "First expires   2"));
  EXPECT_GT(_tool({"stats", "--json"}).json().at("bytesOnDisk"), 0);
}

TEST(QueryCommandWithoutIndex, EveryCommandSaysThatThereIsNone) {
  const ToolRun tool;
  for (const std::vector<std::string>& arguments : {std::vector<std::string>{"search", "x"},
                                                    {"list"},
                                                    {"show", "x"},
                                                    {"stats"},
                                                    {"remove", "x"},
                                                    {"clear", "x"}}) {
    const auto result = tool(arguments);
    EXPECT_EQ(result.code, 4);
    EXPECT_THAT(result.err, StartsWith("solvane: There is no index at " + tool.index().string()));
  }
  EXPECT_FALSE(std::filesystem::exists(tool.index()));
}

TEST(QueryCommandWithoutIndex, EveryCommandRefusesAFileThatIsNone) {
  const ToolRun tool;
  tool.write("data/index.db", "Dear Ann, " + std::string(5000, '.'));
  for (const std::vector<std::string>& arguments : {std::vector<std::string>{"search", "x"},
                                                    {"list"},
                                                    {"show", "x"},
                                                    {"stats"},
                                                    {"remove", "x"},
                                                    {"clear", "x"}}) {
    const auto result = tool(arguments);
    EXPECT_EQ(result.code, 4) << arguments.front();
    EXPECT_THAT(result.err, StartsWith("solvane: "));
  }
}

}  // namespace
}  // namespace solvane::tool

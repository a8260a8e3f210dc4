#include <filesystem>
#include <string>

#include <solvane/config/SolvaneConfig.hpp>

#include <gmock/gmock.h>

#include "Iso8601.hpp"
#include "ToolRun.hpp"

namespace solvane::tool {
namespace {

using ::testing::AllOf;
using ::testing::HasSubstr;
using ::testing::Not;
using ::testing::StartsWith;

std::string playlist(const std::string& id, const std::string& name = "n") {
  return R"({"kind": "playlist", "playlistID": ")" + id + R"(", "playlistName": ")" + name +
         "\"}\n";
}

std::size_t countItems(const ToolRun& tool) {
  return tool({"stats", "--json"}).json().at("items").get<std::size_t>();
}

TEST(IndexCommand, PublishesEveryKindAndTellsHowManyAndUntilWhen) {
  const ToolRun tool;
  const auto result = tool({"index", tool.write("a.jsonl", milesCatalogue)});
  EXPECT_EQ(result.code, 0);
  EXPECT_EQ(result.err, "");
  EXPECT_THAT(result.out, StartsWith("Published 2 tracks, 1 artist, 1 album and 1 playlist to " +
                                     tool.index().string() + ".\nFindable until 2"));
}

TEST(IndexCommand, PutsEachKindInItsDomainAndTracksInTheirOwn) {
  const ToolRun tool;
  tool({"index", tool.write("a.jsonl", milesCatalogue)});
  const auto stats = tool({"stats", "--json"}).json();
  EXPECT_EQ(stats.at("itemsPerDomain"),
            nlohmann::json::parse(
                R"({"albums": 1, "artists": 1, "offline": 1, "playlists": 1, "tracks": 1})"));
}

TEST(IndexCommand, TheDateItTellsIsTheFirstOfTheItems) {
  const ToolRun tool;
  const auto published = tool({"index", tool.write("a.jsonl", milesCatalogue), "--json"}).json();
  const auto stats = tool({"stats", "--json"}).json();
  EXPECT_EQ(published.at("findableUntil"), stats.at("firstExpiration"));
}

TEST(IndexCommand, StaysFindableForTwoWeeks) {
  const ToolRun tool;
  const auto published = tool({"index", tool.write("a.jsonl", milesCatalogue), "--json"}).json();
  const auto until = parseIso8601(published.at("findableUntil").get<std::string>());
  ASSERT_TRUE(until);
  EXPECT_GT(*until, Date::now() + std::chrono::hours{24 * 13});
  EXPECT_LT(*until, Date::now() + std::chrono::hours{24 * 15});
}

TEST(IndexCommand, ReadsTheStandardInput) {
  const ToolRun tool;
  EXPECT_EQ(tool({"index", "-"}, milesCatalogue).code, 0);
  EXPECT_EQ(countItems(tool), 5U);
}

TEST(IndexCommand, OfABadFileNothingIsPublished) {
  const ToolRun tool;
  const auto file = tool.write("bad.jsonl", milesCatalogue + "{\"kind\": \"album\"}\n");
  const auto result = tool({"index", file});
  EXPECT_EQ(result.code, 3);
  EXPECT_EQ(result.out, "");
  EXPECT_EQ(result.err, file + ":6: albumID: is missing; every album needs one\n" + file +
                            ":6: albumName: is missing; every album needs one\n" + file +
                            ": 1 bad line; nothing of this file is published (--keep-going "
                            "publishes the rest)\n");
  EXPECT_FALSE(std::filesystem::exists(tool.index())) << "not even an empty index";
}

TEST(IndexCommand, AGoodFileIsPublishedBesideABadOne) {
  const ToolRun tool;
  const auto bad = tool.write("bad.jsonl", playlist("1") + "{}\n");
  const auto good = tool.write("good.jsonl", playlist("2"));
  EXPECT_EQ(tool({"index", bad, good}).code, 3);
  EXPECT_EQ(tool({"show", "1"}).code, 1);
  EXPECT_EQ(tool({"show", "2"}).code, 0);
}

TEST(IndexCommand, KeepGoingPublishesTheGoodLinesAndStillTellsOfTheBadOnes) {
  const ToolRun tool;
  const auto file = tool.write("bad.jsonl", playlist("1") + "{}\n" + playlist("2"));
  const auto result = tool({"index", "--keep-going", file});
  EXPECT_EQ(result.code, 3);
  EXPECT_THAT(result.out, StartsWith("Published 2 playlists to "));
  EXPECT_THAT(result.err, AllOf(HasSubstr(file + ":2: kind: is missing"),
                                HasSubstr(": 1 bad line; the rest of the file is published\n")));
  EXPECT_EQ(countItems(tool), 2U);
}

TEST(IndexCommand, KeepGoingWithoutAGoodLinePublishesNothing) {
  const ToolRun tool;
  const auto result = tool({"index", "--keep-going", tool.write("bad.jsonl", "{}\n{}\n")});
  EXPECT_EQ(result.code, 3);
  EXPECT_THAT(result.err, HasSubstr(": 2 bad lines; there is no good one to publish\n"));
}

TEST(IndexCommand, FilesThatCannotBeReadAreBadCatalogues) {
  const ToolRun tool;
  const auto missing = (tool.folder() / "none.jsonl").string();
  const auto result = tool({"index", missing, tool.folder().string()});
  EXPECT_EQ(result.code, 3);
  EXPECT_EQ(result.err, missing + ": does not exist; check the path\n" + tool.folder().string() +
                            ": is a folder; name a catalogue file in it\n");
}

TEST(IndexCommand, AnEmptyFileIsAWarning) {
  const ToolRun tool;
  const auto file = tool.write("empty.jsonl", "");
  const auto result = tool({"index", file});
  EXPECT_EQ(result.code, 0);
  EXPECT_EQ(result.err, file + ": warning: is empty; nothing to publish\n");
}

TEST(IndexCommand, TheLaterUseOfAnIdentifierIsTheOnePublished) {
  const ToolRun tool;
  const auto first = tool.write("a.jsonl", playlist("1", "Old") + playlist("2"));
  const auto second =
      tool.write("b.jsonl", R"({"kind": "artist", "artistID": "1", "artistName": "New"})");
  const auto result = tool({"index", first, second});
  EXPECT_EQ(result.code, 0);
  EXPECT_EQ(result.err, second + ":1: warning: artistID: \"1\" is already used at " + first +
                            ":1; the later one replaces it\n");
  EXPECT_EQ(tool({"show", "1", "--json"}).json().at("title"), "New");
  EXPECT_EQ(countItems(tool), 2U);
}

TEST(IndexCommand, IndexingAgainReplaces) {
  const ToolRun tool;
  tool({"index", tool.write("a.jsonl", milesCatalogue)});
  tool({"index", tool.write("a.jsonl", milesCatalogue)});
  EXPECT_EQ(countItems(tool), 5U);
}

TEST(IndexCommand, PublishesMoreThanOneOperationTakes) {
  const ToolRun tool;
  std::string text;
  for (int i = 0; i < 2500; ++i) text += playlist("p" + std::to_string(i), "Mix");
  const auto result = tool({"index", tool.write("a.jsonl", text), "--json"});
  EXPECT_EQ(result.json().at("items"), 2500);
  EXPECT_EQ(countItems(tool), 2500U);
}

TEST(IndexCommand, NamesTheAppInWhatIsShownAndForThisRunOnly) {
  const ToolRun tool;
  const auto file =
      tool.write("a.jsonl", R"({"kind": "artist", "artistID": "1", "artistName": "Miles Davis"})");
  tool({"index", "--app-name", "Player", file});
  EXPECT_EQ(tool({"show", "1", "--json"}).json().at("contentDescription"), "Artist on Player");
  EXPECT_EQ(SolvaneConfig::sharedInstance()->appName(), "Tamberly");
}

TEST(IndexCommand, JsonTellsOfEachFile) {
  const ToolRun tool;
  const auto bad = tool.write("bad.jsonl", playlist("1") + "{}\n");
  const auto good = tool.write("good.jsonl", playlist("2"));
  const auto result = tool({"index", bad, good, "--json"});
  EXPECT_EQ(result.code, 3);
  const auto document = result.json();
  EXPECT_EQ(document.at("index"), tool.index().string());
  EXPECT_EQ(document.at("published").at("playlists"), 1);
  EXPECT_EQ(document.at("published").at("tracks"), 0);
  const auto& files = document.at("files");
  EXPECT_EQ(files.at(0).at("file"), bad);
  EXPECT_EQ(files.at(0).at("published"), false);
  EXPECT_EQ(files.at(0).at("badLines"), 1);
  EXPECT_EQ(files.at(0).at("problems").at(0).at("line"), 2);
  EXPECT_EQ(files.at(0).at("problems").at(0).at("key"), "kind");
  EXPECT_EQ(files.at(1).at("published"), true);
}

TEST(IndexCommand, AnIndexThatCannotBeOpenedHasACodeOfItsOwn) {
  const ToolRun tool;
  const auto file = tool.write("a.jsonl", milesCatalogue);
  std::filesystem::create_directories(tool.index());
  const auto result = tool({"index", file});
  EXPECT_EQ(result.code, 4);
  EXPECT_EQ(result.out, "");
  EXPECT_THAT(result.err, StartsWith("solvane: "));
}

TEST(IndexCommand, AFileThatIsNoIndexIsLeftAlone) {
  const ToolRun tool;
  const auto file = tool.write("a.jsonl", milesCatalogue);
  const std::string letter = "Dear Ann, " + std::string(5000, '.');
  tool.write("data/index.db", letter);
  EXPECT_EQ(tool({"index", file}).code, 4);
  EXPECT_EQ(std::filesystem::file_size(tool.index()), letter.size());
}

}  // namespace
}  // namespace solvane::tool

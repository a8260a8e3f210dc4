#include <string>
#include <vector>

#include <gmock/gmock.h>

#include "ToolRun.hpp"

namespace solvane::tool {
namespace {

using ::testing::ElementsAre;

class RemovalCommand : public ::testing::Test {
 protected:
  RemovalCommand() { EXPECT_EQ(_tool({"index", "-"}, milesCatalogue).code, 0); }

  [[nodiscard]] std::vector<std::string> identifiers() const {
    std::vector<std::string> result;
    const auto items = _tool({"list", "--json"}).json().at("items");
    for (const auto& item : items) result.push_back(item.at("uniqueIdentifier"));
    return result;
  }

  ToolRun _tool;
};

TEST_F(RemovalCommand, RemovesItemsOfEveryKind) {
  const auto result = _tool({"remove", "artist/1", "album/1", "track/1", "track/2", "playlist/1"});
  EXPECT_EQ(result.code, 0);
  EXPECT_EQ(result.out, "Removed 5 of 5.\n");
  EXPECT_EQ(_tool({"list"}).err, "The index is empty.\n");
}

TEST_F(RemovalCommand, LeavesTheOthers) {
  _tool({"remove", "artist/1", "track/2"});
  EXPECT_THAT(identifiers(), ElementsAre("album/1", "playlist/1", "track/1"));
}

TEST_F(RemovalCommand, TellsWhatWasNotThere) {
  const auto result = _tool({"remove", "track/1", "track/99", "track/1"});
  EXPECT_EQ(result.code, 0);
  EXPECT_EQ(result.out, "Removed 1 of 2.\n");
  EXPECT_EQ(result.err, "Not in the index: track/99\n");
}

TEST_F(RemovalCommand, ARemovalOfNothingEndsWithOne) {
  const auto result = _tool({"remove", "x"});
  EXPECT_EQ(result.code, 1);
  EXPECT_EQ(result.out, "Removed 0 of 1.\n");
  EXPECT_EQ(identifiers().size(), 5U);
}

TEST_F(RemovalCommand, EveryKindsOperationRemovesByIdentifierAlone) {
  for (const std::string kind : {"track", "artist", "album", "playlist"}) {
    EXPECT_EQ(_tool({"index", "-"}, milesCatalogue).code, 0);
    EXPECT_EQ(_tool({"remove", "--kind", kind, "album/1"}).code, 0);
    EXPECT_EQ(_tool({"show", "album/1"}).code, 1) << kind;
  }
}

TEST_F(RemovalCommand, JsonTellsWhatWasRemovedAndWhatWasNotThere) {
  const auto document = _tool({"remove", "track/1", "x", "--json"}).json();
  EXPECT_EQ(document, nlohmann::json::parse(R"({"removed": ["track/1"], "notFound": ["x"]})"));
}

TEST_F(RemovalCommand, ClearEmptiesWholeDomainsAndNoOther) {
  const auto result = _tool({"clear", "tracks", "playlists"});
  EXPECT_EQ(result.code, 0);
  EXPECT_EQ(result.out, "playlists: removed 1 item.\ntracks: removed 1 item.\n");
  EXPECT_THAT(identifiers(), ElementsAre("album/1", "artist/1", "track/2"));
}

TEST_F(RemovalCommand, ClearTakesDomainsOfOnesOwn) {
  EXPECT_EQ(_tool({"clear", "offline", "--json"}).json().at("removed").at("offline"), 1);
  EXPECT_EQ(_tool({"show", "track/2"}).code, 1);
}

TEST_F(RemovalCommand, ClearingAnEmptyDomainEndsWithOne) {
  const auto result = _tool({"clear", "track"});
  EXPECT_EQ(result.code, 1);
  EXPECT_EQ(result.out, "track: removed 0 items.\n");
  EXPECT_EQ(identifiers().size(), 5U);
}

TEST_F(RemovalCommand, WhatIsRemovedIsNoLongerFound) {
  EXPECT_EQ(_tool({"search", "so what"}).code, 0);
  _tool({"remove", "track/1"});
  EXPECT_EQ(_tool({"search", "so what"}).code, 1);
  EXPECT_EQ(_tool({"stats", "--json"}).json().at("items"), 4);
}

}  // namespace
}  // namespace solvane::tool

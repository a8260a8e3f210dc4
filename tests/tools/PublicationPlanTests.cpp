#include <sstream>
#include <string>
#include <vector>

#include <gmock/gmock.h>

#include "PublicationPlan.hpp"

namespace solvane::tool {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

Catalogue catalogue(const std::string& name, const std::string& text) {
  std::istringstream in{text};
  return CatalogueReader::read(name, in, {});
}

std::string track(const std::string& id, const std::string& more = {}) {
  return R"({"kind": "track", "trackID": ")" + id + R"(", "trackName": "n")" + more + "}\n";
}

std::string artist(const std::string& id, const std::string& name = "n") {
  return R"({"kind": "artist", "artistID": ")" + id + R"(", "artistName": ")" + name + "\"}\n";
}

std::string id(const Track& track) { return track.trackID(); }
std::string id(const Artist& artist) { return artist.artistID(); }
std::string id(const Album& album) { return album.albumID(); }
std::string id(const Playlist& playlist) { return playlist.playlistID(); }

/// A group in words: its domain, if any, and its identifiers.
std::string inWords(const PublicationGroup& group) {
  std::string text = group.domainID ? *group.domainID + ":" : "";
  std::visit(
      [&](const auto& list) {
        for (const auto& each : list) text += ' ' + id(each);
      },
      group.records);
  return text;
}

std::vector<std::string> groupsOf(PublicationPlan& plan) {
  std::vector<std::string> groups;
  for (const auto& group : plan.takeGroups()) groups.push_back(inWords(group));
  return groups;
}

std::string warnings(const Catalogue& catalogue) {
  std::ostringstream out;
  catalogue.warnings.print(out, catalogue.name);
  return out.str();
}

TEST(PublicationPlan, GroupsByKindAndDomainInTheOrderOfFirstAppearance) {
  PublicationPlan plan;
  auto first = catalogue("a", track("t1") + artist("a1") + track("t2", R"(, "domainID": "x")") +
                                  track("t3") + artist("a2"));
  auto second = catalogue(
      "b", track("t4", R"(, "domainID": "x")") + track("t5", R"(, "domainID": "")") + artist("a3"));
  plan.add(first);
  plan.add(second);
  EXPECT_THAT(groupsOf(plan), ElementsAre(" t1 t3", " a1 a2 a3", "x: t2 t4", ": t5"));
}

TEST(PublicationPlan, OfOneIdentifierOnlyTheLastStays) {
  PublicationPlan plan;
  auto one = catalogue("a", artist("1", "first") + artist("2") + artist("1", "last"));
  plan.add(one);
  const auto groups = plan.takeGroups();
  ASSERT_EQ(groups.size(), 1U);
  EXPECT_EQ(inWords(groups.front()), " 2 1");
  EXPECT_EQ(std::get<std::vector<Artist>>(groups.front().records).back().artistName(), "last");
}

TEST(PublicationPlan, WarnsOfAnIdentifierThatIsUsedAgain) {
  PublicationPlan plan;
  auto one = catalogue("a.jsonl", artist("1") + artist("2") + artist("1"));
  plan.add(one);
  EXPECT_EQ(warnings(one),
            "a.jsonl:3: artistID: \"1\" is already used at a.jsonl:1; the later one replaces it\n");
}

TEST(PublicationPlan, IdentifiersAreSharedByKindsAndFiles) {
  PublicationPlan plan;
  auto one = catalogue("a.jsonl", artist("1"));
  auto two = catalogue("b.jsonl", "\n" + track("1"));
  plan.add(one);
  plan.add(two);
  EXPECT_EQ(warnings(one), "");
  EXPECT_EQ(warnings(two),
            "b.jsonl:2: trackID: \"1\" is already used at a.jsonl:1; the later one replaces it\n");
  EXPECT_THAT(groupsOf(plan), ElementsAre(" 1"));
}

TEST(PublicationPlan, NamesTheLatestUseBeforeThisOne) {
  PublicationPlan plan;
  auto one = catalogue("a", artist("1") + artist("1") + artist("1"));
  plan.add(one);
  EXPECT_THAT(warnings(one), ::testing::HasSubstr("a:3: artistID: \"1\" is already used at a:2;"));
}

TEST(PublicationPlan, IsEmptyOnceItsGroupsAreTaken) {
  PublicationPlan plan;
  auto one = catalogue("a", artist("1"));
  plan.add(one);
  EXPECT_EQ(plan.takeGroups().size(), 1U);
  EXPECT_THAT(plan.takeGroups(), IsEmpty());
}

}  // namespace
}  // namespace solvane::tool

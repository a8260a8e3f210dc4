#include <sstream>
#include <string>
#include <variant>
#include <vector>

#include <gmock/gmock.h>

#include "CommandLine.hpp"
#include "ToolRun.hpp"

namespace solvane::tool {
namespace {

using ::testing::AllOf;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::StartsWith;

/// The request that a correct command line makes.
template <class Expected>
Expected parse(std::vector<std::string> arguments) {
  std::ostringstream out;
  std::ostringstream err;
  auto parsed = parseCommandLine(std::move(arguments), out, err);
  EXPECT_EQ(out.str() + err.str(), "");
  return std::get<Expected>(std::get<Request>(std::move(parsed)));
}

TEST(CommandLine, TakesEveryOptionOfEachCommand) {
  const auto index = parse<IndexRequest>(
      {"index", "--index", "i", "--json", "--keep-going", "--app-name", "Player", "a", "-"});
  EXPECT_EQ(index.index, "i");
  EXPECT_TRUE(index.json);
  EXPECT_TRUE(index.keepGoing);
  EXPECT_EQ(index.appName, "Player");
  EXPECT_THAT(index.catalogues, ElementsAre("a", "-"));

  const auto search =
      parse<SearchRequest>({"search", "so", "wh", "--domain", "tracks", "--limit=5", "--index=i"});
  EXPECT_THAT(search.words, ElementsAre("so", "wh"));
  EXPECT_EQ(search.domain, "tracks");
  EXPECT_EQ(search.limit, 5U);
  EXPECT_FALSE(search.json);

  const auto list = parse<ListRequest>(
      {"list", "--domain", "d", "--limit", "7", "--offset", "9", "--index", "i"});
  EXPECT_EQ(list.domain, "d");
  EXPECT_EQ(list.limit, 7U);
  EXPECT_EQ(list.offset, 9U);

  const auto remove = parse<RemoveRequest>({"remove", "--kind", "album", "1", "2", "--index", "i"});
  EXPECT_EQ(remove.kind, "album");
  EXPECT_THAT(remove.identifiers, ElementsAre("1", "2"));

  EXPECT_THAT(parse<ClearRequest>({"clear", "a", "b", "--index", "i"}).domains,
              ElementsAre("a", "b"));
  EXPECT_EQ(parse<ShowRequest>({"show", "x", "--index", "i"}).identifier, "x");
  EXPECT_TRUE(parse<StatsRequest>({"stats", "--json", "--index", "i"}).json);
}

TEST(CommandLine, LeavesOutWhatIsNotGiven) {
  const auto search = parse<SearchRequest>({"search", "x", "--index", "i"});
  EXPECT_EQ(search.domain, std::nullopt);
  EXPECT_EQ(search.limit, 20U);
  EXPECT_EQ(parse<RemoveRequest>({"remove", "x", "--index", "i"}).kind, std::nullopt);
  EXPECT_EQ(parse<IndexRequest>({"index", "x", "--index", "i"}).appName, std::nullopt);
}

TEST(CommandLine, HandsTextsOnByteForByte) {
  const std::vector<std::string> texts{"[a,b]", "",      "%%",  "{}",   "[]",   " x ",
                                       "a,b",   "\"q\"", "a=b", "[a]b", "\xFF", "[[x]]"};
  auto arguments = texts;
  arguments.insert(arguments.begin(), {"remove", "--index", "i", "--"});
  EXPECT_EQ(parse<RemoveRequest>(arguments).identifiers, texts);
  for (const auto& text : texts) {
    EXPECT_EQ(parse<RemoveRequest>({"remove", "--index", "i", text}).identifiers,
              std::vector{text});
    EXPECT_EQ(parse<ShowRequest>({"show", "--index", "i", text}).identifier, text);
    EXPECT_EQ(parse<ListRequest>({"list", "--index", "i", "--domain", text}).domain, text);
  }
}

TEST(CommandLine, TakesWordsThatLookLikeOptionsBehindTwoDashes) {
  EXPECT_THAT(parse<SearchRequest>({"search", "--index", "i", "--", "--json", "-x"}).words,
              ElementsAre("--json", "-x"));
}

TEST(CommandLine, RefusesWhatItDoesNotKnowWithTheUsageCode) {
  const std::vector<std::vector<std::string>> wrong{
      {},
      {"serach", "x"},
      {"search"},
      {"search", "x", "--colour"},
      {"search", "x", "--limit", "0"},
      {"search", "x", "--limit", "-1"},
      {"search", "x", "--limit", "many"},
      {"search", "x", "--limit", "99999999999999999999"},
      {"index"},
      {"remove", "x", "--kind", "song"},
      {"remove"},
      {"clear"},
      {"show"},
      {"show", "a", "b"},
      {"stats", "x"},
      {"list", "x"},
      {"stats", "--index"},
      {"stats", "--index", ""},
      {"--json"},
  };
  for (const auto& arguments : wrong) {
    const auto result = ToolRun::runAlone(arguments);
    EXPECT_EQ(result.code, 2) << ::testing::PrintToString(arguments);
    EXPECT_EQ(result.out, "");
    EXPECT_THAT(result.err, AllOf(StartsWith("solvane: "), HasSubstr("solvane --help")));
  }
}

TEST(CommandLine, NamesACommandThatDoesNotExist) {
  EXPECT_THAT(ToolRun::runAlone({"se\x1b[2Jrach", "x"}).err,
              StartsWith("solvane: There is no command \"se\\u001b[2Jrach\".\n"));
}

TEST(CommandLine, HelpHasExamplesAndTheExitCodes) {
  for (const std::string flag : {"--help", "-h"}) {
    const auto result = ToolRun::runAlone({flag});
    EXPECT_EQ(result.code, 0);
    EXPECT_EQ(result.err, "");
    EXPECT_THAT(result.out, AllOf(HasSubstr("solvane index catalogue.jsonl"),
                                  HasSubstr("Exit codes:\n  0  done\n  1  nothing found")));
  }
}

TEST(CommandLine, EveryCommandHasHelp) {
  for (const std::string command :
       {"index", "search", "remove", "clear", "list", "show", "stats"}) {
    const auto result = ToolRun::runAlone({command, "--help"});
    EXPECT_EQ(result.code, 0);
    EXPECT_THAT(result.out, AllOf(HasSubstr("Usage: solvane " + command), HasSubstr("--index PATH"),
                                  HasSubstr("--json")));
  }
}

TEST(CommandLine, TellsItsVersion) {
  const auto result = ToolRun::runAlone({"--version"});
  EXPECT_EQ(result.code, 0);
  EXPECT_THAT(result.out, ::testing::MatchesRegex("solvane [0-9]+\\.[0-9]+\\.[0-9]+\n"));
}

TEST(CommandLine, AResultThatCannotBeWrittenHasACodeOfItsOwn) {
  std::istringstream in;
  std::ostringstream out;
  std::ostringstream err;
  out.setstate(std::ios::badbit);
  EXPECT_EQ(runTool({"--help"}, in, out, err), 5);
  EXPECT_THAT(err.str(), HasSubstr("cannot be written"));
}

}  // namespace
}  // namespace solvane::tool

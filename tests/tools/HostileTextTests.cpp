#include <string>
#include <string_view>
#include <vector>

#include <gmock/gmock.h>

#include "ToolRun.hpp"
#include "Utf8.hpp"

namespace solvane::tool {
namespace {

using ::testing::HasSubstr;

/// Whether a terminal shows `text` as it is written: lines of plain, left-to-right characters.
bool isPlain(std::string_view text) {
  while (!text.empty()) {
    const auto [codePoint, length] = firstCharacter(text);
    if (!codePoint || (*codePoint < 0x20 && *codePoint != '\n')) return false;
    if (*codePoint >= 0x7F && *codePoint <= 0x9F) return false;
    if (*codePoint >= 0x202A && *codePoint <= 0x202E) return false;
    if (*codePoint >= 0x2066 && *codePoint <= 0x2069) return false;
    text.remove_prefix(length);
  }
  return true;
}

const std::string hostile = "bell\a\x1b]0;owned\x1b\\\x7F\u0085\u009B31m\u202Etxt\u2066x\r\nend";

/// The same as it stands in a catalogue.
const std::string hostileJson =
    R"(bell\u0007\u001b]0;owned\u001b\\\u007f\u0085\u009b31m\u202etxt\u2066x\r\nend)";

class HostileText : public ::testing::Test {
 protected:
  HostileText() {
    const auto result =
        _tool({"index", "-"}, R"({"kind": "track", "trackID": "id)" + hostileJson +
                                  R"(", "trackName": ")" + hostileJson +
                                  R"(", "artistName": "by )" + hostileJson +
                                  R"(", "albumName": "on )" + hostileJson + R"(", "genreName": ")" +
                                  hostileJson + R"(", "domainID": "in )" + hostileJson + "\"}\n");
    EXPECT_EQ(result.code, 0) << result.err;
  }

  ToolRun _tool;
};

TEST_F(HostileText, FromItemsIsNeverPrintedRaw) {
  const std::vector<std::vector<std::string>> commands{{"search", "bell"},
                                                       {"list"},
                                                       {"list", "--domain", "in " + hostile},
                                                       {"show", "id" + hostile},
                                                       {"stats"},
                                                       {"search", "bell", "--json"},
                                                       {"list", "--json"},
                                                       {"show", "id" + hostile, "--json"},
                                                       {"stats", "--json"},
                                                       {"remove", "id" + hostile, "--json"}};
  for (const auto& arguments : commands) {
    const auto result = _tool(arguments);
    EXPECT_EQ(result.code, 0) << arguments.front() << result.err;
    EXPECT_TRUE(isPlain(result.out)) << arguments.front() << '\n' << result.out;
    EXPECT_THAT(result.out, HasSubstr("\\u001b")) << arguments.front();
    EXPECT_TRUE(isPlain(result.err));
  }
}

TEST_F(HostileText, ComesBackFromJsonUnchanged) {
  const auto item = _tool({"show", "id" + hostile, "--json"}).json();
  EXPECT_EQ(item.at("uniqueIdentifier"), "id" + hostile);
  EXPECT_EQ(item.at("title"), hostile);
  EXPECT_EQ(item.at("musicalGenre"), hostile);
  EXPECT_EQ(item.at("domainIdentifier"), "in " + hostile);
}

TEST_F(HostileText, FromArgumentsIsNeverPrintedRaw) {
  const auto raw = hostile + "\xFF\xC3";
  const std::vector<std::vector<std::string>> commands{
      {"search", raw + "x"},    {"list", "--domain", raw}, {"show", raw},
      {"remove", raw},          {"remove", raw, "--json"}, {"clear", raw},
      {"clear", raw, "--json"}, {"index", raw + ".jsonl"}, {"index", raw, "--json"},
      {"stats", raw},           {"list", "--" + raw},      {"list", "--limit", raw}};
  for (const auto& arguments : commands) {
    const auto result = _tool(arguments);
    EXPECT_NE(result.code, 0);
    EXPECT_TRUE(isPlain(result.out)) << arguments.front() << result.out;
    EXPECT_TRUE(isPlain(result.err)) << arguments.front() << result.err;
  }
}

TEST_F(HostileText, FromCataloguesIsNeverPrintedRaw) {
  const std::vector<std::string> lines{
      R"({"kind": ")" + hostileJson + "\"}",
      R"({"kind": "artist", ")" + hostileJson + "\": 1}",
      R"({"kind": "artist", "artistID": "a", "artistName": "n", "thumbnailPath": ")" + hostileJson +
          "\"}",
      "{\"a\": \"\x1b[2J\"}",
      "{\"a\": \u202E}",
      "\u009B31m",
      "{\"kind\": \"artist\", \"artistID\": \"\xFF\x1b[2J\"}",
  };
  for (const auto& line : lines) {
    const auto result = _tool({"index", "-"}, line);
    EXPECT_EQ(result.code, 3) << line;
    EXPECT_TRUE(isPlain(result.err)) << result.err;
    const auto json = _tool({"index", "-", "--json"}, line);
    EXPECT_TRUE(isPlain(json.out)) << json.out;
    EXPECT_EQ(json.json().at("files").at(0).at("badLines"), 1);
  }
}

TEST_F(HostileText, InvalidUtf8InTheResultIsStillJson) {
  const auto document = _tool({"remove", "a\xFF", "--json"}).json();
  EXPECT_EQ(document.at("notFound").at(0), "a\uFFFD");
}

TEST_F(HostileText, ARandomFileIsOnlyABadCatalogue) {
  std::string bytes;
  unsigned state = 42;
  for (int i = 0; i < 100'000; ++i) {
    state = state * 1103515245U + 12345U;
    bytes += static_cast<char>(state >> 16U);
  }
  const auto result = _tool({"index", _tool.write("random.bin", bytes)});
  EXPECT_EQ(result.code, 3);
  EXPECT_TRUE(isPlain(result.err));
}

TEST_F(HostileText, ALineCutAnywhereIsABadLine) {
  const std::string line =
      R"({"kind": "track", "trackID": "tä", "trackName": "\ud83c\udfb5", "trackDuration": -1.5e3})";
  for (std::size_t length = 1; length < line.size(); ++length) {
    const auto result = _tool({"index", "-"}, line.substr(0, length));
    EXPECT_EQ(result.code, 3) << length;
    EXPECT_TRUE(isPlain(result.err)) << length;
  }
  EXPECT_EQ(_tool({"index", "-"}, line).code, 0);
}

}  // namespace
}  // namespace solvane::tool

#include <filesystem>
#include <sstream>
#include <string>
#include <vector>

#include <gmock/gmock.h>

#include "CatalogueReader.hpp"
#include "ToolRun.hpp"

namespace solvane::tool {
namespace {

using ::testing::AllOf;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::StartsWith;

Catalogue read(const std::string& text) {
  std::istringstream in{text};
  return CatalogueReader::read("music.jsonl", in, {});
}

/// Everything that is said about a catalogue of this text.
std::string problems(const std::string& text) {
  const auto catalogue = read(text);
  EXPECT_EQ(catalogue.badLines == 0, catalogue.problems.none());
  std::ostringstream out;
  catalogue.problems.print(out, catalogue.name);
  return out.str();
}

const std::string goodLine = R"({"kind": "playlist", "playlistID": "p", "playlistName": "n"})";

TEST(CatalogueReader, NamesFileLineAndKeyOfAnUnknownKey) {
  EXPECT_THAT(problems(goodLine + "\n\n" +
                       R"({"kind": "artist", "artistID": "a", "artistName": "n", "colour": 1})"),
              AllOf(StartsWith("music.jsonl:3: colour: is unknown"),
                    HasSubstr("artistID, artistName, artistBio, artistGenre, thumbnailData, "
                              "thumbnailPath\n")));
}

TEST(CatalogueReader, AKeyOfAnotherKindIsUnknown) {
  for (const std::string key : {R"("trackID": "t")", R"("domainID": "d")", R"("artistName": "n")",
                                R"("tracksCount": 1)", R"("artistBio": "b")"}) {
    EXPECT_THAT(
        problems(R"({"kind": "playlist", "playlistID": "p", "playlistName": "n", )" + key + "}"),
        HasSubstr("is unknown for this kind"))
        << key;
  }
}

TEST(CatalogueReader, KeysAreComparedWithTheirCase) {
  EXPECT_THAT(problems(R"({"kind": "artist", "artistid": "a", "artistName": "n"})"),
              HasSubstr("music.jsonl:1: artistid: is unknown"));
}

TEST(CatalogueReader, AsksForTheIdentifierAndTheNameOfEveryKind) {
  for (const std::string kind : {"track", "artist", "album", "playlist"}) {
    EXPECT_EQ(problems(R"({"kind": ")" + kind + "\"}"),
              "music.jsonl:1: " + kind + "ID: is missing; every " + kind + " needs one\n" +
                  "music.jsonl:1: " + kind + "Name: is missing; every " + kind + " needs one\n");
    EXPECT_THAT(problems(R"({"kind": ")" + kind + R"(", ")" + kind + R"(ID": null, ")" + kind +
                         R"(Name": "n"})"),
                HasSubstr(kind + "ID: is missing"));
  }
}

TEST(CatalogueReader, RefusesAnEmptyIdentifier) {
  EXPECT_THAT(problems(R"({"kind": "album", "albumID": "", "albumName": "n"})"),
              StartsWith("music.jsonl:1: albumID: is empty; "));
}

TEST(CatalogueReader, AsksForAKindThatExists) {
  EXPECT_THAT(problems(R"({"trackID": "t"})"), HasSubstr("music.jsonl:1: kind: is missing; give "));
  EXPECT_THAT(problems(R"({"kind": "Track"})"),
              HasSubstr("kind: is \"Track\"; give one of track, "));
  EXPECT_THAT(problems(R"({"kind": null})"), HasSubstr("kind: is null; give one of"));
  EXPECT_THAT(problems(R"({"kind": ["track"]})"), HasSubstr("kind: is a list; give one of"));
}

TEST(CatalogueReader, RefusesAKeyThatIsGivenTwice) {
  EXPECT_EQ(problems(R"({"kind": "artist", "artistID": "a", "artistName": "n", "artistID": "a"})"),
            "music.jsonl:1: artistID: is given twice; leave one of them out\n");
  EXPECT_THAT(
      problems(R"({"kind": "artist", "artistID": "a", "artistName": "n", "kind": "artist"})"),
      HasSubstr("kind: is given twice"));
  EXPECT_THAT(problems(R"({"kind": "artist", "artistID": "a", "artistName": "n", )"
                       R"("artistBio": null, "artistBio": "b"})"),
              HasSubstr("artistBio: is given twice"));
}

TEST(CatalogueReader, ToleratesByteOrderMarkLineEndsAndBlankLines) {
  const auto catalogue = read("\xEF\xBB\xBF" + goodLine + "\r\n  \t\r\n\n" + goodLine);
  EXPECT_TRUE(catalogue.problems.none());
  ASSERT_EQ(catalogue.entries.size(), 2U);
  EXPECT_EQ(catalogue.entries.back().line, 4U);
}

TEST(CatalogueReader, SaysInWhichColumnALineStopsBeingJson) {
  EXPECT_EQ(problems(R"({"kind": "track")"),
            "music.jsonl:1: is not JSON at column 17: unexpected end of input; expected '}'\n");
  EXPECT_THAT(problems(R"({"kind": 'track'})"),
              StartsWith("music.jsonl:1: is not JSON at column 10: "));
  EXPECT_THAT(problems(R"({"äöü": 'x'})"), StartsWith("music.jsonl:1: is not JSON at column 9: "))
      << "columns are counted in characters";
  EXPECT_THAT(problems(goodLine + goodLine), HasSubstr("expected end of input"));
  EXPECT_THAT(problems(R"({"a": 1e999})"), HasSubstr("number overflow parsing '1e999'"));
  EXPECT_THAT(problems(R"({"a": NaN})"), HasSubstr("is not JSON at column 7"));
  EXPECT_THAT(problems(R"({"a": "\ud800"})"), HasSubstr("surrogate"));
}

TEST(CatalogueReader, WantsAnObjectOnEachLine) {
  for (const std::string line : {"[]", "[{}]", "null", "17", "\"text\"", "true", "1.5"}) {
    EXPECT_THAT(problems(line), StartsWith("music.jsonl:1: is no JSON object; ")) << line;
  }
}

TEST(CatalogueReader, NamesTheLineAndByteThatIsNotUtf8) {
  EXPECT_EQ(problems(goodLine + "\n{\"kind\": \"\xFF\"}"),
            "music.jsonl:2: is not UTF-8 at byte 11; save the catalogue as UTF-8\n");
}

TEST(CatalogueReader, ReportsEveryProblemOfALineAndCountsTheLineOnce) {
  const auto catalogue =
      read(R"({"kind": "track", "trackID": 1, "trackName": [], "colour": "red"})");
  EXPECT_EQ(catalogue.problems.count(), 3U);
  EXPECT_EQ(catalogue.badLines, 1U);
  EXPECT_THAT(catalogue.entries, IsEmpty());
}

TEST(CatalogueReader, KeepsTheGoodLinesBetweenBadOnes) {
  const auto catalogue = read("{\n" + goodLine + "\n{}\n" + goodLine + "\n{");
  EXPECT_EQ(catalogue.entries.size(), 2U);
  EXPECT_EQ(catalogue.badLines, 3U);
}

TEST(CatalogueReader, RemembersTheFirstProblemsAndCountsTheRest) {
  std::string text;
  for (int i = 0; i < 1000; ++i) text += "{}\n";
  const auto catalogue = read(text);
  EXPECT_EQ(catalogue.problems.count(), 1000U);
  EXPECT_EQ(catalogue.problems.first().size(), Problems::remembered);
  EXPECT_THAT(problems(text),
              AllOf(HasSubstr("music.jsonl:20: "), ::testing::Not(HasSubstr(":21:")),
                    HasSubstr("music.jsonl: and 980 more\n")));
}

TEST(CatalogueReader, NestingHoweverDeepIsOnlyAWrongType) {
  const std::string deep(200'000, '[');
  EXPECT_THAT(problems(R"({"kind": "artist", "artistID": )" + deep), HasSubstr("is not JSON"));
  EXPECT_THAT(problems(R"({"kind": "artist", "artistName": "n", "artistID": )" + deep +
                       std::string(200'000, ']') + "}"),
              StartsWith("music.jsonl:1: artistID: is a list; give a text\n"));
}

TEST(CatalogueReader, KeysInsideAnObjectAreNotKeysOfTheLine) {
  EXPECT_THAT(problems(R"({"kind": "artist", "artistName": {"artistID": "a"}})"),
              StartsWith("music.jsonl:1: artistName: is an object; give a text\n"));
}

TEST(CatalogueReader, SaysWhyAFileCannotBeRead) {
  const ToolRun tool;
  std::istringstream in;
  const CatalogueReader reader{in};
  const auto said = [&](const std::string& file) {
    std::ostringstream out;
    reader.read(file).problems.print(out, file);
    return out.str();
  };
  EXPECT_EQ(said(tool.folder() / "none.jsonl"),
            (tool.folder() / "none.jsonl").string() + ": does not exist; check the path\n");
  EXPECT_THAT(said(tool.folder()), HasSubstr(": is a folder; "));
  const auto loop = tool.folder() / "loop.jsonl";
  std::filesystem::create_symlink(loop, loop);
  EXPECT_THAT(said(loop), HasSubstr(": cannot be read: Too many levels of symbolic links\n"));
  EXPECT_EQ(said("/proc/self/mem"), "/proc/self/mem: cannot be read to its end\n");
}

TEST(CatalogueReader, WarnsOfAnEmptyFile) {
  for (const std::string text : {"", "\n \n", "\xEF\xBB\xBF"}) {
    const auto catalogue = read(text);
    EXPECT_TRUE(catalogue.problems.none());
    ASSERT_EQ(catalogue.warnings.count(), 1U);
    EXPECT_THAT(catalogue.warnings.first().front().text, StartsWith("is empty"));
  }
}

TEST(CatalogueReader, ReadsTheStandardInput) {
  std::istringstream in{goodLine};
  const auto catalogue = CatalogueReader{in}.read("-");
  EXPECT_EQ(catalogue.name, "<stdin>");
  EXPECT_EQ(catalogue.entries.size(), 1U);
}

TEST(CatalogueReader, FindsThumbnailsBesideTheCatalogue) {
  const ToolRun tool;
  tool.write("music/covers/a.png", "png");
  const auto file = tool.write(
      "music/all.jsonl",
      R"({"kind": "artist", "artistID": "a", "artistName": "n", "thumbnailPath": "covers/a.png"})");
  std::istringstream in;
  const auto catalogue = CatalogueReader{in}.read(file);
  ASSERT_EQ(catalogue.entries.size(), 1U);
  EXPECT_EQ(std::get<Artist>(catalogue.entries.front().record).thumbnailData(),
            (Data{'p', 'n', 'g'}));
}

}  // namespace
}  // namespace solvane::tool

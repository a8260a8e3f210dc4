#include <sstream>
#include <stdexcept>
#include <string>

#include <gmock/gmock.h>

#include "CatalogueReader.hpp"

namespace solvane::tool {
namespace {

using ::testing::HasSubstr;

/// A track with one more member, read.
Catalogue readWith(const std::string& member) {
  std::istringstream in{R"({"kind": "track", "trackID": "t", "trackName": "n", )" + member + "}"};
  return CatalogueReader::read("music.jsonl", in, {});
}

/// The only problem of such a track, as it is printed.
std::string problem(const std::string& member) {
  const auto catalogue = readWith(member);
  EXPECT_EQ(catalogue.problems.count(), 1U) << member;
  std::ostringstream out;
  catalogue.problems.print(out, catalogue.name);
  return out.str();
}

Track track(const std::string& member) {
  auto catalogue = readWith(member);
  if (catalogue.entries.empty()) throw std::runtime_error{problem(member)};
  return std::get<Track>(catalogue.entries.front().record);
}

TEST(CatalogueTypes, ATextIsNothingElse) {
  for (const std::string value : {"1", "1.5", "true", "false", "[]", "{}", "[\"Jazz\"]"}) {
    EXPECT_THAT(problem(R"("genreName": )" + value),
                ::testing::AllOf(::testing::StartsWith("music.jsonl:1: genreName: is "),
                                 HasSubstr("; give a text\n")))
        << value;
  }
}

TEST(CatalogueTypes, ADurationIsAnyNumber) {
  EXPECT_EQ(track(R"("trackDuration": 343.719)").trackDuration(), 343.719);
  EXPECT_EQ(track(R"("trackDuration": 343)").trackDuration(), 343);
  EXPECT_EQ(track(R"("trackDuration": -1)").trackDuration(), -1);
  EXPECT_EQ(track(R"("trackDuration": 18446744073709551615)").trackDuration(),
            18446744073709551615.0);
  EXPECT_THAT(problem(R"("trackDuration": "343")"),
              HasSubstr("trackDuration: is a text; give a number"));
  EXPECT_THAT(problem(R"("trackDuration": true)"),
              HasSubstr("trackDuration: is true; give a number"));
}

TEST(CatalogueTypes, AnIntegerHasTheWholeRangeOf64Bits) {
  EXPECT_EQ(track(R"("trackIndexInAlbum": 9223372036854775807)").trackIndexInAlbum(),
            9223372036854775807);
  EXPECT_EQ(track(R"("trackIndexInAlbum": -9223372036854775808)").trackIndexInAlbum(),
            -9223372036854775807 - 1);
  EXPECT_THAT(problem(R"("trackIndexInAlbum": 9223372036854775808)"), HasSubstr("too large"));
}

TEST(CatalogueTypes, AnIntegerHasNoFractionAndNoExponent) {
  for (const std::string value :
       {"1.5", "1.0", "1e3", "99999999999999999999", "\"1\"", "true", "[1]"}) {
    EXPECT_THAT(problem(R"("trackIndexInAlbum": )" + value), HasSubstr("; give a whole number"))
        << value;
  }
}

TEST(CatalogueTypes, ADateIsAnIsoText) {
  EXPECT_THAT(problem(R"("albumReleaseDate": 1959)"),
              HasSubstr("albumReleaseDate: is a whole number; give an ISO 8601 date"));
  EXPECT_THAT(problem(R"("albumReleaseDate": "17 August 1959")"),
              HasSubstr("albumReleaseDate: is not an ISO 8601 date; write 1959-08-17, or"));
  EXPECT_THAT(problem(R"("albumReleaseDate": "1959-02-29")"), HasSubstr("does not exist"));
}

TEST(CatalogueTypes, AThumbnailIsStrictBase64OrAFile) {
  EXPECT_EQ(track(R"("thumbnailData": "Zm9v")").thumbnailData(), (Data{'f', 'o', 'o'}));
  EXPECT_THAT(problem(R"("thumbnailData": "Zm9")"), HasSubstr("thumbnailData: is not base64"));
  EXPECT_THAT(problem(R"("thumbnailData": [1, 2])"), HasSubstr("thumbnailData: is a list; give"));
  EXPECT_THAT(problem(R"("thumbnailPath": "none/a.png")"),
              HasSubstr("thumbnailPath: names none/a.png, which does not exist"));
  EXPECT_THAT(problem(R"("thumbnailPath": "/etc/hostname")"), HasSubstr("leads out of"));
  EXPECT_THAT(problem(R"("thumbnailPath": 1)"), HasSubstr("thumbnailPath: is a whole number"));
}

TEST(CatalogueTypes, BothThumbnailsAreOneTooMany) {
  const auto first = readWith(R"("thumbnailData": "AA==", "thumbnailPath": "none.png")");
  EXPECT_EQ(first.problems.first().at(0).key, "thumbnailPath");
  EXPECT_THAT(first.problems.first().at(0).text, HasSubstr("is a second thumbnail"));
  const auto last = readWith(R"("thumbnailPath": "none.png", "thumbnailData": "AA==")");
  EXPECT_EQ(last.problems.first().at(1).key, "thumbnailData");
  EXPECT_THAT(last.problems.first().at(1).text, HasSubstr("is a second thumbnail"));
}

}  // namespace
}  // namespace solvane::tool

#include <sstream>

#include <solvane/testing/printing.hpp>

#include <gtest/gtest.h>

namespace solvane {
namespace {

std::string printed(const auto& value) {
  std::ostringstream out;
  out << value;
  return out.str();
}

TEST(Printing, ShowsEveryAttributeThatIsSet) {
  CSSearchableItem item{"id", "tracks", CSSearchableItemAttributeSet{"type"}};
  item.expirationDate = Date::fromUnixTime(5, 7);
  item.attributeSet.title = "say \"so\"";
  item.attributeSet.audioTrackNumber = 3;
  item.attributeSet.thumbnailData = Data{1, 255};
  item.attributeSet.keywords = {{"a", "b"}};
  EXPECT_EQ(printed(item), R"(
  uniqueIdentifier: "id"
  domainIdentifier: "tracks"
  expirationDate: 5.000000007 s since 1970
  contentType: "type"
  title: "say \"so\""
  audioTrackNumber: 3
  thumbnailData: 2 bytes 01 ff
  keywords: ["a", "b"])");
}

TEST(Printing, CutsLongThumbnailsShort) {
  EXPECT_EQ(printed(Data{std::vector<std::uint8_t>(40)}),
            "40 bytes 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 ...");
}

TEST(Printing, ShowsAnActivity) {
  NSUserActivity activity;
  activity.webpageURL = "https://example.com";
  activity.keywords = {"b", "a"};
  EXPECT_EQ(printed(activity), R"(
  eligibleForSearch: false
  eligibleForPublicIndexing: false
  webpageURL: "https://example.com"
  keywords: ["a", "b"])");
}

}  // namespace
}  // namespace solvane

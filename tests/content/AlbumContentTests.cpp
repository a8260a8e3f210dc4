#include <solvane/service/Solvane.hpp>

#include <support/RecordedPlatform.hpp>

namespace solvane {
namespace {

using testing::AlbumFields;
using Strings = std::vector<std::string>;

class AlbumContent : public RecordedPlatform {
 protected:
  static CSSearchableItemAttributeSet contentOf(const AlbumFields& fields) {
    return CSSearchableItemAttributeSet::searchableItemAttributeSetWithAlbum(fields, "related");
  }
  CSSearchableItem itemOf(const AlbumFields& fields) {
    Solvane{}.indexAlbums(std::vector<Album>{fields});
    return onlyItem();
  }
};

TEST_F(AlbumContent, FillsExactlyTheAttributesOfAnAlbum) {
  const Date release = Date::fromUnixTime(-327'283'200, 123'456'789);
  CSSearchableItemAttributeSet expected{"public.audio"};
  expected.relatedUniqueIdentifier = "related";
  expected.title = "Blue";
  expected.artist = "Ann";
  expected.thumbnailData = Data{1};
  expected.recordingDate = release;
  expected.contentDescription = "Album on Tamberly";
  expected.keywords = Strings{"Ann", "Blue"};
  EXPECT_EQ(contentOf({.albumName = "Blue",
                       .artistName = "Ann",
                       .tracksCount = 10,
                       .albumReleaseDate = release,
                       .thumbnailData = Data{1}}),
            expected);
}

TEST_F(AlbumContent, HoldsAnArtistNameThatEqualsTheAlbumNameTwice) {
  EXPECT_EQ(contentOf({.albumName = "Blue", .artistName = "Blue"}).keywords,
            (Strings{"Blue", "Blue"}));
}

TEST_F(AlbumContent, KeepsEmptyNamesAsKeywords) {
  EXPECT_EQ(contentOf({.albumName = "", .artistName = ""}).keywords, (Strings{"", ""}));
}

TEST_F(AlbumContent, HasNoRecordingDateWhenItIsAbsentAndThatVeryInstantWhenItIsPresent) {
  EXPECT_EQ(contentOf({}).recordingDate, std::nullopt);
  const Date instant = Date::fromUnixTime(1, 1);
  EXPECT_EQ(contentOf({.albumReleaseDate = instant}).recordingDate, instant);
}

TEST_F(AlbumContent, BecomesTheSameItemWhateverTheNumberOfTracks) {
  Solvane{}.indexAlbums(
      std::vector<Album>{AlbumFields{.tracksCount = 12}, AlbumFields{.tracksCount = std::nullopt}});
  queue->runAll();
  ASSERT_EQ(index->items().size(), 2U);
  EXPECT_EQ(index->items()[0], index->items()[1]);
}

TEST_F(AlbumContent, HasNoThumbnailWhenItIsAbsent) {
  EXPECT_EQ(contentOf({}).thumbnailData, std::nullopt);
}

TEST_F(AlbumContent, IsDescribedInTheConfiguredTextAndAppName) {
  SolvaneConfig::sharedInstance()->setup(
      "Player", std::make_shared<SolvaneLocalizations>(std::nullopt, std::nullopt, "Album auf %@",
                                                       std::nullopt));
  EXPECT_EQ(contentOf({}).contentDescription, "Album auf Player");
}

TEST_F(AlbumContent, BecomesAnItemUnderTheAlbumsIdentifierInTheAlbumsDomain) {
  const auto item = itemOf({.albumID = "x9"});
  EXPECT_EQ(item.uniqueIdentifier, "x9");
  EXPECT_EQ(item.attributeSet.relatedUniqueIdentifier, "x9");
  EXPECT_EQ(item.domainIdentifier, "albums");
  EXPECT_EQ(item.expirationDate, calendar->now() + std::chrono::weeks{2});
}

}  // namespace
}  // namespace solvane

#include <solvane/service/Solvane.hpp>

#include <support/RecordedPlatform.hpp>

namespace solvane {
namespace {

using testing::TrackFields;
using Strings = std::vector<std::string>;

const Date release = std::chrono::sys_days{std::chrono::year{1959} / 8 / 17};

CSSearchableItemAttributeSet contentOf(const TrackFields& fields) {
  return CSSearchableItemAttributeSet::searchableItemAttributeSetWithTrack(fields, "related");
}

class TrackItem : public RecordedPlatform {
 protected:
  CSSearchableItem itemOf(const TrackFields& fields,
                          std::optional<std::string> domainID = std::nullopt) {
    Solvane{}.indexTracks(std::vector<Track>{fields}, std::move(domainID));
    return onlyItem();
  }
};

TEST(TrackContent, FillsExactlyTheAttributesOfATrack) {
  CSSearchableItemAttributeSet expected{"public.audio"};
  expected.relatedUniqueIdentifier = "related";
  expected.title = "Blue in Green";
  expected.artist = "Miles Davis";
  expected.audioTrackNumber = 3;
  expected.album = "Kind of Blue";
  expected.musicalGenre = "Jazz";
  expected.thumbnailData = Data{1, 2};
  expected.recordingDate = release;
  expected.keywords = Strings{"Blue in Green", "Miles Davis", "Kind of Blue", "Jazz"};
  EXPECT_EQ(contentOf({.trackName = "Blue in Green",
                       .trackIndexInAlbum = 3,
                       .albumReleaseDate = release,
                       .genreName = "Jazz",
                       .thumbnailData = Data{1, 2}}),
            expected);
}

TEST(TrackContent, LeavesAbsentOptionalsUnset) {
  const auto content = contentOf({});
  EXPECT_EQ(content.musicalGenre, std::nullopt);
  EXPECT_EQ(content.thumbnailData, std::nullopt);
  EXPECT_EQ(content.recordingDate, std::nullopt);
}

TEST(TrackContent, HasThreeKeywordsWithoutAGenreAndTheGenreLastWithOne) {
  EXPECT_EQ(contentOf({}).keywords, (Strings{"So What", "Miles Davis", "Kind of Blue"}));
  EXPECT_EQ(contentOf({.genreName = "Jazz"}).keywords,
            (Strings{"So What", "Miles Davis", "Kind of Blue", "Jazz"}));
}

TEST(TrackContent, KeepsEmptyAndEqualKeywords) {
  EXPECT_EQ(
      contentOf({.trackName = "", .artistName = "A", .albumName = "A", .genreName = ""}).keywords,
      (Strings{"", "A", "A", ""}));
}

TEST(TrackContent, KeepsAPresentEmptyGenreAsAnAttribute) {
  EXPECT_EQ(contentOf({.genreName = ""}).musicalGenre, "");
}

TEST(TrackContent, DoesNotDependOnTheDurationOrTheTrackIdentifier) {
  EXPECT_EQ(contentOf({.trackID = "one", .trackDuration = 1.0}),
            contentOf({.trackID = "two", .trackDuration = 2.0}));
}

TEST(TrackContent, GivesIndexZeroTheTrackNumberZeroAndKeepsNegativeOnes) {
  EXPECT_EQ(contentOf({.trackIndexInAlbum = 0}).audioTrackNumber, 0);
  EXPECT_EQ(contentOf({.trackIndexInAlbum = -3}).audioTrackNumber, -3);
}

TEST(TrackContent, PassesThumbnailsOfAnyLengthOnUnchanged) {
  EXPECT_EQ(contentOf({.thumbnailData = Data{7}}).thumbnailData, (Data{7}));
  EXPECT_EQ(contentOf({.thumbnailData = Data{}}).thumbnailData, Data{});
}

TEST(TrackContent, SharesTheThumbnailsBytes) {
  const Data thumbnail{1, 2, 3};
  EXPECT_EQ(contentOf({.thumbnailData = thumbnail}).thumbnailData->data(), thumbnail.data());
}

TEST(TrackContent, HasNoDescription) {
  EXPECT_EQ(contentOf({.genreName = "Jazz"}).contentDescription, std::nullopt);
}

TEST_F(TrackItem, CarriesTheTracksIdentifierTwice) {
  const auto item = itemOf({.trackID = " Track/42 "});
  EXPECT_EQ(item.uniqueIdentifier, " Track/42 ");
  EXPECT_EQ(item.attributeSet.relatedUniqueIdentifier, " Track/42 ");
}

TEST_F(TrackItem, StandsInTheTracksDomainWithoutAGivenOne) {
  EXPECT_EQ(itemOf({}).domainIdentifier, "tracks");
}

TEST_F(TrackItem, StandsInTheGivenDomain) {
  EXPECT_EQ(itemOf({}, "favourites").domainIdentifier, "favourites");
}

TEST_F(TrackItem, StandsInTheGivenDomainEvenIfThatIsEmpty) {
  EXPECT_EQ(itemOf({}, "").domainIdentifier, "");
}

TEST_F(TrackItem, ExpiresTwoWeeksAfterTheMomentItWasBuilt) {
  EXPECT_EQ(itemOf({}).expirationDate, calendar->now() + std::chrono::weeks{2});
}

TEST_F(TrackItem, HasTheContentOfItsTrack) {
  EXPECT_EQ(itemOf({.trackID = "related", .genreName = "Jazz"}).attributeSet,
            contentOf({.genreName = "Jazz"}));
}

}  // namespace
}  // namespace solvane
